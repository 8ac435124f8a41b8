#include "station/host/host_file_copy.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <thread>

#include "station/host/disk_files.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFrom = "C:\\NEW\\SOURCE.WAV";
constexpr const char* kTo = "C:\\QXWAVE\\S1.WAV";

class FileCopyTest : public ::testing::TestWithParam<DiskFiles::Flushing> {
 protected:
  FileCopyTest() {
    for (const char* name : {"NEW", "QXWAVE"}) fs::create_directories(folder_.path() / name);
  }
  fs::path Host(std::string_view path) const { return folder_.path() / path; }
  static Drives Table(const fs::path& folder) {
    Drives drives;
    drives.Set('C', folder);
    drives.Set('E', folder / "gone");
    return drives;
  }
  static std::string Noise(std::size_t size) {
    std::string bytes(size, '\0');
    unsigned seed = 1;
    for (char& byte : bytes) byte = static_cast<char>((seed = seed * 1664525 + 1013904223) >> 24);
    return bytes;
  }
  /// Steps until it is done or fails; the disk is given its time.
  static Status Finish(FileCopy& copy, int& steps) {
    for (steps = 0; !copy.done(); ++steps) {
      const Status moved = copy.Step();
      if (!moved.ok()) return moved;
      std::this_thread::yield();
    }
    return {};
  }
  int BeginError(std::string_view from, std::string_view to) {
    return files_.BeginCopy(from, to).status().number();
  }
  bool TargetEmpty() const { return fs::is_empty(Host("QXWAVE")); }

  TemporaryFolder folder_;
  DiskFiles files_{Table(folder_.path()), GetParam()};
};

TEST_P(FileCopyTest, AnySize_IsCopiedWholeAndOnlyThenUnderItsName) {
  for (const std::size_t size : {0U, 1U, 524287U, 524288U, 524289U, 3000000U}) {
    SCOPED_TRACE(size);
    const std::string bytes = Noise(size);
    WriteHostFile(Host("NEW/Source.wav"), bytes);
    WriteHostFile(Host("QXWAVE/S1.COPYING"), Noise(1000));  // left over by a power cut
    auto copy = files_.BeginCopy(kFrom, kTo);
    ASSERT_TRUE(copy.ok());
    FileCopy& running = *copy.value();
    for (double before = -1; !running.done();) {
      EXPECT_GE(running.progress(), before);
      before = running.progress();
      ASSERT_TRUE(running.Step().ok());
      const bool named = fs::exists(Host("QXWAVE/S1.WAV"));
      EXPECT_TRUE(!named || fs::file_size(Host("QXWAVE/S1.WAV")) == size) << "half a file under its name";
    }
    EXPECT_TRUE(ReadHostFile(Host("QXWAVE/S1.WAV")) == bytes);
    EXPECT_FALSE(fs::exists(Host("QXWAVE/S1.COPYING")));
    EXPECT_EQ(files_.Read("c:\\qxwave\\s1.wav").value_or("<none>").size(), size);
    fs::remove(Host("QXWAVE/S1.WAV"));
  }
}

TEST_P(FileCopyTest, GivenUp_LeavesWhatWasThere) {
  WriteHostFile(Host("NEW/SOURCE.WAV"), Noise(3000000));
  WriteHostFile(Host("QXWAVE/S1.WAV"), "old");
  constexpr int kPieces = 6;
  for (int steps = 0; steps <= kPieces; ++steps) {
    {
      auto copy = files_.BeginCopy(kFrom, kTo);
      ASSERT_TRUE(copy.ok());
      for (int i = 0; i < steps && copy.value()->progress() < 1; ++i) EXPECT_TRUE(copy.value()->Step().ok());
    }
    EXPECT_EQ(ReadHostFile(Host("QXWAVE/S1.WAV")), "old");
    EXPECT_FALSE(fs::exists(Host("QXWAVE/S1.COPYING"))) << steps;
  }
}

TEST_P(FileCopyTest, WhatCannotBegin_IsToldByItsNumber) {
  WriteHostFile(Host("NEW/SOURCE.WAV"), "audio");
  fs::create_directories(Host("QXWAVE/S2.COPYING"));
  EXPECT_EQ(BeginError("C:\\NEW\\NONE.WAV", kTo), 53);
  EXPECT_EQ(BeginError("C:\\NOWHERE\\S1.WAV", kTo), 76);
  EXPECT_EQ(BeginError("D:\\S1.WAV", kTo), 71);
  EXPECT_EQ(BeginError(kFrom, "C:\\NOWHERE\\S1.WAV"), 76);
  EXPECT_EQ(BeginError(kFrom, "E:\\QXWAVE\\S1.WAV"), 71);
  EXPECT_EQ(BeginError(kFrom, ":\\QXWAVE\\S1.WAV"), 52);
  EXPECT_EQ(BeginError(kFrom, "C:\\QXWAVE\\S2.WAV"), 75);
  EXPECT_EQ(BeginError(kFrom, "C:\\new\\source.wav"), 70) << "onto itself";
  EXPECT_EQ(ReadHostFile(Host("NEW/SOURCE.WAV")), "audio");
}

TEST_P(FileCopyTest, NoRoom_Is61AndNothingIsLeft) {
  WriteHostFile(Host("NEW/SOURCE.WAV"), Noise(3000000));
  rlimit old_limit{};
  ::getrlimit(RLIMIT_FSIZE, &old_limit);
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit room_for_some{.rlim_cur = 1000000, .rlim_max = old_limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &room_for_some);
  auto copy = files_.BeginCopy(kFrom, kTo);
  int steps = 0;
  const Status status = copy.ok() ? Finish(*copy.value(), steps) : copy.status();
  ::setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);
  EXPECT_EQ(status.number(), 61);
  EXPECT_TRUE(TargetEmpty());
}

INSTANTIATE_TEST_SUITE_P(Flushing, FileCopyTest,
                         ::testing::Values(DiskFiles::Flushing::kToDisk, DiskFiles::Flushing::kNone));

}  // namespace
}  // namespace quixair::testing
