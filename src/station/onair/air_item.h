#pragma once

// What is on the air: one recording or time announcement, and where it came from.

#include <string>

namespace quixair {

enum class ItemOrigin {
  kRotation,  // chosen by the counters of Random playback
  kLegalId,
  kStopSet,   // a row of the day's stop sets
  kPickList,  // an event of the list
};

struct AirItem {
  std::string id;  // empty for a time announcement
  std::string path;
  std::string first_text;  // artist of a song, account of a spot
  std::string title;
  ItemOrigin origin = ItemOrigin::kRotation;
  int row = 0;  // of the stop sets or of the list; 0 when neither

  bool announcement() const { return id.empty(); }
};

}  // namespace quixair
