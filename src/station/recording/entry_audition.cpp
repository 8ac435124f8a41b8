#include "station/recording/entry_audition.h"

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/platform/text.h"
#include "station/recording/audition.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {
constexpr std::chrono::milliseconds kPositionInterval{350};
}

EntryAudition::EntryAudition(Screen& screen, TextBox& hint, bool plays_mp3)
    : MMControl1(screen, "MMControl1", kAuditionChannel),
      Timer1(screen, "Timer1"),
      hint_(hint),
      plays_mp3_(plays_mp3) {
  PlayByHand(MMControl1);
  Timer1.on_tick = [this] {
    hint_.SetText("Playback Position = " + ShortestSeconds(MMControl1.Position()) + " Seconds");
  };
}

std::string EntryAudition::PathOf(const std::string& drive, const std::string& id) const {
  if (!plays_mp3_) return station_paths::AudioFile(drive, id, ".wav");
  const std::optional<std::string> extension = FindAudioFile(hint_.screen().platform().files, drive, id);
  return extension ? station_paths::AudioFile(drive, id, *extension) : std::string();
}

std::optional<std::string> EntryAudition::Play(const std::string& drive, const std::string& id) {
  End();
  const std::string path = PathOf(drive, id);
  if (!Open(path)) {
    hint_.SetText("There is no audio to play: " + (path.empty() ? id : path));
    return std::nullopt;
  }
  hint_.SetText(path);
  Timer1.SetInterval(kPositionInterval);
  Timer1.SetEnabled(true);
  MMControl1.Command(ChannelCommand::kPlay);
  return LengthShown();
}

std::optional<std::string> EntryAudition::Measure(const std::string& drive, const std::string& id) {
  std::optional<std::string> length;
  if (Open(PathOf(drive, id))) length = LengthShown();
  MMControl1.Command(ChannelCommand::kClose);
  return length;
}

void EntryAudition::End() {
  Timer1.SetEnabled(false);
  MMControl1.Command(ChannelCommand::kClose);
}

bool EntryAudition::Open(const std::string& path) {
  if (on_opening) on_opening(true, path);
  MMControl1.SetFileName(path);
  MMControl1.Command(ChannelCommand::kOpen);
  if (on_opening) on_opening(false, path);
  return MMControl1.Mode() != ChannelMode::kNotOpen;
}

std::string EntryAudition::LengthShown() const {
  return ShortestSeconds(MMControl1.Length());
}

}  // namespace quixair
