#include "simulation/simulated_station.h"

#include "station/screen_catalogue.h"

namespace quixair::simulation {

SimulatedStation::Program::Program(SimulatedStation& station)
    : owner(station),
      gate(station.dialogs_),
      screens(StationScreens()),
      platform{.clock = station.time_,
               .timers = station.time_,
               .files = station.files_,
               .media = station.media_,
               .capture = station.capture_,
               .dialogs = station.dialogs_,
               .printer = station.printer_,
               .programs = station.programs_,
               .session_start = station.session_start_,
               .random = station.random_,
               .screens = screens,
               .gate = gate} {
  screens.Attach(platform);
  screens.set_observer(this);
  gate.on_end = [this](int exit_code) {
    screens.ProgramEnds();
    if (owner.on_end) owner.on_end(exit_code);
  };
  gate.on_fault = [this](const std::string& what) {
    if (owner.on_fault) owner.on_fault(what);
  };
}

void SimulatedStation::Program::ScreenOpened(Screen& screen) {
  if (owner.on_screen) owner.on_screen(screen.name(), true);
}

void SimulatedStation::Program::ScreenClosed(Screen& screen) {
  if (owner.on_screen) owner.on_screen(screen.name(), false);
}

SimulatedStation::SimulatedStation(Drives drives, const CivilTime& civil, LengthProbe probe,
                                   std::optional<std::uint64_t> seed)
    : time_(civil),
      disk_(std::move(drives), DiskFiles::Flushing::kNone),
      media_(time_, std::move(probe)),
      capture_(time_),
      random_(seed ? EngineRandom(*seed) : EngineRandom()) {
  dialogs_.on_open = [this] {
    if (thinking.count() == 0) return;
    time_.Advance(thinking);
    if (program_) program_->gate.LeaveIfEnded();  // nobody is left to answer
  };
  time_.interrupted = [this] { return program_ != nullptr && program_->gate.ended(); };
}

SimulatedStation::~SimulatedStation() {
  PowerCut();
}

void SimulatedStation::StartProgram() {
  PowerCut();
  program_ = std::make_unique<Program>(*this);
}

void SimulatedStation::OpenConsole() {
  Do([this] { program_->screens.Open("Console"); });
}

void SimulatedStation::PowerCut() {
  if (!program_) return;
  program_->screens.set_observer(nullptr);  // nobody is left to tell
  program_.reset();
}

void SimulatedStation::Do(const std::function<void()>& event) {
  if (program_) program_->gate.Enter(event);
}

Screen* SimulatedStation::FindScreen(std::string_view name) {
  return running() ? program_->screens.Find(name) : nullptr;
}

}  // namespace quixair::simulation
