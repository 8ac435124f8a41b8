#include "simulation/simulated_media.h"

#include <algorithm>
#include <utility>

namespace quixair::simulation {

using std::chrono::milliseconds;
using Act = ChannelEvent::Act;

class SimulatedMedia::Player : public MediaPlayer {
 public:
  Player(SimulatedMedia& media, int number)
      : media_(media), number_(number), end_(media.time_.MakeTimer([this] { ReachEnd(); })) {}

  void Open(const std::string& name, const std::optional<std::filesystem::path>& host_path) override {
    Reset();
    length_ = host_path ? media_.probe_(*host_path) : 0;
    if (length_ > 0) mode_ = ChannelMode::kStopped;
    Tell({.channel = number_, .act = Act::kOpen, .file = name, .length = length_});
  }

  void Play() override {
    if (mode_ == ChannelMode::kNotOpen || mode_ == ChannelMode::kPlaying || held_at_ >= length_) return;
    mode_ = ChannelMode::kPlaying;
    started_ = media_.time_.Steady();
    end_->Start(milliseconds(length_ - held_at_));
    Tell(Act::kPlay);
  }

  void Pause() override {
    if (mode_ != ChannelMode::kPlaying) return;
    held_at_ = Position();
    mode_ = ChannelMode::kPaused;
    end_->Stop();
    Tell(Act::kPause);
  }

  void Rewind() override {
    if (mode_ == ChannelMode::kNotOpen) return;
    held_at_ = 0;
    started_ = media_.time_.Steady();
    if (mode_ == ChannelMode::kPlaying) end_->Start(milliseconds(length_));
    Tell(Act::kPrev);
  }

  void Close() override {
    if (mode_ == ChannelMode::kNotOpen) return;
    Reset();
    Tell(Act::kClose);
  }

  ChannelMode Mode() const override { return mode_; }
  std::int32_t Length() const override { return length_; }
  std::int32_t Position() const override {
    if (mode_ != ChannelMode::kPlaying) return held_at_;
    const auto played = std::chrono::duration_cast<milliseconds>(media_.time_.Steady() - started_).count();
    return static_cast<std::int32_t>(std::min<std::int64_t>(held_at_ + played, length_));
  }
  Levels TakeLevels() override { return {}; }

 private:
  void Reset() {
    end_->Stop();
    mode_ = ChannelMode::kNotOpen;
    length_ = 0;
    held_at_ = 0;
  }
  void ReachEnd() {
    end_->Stop();
    held_at_ = length_;
    mode_ = ChannelMode::kStopped;
    Tell(Act::kEnd);
  }
  void Tell(const ChannelEvent& event) const {
    if (media_.on_event) media_.on_event(event);
  }
  void Tell(Act act) const { Tell({.channel = number_, .act = act, .file = {}, .length = 0}); }

  SimulatedMedia& media_;
  int number_;
  std::unique_ptr<TimerShots> end_;
  ChannelMode mode_ = ChannelMode::kNotOpen;
  std::int32_t length_ = 0;
  std::int32_t held_at_ = 0;  // where it stands, or stood when it last began to play
  SteadyTime started_{};
};

std::unique_ptr<MediaPlayer> SimulatedMedia::MakePlayer(int number) {
  return std::make_unique<Player>(*this, number);
}

}  // namespace quixair::simulation
