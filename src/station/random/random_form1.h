#pragma once

// RandomForm1, the on-air screen of Random playback. It loads the library into its pools once, then rotates
// songs, liners, legal ids and breaks, each item a fresh decision. The screen holds the controls and the
// order of its load; the decisions live in SequencingEngine, the polling in ChannelWatcher, the operator's
// acts in RunControls.

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "station/console/station_paths.h"
#include "station/onair/channel_bank.h"
#include "station/onair/error_list.h"
#include "station/onair/on_air_status.h"
#include "station/onair/overlap_choice.h"
#include "station/onair/playback_switches.h"
#include "station/onair/run_buttons.h"
#include "station/onair/start_time_frame.h"
#include "station/screen/screen.h"

namespace quixair {

class RandomPlayback;

class RandomForm1 : public Screen, public OnAirScreen {
 public:
  explicit RandomForm1(const Platform& platform);
  ~RandomForm1() override;
  void Load() override;
  /// The window's frame does what End Run does, before a run what Quit does: no record of a run stays behind.
  void CloseWindow() override;
  OnAirStatus on_air_status() const override;
  std::vector<MediaControl*> sounding_channels() override;
  std::optional<StopSetStatus> stop_set_status() const override;

  // what is on the air and around it
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // status line
  Frame CurrFrame{*this, "CurrFrame", "Currently Playing"};
  std::array<Label, 5> CurrLabel{Label{CurrFrame, "CurrLabel(0)"},   // id and first text
                                 Label{CurrFrame, "CurrLabel(1)"},   // title
                                 Label{CurrFrame, "CurrLabel(2)"},   // length
                                 Label{CurrFrame, "CurrLabel(3)"},   // elapsed
                                 Label{CurrFrame, "CurrLabel(4)"}};  // audio file
  Frame LastFrame{*this, "LastFrame", "Last Played"};
  std::array<Label, 2> LastLabel{Label{LastFrame, "LastLabel(0)"}, Label{LastFrame, "LastLabel(1)"}};
  Frame NextFrame1{*this, "NextFrame1",
                   "Next Up #1"};  // stays empty: the next item is decided when its turn comes
  Frame NextFrame2{*this, "NextFrame2", "Next Up #2"};  // likewise
  TextBox Text5{*this, "Text5", TextBox::Use::kShow};   // hint of what kind comes up
  TextBox Text3{*this, "Text3", TextBox::Use::kShow};   // legal id drawn, warnings of the log
  TextBox Text2{*this, "Text2", TextBox::Use::kShow};   // "Today is: "
  TextBox Text7{*this, "Text7", TextBox::Use::kShow};   // stop-set scan
  Label Label9{*this, "Label9"};                        // no scheduled playback today
  ChannelBank Channels{*this};

  // the operator's buttons
  Button Start{*this, "Start", "&START"};
  Button Command2{*this, "Command2", "&QUIT"};
  Button Command4{*this, "Command4", "Set Start &Time"};
  RunButtons Run{*this, Text1};

  // lists
  Label Label3{*this, "Label3", "Randomly Rotating Material"};
  ListBox List3{*this, "List3"};  // the pools
  Label Label7{*this, "Label7", "Spot/PSA Rotation List"};
  ListBox List5{*this, "List5"};  // internal breaks, row numbers are rows of the rotation
  Label Label8{*this, "Label8",
               "Stop-Set Rotation List"};  // or the template's name, or that stop sets are off
  ListBox List7{*this, "List7"};           // stop-set rotation list
  Label Label5{*this, "Label5", "Empty File/Error Log"};
  ErrorList List6{*this};  // error log of this screen

  // settings
  Button Command3{*this, "Command3", "Hide Setti&ngs"};
  ListBox List4{*this, "List4"};  // settings print-out
  Button Command5{*this, "Command5", "&Refresh Settings"};
  OverlapChoice Overlap{*this, "Label4", "Command6"};
  PlaybackSwitches Switches{*this, station_paths::kRandomVerify};
  Button Command1{*this, "Command1", "Text Editor"};
  TextBox Text4{*this, "Text4"};  // notes, never saved

  // before a run
  Label Label1{*this, "Label1", "Set First Event:"};
  ListBox List1{*this, "List1"};  // first event
  Label Label2{*this, "Label2"};  // start time set

  // template choice
  Frame Frame2{*this, "Frame2", "Random/Satellite Template Selection:"};
  Label LabelCustom{Frame2, "LabelCustom", "All Custom Templates"};
  FileListBox File1{Frame2, "File1"};
  Label LabelDaily{Frame2, "LabelDaily", "Daily Templates"};
  FileListBox File2{Frame2, "File2"};
  Button Done{Frame2, "Done", "&Done"};
  Button Refresh{Frame2, "Refresh", "&Refresh"};
  Button Quit{Frame2, "Quit", "&Quit"};

  Timer Timer1{*this, "Timer1"};  // compares the clock with the start time
  Timer Timer2{*this, "Timer2"};  // polls the channels
  Timer Timer3{*this, "Timer3"};  // finds the overlap point
  Timer Timer4{*this, "Timer4"};  // reads the settings again
  StartTimeFrame StartTime{*this, Label2, Timer1, ""};

 private:
  std::unique_ptr<RandomPlayback> playback_;  // what plays: pools, run, engine, watcher, operator's acts
};

}  // namespace quixair
