#include "station/onair/channel_bank.h"

#include <string>

#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair {
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

}  // namespace quixair
