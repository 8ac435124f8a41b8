#pragma once

// The whole station in virtual time, without display or sound, on real folders: what the script front end and the tests
// drive. The clock, the folders and the person who answers outlive the program, so that it can be started again after its
// end or after a power cut.

#include <chrono>
#include <memory>
#include <optional>

#include "simulation/faulty_files.h"
#include "simulation/scripted_dialogs.h"
#include "simulation/scripted_printer.h"
#include "simulation/simulated_capture.h"
#include "simulation/simulated_media.h"
#include "simulation/virtual_time.h"
#include "station/host/disk_files.h"
#include "station/platform/engine_random.h"
#include "station/platform/event_gate.h"
#include "station/platform/platform.h"
#include "station/screen/screen_registry.h"

namespace quixair::simulation {

class SimulatedStation {
 public:
  SimulatedStation(Drives drives, const CivilTime& civil, LengthProbe probe,
                   std::optional<std::uint64_t> seed);
  ~SimulatedStation();
  SimulatedStation(const SimulatedStation&) = delete;
  SimulatedStation& operator=(const SimulatedStation&) = delete;

  /// Starts the program with its screens, as main does; opens nothing by itself.
  void StartProgram();
  /// Opens the console in it.
  void OpenConsole();
  /// The program is gone without an orderly end.
  void PowerCut();
  /// Between StartProgram and the program's end.
  bool running() const { return program_ != nullptr && !program_->gate.ended(); }
  /// Of the program that last ended in an orderly way.
  int exit_code() const { return program_ ? program_->gate.exit_code() : 0; }

  /// An event from outside, through the program's gate.
  void Do(const std::function<void()>& event);
  /// Every random draw from here on is that of the seed.
  void Seed(std::uint64_t seed) { random_ = EngineRandom(seed); }
  /// How long the person looks at each box before it is answered; the timers go on.
  std::chrono::milliseconds thinking{0};
  /// The open screen of that name, or none.
  Screen* FindScreen(std::string_view name);

  VirtualTime& time() { return time_; }
  FaultyFiles& files() { return files_; }
  const Drives& drives() const { return disk_.drives(); }
  SimulatedMedia& media() { return media_; }
  SimulatedCapture& capture() { return capture_; }
  ScriptedDialogs& dialogs() { return dialogs_; }
  ScriptedPrinter& printer() { return printer_; }
  NotedPrograms& programs() { return programs_; }
  NotedSessionStart& session_start() { return session_start_; }
  /// Of the running program.
  const Platform& platform() const { return program_->platform; }

  std::function<void(const std::string& screen, bool opened)> on_screen;
  std::function<void(int exit_code)> on_end;
  std::function<void(const std::string& what)> on_fault;

 private:
  struct Program final : ScreensObserver {
    explicit Program(SimulatedStation& station);
    void ScreenOpened(Screen& screen) override;
    void ScreenClosed(Screen& screen) override;
    void ScreenActivated(Screen&) override {}

    SimulatedStation& owner;
    EventGate gate;
    ScreenRegistry screens;
    Platform platform;
  };

  VirtualTime time_;
  DiskFiles disk_;
  FaultyFiles files_{disk_};
  SimulatedMedia media_;
  SimulatedCapture capture_;
  ScriptedDialogs dialogs_;
  ScriptedPrinter printer_;
  NotedPrograms programs_;
  NotedSessionStart session_start_;
  EngineRandom random_;
  std::unique_ptr<Program> program_;
};

}  // namespace quixair::simulation
