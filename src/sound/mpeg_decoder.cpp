#include "sound/mpeg_decoder.h"

#include <mpg123.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace quixair::sound {
namespace {

// Junk that is skipped in search of a frame. Without a limit a big file of zeros takes half a minute, and
// noise plays.
constexpr long kResyncBytes = 512L * 1024;

// So many frames in a row, each where the one before ends, are no accident; a shorter file must hold nothing
// else.
constexpr int kFramesThatConvince = 5;
constexpr int kStrayFramesForgiven = 20;

constexpr std::size_t kHeaderBytes = 4;

struct DeleteMpg123 {
  void operator()(mpg123_handle* handle) const { mpg123_delete(handle); }
};
using MpegHandle = std::unique_ptr<mpg123_handle, DeleteMpg123>;

// Every rate in stereo float; the library doubles mono.
bool AcceptStereoFloat(mpg123_handle* handle) {
  if (mpg123_format_none(handle) != MPG123_OK) return false;
  const long* rates = nullptr;
  std::size_t count = 0;
  mpg123_rates(&rates, &count);
  for (std::size_t index = 0; index < count; ++index) {
    if (mpg123_format(handle, rates[index], MPG123_STEREO, MPG123_ENC_FLOAT_32) != MPG123_OK) return false;
  }
  return true;
}

// The library asks for single bytes while it searches; buffered, that costs a hundredth of a system call
// each.
mpg123_ssize_t ReadBuffered(void* file, void* bytes, std::size_t count) {
  auto* const stream = static_cast<std::FILE*>(file);
  const std::size_t got = std::fread(bytes, 1, count, stream);
  return got == 0 && std::ferror(stream) != 0 ? -1 : static_cast<mpg123_ssize_t>(got);
}

off_t SeekBuffered(void* file, off_t offset, int from) {
  auto* const stream = static_cast<std::FILE*>(file);
  return fseeko(stream, offset, from) == 0 ? ftello(stream) : -1;
}

void CloseBuffered(void* file) {
  std::fclose(static_cast<std::FILE*>(file));
}

MpegHandle OpenHandle(const std::filesystem::path& path, bool trim_padding) {
  MpegHandle handle(mpg123_new(nullptr, nullptr));
  if (!handle) return nullptr;
  const long flags = MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_FORCE_FLOAT | MPG123_SKIP_ID3V2 |
                     (trim_padding ? MPG123_GAPLESS : 0);
  // The library's own default is to trim.
  mpg123_param(handle.get(), MPG123_REMOVE_FLAGS, MPG123_GAPLESS, 0);
  mpg123_param(handle.get(), MPG123_ADD_FLAGS, flags, 0);
  mpg123_param(handle.get(), MPG123_RESYNC_LIMIT, kResyncBytes, 0);
  if (!AcceptStereoFloat(handle.get())) return nullptr;
  if (mpg123_replace_reader_handle(handle.get(), ReadBuffered, SeekBuffered, CloseBuffered) != MPG123_OK)
    return nullptr;
  std::FILE* const file = std::fopen(path.c_str(), "rbe");
  if (file == nullptr) return nullptr;
  // The handle closes the file from here on, on failure too.
  if (mpg123_open_handle(handle.get(), file) != MPG123_OK) return nullptr;
  return handle;
}

bool NextFrame(mpg123_handle* handle) {
  int result = mpg123_framebyframe_next(handle);
  if (result == MPG123_NEW_FORMAT) result = MPG123_OK;
  return result == MPG123_OK;
}

off_t FrameEnd(mpg123_handle* handle, off_t start) {
  unsigned long header = 0;
  unsigned char* body = nullptr;
  std::size_t body_bytes = 0;
  if (mpg123_framedata(handle, &header, &body, &body_bytes) != MPG123_OK) return -1;
  return start + static_cast<off_t>(kHeaderBytes + body_bytes);
}

// Frames of a real file stand end to end from the start on, or soon after some junk.
bool HoldsFramesInARow(const std::filesystem::path& path) {
  const MpegHandle handle = OpenHandle(path, false);
  if (!handle) return false;
  int in_a_row = 0;
  int frames = 0;
  off_t expected_start = -1;
  while (in_a_row < kFramesThatConvince && frames < kStrayFramesForgiven && NextFrame(handle.get())) {
    const off_t start = mpg123_framepos(handle.get());
    in_a_row = start == expected_start ? in_a_row + 1 : 1;
    expected_start = FrameEnd(handle.get(), start);
    ++frames;
  }
  return in_a_row >= kFramesThatConvince ||
         (frames > 0 && in_a_row == frames && frames < kFramesThatConvince);
}

// For files glued together from pieces of different rates, of which the library can only add up frames.
double SecondsFrameByFrame(const std::filesystem::path& path) {
  const MpegHandle handle = OpenHandle(path, false);
  double seconds = 0;
  while (handle && NextFrame(handle.get())) {
    mpg123_frameinfo info{};
    if (mpg123_info(handle.get(), &info) != MPG123_OK || info.rate <= 0) continue;
    seconds += static_cast<double>(mpg123_spf(handle.get())) / static_cast<double>(info.rate);
  }
  return seconds;
}

bool IsGluedFromPieces(mpg123_handle* handle) {
  long glued = 0;
  return mpg123_getstate(handle, MPG123_FRANKENSTEIN, &glued, nullptr) == MPG123_OK && glued != 0;
}

FileFacts FactsOf(std::int32_t length_ms, bool trim_padding) {
  if (length_ms == 0) return {};
  return {FileKind::kMpeg, length_ms, trim_padding};
}

class MpegDecoder : public Decoder {
 public:
  explicit MpegDecoder(MpegHandle handle) : handle_(std::move(handle)) {}

  DecodedBlock Read(std::span<StereoFrame> out) override {
    for (;;) {
      std::size_t bytes = 0;
      const int result = mpg123_read(handle_.get(), out.data(), out.size_bytes(), &bytes);
      const std::size_t frames = bytes / sizeof(StereoFrame);
      const int rate = rate_;
      if (result == MPG123_NEW_FORMAT && !LearnRate()) return {};
      if (frames > 0) return {Tame(out.first(frames)), rate};
      if (result != MPG123_OK && result != MPG123_NEW_FORMAT) return {};
    }
  }

 private:
  bool LearnRate() {
    long rate = 0;
    int channels = 0;
    int encoding = 0;
    if (mpg123_getformat(handle_.get(), &rate, &channels, &encoding) != MPG123_OK) return false;
    if (channels != 2 || encoding != MPG123_ENC_FLOAT_32 || rate <= 0) return false;
    rate_ = static_cast<int>(rate);
    return true;
  }

  static std::size_t Tame(std::span<StereoFrame> frames) {
    for (StereoFrame& frame : frames) frame = {Tamed(frame.left), Tamed(frame.right)};
    return frames.size();
  }

  MpegHandle handle_;
  int rate_ = kMixRate;
};

}  // namespace

FileFacts ExamineMpeg(const std::filesystem::path& path) {
  if (!HoldsFramesInARow(path)) return {};
  const MpegHandle handle = OpenHandle(path, true);
  if (!handle || mpg123_scan(handle.get()) != MPG123_OK) return {};
  if (IsGluedFromPieces(handle.get())) {
    const double milliseconds = std::round(SecondsFrameByFrame(path) * 1000.0);
    return FactsOf(static_cast<std::int32_t>(std::min(milliseconds, 2147483647.0)), false);
  }
  mpg123_frameinfo info{};
  if (mpg123_info(handle.get(), &info) != MPG123_OK) return {};
  const std::int64_t samples = mpg123_length(handle.get());
  const std::int64_t untrimmed =
      static_cast<std::int64_t>(mpg123_framelength(handle.get())) * mpg123_spf(handle.get());
  return FactsOf(MillisecondsOf(samples, static_cast<int>(info.rate)), samples != untrimmed);
}

std::unique_ptr<Decoder> OpenMpeg(const std::filesystem::path& path, bool trim_padding) {
  MpegHandle handle = OpenHandle(path, trim_padding);
  if (!handle) return nullptr;
  return std::make_unique<MpegDecoder>(std::move(handle));
}

}  // namespace quixair::sound
