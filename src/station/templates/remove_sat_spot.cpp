#include "station/templates/remove_sat_spot.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"
#include "station/templates/template_choice.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {
constexpr const char* kHint =
    "First, select a template from which to remove the audio material, then select Done.";
}

RemoveSatSpot::RemoveSatSpot(const Platform& platform)
    : Screen(platform, "RemoveSatSpot", "Simple Sat  REMOVE SPOTS FROM TEMPLATE") {
  File1.on_click = [this] { ShowName(); };
  File1.on_enter = [this] { Done.SetFocus(); };
  Done.on_click = [this] { RemoveSpots(); };
  Quit.on_click = [this] { Unload(); };
}

void RemoveSatSpot::Load() {
  ShowTemplates(File1, "*.TPL;*.TPD");
  Text1.SetText(kHint);
  ShowName();
  File1.SetFocus();
}

void RemoveSatSpot::ShowName() {
  const std::string name = File1.selected_text();
  Label3.SetCaption("Filename = " + (name.empty() ? "(Empty)" : name));
  Done.Enable(!name.empty());
}

void RemoveSatSpot::RemoveSpots() {
  const std::string name = File1.selected_text();
  Dialogs& dialogs = platform_.dialogs;
  const Answer answer =
      dialogs.MessageBox("If You Continue, All Spots will be removed from " + name,
                         box_style::kOkCancel + box_style::kExclamation, "Remove Spots from " + name + "?");
  if (answer != Answer::kOk) return;
  Text1.SetText("REMOVING SPOTS FROM " + name);
  Repaint();
  const Status removed = Rewrite(name);
  if (removed.ok()) {
    dialogs.MessageBox("Done Removing Spots from " + name, box_style::kOk, "All Spots Have Been Removed");
  } else {
    TellFileFault(dialogs, removed, name + " stays as it was.");
  }
  Text1.SetText(kHint);
}

Status RemoveSatSpot::Rewrite(const std::string& name) {
  const std::string path = station_paths::TemplateFile(name);
  const Result<std::string> content = platform_.files.Read(path);
  if (!content.ok()) return content.status();
  int kept = 0;
  const std::vector<TemplateEvent> records =
      OrEndProgram(WholeTemplate(content.value(), [&](const TemplateEvent& event) {
        const bool spot = UpperCased(event.EventId.front()) == 'S';
        if (!spot) ++kept;
        Text1.SetText(TextOf(kept, event));  // a spot shows too, under the number before
        Repaint();
        return !spot;
      }));
  return platform_.files.Write(path, FormatRecords(records), Durability::kFlushed);
}

}  // namespace quixair
