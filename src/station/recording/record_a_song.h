#pragma once

// RecordASong, the entry of songs: their audio may be .mp3.

#include <string>

#include "station/recording/entry_screen.h"

namespace quixair {

class RecordASong : public EntryScreen {
 public:
  explicit RecordASong(const Platform& platform);

  TextBox Text6{*this, "Text6", TextBox::Use::kShow};  // "wait..." while an .mp3 is opened

 protected:
  void DeleteOldAudio(const std::string& letter, const std::string& id) override;

 private:
  void OpeningAudio(bool opening, const std::string& path);
};

}  // namespace quixair
