// The on-air program: makes everything that a station needs, hands it on by reference, opens the console and
// waits.

#include <malloc.h>

#include <QApplication>

#include "desktop/host_programs.h"
#include "desktop/main_frame.h"
#include "desktop/program_icon.h"
#include "desktop/program_table.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_printer.h"
#include "desktop/qt_timers.h"
#include "desktop/session_entry.h"
#include "desktop/termination_signals.h"
#include "desktop/theme.h"
#include "sound/capture_system.h"
#include "sound/sound_system.h"
#include "station/host/disk_files.h"
#include "station/host/drives.h"
#include "station/host/system_clock.h"
#include "station/platform/engine_random.h"
#include "station/platform/event_gate.h"
#include "station/platform/platform.h"
#include "station/screen/screen_registry.h"
#include "station/screen_catalogue.h"

namespace {
// An item's ring, a megabyte, goes back to the system when the item ends. Kept in the heap, rings of items that
// overlap leave holes, and a program that is on the air for months creeps.
constexpr int kLargeBlock = 512 * 1024;
}  // namespace

int main(int argc, char** argv) {
  using namespace quixair;
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Quixair"));
  QApplication::setWindowIcon(desktop::ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);  // the console is hidden while the splash shows

  const std::filesystem::path configuration = ConfigurationFolder();
  DiskFiles files(Drives::Load(configuration / "drives.conf", HomeFolder()));
  SystemClock clock;
  EngineRandom random;
  desktop::QtTimers timers;
  desktop::QtDialogs dialogs;
  EventGate gate(dialogs);
  dialogs.Attach(gate);
  desktop::QtPrinter printer(dialogs);
  desktop::HostPrograms programs(desktop::ProgramTable::Load(configuration / "programs.conf", HomeFolder()),
                                 files, dialogs);
  desktop::SessionEntry session_start(configuration.parent_path() / "autostart",
                                      QCoreApplication::applicationFilePath().toStdString());
  sound::SdlDrivers drivers = sound::MakeSdlDrivers();
  sound::SoundSystem sound({sound::SoundSystem::Drive::kDevice, std::move(drivers.output)});
  sound::CaptureSystem capture(std::move(drivers.input), configuration / "recorder.conf");
  ScreenRegistry screens(StationScreens());
  const Platform platform{clock,   timers,   files,         sound,  capture, dialogs,
                          printer, programs, session_start, random, screens, gate};
  screens.Attach(platform);

  desktop::ThemeSwitch theme(application, configuration / "desktop.conf");
  desktop::MainFrame frame(platform, theme);
  dialogs.set_parent(&frame);
  screens.set_observer(&frame);

  gate.on_fault = [](const std::string& what) { qWarning("an event was lost: %s", what.c_str()); };
  gate.on_end = [&dialogs, &screens](int exit_code) {
    screens.ProgramEnds();
    dialogs.CloseAll();
    QApplication::exit(exit_code);
  };
  const desktop::TerminationSignals termination([&gate] { gate.Enter([] { EndProgram(); }); });

  gate.Enter([&screens] { screens.Open("Console"); });
  if (!gate.ended()) QApplication::exec();
  screens.CloseAll();
  screens.set_observer(nullptr);
  return gate.exit_code();
}
