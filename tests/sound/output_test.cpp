// The device keeper and the silent output on a clock of the test's own, with a sound card that dies, hangs
// and returns on demand.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "sound/device_keeper.h"
#include "sound/sound_files.h"

namespace quixair::sound {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

// From a sound server's return to sound, a server's own part of a second left aside.
constexpr milliseconds kBackWithin{700};

// What the rules of the tests set, and what they look at.
struct Machine {
  bool server_up = true;
  bool first_choice = true;
  bool leads_nowhere = false;
  bool hung = false;
  int rate = kMixRate;
  std::vector<std::string> seen;
  std::vector<DeviceFeed*> feeds;  // of the open devices; the dead ones go on asking
};

class FakeDevice : public AudioDevice {
 public:
  explicit FakeDevice(Machine& machine) : machine_(machine) {}
  ~FakeDevice() override {
    std::erase(machine_.feeds, feed_);
    machine_.seen.emplace_back("close");
  }
  int rate() const override { return machine_.rate; }
  void Start(DeviceFeed& feed) override {
    feed_ = &feed;
    machine_.feeds.push_back(&feed);
  }
  bool Connected() const override { return connected_ = connected_ && machine_.server_up; }

 private:
  Machine& machine_;
  mutable bool connected_ = true;
  DeviceFeed* feed_ = nullptr;
};

class FakeDriver : public AudioDriver {
 public:
  explicit FakeDriver(Machine& machine) : machine_(machine) {}
  bool Start() override {
    machine_.seen.emplace_back("start");
    return true;
  }
  void Stop() override { machine_.seen.emplace_back("stop"); }
  bool FirstChoice() const override { return machine_.first_choice; }
  bool OneDeviceOnly() const override { return !machine_.first_choice; }
  bool LeadsNowhere() const override { return machine_.leads_nowhere; }
  std::unique_ptr<AudioDevice> Open() override {
    if (!machine_.server_up) return nullptr;
    machine_.seen.emplace_back("open");
    return std::make_unique<FakeDevice>(machine_);
  }

 private:
  Machine& machine_;
};

class KeepingADevice : public testing::Test {
 protected:
  KeepingADevice() {
    const auto path =
        files_.Wave("long.wav", std::vector<StereoFrame>(kMixRate * 60, StereoFrame{0.5F, 0.5F}));
    stream_ = std::make_unique<Stream>(OpenDecoder(path, ExamineFile(path)), 60'000);
    mixer_.SetSlot(0, stream_.get());
    stream_->Play();
  }

  // A device asks for its buffers at its own pace, the two threads of the program look around at theirs.
  void Run(milliseconds time) {
    for (const SteadyTime end = now_ + time; now_ < end; now_ += milliseconds(1)) {
      stream_->Fill(200'000);
      if (now_ >= next_call_) {
        next_call_ += microseconds(2048LL * 1'000'000 / machine_.rate);
        if (!machine_.hung) CallFeeds();
      }
      if (ticks_ % 10 == 0) output_.SilentStep(now_);
      if (ticks_ % 50 == 0) keeper_.Step(now_);
      ++ticks_;
      WatchPosition();
    }
  }

  void CallFeeds() {
    for (DeviceFeed* feed : machine_.feeds) {
      feed->Feed(block_, now_);
      heard_ += std::abs(block_[1024].left) > 0.4F ? 1 : 0;
    }
  }

  void WatchPosition() {
    const auto elapsed = static_cast<int>((now_ - start_) / milliseconds(1));
    worst_lag_ms_ = std::max(worst_lag_ms_, elapsed - stream_->PositionMs());
    worst_lead_ms_ = std::max(worst_lead_ms_, stream_->PositionMs() - elapsed);
  }

  bool Heard(milliseconds within) {
    heard_ = 0;
    Run(within);
    return heard_ > 0;
  }

  SoundFiles files_;
  Machine machine_;
  Mixer mixer_;
  Output output_{mixer_};
  std::unique_ptr<Stream> stream_;
  DeviceKeeper keeper_{std::make_unique<FakeDriver>(machine_), output_};
  std::vector<StereoFrame> block_ = std::vector<StereoFrame>(2048);
  SteadyTime start_ = SteadyTime(seconds(1000));
  SteadyTime now_ = start_;
  SteadyTime next_call_ = start_;
  int ticks_ = 0;
  int heard_ = 0;
  int worst_lag_ms_ = 0;
  int worst_lead_ms_ = 0;
};

TEST_F(KeepingADevice, GoesOnAirSoonAndSaysNothing) {
  Run(milliseconds(600));
  EXPECT_TRUE(Heard(milliseconds(100)));
  EXPECT_EQ(machine_.seen, (std::vector<std::string>{"start", "open"}));
}

TEST_F(KeepingADevice, WithoutADeviceItemsRunOnAndTheOperatorIsTold) {
  machine_.server_up = false;
  Run(seconds(10));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNoDevice);
  EXPECT_NEAR(stream_->PositionMs(), 10'000, 20);
  machine_.server_up = true;
  EXPECT_TRUE(Heard(seconds(3)));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
}

TEST_F(KeepingADevice, ADeadDeviceIsReplacedAtOnceWhenAnotherOpens) {
  Run(seconds(2));
  machine_.server_up = false;
  machine_.seen.clear();
  Run(milliseconds(100));
  machine_.server_up = true;
  Run(milliseconds(1'400));
  EXPECT_EQ(machine_.seen, (std::vector<std::string>{"open", "close"}));
  EXPECT_TRUE(Heard(milliseconds(100)));
}

TEST_F(KeepingADevice, ALongOutageIsOverWhenTheDriverStartedAnewOpens) {
  Run(seconds(2));
  machine_.server_up = false;
  machine_.seen.clear();
  Run(milliseconds(5'500));
  EXPECT_EQ(keeper_.trouble(), Trouble::kDeviceLost);
  EXPECT_FALSE(Heard(milliseconds(100))) << "a dead device was still fed";
  machine_.server_up = true;
  EXPECT_TRUE(Heard(kBackWithin));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
  ASSERT_GE(machine_.seen.size(), 4U);
  EXPECT_EQ((std::vector<std::string>(machine_.seen.begin(), machine_.seen.begin() + 3)),
            (std::vector<std::string>{"close", "stop", "start"}));
  EXPECT_EQ(machine_.seen.back(), "open");
}

TEST_F(KeepingADevice, AHungDeviceThatComesToIsTakenBackWithoutOpeningAnother) {
  Run(seconds(2));
  machine_.hung = true;
  machine_.seen.clear();
  Run(milliseconds(400));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
  Run(milliseconds(1'600));
  EXPECT_EQ(keeper_.trouble(), Trouble::kDeviceHung);
  machine_.hung = false;
  EXPECT_TRUE(Heard(milliseconds(600)));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
  EXPECT_TRUE(machine_.seen.empty()) << machine_.seen.front();
}

TEST_F(KeepingADevice, AfterSecondsOfHangingAnotherIsOpened) {
  Run(seconds(2));
  machine_.hung = true;
  machine_.seen.clear();
  Run(seconds(7));
  EXPECT_EQ(machine_.seen, (std::vector<std::string>{"open", "close"}));
}

TEST_F(KeepingADevice, ASecondChoiceThatFailsStartsTheDriverAnew) {
  machine_.first_choice = false;
  machine_.server_up = false;
  Run(milliseconds(700));
  EXPECT_EQ(machine_.seen, (std::vector<std::string>{"start", "stop", "start", "stop", "start", "stop"}));
  machine_.first_choice = true;
  machine_.server_up = true;
  EXPECT_TRUE(Heard(kBackWithin));
}

TEST_F(KeepingADevice, AnOutputWithoutLoudspeakerIsTrouble) {
  machine_.leads_nowhere = true;
  Run(seconds(1));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNoSpeaker);
  machine_.leads_nowhere = false;
  Run(seconds(3));
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
}

TEST_F(KeepingADevice, PositionsKeepRealTimeThroughEveryAccident) {
  std::mt19937 random(7);
  for (int accident = 0; accident < 12; ++accident) {
    machine_.server_up = random() % 3 != 0;
    machine_.hung = random() % 4 == 0;
    Run(milliseconds(500 + random() % 5'000));
  }
  // A buffer each way; while a hang is not yet noticed, its half second on top, made up for afterwards.
  EXPECT_LE(worst_lag_ms_, 43 + 50 + 500 + 50);
  EXPECT_LE(worst_lead_ms_, 2 * 43);
  machine_.server_up = true;
  machine_.hung = false;
  Run(seconds(2));
  // Each device that is taken on may cost a part of its first buffer.
  EXPECT_NEAR(stream_->PositionMs(), static_cast<double>((now_ - start_) / milliseconds(1)), 3 * 43);
  EXPECT_EQ(mixer_.underruns(), 0U);
}

class DevicesOfOtherRates : public KeepingADevice, public testing::WithParamInterface<int> {};

TEST_P(DevicesOfOtherRates, AreFedInTheMixersTime) {
  machine_.rate = GetParam();
  Run(seconds(10));
  EXPECT_NEAR(stream_->PositionMs(), 10'000, 130);
  EXPECT_EQ(keeper_.trouble(), Trouble::kNone);
  machine_.feeds.front()->Feed(block_, now_);
  for (const StereoFrame& frame : block_) ASSERT_NEAR(frame.left, 0.5, 1e-4);
}

INSTANTIATE_TEST_SUITE_P(All, DevicesOfOtherRates, testing::Values(44100, 96000, 32000, 192000));

TEST_F(KeepingADevice, AnEndedOutputRendersForNobody) {
  Run(seconds(1));
  output_.token().HandTo(RenderToken::kNobody);
  const std::int32_t position = stream_->PositionMs();
  machine_.server_up = false;
  Run(seconds(1));
  machine_.server_up = true;
  Run(seconds(3));
  EXPECT_EQ(stream_->PositionMs(), position);
}

}  // namespace
}  // namespace quixair::sound
