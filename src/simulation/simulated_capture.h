#pragma once

// Recorders in virtual time: they capture silence of the right length into real files.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulation/virtual_time.h"
#include "station/platform/recorder.h"

namespace quixair::simulation {

class SimulatedCapture : public Capture {
 public:
  explicit SimulatedCapture(VirtualTime& time) : time_(time) {}
  std::unique_ptr<Recorder> MakeRecorder() override;
  std::optional<RecordingFormat> SavedFormat() override { return saved_; }
  Status SaveFormat(const RecordingFormat& format) override;

  /// The running captures end as by a fault of disk or input.
  void BreakOff();

  bool input_there = true;
  Status save_fault;    // what SaveFormat comes back with
  std::string trouble;  // what the recorders tell of themselves
  /// A capture began or ended; the length is 0 at its beginning.
  std::function<void(const std::string& file, bool began, std::int32_t length)> on_capture;

 private:
  class SilentRecorder;
  VirtualTime& time_;
  std::optional<RecordingFormat> saved_;
  std::vector<SilentRecorder*> recorders_;
};

}  // namespace quixair::simulation
