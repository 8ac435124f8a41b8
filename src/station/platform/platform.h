#pragma once

// Everything that a screen may reach of the world outside the station, as references to what main() made. It
// is handed to each screen's constructor; nothing here is looked up by name and nothing is global.

namespace quixair {

class Capture;
class Clock;
class Dialogs;
class EventGate;
class Files;
class Media;
class Printer;
class Programs;
class RandomSource;
class Screens;
class SessionStart;
class TimerService;

struct Platform {
  Clock& clock;
  TimerService& timers;
  Files& files;
  Media& media;
  Capture& capture;
  Dialogs& dialogs;
  Printer& printer;
  Programs& programs;
  SessionStart& session_start;
  RandomSource& random;
  Screens& screens;
  EventGate& gate;
};

}  // namespace quixair
