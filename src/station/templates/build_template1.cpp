#include "station/templates/build_template1.h"

#include <chrono>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/templates/template_editor.h"

namespace quixair {
namespace {

constexpr EventListKind kKind = {.screen = "BuildTemplate1",
                                 .title = "Template Editor",
                                 .columns = LibraryColumns::kPlain,
                                 .cut_caption = "&Cut",
                                 .manual_caption = "Ma&nual    Entry",
                                 .too_few_to_cut =
                                     "Too  few entries to do cutting!  You can only \n"
                                     "cut previously selected entries in the top box...",
                                 .banner = "Quixair Template Editor"};
constexpr std::array<const char*, 4> kTitles = {"Pick-List Playback Select", "Pick-List Playback Select",
                                                "Simple-Sat Playback Select",
                                                "Random Spot/PSA Rotation File"};
constexpr int kFewest = 2;
constexpr std::chrono::milliseconds kAtOnce{1};

/// How the operator reads of a kind that has too few recordings.
struct KindInWords {
  const char *title, *files, *recordings;
};
KindInWords InWords(RecordingKind kind) {
  switch (kind) {
    case RecordingKind::kMusic:
      return {"Not Enough Music!", "song", "music"};
    case RecordingKind::kSpot:
      return {"Not Enough Spots!", "spot", "spot"};
    case RecordingKind::kLiner:
      break;
  }
  return {"Not Enough Liners!", "liner", "liner"};
}

}  // namespace

BuildTemplate1::BuildTemplate1(const Platform& platform)
    : EventListScreen(platform, kKind), editor_(std::make_unique<TemplateEditor>(*this)) {
  Frame1.Hide();
  Frame2.Hide();
  HandOverTimer.on_tick = [this] { TakeHandOver(); };
}

BuildTemplate1::~BuildTemplate1() = default;

void BuildTemplate1::Load() {
  ListLibrary();
  if (!LibraryIsLargeEnough()) {
    Unload();
    return;
  }
  SetUpMode();
  StartLoading();
}

Control& BuildTemplate1::RestingPlace() {
  if (editor_->assists() && Text8.visible()) return Text8;
  return EventListScreen::RestingPlace();
}

void BuildTemplate1::PrepareAgain(const ScreenOpening&) {
  SetRestingFocus();
  HandOverTimer.SetInterval(kAtOnce);
  HandOverTimer.SetEnabled(true);
}

/// What is worked on is left as by Quit, and the screen comes anew.
void BuildTemplate1::TakeHandOver() {
  HandOverTimer.SetEnabled(false);
  if (editor_->IsHandedOver() || !editor_->MayBeLeft()) return;
  Screens& screens = platform_.screens;
  Unload();
  screens.Open(kKind.screen);
}

void BuildTemplate1::CloseWindow() {
  editor_->Quit();
}

bool BuildTemplate1::LibraryIsLargeEnough() {
  bool enough = true;
  for (const Library& library : libraries()) {
    if (library.files.count() >= kFewest) continue;
    const KindInWords words = InWords(library.files.kind());
    platform_.dialogs.MessageBox("You must record at least two " + std::string(words.files) +
                                     " files before\nusing this module. Please make at least two\n" +
                                     words.recordings + " recordings and then try again...",
                                 box_style::kExclamation, words.title);
    enough = false;
  }
  return enough;
}

void BuildTemplate1::SetUpMode() {
  const int pik_mode = ReadNumberSetting(platform_.files, station_paths::kPikMode);
  ShowLibrary(List3);
  if (pik_mode >= 0 && pik_mode < static_cast<int>(kTitles.size())) {
    SetTitle(kTitles[static_cast<std::size_t>(pik_mode)]);
  }
  editor_->SetMode(pik_mode);
}

EventListScreen::Step BuildTemplate1::LoadMore() {
  if (editor_->plays()) return Step::kDone;
  if (!editor_->OpenTemplate()) return Step::kLeft;
  return editor_->LoadEvent() ? Step::kMore : Step::kDone;
}

void BuildTemplate1::Loaded() {
  std::vector<std::string> numbers;
  for (int number = 1; number <= TemplateEntries::kMost; ++number) {
    numbers.push_back((number < 10 ? "0" : "") + std::to_string(number));
  }
  List5.SetRows(numbers);
  List6.SetRows(std::move(numbers));
  editor_->SetLoaded();
}

}  // namespace quixair
