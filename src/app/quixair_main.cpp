// The on-air program. What is started is its supervisor, unless another one plays this station already; each life of the
// program is a process of its own, which makes everything that a station needs, hands it on by reference, opens the
// console and waits.

#include <malloc.h>

#include <QApplication>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdio>

#include "app/one_station.h"
#include "app/supervisor.h"
#include "desktop/host_programs.h"
#include "desktop/main_frame.h"
#include "desktop/program_icon.h"
#include "desktop/program_table.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_printer.h"
#include "desktop/qt_timers.h"
#include "desktop/restart_notice.h"
#include "desktop/session_entry.h"
#include "desktop/termination_signals.h"
#include "desktop/theme.h"
#include "sound/capture_system.h"
#include "sound/sound_system.h"
#include "station/console/logs.h"
#include "station/host/disk_files.h"
#include "station/host/drives.h"
#include "station/host/system_clock.h"
#include "station/onair/on_air_status.h"
#include "station/platform/engine_random.h"
#include "station/platform/event_gate.h"
#include "station/platform/platform.h"
#include "station/screen/screen_registry.h"
#include "station/screen_catalogue.h"

namespace quixair {
namespace {

// An item's ring, a megabyte, goes back to the system when the item ends. Kept in the heap, rings of items that
// overlap leave holes, and a program that is on the air for months creeps.
constexpr int kLargeBlock = 512 * 1024;
constexpr std::chrono::seconds kHeartbeat{1};

/// Whether one of the playback screens has a run.
bool IsOnAir(ScreenRegistry& screens) {
  for (const char* name : {"RandomForm1", "PickListForm1"}) {
    const auto* const playback = dynamic_cast<OnAirScreen*>(screens.Find(name));
    if (playback != nullptr && playback->on_air_status().state != AirState::kReady) return true;
  }
  return false;
}

/// After several deaths in a row nothing is opened that might be at fault.
void CloseSplash(ScreenRegistry& screens) {
  if (Screen* splash = screens.Find("frmSplash")) screens.Unload(*splash);
  screens.Find("Console")->Show();
}

int TellNoReply(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMessageBox::critical(nullptr, QStringLiteral("Quixair"),
                        QStringLiteral("Quixair is on already with this station, but does not answer."));
  return 1;
}

int ShowPause(const Life& life, const OneStation& station) {
  const auto answer_door = [&station](QWidget& window) {
    if (station.AnswerDoor()) window.activateWindow();
  };
  const desktop::RestartChoice choice =
      desktop::ShowRestartNotice(QString::fromStdString(life.notice), life.pause, answer_door);
  return choice == desktop::RestartChoice::kNoMore ? Life::kNoMore : 0;
}

int RunStation(QApplication& application, DiskFiles& files, SystemClock& clock, const Life& life,
               const OneStation& station) {
  const std::filesystem::path configuration = ConfigurationFolder();
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
  const desktop::TerminationSignals termination([&gate, &life] {
    life.lifeline.Say(Word::kLeaving);
    gate.Enter([] { EndProgram(); });
  });
  if (station.door() >= 0) {
    const auto* const knocks = new QSocketNotifier(station.door(), QSocketNotifier::Read, &frame);
    QObject::connect(knocks, &QSocketNotifier::activated, &frame, [&station, &frame] {
      if (station.AnswerDoor()) frame.ComeToFront();
    });
  }
  const auto beat = [&life, &screens] { life.lifeline.Say(IsOnAir(screens) ? Word::kOnAir : Word::kIdle); };
  QTimer heart;
  QObject::connect(&heart, &QTimer::timeout, &frame, beat);
  heart.start(kHeartbeat);

  frame.ShowNotice(QString::fromStdString(life.notice));
  gate.Enter([&screens, &life] {
    screens.Open("Console");
    if (life.bare) CloseSplash(screens);
  });
  beat();
  if (!life.log_line.empty()) SkipAndGoOn(LogError(files, life.log_line));
  if (!gate.ended()) QApplication::exec();
  if (!gate.ended()) life.lifeline.Say(Word::kLeaving);  // the desktop's session has ended the toolkit
  screens.CloseAll();
  screens.set_observer(nullptr);
  return gate.exit_code();
}

int Start(int argc, char** argv) {
  DiskFiles files(Drives::Load(ConfigurationFolder() / "drives.conf", HomeFolder()));
  SystemClock clock;
  OneStation station(files.drives().Directory('C').value_or(ConfigurationFolder()));
  switch (station.Take()) {
    case OneStation::Standing::kFirst:
      break;
    case OneStation::Standing::kShown:
      std::fputs("Quixair is on already; its window comes to the front.\n", stderr);
      return 0;
    case OneStation::Standing::kNoReply:
      return TellNoReply(argc, argv);
  }
  Supervisor supervisor(files, clock);
  const std::optional<Life> life = supervisor.Run();
  if (!life) return supervisor.exit_code();

  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  QApplication application(argc, argv);
  life->lifeline.Say(Word::kDisplay);
  QApplication::setApplicationName(QStringLiteral("Quixair"));
  QApplication::setWindowIcon(desktop::ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);  // the console is hidden while the splash shows
  if (life->pause > std::chrono::milliseconds(0)) return ShowPause(*life, station);
  return RunStation(application, files, clock, *life, station);
}

}  // namespace
}  // namespace quixair

int main(int argc, char** argv) {
  return quixair::Start(argc, argv);
}
