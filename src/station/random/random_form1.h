#pragma once

// RandomForm1, the on-air screen of Random playback. It loads the library into its pools once, then rotates
// songs, liners, legal ids and breaks, each item a fresh decision. The screen holds the controls and the
// order of its load; the decisions live in SequencingEngine, the polling in ChannelWatcher, the operator's
// acts in RunControls.

#include <memory>
#include <optional>

#include "station/onair/playback_screen.h"

namespace quixair {

class RandomPlayback;

class RandomForm1 : public PlaybackScreen {
 public:
  explicit RandomForm1(const Platform& platform);
  ~RandomForm1() override;
  void Load() override;
  bool OnTheAir() const override;
  /// Before a run, as Quit does: no record of a run stays behind.
  void EndRunOnTheAir() override;
  void ProgramEnds() override;
  OnAirStatus on_air_status() const override;
  std::optional<StopSetStatus> stop_set_status() const override;

  TextBox Text5{*this, "Text5", TextBox::Use::kShow};  // hint of what kind comes up
  TextBox Text7{*this, "Text7", TextBox::Use::kShow};  // stop-set scan
  Label Label9{*this, "Label9"};                       // no scheduled playback today

  // lists
  Label Label3{*this, "Label3", "Randomly Rotating Material"};
  ListBox List3{*this, "List3"};  // the pools
  Label Label7{*this, "Label7", "Spot/PSA Rotation List"};
  ListBox List5{*this, "List5"};  // internal breaks, row numbers are rows of the rotation
  Label Label8{*this, "Label8",
               "Stop-Set Rotation List"};  // or the template's name, or that stop sets are off
  ListBox List7{*this, "List7"};           // stop-set rotation list
  Label Label5{*this, "Label5", "Empty File/Error Log"};

  // settings
  Button Command3{*this, "Command3", "Hide Setti&ngs"};
  ListBox List4{*this, "List4"};  // settings print-out
  Button Command5{*this, "Command5", "&Refresh Settings"};
  Button Command1{*this, "Command1", "Text Editor"};
  TextBox Text4{*this, "Text4"};  // notes, never saved

  // template choice
  Frame Frame2{*this, "Frame2", "Random/Satellite Template Selection:"};
  Label LabelCustom{Frame2, "LabelCustom", "All Custom Templates"};
  FileListBox File1{Frame2, "File1"};
  Label LabelDaily{Frame2, "LabelDaily", "Daily Templates"};
  FileListBox File2{Frame2, "File2"};
  Button Done{Frame2, "Done", "&Done"};
  Button Refresh{Frame2, "Refresh", "&Refresh"};
  Button Quit{Frame2, "Quit", "&Quit"};

  Timer Timer4{*this, "Timer4"};  // reads the settings again

 private:
  std::unique_ptr<RandomPlayback> playback_;  // what plays: pools, run, engine, watcher, operator's acts
};

}  // namespace quixair
