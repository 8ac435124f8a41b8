#include "station/recording/record_a_song.h"

#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {

RecordASong::RecordASong(const Platform& platform)
    : EntryScreen(platform, EntryKindOf(RecordingKind::kMusic)) {
  Text6.Hide();
  audition.on_opening = [this](bool opening, const std::string& path) { OpeningAudio(opening, path); };
}

/// Of the two files that a song may have, the one that would play.
void RecordASong::DeleteOldAudio(const std::string& letter, const std::string& id) {
  const std::string audio = audition.PathOf(letter, id);
  if (!audio.empty()) SkipAndGoOn(platform_.files.Delete(audio));
}

/// Opening an .mp3 takes long enough to be told.
void RecordASong::OpeningAudio(bool opening, const std::string& path) {
  const bool wait = opening && UpperCased(path).ends_with(".MP3");
  Text6.SetText(wait ? "wait..." : "");
  Text6.Show(wait);
  if (wait) Repaint();
}

}  // namespace quixair
