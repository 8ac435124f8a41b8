#include "station/onair/deck.h"

#include <utility>

#include "station/library/recording.h"

namespace quixair {
namespace {
constexpr int kItemChannels = 2;
}

void Deck::BeginRun() {
  channels_.Arm();
  running_ = true;
}

void Deck::EndRun(EndCause cause) {
  EndAll(cause);
  running_ = false;
}

bool Deck::Begin(int number, AirItem item) {
  MediaControl& channel = channels_.channel(number);
  End(number, ended(number) ? EndCause::kEndOfFile : EndCause::kHandOver);
  channel.SetFileName(item.path);
  channel.Command(ChannelCommand::kOpen);
  if (channel.Length() == 0) {
    channel.Command(ChannelCommand::kClose);
    return false;
  }
  channel.Command(ChannelCommand::kPlay);
  TakeTurn(number);
  clock_.Start();
  const AirItem& began = items_.at(static_cast<std::size_t>(number - 1)).emplace(std::move(item));
  for (DeckObserver* observer : observers_) observer->ItemBegan(number, began);
  return true;
}

void Deck::End(int number, EndCause cause) {
  MediaControl& channel = channels_.channel(number);
  if (channel.Mode() == ChannelMode::kNotOpen) return;
  const double heard = position(number);
  channel.Command(ChannelCommand::kClose);
  if (number > kItemChannels) return;
  const auto item = std::exchange(items_[static_cast<std::size_t>(number - 1)], std::nullopt);
  if (!item) return;
  for (DeckObserver* observer : observers_) observer->ItemEnded(number, *item, cause, heard);
}

void Deck::EndAll(EndCause cause) {
  for (int number = 1; number <= 3; ++number) End(number, cause);
}

void Deck::SweepEnded() {
  for (int number = 1; number <= kItemChannels; ++number) {
    if (ended(number) && position(number) > 0) End(number, EndCause::kEndOfFile);
  }
}

void Deck::TakeTurn(int number) {
  active = number == 1 ? ActiveChannel::kFirst : ActiveChannel::kSecond;
}

void Deck::HoldFor(Hold reason) {
  hold_ = reason;
  if (reason == Hold::kOperator) {
    clock_.Hold();
    channels_.PauseAll();
  } else {
    clock_.Start();
  }
}

void Deck::GoOn() {
  if (hold_ != Hold::kNone && hold_ != Hold::kLiveBreak) {
    requeue_pending_ ? clock_.Start() : clock_.GoOn();
    requeue_pending_ = false;
  }
  hold_ = Hold::kNone;
  channels_.ResumeAll();
}

void Deck::Rewind() {
  channels_.RewindAll();
  requeue_pending_ = true;
}

bool Deck::TwoSongsBegan(double seconds) const {
  for (int number = 1; number <= kItemChannels; ++number) {
    const AirItem* on_air = item(number);
    if (on_air == nullptr || KindOf(on_air->id) != RecordingKind::kMusic || !plays(number) ||
        position(number) >= seconds)
      return false;
  }
  return true;
}

const AirItem* Deck::item(int number) const {
  const auto& held = items_.at(static_cast<std::size_t>(number - 1));
  return held && !closed(number) ? &*held : nullptr;
}

OnAirStatus Deck::status() const {
  const bool on_second = active == ActiveChannel::kSecond || closed(1);
  const int number = on_second && !closed(2) ? 2 : 1;
  OnAirStatus status;
  status.length_seconds = length(number);
  status.elapsed_seconds = position(number);
  if (!running_) return status;
  switch (hold_) {
    case Hold::kLiveBreak:
      status.state = AirState::kLive;
      break;
    case Hold::kOperator:
    case Hold::kPauseEvent:
      status.state = AirState::kPaused;
      break;
    case Hold::kNone:
      status.state = plays(number) ? AirState::kPlaying : AirState::kSilent;
  }
  return status;
}

}  // namespace quixair
