#include "station/templates/erase_template.h"

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/templates/template_choice.h"

namespace quixair {
namespace {
constexpr EraseTemplateFamily kPickList = {"ErasePickCustom", "Template ERASE Utility (Pick-List)", "*.TPP"};
constexpr EraseTemplateFamily kSimpleSat = {"EraseSimSatCustom", "Template ERASE Utility (Simple-Sat)",
                                            "*.TPL"};
}  // namespace

EraseTemplate::EraseTemplate(const Platform& platform, const EraseTemplateFamily& family)
    : Screen(platform, family.screen, family.title), family_(family) {
  File1.on_click = [this] {
    EraseNow.Enable();
    Text1.SetText("Double Click or Press Enter to Accept " + File1.selected_text() + " for deletion.");
  };
  File1.on_double_click = File1.on_enter = EraseNow.on_click = [this] { Erase(); };
  Quit.on_click = [this] { Unload(); };
}

ErasePickCustom::ErasePickCustom(const Platform& platform) : EraseTemplate(platform, kPickList) {}
EraseSimSatCustom::EraseSimSatCustom(const Platform& platform) : EraseTemplate(platform, kSimpleSat) {}

void EraseTemplate::Load() {
  Text1.SetText("Select the template that you want to erase.");
  List();
  File1.SetFocus();
}

void EraseTemplate::List() {
  ShowTemplates(File1, family_.pattern);
  EraseNow.Disable();
}

void EraseTemplate::Erase() {
  const std::string name = File1.selected_text();
  if (name.empty()) return;
  Text1.SetText(name + " selected for deletion ! ");
  Dialogs& dialogs = platform_.dialogs;
  const Answer answer = dialogs.MessageBox(
      "Do you really want to erase " + name + "?  You will\nNOT be able to retrieve it from the recycle bin.",
      box_style::kYesNo + box_style::kQuestion, "Erase " + name);
  if (answer == Answer::kYes) {
    const Status erased = platform_.files.Delete(station_paths::TemplateFile(name));
    if (!erased.ok()) TellFileFault(dialogs, erased, "The template was not erased.");
  }
  List();
}

}  // namespace quixair
