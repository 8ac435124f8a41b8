#pragma once

// What both on-air screens show under the same names. Each mode adds its own.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "station/onair/channel_bank.h"
#include "station/onair/error_list.h"
#include "station/onair/on_air_status.h"
#include "station/onair/overlap_choice.h"
#include "station/onair/playback_switches.h"
#include "station/onair/run_buttons.h"
#include "station/onair/start_time_frame.h"
#include "station/screen/screen.h"

namespace quixair {

class PlaybackScreen : public Screen, public OnAirScreen {
 public:
  /// Where the two differ.
  struct Names {
    std::string name;
    std::string title;
    std::string overlap_label;
    std::string overlap_save;
    std::string_view verification_file;
    std::string no_start_time;  // what Label2 says while none is set
  };
  PlaybackScreen(const Platform& platform, const Names& names);

  std::vector<MediaControl*> sounding_channels() override;
  /// Asks first when a run is on the air.
  void CloseWindow() override;

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
  Frame NextFrame1{*this, "NextFrame1", "Next Up #1"};
  Frame NextFrame2{*this, "NextFrame2", "Next Up #2"};
  TextBox Text2{*this, "Text2", TextBox::Use::kShow};  // "Today is: "
  TextBox Text3{*this, "Text3", TextBox::Use::kShow};  // warnings of the log
  ChannelBank Channels{*this};

  // the operator's buttons
  Button Start{*this, "Start", "&START"};
  Button Command2{*this, "Command2", "&QUIT"};
  Button Command4{*this, "Command4", "Set Start &Time"};
  RunButtons Run{*this};
  Button OLE1{*this, "OLE1", "Volume"};  // the host's mixer; its key is another button's

  ErrorList List6{*this};  // error log of this screen
  OverlapChoice Overlap;
  PlaybackSwitches Switches;

  // before a run
  Label Label1{*this, "Label1", "Set First Event:"};
  ListBox List1{*this, "List1"};  // first event
  Label Label2;                   // start time set

  Timer Timer1{*this, "Timer1"};  // compares the clock with the start time
  Timer Timer2{*this, "Timer2"};  // polls the channels
  Timer Timer3{*this, "Timer3"};  // finds the overlap point
  StartTimeFrame StartTime;
};

}  // namespace quixair
