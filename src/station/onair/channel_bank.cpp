#include "station/onair/channel_bank.h"

#include <string>

#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {

constexpr std::size_t kIdInPath = 10;  // behind "X:\\QXWAVE\\"

bool SongBegan(const MediaControl& channel, int milliseconds) {
  const std::string& path = channel.file_name();
  return path.size() > kIdInPath && UpperCased(path[kIdInPath]) == 'M' &&
         channel.Mode() == ChannelMode::kPlaying && channel.Position() < milliseconds;
}

}  // namespace

ChannelBank::ChannelBank(Screen& owner)
    : MMControl1(owner, "MMControl1", 1),
      MMControl2(owner, "MMControl2", 2),
      MMControl3(owner, "MMControl3", 3),
      MMControl4(owner, "MMControl4", 4),
      ChannelFrame(owner, "ChannelFrame", "Channel Activity:"),
      Label6{Label{ChannelFrame, "Label6(0)", "Channel # 1"}, Label{ChannelFrame, "Label6(1)", "Channel # 2"},
             Label{ChannelFrame, "Label6(2)", "Channel # 3"},
             Label{ChannelFrame, "Label6(3)", "Channel # 4"}} {}

MediaControl& ChannelBank::channel(int number) {
  switch (number) {
    case 1:
      return MMControl1;
    case 2:
      return MMControl2;
    case 3:
      return MMControl3;
    default:
      return MMControl4;
  }
}

void ChannelBank::Arm() {
  for (MediaControl* channel : {&MMControl1, &MMControl2}) channel->SetNotify(true);
}

void ChannelBank::PauseAll() {
  for (MediaControl* channel : {&MMControl1, &MMControl2, &MMControl3}) {
    if (channel->Mode() == ChannelMode::kPlaying) channel->Command(ChannelCommand::kPause);
  }
}

void ChannelBank::ResumeAll() {
  for (MediaControl* channel : {&MMControl1, &MMControl2, &MMControl3}) {
    if (channel->Mode() == ChannelMode::kPaused) channel->Command(ChannelCommand::kPlay);
  }
}

void ChannelBank::RewindAll() {
  for (MediaControl* channel : {&MMControl1, &MMControl2, &MMControl3})
    channel->Command(ChannelCommand::kPrev);
}

void ChannelBank::CloseAll() {
  for (MediaControl* channel : {&MMControl1, &MMControl2, &MMControl3})
    channel->Command(ChannelCommand::kClose);
}

void ChannelBank::SweepEnded() {
  for (MediaControl* channel : {&MMControl1, &MMControl2}) {
    const bool at_its_end = channel->Mode() == ChannelMode::kStopped && channel->Position() != 0;
    if (at_its_end) channel->Command(ChannelCommand::kClose);
  }
}

bool ChannelBank::AnythingSounds() const {
  return MMControl1.Mode() == ChannelMode::kPlaying || MMControl2.Mode() == ChannelMode::kPlaying;
}

bool ChannelBank::TwoSongsBegan(int milliseconds) const {
  return SongBegan(MMControl1, milliseconds) && SongBegan(MMControl2, milliseconds);
}

void ChannelBank::UpdateLabels() {
  for (int number = 1; number <= 4; ++number) {
    Label& label = Label6[static_cast<std::size_t>(number - 1)];
    const std::string start = "Ch-" + std::to_string(number);
    if (channel(number).Mode() == ChannelMode::kPlaying) label.SetCaption(start + " = Open");
    if (channel(number).Mode() == ChannelMode::kNotOpen) label.SetCaption(start + " = Closed");
  }
}

void ChannelBank::ConnectBars(const std::function<bool()>& play_allowed,
                              const std::function<bool()>& play_allowed_on_idle,
                              const std::function<void()>& do_continue) {
  for (MediaControl* channel : {&MMControl1, &MMControl2, &MMControl3}) {
    channel->on_pause_click = do_continue;
    const auto& allowed = channel == &MMControl3 ? play_allowed_on_idle : play_allowed;
    channel->on_play_click = [allowed, do_continue] {
      if (allowed()) do_continue();
    };
  }
}

int OpenFile(MediaControl& channel, const std::string& path) {
  channel.SetFileName(path);
  channel.Command(ChannelCommand::kOpen);
  return channel.Length();
}

}  // namespace quixair
