#pragma once

// RecordLiner, the entry of liners.

#include <string>

#include "station/recording/entry_screen.h"

namespace quixair {

class RecordLiner : public EntryScreen {
 public:
  explicit RecordLiner(const Platform& platform)
      : EntryScreen(platform, EntryKindOf(RecordingKind::kLiner)) {}

 protected:
  void DeleteOldAudio(const std::string& letter, const std::string& id) override;
};

}  // namespace quixair
