#include "station/templates/copy_sat_temp.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"
#include "station/templates/template_choice.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {
constexpr const char* kHint = "Select file to copy from and file to copy to.  Click Done when ready to copy.";
}

CopySatTemp::CopySatTemp(const Platform& platform)
    : Screen(platform, "CopySatTemp", "Simple-Sat Copy Template Data") {
  File1.on_click =
      File2.on_click = [this] { Done.Enable(File1.selected_index() >= 0 && File2.selected_index() >= 0); };
  File1.on_enter = [this] { File2.SetFocus(); };
  File2.on_enter = [this] { Done.SetFocus(); };
  Done.on_click = [this] { CopyData(); };
  Quit.on_click = [this] { Unload(); };
}

void CopySatTemp::Load() {
  for (FileListBox* list : {&File1, &File2}) ShowTemplates(*list, "*.TPL;*.TPD");
  Text1.SetText(kHint);
  Done.Disable();
  File1.SetFocus();
}

void CopySatTemp::CopyData() {
  const std::string source = File1.selected_text();
  const std::string destination = File2.selected_text();
  Dialogs& dialogs = platform_.dialogs;
  if (EqualsIgnoringCase(source, destination)) {
    dialogs.MessageBox("You can't copy the same file over itself.\n          What were you thinking?",
                       box_style::kOk, "Can't Copy " + source + " to " + destination);
    return;
  }
  const Answer answer =
      dialogs.MessageBox("If You Continue, All Data will Be Written from " + source + " to " + destination +
                             ".  Any Existing Data in " + destination + " Will be Lost!",
                         box_style::kOkCancel + box_style::kQuestion, "Copy Data?");
  if (answer != Answer::kOk) return;
  const Status copied = Copy(source, destination);
  if (copied.ok()) {
    dialogs.MessageBox(source + " Data has been Copied to " + destination, box_style::kOk, "Done");
  } else {
    TellFileFault(dialogs, copied, destination + " stays as it was.");
  }
  Text1.SetText(kHint);
}

Status CopySatTemp::Copy(const std::string& source, const std::string& destination) {
  const Result<std::string> content = platform_.files.Read(station_paths::TemplateFile(source));
  if (!content.ok()) return content.status();
  int number = 0;
  const std::vector<TemplateEvent> records =
      OrEndProgram(WholeTemplate(content.value(), [&](const TemplateEvent& event) {
        Text1.SetText(TextOf(++number, event));
        Repaint();
        return true;
      }));
  return platform_.files.Write(station_paths::TemplateFile(destination), FormatRecords(records),
                               Durability::kFlushed);
}

}  // namespace quixair
