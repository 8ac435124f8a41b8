#include "simulation/silent_wave.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>

namespace quixair::simulation {
namespace {

constexpr std::size_t kHeader = 44;
constexpr std::size_t kBytesASecondAt = 28;  // where the header says so
constexpr RecordingFormat kSmallFormat{.rate = 8000, .bits = 16, .channels = 1};

void PutNumber(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i));
}

std::uint32_t FrameBytes(const RecordingFormat& format) {
  return static_cast<std::uint32_t>(format.channels * format.bits / 8);
}

std::uint32_t DataBytes(const RecordingFormat& format, std::int32_t milliseconds) {
  return static_cast<std::uint32_t>(std::int64_t{milliseconds} * format.rate / 1000) * FrameBytes(format);
}

std::string Header(const RecordingFormat& format, std::uint32_t data_bytes) {
  const auto rate = static_cast<std::uint32_t>(format.rate);
  std::string bytes = "RIFF";
  PutNumber(bytes, 36 + data_bytes, 4);
  bytes += "WAVEfmt ";
  PutNumber(bytes, 16, 4);
  PutNumber(bytes, 1, 2);
  PutNumber(bytes, static_cast<std::uint32_t>(format.channels), 2);
  PutNumber(bytes, rate, 4);
  PutNumber(bytes, rate * FrameBytes(format), 4);
  PutNumber(bytes, FrameBytes(format), 2);
  PutNumber(bytes, static_cast<std::uint32_t>(format.bits), 2);
  bytes += "data";
  PutNumber(bytes, data_bytes, 4);
  return bytes;
}

}  // namespace

std::string SilentWave(const RecordingFormat& format, std::int32_t milliseconds) {
  const std::uint32_t data_bytes = DataBytes(format, milliseconds);
  return Header(format, data_bytes) + std::string(data_bytes, format.bits == 8 ? '\x80' : '\0');
}

bool WriteSilentWave(const std::filesystem::path& path, std::int32_t milliseconds) {
  const std::uint32_t data_bytes = DataBytes(kSmallFormat, milliseconds);
  std::ofstream file(path, std::ios::binary);
  file << Header(kSmallFormat, data_bytes);
  file.close();
  std::error_code error;
  std::filesystem::resize_file(path, kHeader + data_bytes, error);
  return file.good() && !error;
}

std::int32_t LengthOfWave(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::array<unsigned char, kHeader> header{};
  file.read(reinterpret_cast<char*>(header.data()), header.size());
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  constexpr std::array<unsigned char, 4> kRiff = {'R', 'I', 'F', 'F'};
  if (!file || error || !std::equal(kRiff.begin(), kRiff.end(), header.begin())) return 0;
  std::uint32_t bytes_a_second = 0;
  for (std::size_t i = 4; i-- > 0;) bytes_a_second = bytes_a_second << 8 | header[kBytesASecondAt + i];
  if (bytes_a_second == 0) return 0;
  return static_cast<std::int32_t>((size - kHeader) * 1000 / bytes_a_second);
}

}  // namespace quixair::simulation
