// Recording from an input that does as it is told: to the sample, to the end, and what is left when it breaks.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sndfile.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <mutex>
#include <thread>

#include "sound/allocation_counter.h"
#include "sound/capture_system.h"
#include "sound/input_recorder.h"
#include "sound/sound_files.h"
#include "station/host/host_file.h"
#include "support/outside_programs.h"

namespace quixair::sound {
namespace {

using quixair::testing::Await;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

/// Hands over the frames that the test gives it, in portions, as fast as they are taken.
class TestInput : public InputDriver {
 public:
  std::unique_ptr<InputDevice> Open(int rate, InputSink& sink) override {
    const std::scoped_lock lock(mutex_);
    ++opens;
    if (!there) return nullptr;
    last_rate = rate;
    sink_ = &sink;
    return std::make_unique<Device>(*this);
  }
  void Give(std::span<const StereoFrame> frames) {
    for (; !frames.empty(); frames = frames.subspan(std::min<std::size_t>(1024, frames.size()))) {
      const std::scoped_lock lock(mutex_);
      if (sink_ != nullptr) sink_->Take(frames.first(std::min<std::size_t>(1024, frames.size())));
    }
  }
  bool open() {
    const std::scoped_lock lock(mutex_);
    return sink_ != nullptr;
  }

  std::atomic<bool> there = true;
  std::atomic<bool> connected = true;
  std::atomic<int> opens = 0;
  std::atomic<int> last_rate = 0;

 private:
  class Device : public InputDevice {
   public:
    explicit Device(TestInput& input) : input_(input) {}
    ~Device() override {
      const std::scoped_lock lock(input_.mutex_);
      input_.sink_ = nullptr;
    }
    bool Connected() const override { return input_.connected; }

   private:
    TestInput& input_;
  };
  std::mutex mutex_;
  InputSink* sink_ = nullptr;
};

struct Recording {
  int rate = 0;
  int channels = 0;
  int format = 0;
  std::vector<float> samples;
};

Recording ReadRecording(const std::filesystem::path& path) {
  SF_INFO info{};
  SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
  if (file == nullptr) return {};
  Recording recording{info.samplerate, info.channels, info.format & SF_FORMAT_SUBMASK, {}};
  recording.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
  sf_readf_float(file, recording.samples.data(), info.frames);
  sf_close(file);
  return recording;
}

std::vector<float> Interleaved(std::span<const StereoFrame> frames) {
  std::vector<float> samples;
  for (const StereoFrame& frame : frames) samples.insert(samples.end(), {frame.left, frame.right});
  return samples;
}

class Recorders : public ::testing::Test {
 protected:
  Recorders() { recorder_.Listen({}); }
  Status Start(std::chrono::milliseconds limit = 1h, const RecordingFormat& format = {}) {
    return recorder_.Start(file_, format, limit);
  }
  /// Gives the frames and waits until the file has them, or the capture has ended.
  void Record(std::span<const StereoFrame> frames) {
    const std::int32_t before = recorder_.Position();
    input_->Give(frames);
    const auto length = static_cast<std::int32_t>(frames.size() * 1000 / 44100);
    EXPECT_TRUE(Await(5s, [&] { return !recorder_.recording() || recorder_.Position() >= before + length; }));
  }

  SoundFiles files_;
  std::filesystem::path file_ = files_.Path("S1.WAV");
  std::shared_ptr<TestInput> input_ = std::make_shared<TestInput>();
  InputRecorder recorder_{input_};
};

TEST_F(Recorders, File_HoldsEverySampleFromStartToStop) {
  const auto frames = UniqueFrames(100'000, 1);
  ASSERT_TRUE(Start().ok());
  EXPECT_TRUE(recorder_.recording());
  Record(frames);
  recorder_.Stop();
  EXPECT_FALSE(recorder_.recording());
  const Recording recording = ReadRecording(file_);
  EXPECT_EQ(recording.rate, 44100);
  EXPECT_EQ(recording.format, SF_FORMAT_PCM_16);
  EXPECT_EQ(recording.samples, Interleaved(frames));
  EXPECT_EQ(recorder_.Position(), 2267) << "100,000 frames";
  EXPECT_EQ(recorder_.lost_frames(), 0);
  EXPECT_THAT(recorder_.Trouble(), IsEmpty());
}

TEST_F(Recorders, Limit_IsKeptToTheSample) {
  const auto frames = UniqueFrames(60'000, 2);
  ASSERT_TRUE(Start(1000ms).ok());
  Record(frames);
  EXPECT_TRUE(Await(5s, [&] { return !recorder_.recording(); }));
  const Recording recording = ReadRecording(file_);
  EXPECT_EQ(recording.samples, Interleaved(std::span(frames).first(44100)));
  EXPECT_EQ(recorder_.Position(), 1000);
}

TEST_F(Recorders, EachFormat_IsWritten) {
  const std::vector<StereoFrame> frames(20'000, StereoFrame{0.5F, -0.25F});
  const struct {
    RecordingFormat format;
    int subtype;
    std::vector<float> first;
  } cases[] = {{{22050, 8, 1}, SF_FORMAT_PCM_U8, {0.125F}},
               {{48000, 24, 2}, SF_FORMAT_PCM_24, {0.5F, -0.25F}},
               {{11025, 16, 1}, SF_FORMAT_PCM_16, {0.125F}}};
  for (const auto& [format, subtype, first] : cases) {
    SCOPED_TRACE(InWords(format));
    ASSERT_TRUE(Start(1h, format).ok());
    EXPECT_EQ(input_->last_rate, format.rate) << "the machine converts, not the station";
    input_->Give(frames);
    EXPECT_TRUE(Await(5s, [&] { return recorder_.Position() == 20'000 * 1000 / format.rate; }));
    recorder_.Stop();
    const Recording recording = ReadRecording(file_);
    EXPECT_EQ(recording.rate, format.rate);
    EXPECT_EQ(recording.channels, format.channels);
    EXPECT_EQ(recording.format, subtype);
    ASSERT_EQ(recording.samples.size(), 20'000U * static_cast<std::size_t>(format.channels));
    EXPECT_TRUE(std::equal(first.begin(), first.end(), recording.samples.begin()));
  }
}

TEST_F(Recorders, Samples_AreRoundedAndHeldToTheRange) {
  const struct {
    float sample;
    int bits, value;
  } cases[] = {{0.0F, 16, 0},         {1.0F, 16, 32767}, {-1.0F, 16, -32768}, {1.0F / 32768, 16, 1},
               {0.6F / 32768, 16, 1}, {7.0F, 16, 32767}, {1.0F, 8, 127},      {-1.0F, 24, -8388608}};
  for (const auto& [sample, bits, value] : cases) {
    EXPECT_EQ(PcmSample(sample, bits) >> (32 - bits), value) << sample << " in " << bits << " bits";
  }
}

TEST_F(Recorders, NoInput_IsToldAndTheFileStaysAsItWas) {
  files_.Write("S1.WAV", "the old recording");
  input_->there = false;
  InputRecorder recorder(input_);
  EXPECT_EQ(recorder.Start(file_, {}, 1h).number(), 68);
  EXPECT_FALSE(recorder.recording());
  EXPECT_THAT(recorder.Trouble(), HasSubstr("no sound input"));
  EXPECT_EQ(std::filesystem::file_size(file_), 17U);
  input_->there = true;
  EXPECT_TRUE(recorder.Start(file_, {}, 1h).ok()) << "Start looks for it at once";
}

TEST_F(Recorders, RecordingThatIsOnTheAir_PlaysToItsEndWhileItIsRecordedAnew) {
  files_.Write("S1.WAV", "the old recording");
  const host_file::Descriptor on_air(::open(file_.c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_TRUE(Start().ok());
  Record(UniqueFrames(20'000, 5));
  recorder_.Stop();
  std::string heard(17, ' ');
  EXPECT_EQ(::pread(on_air.get(), heard.data(), heard.size(), 0), 17);
  EXPECT_EQ(heard, "the old recording");
  EXPECT_EQ(ReadRecording(file_).samples.size(), 40'000U);
}

TEST_F(Recorders, FileThatCannotBeMade_IsTold) {
  EXPECT_FALSE(recorder_.Start(files_.Path("nowhere/S1.WAV"), {}, 1h).ok());
  EXPECT_FALSE(recorder_.recording());
}

TEST_F(Recorders, KilledInMidCapture_LeavesAFileThatPlays) {
  const auto frames = UniqueFrames(44100, 3);
  ASSERT_TRUE(Start().ok());
  Record(frames);
  EXPECT_TRUE(Await(3s, [&] {
    std::filesystem::copy_file(file_, files_.Path("killed.wav"),
                               std::filesystem::copy_options::overwrite_existing);
    return ReadRecording(files_.Path("killed.wav")).samples.size() == 2 * frames.size();
  })) << "the header is at most half a second behind";
}

TEST_F(Recorders, InputThatGoes_LeavesWhatWasCaptured) {
  const auto frames = UniqueFrames(44100, 4);
  ASSERT_TRUE(Start().ok());
  Record(frames);
  input_->there = false;
  input_->connected = false;
  EXPECT_TRUE(Await(5s, [&] { return !recorder_.recording(); }));
  EXPECT_THAT(recorder_.Trouble(), HasSubstr("input has gone"));
  EXPECT_EQ(ReadRecording(file_).samples, Interleaved(frames));
}

TEST_F(Recorders, InputThatFallsSilentForGood_CountsAsGone) {
  ASSERT_TRUE(Start().ok());
  Record(UniqueFrames(1024, 7));
  EXPECT_TRUE(Await(5s, [&] { return !recorder_.recording(); }));
  EXPECT_THAT(recorder_.Trouble(), HasSubstr("input has gone"));
}

TEST_F(Recorders, FullDisk_LeavesWhatFitted) {
  const std::filesystem::path disk = files_.Path("disk");
  std::filesystem::create_directories(disk);
  const std::string mount = "mount -t tmpfs -o size=256k tmpfs " + disk.string() + " 2>/dev/null";
  if (std::system(mount.c_str()) != 0) GTEST_SKIP() << "no small disk can be made here";
  file_ = disk / "S1.WAV";
  ASSERT_TRUE(Start().ok());
  const auto frames = UniqueFrames(100'000, 5);
  input_->Give(frames);
  EXPECT_TRUE(Await(5s, [&] { return !recorder_.recording(); }));
  EXPECT_THAT(recorder_.Trouble(), HasSubstr("disk is full"));
  const Recording recording = ReadRecording(file_);
  ASSERT_GT(recording.samples.size(), 100'000U) << "a quarter of a megabyte";
  const std::vector<float> all = Interleaved(frames);
  EXPECT_TRUE(std::equal(recording.samples.begin(), recording.samples.end(), all.begin()));
  EXPECT_NEAR(recorder_.Position(), static_cast<double>(recording.samples.size()) / 2 / 44.1, 100);
  (void)std::system(("umount " + disk.string()).c_str());
}

TEST_F(Recorders, FasterThanTheDisk_IsCountedAndTold) {
  ASSERT_TRUE(Start().ok());
  const std::vector<StereoFrame> frames(std::size_t{1} << 22);  // a minute and a half at once
  input_->Give(frames);
  recorder_.Stop();
  const auto written = static_cast<std::int64_t>(ReadRecording(file_).samples.size()) / 2;
  EXPECT_GT(recorder_.lost_frames(), 0);
  EXPECT_EQ(written + recorder_.lost_frames(), 1 << 22);
  EXPECT_THAT(recorder_.Trouble(), HasSubstr("too slow"));
}

TEST_F(Recorders, LevelsMove_WithoutACapture) {
  EXPECT_TRUE(Await(5s, [&] { return input_->open(); }));
  const std::vector<StereoFrame> frames = {{0.25F, -0.5F}, {0.125F, 0.0F}};
  input_->Give(frames);
  const Levels levels = recorder_.TakeLevels();
  EXPECT_EQ(levels.left, 0.25F);
  EXPECT_EQ(levels.right, 0.5F);
  EXPECT_EQ(recorder_.TakeLevels().left, 0.0F) << "since the last look";
}

TEST_F(Recorders, DeviceThread_AsksTheHeapForNothing) {
  if (!AllocationCounter::Works()) GTEST_SKIP() << "the sanitizers have a heap of their own";
  RecorderCore core(input_);
  const std::vector<StereoFrame> frames = UniqueFrames(4096, 6);
  const AllocationCounter allocations;
  for (int i = 0; i < 300; ++i) core.Take(frames);  // more than the ring holds
  EXPECT_EQ(allocations.count(), 0);
}

TEST_F(Recorders, SavedFormat_IsFoundAgainAndRubbishIsNot) {
  CaptureSystem capture(std::make_unique<TestInput>(), files_.Path("recorder.conf"));
  EXPECT_FALSE(capture.SavedFormat());
  ASSERT_TRUE(capture.SaveFormat({32000, 24, 1}).ok());
  EXPECT_EQ(capture.SavedFormat(), (RecordingFormat{32000, 24, 1}));
  for (const char* rubbish : {"", "44100", "44100 12 2", "7 16 2", "44100 16 6", "x y z"}) {
    files_.Write("recorder.conf", rubbish);
    EXPECT_FALSE(capture.SavedFormat()) << rubbish;
  }
}

}  // namespace
}  // namespace quixair::sound
