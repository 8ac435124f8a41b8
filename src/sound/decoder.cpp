#include "sound/decoder.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <limits>
#include <string_view>
#include <system_error>

#include "sound/mpeg_decoder.h"
#include "sound/wave_decoder.h"

namespace quixair::sound {
namespace {

using namespace std::string_view_literals;

constexpr std::array kWrappers = {"RIFF"sv, "RIFX"sv, "RF64"sv};  // of all sorts of things, "WAVE" among them
constexpr std::array kOtherMagics = {"riff"sv, "FORM"sv, "fLaC"sv, "OggS"sv, ".snd"sv, "caff"sv};

template <std::size_t kCount>
bool IsOneOf(std::string_view magic, const std::array<std::string_view, kCount>& magics) {
  return std::find(magics.begin(), magics.end(), magic) != magics.end();
}

bool StartsLikeWave(const std::filesystem::path& path) {
  std::array<char, 12> start{};
  std::ifstream file(path, std::ios::binary);
  if (!file.read(start.data(), start.size())) return false;
  const std::string_view bytes(start.data(), start.size());
  const std::string_view magic = bytes.substr(0, 4);
  return IsOneOf(magic, kWrappers) ? bytes.substr(8) == "WAVE"sv : IsOneOf(magic, kOtherMagics);
}

}  // namespace

FileFacts ExamineFile(const std::filesystem::path& path) {
  std::error_code error;
  // A pipe or a device would keep the caller waiting.
  if (!std::filesystem::is_regular_file(path, error)) return {};
  if (StartsLikeWave(path)) {
    const FileFacts facts = ExamineWave(path);
    if (facts.kind != FileKind::kUnplayable) return facts;
    // Some broadcast recorders put MPEG frames into a RIFF wrapper.
  }
  return ExamineMpeg(path);
}

std::unique_ptr<Decoder> OpenDecoder(const std::filesystem::path& path, const FileFacts& facts) {
  switch (facts.kind) {
    case FileKind::kWave:
      return OpenWave(path);
    case FileKind::kMpeg:
      return OpenMpeg(path, facts.trim_padding);
    case FileKind::kUnplayable:
      break;
  }
  return nullptr;
}

std::int32_t MillisecondsOf(std::int64_t frames, int rate) {
  if (frames <= 0 || rate <= 0) return 0;
  const std::int64_t whole_seconds = frames / rate;
  const std::int64_t rest = frames % rate;
  const std::int64_t milliseconds = whole_seconds * 1000 + (rest * 1000 + rate / 2) / rate;
  return static_cast<std::int32_t>(
      std::min<std::int64_t>(milliseconds, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace quixair::sound
