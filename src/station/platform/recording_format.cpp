#include "station/platform/recording_format.h"

#include <algorithm>
#include <sstream>

namespace quixair {
namespace {
bool Offers(const std::vector<int>& choices, int value) {
  return std::find(choices.begin(), choices.end(), value) != choices.end();
}
}  // namespace

const std::vector<int>& RecordingRates() {
  static const std::vector<int> rates = {11025, 22050, 32000, 44100, 48000};
  return rates;
}

const std::vector<int>& RecordingBits() {
  static const std::vector<int> bits = {8, 16, 24};
  return bits;
}

std::string InWords(const RecordingFormat& format) {
  return "PCM  " + std::to_string(format.rate) + " Hz, " + std::to_string(format.bits) + " Bit, " +
         (format.channels == 1 ? "Mono" : "Stereo");
}

std::string FormatRecordingFormat(const RecordingFormat& format) {
  return std::to_string(format.rate) + ' ' + std::to_string(format.bits) + ' ' +
         std::to_string(format.channels);
}

std::optional<RecordingFormat> ParseRecordingFormat(std::string_view text) {
  std::istringstream words{std::string(text)};
  RecordingFormat format;
  words >> format.rate >> format.bits >> format.channels;
  const bool offered = words && Offers(RecordingRates(), format.rate) &&
                       Offers(RecordingBits(), format.bits) && (format.channels == 1 || format.channels == 2);
  return offered ? std::optional(format) : std::nullopt;
}

}  // namespace quixair
