#include "station/templates/build_template.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr const char* kHint =
    "Select an existing Template to edit, or click 'New Template' to create a new Template.";
constexpr const char* kAsk =
    "Enter New ID (Do not enter file extension), then 'OK'...\n"
    "[Filename should not exceed 8 digits if DOS playback is desired.]";
/// A double quote would end the name in the file that hands it over, and its template would be found by nobody.
constexpr std::string_view kRefused = ",/\\#%^*;|\"";
constexpr int kExtensionBoxStyle = 160;  // the box has always had this style

/// What a name may not hold comes in a box of its own for either kind; the first such character decides.
bool TellRefused(Dialogs& dialogs, const std::string& typed) {
  for (const char letter : typed) {
    if (letter == '.') {
      dialogs.MessageBox(
          "You entered a file Extension, or a period somewhere in the filename.\n"
          "Please use only letters or numeric characters",
          kExtensionBoxStyle, "No Extensions Allowed");
      return true;
    }
    if (kRefused.find(letter) != std::string_view::npos) {
      dialogs.MessageBox("Use only numeric(0-9) or alphabetic(A-Z) characters in your filename.",
                         box_style::kOk, "Bad Character in Filename");
      return true;
    }
  }
  return false;
}

}  // namespace

BuildTemplate::BuildTemplate(const Platform& platform)
    : Screen(platform, "BuildTemplate", "Select Template (Pick-List)") {
  choice_.on_choose = [this](const ChosenTemplate& chosen) { OpenEditor(chosen.name); };
  NewTemplate.on_click = [this] { NameNewTemplate(); };
  Quit.on_click = [this] { Unload(); };
}

void BuildTemplate::Prepare(const ScreenOpening& opening) {
  SetTitle(opening.title.empty() ? "Select Template (Pick-List)" : opening.title);
  Text1.SetText(kHint);
  ShowTemplates(File1, opening.patterns.empty() ? "*.TPP" : opening.patterns.front());
  List1.Clear();
  for (const std::string& name : opening.day_files) List1.AddRow(name);
  choice_.Reset();
}

void BuildTemplate::NameNewTemplate() {
  for (;;) {
    const std::string typed = platform_.dialogs.InputBox(kAsk, "New Template ID", {});
    if (typed.empty()) return;
    Text1.SetText(typed);
    const std::optional<std::string> name = NewFileName(typed);
    if (!name) continue;
    Text1.SetText("Last template: " + *name);
    OpenEditor(*name);
    return;
  }
}

std::optional<std::string> BuildTemplate::NewFileName(const std::string& typed) {
  if (TellRefused(platform_.dialogs, typed)) return std::nullopt;
  const std::size_t first = typed.find_first_not_of(' ');
  if (first == std::string::npos) {
    platform_.dialogs.MessageBox("You must enter at least one character as a filename.", box_style::kOk,
                                 "No File Name");
    return std::nullopt;
  }
  return typed.substr(first) + Extension();
}

std::string BuildTemplate::Extension() const {
  return EqualsIgnoringCase(File1.pattern(), "*.TPL") ? ".TPL" : ".TPP";
}

void BuildTemplate::OpenEditor(const std::string& name) {
  const Status handed_over = WriteTextSetting(platform_.files, station_paths::kPikName, name);
  if (!handed_over.ok()) {
    TellFileFault(platform_.dialogs, handed_over, "The template editor cannot be opened.");
    return;
  }
  Hide();
  platform_.screens.Open("BuildTemplate1");
}

}  // namespace quixair
