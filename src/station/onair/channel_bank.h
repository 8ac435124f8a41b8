#pragma once

// The four channels of a playback screen with what both modes do to them in the same way. Channels 1 and 2
// carry items; 3 and 4 are never given a file and are kept, with their labels, for the operator to see.

#include <array>
#include <functional>

#include "station/screen/controls.h"

namespace quixair {

class ChannelBank {
 public:
  explicit ChannelBank(Screen& owner);

  MediaControl MMControl1;      // every item that is not started in overlap, and time announcements
  MediaControl MMControl2;      // the item started while channel 1 still plays
  MediaControl MMControl3;      // idle; stopped, paused and closed with the others
  MediaControl MMControl4;      // idle; watched for its label only
  Frame ChannelFrame;           // "Channel Activity:"
  std::array<Label, 4> Label6;  // "Ch-1 = Open" and so on

  MediaControl& channel(int number);

  void Arm();        // before a run: channels 1 and 2 notify
  void PauseAll();   // those of 1, 2, 3 that play
  void ResumeAll();  // those of 1, 2, 3 that are paused
  void RewindAll();
  /// A playing channel reads "Open", one that is not open "Closed"; any other keeps its label.
  void UpdateLabels();

  /// The transport bars lead to the operator's Continue: Play on channel 1 or 2 when `play_allowed` says so,
  /// on channel 3 when `play_allowed_on_idle` does, Pause on any of the three always.
  void ConnectBars(const std::function<bool()>& play_allowed,
                   const std::function<bool()>& play_allowed_on_idle,
                   const std::function<void()>& do_continue);
};

}  // namespace quixair
