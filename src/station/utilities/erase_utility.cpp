#include "station/utilities/erase_utility.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/utilities/erase_editor.h"

namespace quixair {
namespace {
constexpr EventListKind kKind = {.screen = "EraseUtility",
                                 .title = "ERASE Recordings",
                                 .columns = LibraryColumns::kWithDrive,
                                 .cut_caption = "&Cut Entry",
                                 .manual_caption = "Ma&nual Entry",
                                 .too_few_to_cut =
                                     "Too few entries to do cutting!  You can only \n"
                                     "cut previously selected entries in the top box...",
                                 .banner = "Quixair Recording Eraser"};
}

EraseUtility::EraseUtility(const Platform& platform)
    : EventListScreen(platform, kKind), editor_(std::make_unique<EraseEditor>(*this)) {
  Label2.SetCaption("Recordings to Erase");
  Check1.on_click = [this] { SaveAsk(); };
}

EraseUtility::~EraseUtility() = default;

void EraseUtility::Load() {
  Check1.Tick(ReadNumberSetting(platform_.files, station_paths::kAskBeforeErasing) == 1);
  ListLibrary();
  ShowLibrary(List3);
  StartLoading();
}

void EraseUtility::PrepareAgain(const ScreenOpening&) {
  if (!loading() && List2.row_count() == 0) Reopen();
}

void EraseUtility::Reopen() {
  ListLibrary();
  ShowLibrary(shown_library());
  StartLoading();
}

void EraseUtility::CloseWindow() {
  editor_->Quit();
}

void EraseUtility::SaveAsk() {
  const Status saved =
      WriteNumberSetting(platform_.files, station_paths::kAskBeforeErasing, Check1.ticked() ? 1 : 0);
  if (!saved.ok()) TellFileFault(platform_.dialogs, saved, "The choice holds until this screen is closed.");
}

bool EraseUtility::GoOnAfter(const Status& fault, const std::string& id) {
  Text3.SetText("Cannot read " + id + ".DAT");  // the box does not say which
  platform_.dialogs.MessageBox(
      "An unexpected error occured. This module will terminate.\n"
      "Please try again.  Note:  You may have to delete the file(s)\n"
      "manually to eliminate this error.",
      box_style::kExclamation, "Error Encountered [Error # " + std::to_string(fault.number()) + "]");
  return false;
}

/// An empty kind is no hindrance here, but told instead of the counts.
void EraseUtility::Loaded() {
  std::string none;
  for (const Library& library : libraries()) {
    if (library.files.count() > 0) continue;
    none += (none.empty() ? "" : " / ") + std::string(library.none);
  }
  if (!none.empty()) Text3.SetText(none);
}

}  // namespace quixair
