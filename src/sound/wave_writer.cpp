#include "sound/wave_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <utility>

#include "station/host/host_file.h"

namespace quixair::sound {
namespace {

/// Puts an empty file of that name in its place and opens it. What was there is not emptied: it may be on the
/// air, and plays to its end.
Result<int> OpenAnew(const std::filesystem::path& file) {
  std::filesystem::path made = file;
  made.replace_extension(".RECORDING");
  const int descriptor = ::open(made.c_str(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (descriptor < 0) return host_file::LastError();
  if (::rename(made.c_str(), file.c_str()) == 0) return descriptor;
  const RunTimeError fault = host_file::LastError();
  ::close(descriptor);
  ::unlink(made.c_str());
  return fault;
}

int SubtypeOf(int bits) {
  return bits == 8 ? SF_FORMAT_PCM_U8 : bits == 16 ? SF_FORMAT_PCM_16 : SF_FORMAT_PCM_24;
}

}  // namespace

int PcmSample(float sample, int bits) {
  const double scale = std::ldexp(1.0, bits - 1);
  const double whole =
      std::clamp(std::nearbyint(static_cast<double>(Tamed(sample)) * scale), -scale, scale - 1);
  return static_cast<int>(static_cast<std::int64_t>(whole) * (std::int64_t{1} << (32 - bits)));
}

WaveWriter::~WaveWriter() {
  Close();
}

Status WaveWriter::Open(const std::filesystem::path& file, const RecordingFormat& format) {
  Close();
  const Result<int> descriptor = OpenAnew(file);
  if (!descriptor.ok()) return descriptor.status();
  SF_INFO info{};
  info.samplerate = format.rate;
  info.channels = format.channels;
  info.format = SF_FORMAT_WAV | SubtypeOf(format.bits);
  file_ = sf_open_fd(descriptor.value(), SFM_WRITE, &info, SF_TRUE);
  format_ = format;
  frames_ = 0;
  folder_ = file.parent_path();
  if (file_ == nullptr) {
    ::close(descriptor.value());
    return RunTimeError::kPathFileAccess;
  }
  return {};
}

Status WaveWriter::Write(std::span<const StereoFrame> frames) {
  samples_.clear();
  for (const StereoFrame& frame : frames) {
    if (format_.channels == 1) {
      samples_.push_back(PcmSample((Tamed(frame.left) + Tamed(frame.right)) / 2, format_.bits));
    } else {
      samples_.push_back(PcmSample(frame.left, format_.bits));
      samples_.push_back(PcmSample(frame.right, format_.bits));
    }
  }
  errno = 0;
  const auto wanted = static_cast<sf_count_t>(frames.size());
  const sf_count_t written = sf_writef_int(file_, samples_.data(), wanted);
  frames_ += std::max<sf_count_t>(written, 0);
  if (written == wanted) return {};
  return errno == 0 ? Status(RunTimeError::kDiskFull) : Status(host_file::LastError());
}

void WaveWriter::Update() {
  sf_command(file_, SFC_UPDATE_HEADER_NOW, nullptr, 0);
  sf_write_sync(file_);
  if (!folder_.empty()) host_file::FlushFolder(std::exchange(folder_, {}));
}

void WaveWriter::Close() {
  if (file_ == nullptr) return;
  sf_write_sync(file_);
  sf_close(file_);
  file_ = nullptr;
}

}  // namespace quixair::sound
