#pragma once

// What plays on PickListForm1: the list, the state of the run, and those that act on them. The screen owns
// one of these.

#include <string>

#include "station/picklist/pick_list_controls.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_overlap.h"
#include "station/picklist/pick_list_run.h"
#include "station/picklist/pick_list_watcher.h"

namespace quixair {

class PickListPlayback {
 public:
  explicit PickListPlayback(PickListForm1& screen);

  /// ActivatePickList: loads the list when the screen comes up, and again when a daily template gives way to
  /// the next. Starts by itself after a power cut and at a change of the day.
  /// False when there is no such file at a change of the day.
  bool Activate();
  /// Loads what was handed over since, before a run.
  void LoadAnew();
  void EndRun() { controls_.EndRun(); }
  bool running() const { return context_.air.deck.running(); }
  void ProgramEnds() { context_.air.deck.EndAll(EndCause::kProgramEnds); }
  OnAirStatus status() const { return context_.air.deck.status(); }

 private:
  void ConnectControls();
  void ConnectSettings();
  void TakeRestartRecord();
  std::string ModeHandedOver() const;
  void PrepareScreen();
  bool ReadList();
  void TellFault(const Status& fault);
  bool Unattended() const;
  void FillLists();
  void StartByItself();
  void ToggleCover();

  PickListContext context_;
  PickListEngine engine_;
  PickListControls controls_;
  PickListWatcher watcher_;
  PickListOverlap overlap_;
};

}  // namespace quixair
