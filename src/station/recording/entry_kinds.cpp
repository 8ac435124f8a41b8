// What only one of the entry screens has.

#include "station/console/station_paths.h"
#include "station/platform/files.h"
#include "station/platform/text.h"
#include "station/recording/entry_screen.h"

namespace quixair {

RecordSpot::RecordSpot(const Platform& platform) : EntryScreen(platform, EntryKindOf(RecordingKind::kSpot)) {
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    option->on_click = [this, option] { PresetRead(option->caption()); };
  }
  Check1.on_click = [this] { PresetRead({}); };
  Text6.on_change = [this] {
    if (!LooksLikeDigits(Text6.text())) Text6.SetText({});
    if (!Text6.text().empty()) TakeTyped();
  };
}

void RecordSpot::NewRecordingBegins() {
  EnableExtras(true);
  PresetRead({});
}

void RecordSpot::PresetRead(const std::string& seconds) {
  preset_ = seconds;
  bool option_chosen = false;
  for (OptionButton* option : {&Option1, &Option2, &Option3}) {
    option->Select(option->caption() == seconds);
    option_chosen = option_chosen || option->selected();
  }
  Check1.Tick(seconds.empty());
  Text6.SetText(option_chosen ? std::string() : seconds);
}

void RecordSpot::TakeTyped() {
  preset_ = Text6.text();
  for (OptionButton* option : {&Option1, &Option2, &Option3}) option->Select(false);
  Check1.Tick(false);
}

void RecordSpot::EnableExtras(bool enabled) {
  Frame1.Enable(enabled);
}

std::string RecordSpot::Preset() const {
  return preset_;
}

RecordASong::RecordASong(const Platform& platform)
    : EntryScreen(platform, EntryKindOf(RecordingKind::kMusic)) {
  Text6.Hide();
}

/// Of the two files that a song may have, the one that would play.
void RecordASong::DeleteOldAudio(const std::string& drive, const std::string& id) {
  const std::string audio = AudioPath(drive, id);
  if (!audio.empty()) SkipAndGoOn(platform_.files.Delete(audio));
}

/// Opening an .mp3 takes long enough to be told.
void RecordASong::OpeningAudio(bool opening, const std::string& path) {
  const bool wait = opening && UpperCased(path).ends_with(".MP3");
  Text6.SetText(wait ? "wait..." : "");
  Text6.Show(wait);
  if (wait) Repaint();
}

RecordLiner::RecordLiner(const Platform& platform)
    : EntryScreen(platform, EntryKindOf(RecordingKind::kLiner)) {}

void RecordLiner::DeleteOldAudio(const std::string& drive, const std::string& id) {
  const Status deleted = platform_.files.Delete(station_paths::AudioFile(drive, id, ".WAV"));
  if (deleted.error() == RunTimeError::kFileNotFound) Text1.SetText("The .WAV file does not exist");
}

}  // namespace quixair
