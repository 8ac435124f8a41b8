#pragma once

// PickListForm1, the on-air screen of Pick-List playback: a fixed list of events, played from the first to
// the last. The screen holds the controls; PickListPlayback loads the list, PickListEngine plays it,
// PickListWatcher and PickListOverlap notice that items end or are about to, PickListControls is the
// operator.

#include <array>
#include <memory>

#include "station/onair/playback_screen.h"

namespace quixair {

class PickListPlayback;

class PickListForm1 : public PlaybackScreen {
 public:
  explicit PickListForm1(const Platform& platform);
  ~PickListForm1() override;
  void Load() override;
  /// Takes the list that was handed over meanwhile; on the air it says so and goes on.
  void PrepareAgain(const ScreenOpening& opening) override;
  bool OnTheAir() const override;
  void EndRunOnTheAir() override;
  void ProgramEnds() override;
  OnAirStatus on_air_status() const override;

  // what is on the air and around it
  Label Picture1{*this, "Picture1", "Pick-List Playback"};  // banner
  Label Label7{*this, "Label7"};                            // name of the template
  Label EventLbl{*this, "EventLbl"};                        // "Event #: 3 out of 12"
  std::array<Label, 3> NextLabel1{Label{NextFrame1, "NextLabel1(0)"}, Label{NextFrame1, "NextLabel1(1)"},
                                  Label{NextFrame1, "NextLabel1(2)"}};
  std::array<Label, 3> NextLabel2{Label{NextFrame2, "NextLabel2(0)"}, Label{NextFrame2, "NextLabel2(1)"},
                                  Label{NextFrame2, "NextLabel2(2)"}};
  Frame Remaining{*this, "Remaining", "Time Remaining"};
  std::array<Label, 3> TotalRemain{Label{Remaining, "TotalRemain(0)"}, Label{Remaining, "TotalRemain(1)"},
                                   Label{Remaining, "TotalRemain(2)"}};
  Frame Lineup{*this, "Lineup", "Total Lineup"};
  std::array<Label, 3> TotalLineup{Label{Lineup, "TotalLineup(0)"}, Label{Lineup, "TotalLineup(1)"},
                                   Label{Lineup, "TotalLineup(2)"}};
  TextBox Text5{*this, "Text5", TextBox::Use::kShow};  // hidden: active channel and its notify value

  // lists
  ListBox List3{*this, "List3"};  // the events of the run
  Label LabelErrors{*this, "LabelErrors", "Empty File/Error Log"};

  // settings
  CheckBox Check1{*this, "Check1", "Repeat: OFF"};
  Button Command1{*this, "Command1", ""};  // shows and hides the cover panel
  TextBox Text4{*this, "Text4"};           // covers part of the screen

  // kept for operators who know it from the manual; nothing shows it
  Frame EscapeFrame{*this, "EscapeFrame", "Possible Error [30 Sec. Escape Opportunity]]"};
  TextBox Text6{EscapeFrame, "Text6", TextBox::Use::kShow};
  Button EscapeCommand{EscapeFrame, "EscapeCommand", "&Get Out!"};

 private:
  std::unique_ptr<PickListPlayback> playback_;
};

}  // namespace quixair
