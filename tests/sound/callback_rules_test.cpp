// The audio callback allocates nothing, and no stream is destroyed under it.

#include <gtest/gtest.h>
#include <sndfile.h>

#include <array>
#include <atomic>
#include <thread>

#include "sound/allocation_counter.h"
#include "sound/decode_worker.h"
#include "sound/device_feed.h"
#include "sound/sound_files.h"

namespace quixair::sound {
namespace {

class CallbackAllocations : public testing::TestWithParam<int> {};

TEST_P(CallbackAllocations, AreNoneFromStartToEndOfItems) {
  const SoundFiles files;
  Mixer mixer;
  Output output(mixer);
  std::vector<std::unique_ptr<Stream>> streams;
  for (const int rate : {48000, 44100}) {
    const auto path =
        files.Wave("song.wav", Sine(40'000, rate, 2), rate, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    streams.push_back(std::make_unique<Stream>(OpenDecoder(path, ExamineFile(path)), 1'000));
    mixer.SetSlot(streams.size(), streams.back().get());
    streams.back()->Fill(100'000);
    streams.back()->Play();
  }
  DeviceFeed feed(output, 1, GetParam());
  output.token().HandTo(1);
  std::vector<StereoFrame> block(2048);

  {
    const AllocationCounter allocations;
    for (int call = 0; call < 100; ++call) {
      feed.Feed(block, std::chrono::steady_clock::now());
      if (call == 50) output.token().HandTo(RenderToken::kSilence);
      output.SilentStep(std::chrono::steady_clock::now());
    }
    EXPECT_EQ(allocations.count(), 0);
  }
  for (const auto& stream : streams)
    EXPECT_EQ(stream->mode(), ChannelMode::kStopped) << "the end was not part of it";
}

INSTANTIATE_TEST_SUITE_P(DeviceRates, CallbackAllocations, testing::Values(48000, 44100, 96000));

TEST(TheAllocationCounter, SeesBothLanguages) {
  if (!AllocationCounter::Works()) GTEST_SKIP() << "a sanitizer has the heap";
  const AllocationCounter allocations;
  const std::vector<int> ours(1'000);
  EXPECT_EQ(allocations.count(), 1);
  SF_INFO info{};
  sf_close(sf_open("/dev/null", SFM_READ, &info));
  EXPECT_GT(allocations.count(), 2);
}

TEST(StreamsUnderTheCallback, MayComeAndGoAtAnyMoment) {
  const SoundFiles files;
  const auto path = files.Wave("song.wav", UniqueFrames(9'000, 1));
  const FileFacts facts = ExamineFile(path);
  Mixer mixer;
  std::atomic<bool> stop = false;
  std::atomic<int> blocks = 0;
  std::thread renderer([&] {
    std::vector<StereoFrame> block(256);
    for (; !stop; ++blocks) mixer.Render(block);
  });
  {
    std::array<std::unique_ptr<DecodeWorker>, 3> workers;
    std::array<Stream*, 3> on_air{};
    for (auto& worker : workers) worker = std::make_unique<DecodeWorker>(mixer, true);
    for (std::size_t round = 0; round < 600; ++round) {
      const std::size_t slot = round % workers.size();
      Stream* const before = on_air[slot];
      on_air[slot] = workers[slot]->Adopt(std::make_unique<Stream>(OpenDecoder(path, facts), 188));
      mixer.SetSlot(slot, on_air[slot]);
      on_air[slot]->Play();
      if (round % 5 == 0) on_air[slot]->Pause();
      if (before != nullptr) workers[slot]->Retire(before);
      EXPECT_LE(on_air[slot]->PositionMs(), 188);
    }
    for (std::size_t slot = 0; slot < workers.size(); ++slot) {
      mixer.SetSlot(slot, nullptr);
      workers[slot]->Retire(on_air[slot]);
    }
  }
  stop = true;
  renderer.join();
  EXPECT_GT(blocks, 0);
}

TEST(TheWorker, FillsTheRingWhileTheCallbackDrainsIt) {
  const SoundFiles files;
  const auto frames = UniqueFrames(500'000, 2);
  const auto path = files.Wave("song.wav", frames);
  Mixer mixer;
  DecodeWorker worker(mixer, true);
  Stream* const stream = worker.Adopt(std::make_unique<Stream>(OpenDecoder(path, ExamineFile(path)), 10'417));
  mixer.SetSlot(0, stream);
  stream->Play();
  std::vector<StereoFrame> heard;
  std::vector<StereoFrame> block(512);
  while (stream->mode() == ChannelMode::kPlaying) {
    const std::uint64_t underruns = mixer.underruns();
    mixer.Render(block);
    if (mixer.underruns() == underruns) {
      heard.insert(heard.end(), block.begin(), block.end());
    } else {  // drained faster than real time; the frames before the hole count
      while (!block.empty() && block.back() == StereoFrame{}) block.pop_back();
      heard.insert(heard.end(), block.begin(), block.end());
      block.resize(512);
      std::this_thread::yield();
    }
  }
  heard.resize(frames.size());
  EXPECT_EQ(Difference(heard, frames), "");
  mixer.SetSlot(0, nullptr);
  worker.Retire(stream);
}

TEST(TheRenderToken, ChangesHandsOnlyBetweenBlocks) {
  constexpr RenderToken::Owner kDevice = 1;
  RenderToken token;
  int blocks = 0;  // guarded by the token alone; the thread sanitizer watches it
  ASSERT_TRUE(token.TryEnter(RenderToken::kSilence));
  std::thread keeper([&] {
    token.HandTo(kDevice);
    if (!token.TryEnter(kDevice)) return;
    ++blocks;
    token.Leave();
  });
  for (int moment = 0; moment < 2'000; ++moment) {
    EXPECT_EQ(token.owner(), RenderToken::kSilence) << "taken away in the middle of a block";
    std::this_thread::yield();
  }
  ++blocks;
  token.Leave();
  keeper.join();
  EXPECT_EQ(blocks, 2);
  EXPECT_FALSE(token.TryEnter(RenderToken::kSilence));
}

}  // namespace
}  // namespace quixair::sound
