#pragma once

// PickListForm1, the on-air screen of Pick-List playback: a fixed list of events, played from the first to
// the last. The screen holds the controls; PickListPlayback loads the list, PickListEngine plays it,
// PickListWatcher and PickListOverlap notice that items end or are about to, PickListControls is the
// operator.

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

class PickListPlayback;

class PickListForm1 : public Screen, public OnAirScreen {
 public:
  explicit PickListForm1(const Platform& platform);
  ~PickListForm1() override;
  void Load() override;
  void CloseWindow() override;
  OnAirStatus on_air_status() const override;
  std::vector<MediaControl*> sounding_channels() override;

  // what is on the air and around it
  Label Picture1{*this, "Picture1", "Pick-List Playback"};  // banner
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};       // status line
  Label Label7{*this, "Label7"};                            // name of the template
  Label EventLbl{*this, "EventLbl"};                        // "Event #: 3 out of 12"
  Frame CurrFrame{*this, "CurrFrame", "Currently Playing"};
  std::array<Label, 5> CurrLabel{Label{CurrFrame, "CurrLabel(0)"},   // id and field 4
                                 Label{CurrFrame, "CurrLabel(1)"},   // title
                                 Label{CurrFrame, "CurrLabel(2)"},   // length
                                 Label{CurrFrame, "CurrLabel(3)"},   // elapsed
                                 Label{CurrFrame, "CurrLabel(4)"}};  // audio file
  Frame LastFrame{*this, "LastFrame", "Last Played"};
  std::array<Label, 2> LastLabel{Label{LastFrame, "LastLabel(0)"}, Label{LastFrame, "LastLabel(1)"}};
  Frame NextFrame1{*this, "NextFrame1", "Next Up #1"};
  std::array<Label, 3> NextLabel1{Label{NextFrame1, "NextLabel1(0)"}, Label{NextFrame1, "NextLabel1(1)"},
                                  Label{NextFrame1, "NextLabel1(2)"}};
  Frame NextFrame2{*this, "NextFrame2", "Next Up #2"};
  std::array<Label, 3> NextLabel2{Label{NextFrame2, "NextLabel2(0)"}, Label{NextFrame2, "NextLabel2(1)"},
                                  Label{NextFrame2, "NextLabel2(2)"}};
  Frame Remaining{*this, "Remaining", "Time Remaining"};
  std::array<Label, 3> TotalRemain{Label{Remaining, "TotalRemain(0)"}, Label{Remaining, "TotalRemain(1)"},
                                   Label{Remaining, "TotalRemain(2)"}};
  Frame Lineup{*this, "Lineup", "Total Lineup"};
  std::array<Label, 3> TotalLineup{Label{Lineup, "TotalLineup(0)"}, Label{Lineup, "TotalLineup(1)"},
                                   Label{Lineup, "TotalLineup(2)"}};
  TextBox Text2{*this, "Text2", TextBox::Use::kShow};  // "Today is: "
  TextBox Text3{*this, "Text3", TextBox::Use::kShow};  // warnings of the log
  TextBox Text5{*this, "Text5", TextBox::Use::kShow};  // hidden: active channel and its notify value
  ChannelBank Channels{*this};

  // the operator's buttons
  Button Start{*this, "Start", "&START"};
  Button Command2{*this, "Command2", "&QUIT"};
  Button Command4{*this, "Command4", "Set Start &Time"};
  RunButtons Run{*this, Text1};
  Button OLE1{*this, "OLE1", "&Volume"};  // the host's mixer

  // lists
  ListBox List3{*this, "List3"};  // the events of the run
  Label LabelErrors{*this, "LabelErrors", "Empty File/Error Log"};
  ErrorList List6{*this};  // error log of this screen

  // settings
  OverlapChoice Overlap{*this, "Label5", "Command3"};
  CheckBox Check1{*this, "Check1", "Repeat: OFF"};
  PlaybackSwitches Switches{*this, station_paths::kPickVerify};
  Button Command1{*this, "Command1", ""};  // shows and hides the cover panel
  TextBox Text4{*this, "Text4"};           // covers part of the screen

  // before a run
  Label Label1{*this, "Label1", "Set First Event:"};
  ListBox List1{*this, "List1"};                           // first event
  Label Label2{*this, "Label2", "Start Time = (MANUAL)"};  // start time set

  // kept for operators who know it from the manual; nothing shows it
  Frame EscapeFrame{*this, "EscapeFrame", "Possible Error [30 Sec. Escape Opportunity]]"};
  TextBox Text6{EscapeFrame, "Text6", TextBox::Use::kShow};
  Button EscapeCommand{EscapeFrame, "EscapeCommand", "&Get Out!"};

  Timer Timer1{*this, "Timer1"};  // compares the clock with the start time
  Timer Timer2{*this, "Timer2"};  // polls the channels
  Timer Timer3{*this, "Timer3"};  // finds the overlap point
  StartTimeFrame StartTime{*this, Label2, Timer1, "Start Time = (MANUAL)"};

 private:
  std::unique_ptr<PickListPlayback> playback_;
};

}  // namespace quixair
