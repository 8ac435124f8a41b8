#pragma once

// The form in which the station records: PCM, so many samples a second of so many bits on one channel or two.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quixair {

struct RecordingFormat {
  int rate = 44100;  // samples a second
  int bits = 16;     // of a sample: 8, 16 or 24
  int channels = 2;
  bool operator==(const RecordingFormat&) const = default;
};

// What an operator can choose from, the least first.
const std::vector<int>& RecordingRates();
const std::vector<int>& RecordingBits();

/// "PCM  44100 Hz, 16 Bit, Stereo".
std::string InWords(const RecordingFormat& format);

/// "44100 16 2", the form in which it is kept.
std::string FormatRecordingFormat(const RecordingFormat& format);
/// None for a text that is no such form, or for a choice that is not offered.
std::optional<RecordingFormat> ParseRecordingFormat(std::string_view text);

}  // namespace quixair
