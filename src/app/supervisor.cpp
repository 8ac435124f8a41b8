#include "app/supervisor.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>

#include "station/console/logs.h"
#include "station/console/settings_files.h"
#include "station/console/station_paths.h"

namespace quixair {
namespace {

using std::chrono::milliseconds;

// Looking this often for one heartbeat, the supervisor misses only one look when the whole PC stood still.
constexpr int kLooksForAHeartbeat = 20;

constexpr std::array kEndings = {SIGTERM, SIGINT, SIGHUP};
std::atomic<pid_t> life_to_tell{0};  // all that a signal handler may touch
std::atomic<bool> asked_to_end{false};

void PassOn(int signal) {
  asked_to_end = true;
  if (const pid_t life = life_to_tell; life > 0) kill(life, signal);
}

/// The signals that end the program, held back while nobody knows whom to tell.
class EndingsHeldBack {
 public:
  EndingsHeldBack() {
    sigset_t endings;
    sigemptyset(&endings);
    for (const int signal : kEndings) sigaddset(&endings, signal);
    sigprocmask(SIG_BLOCK, &endings, &before_);
  }
  ~EndingsHeldBack() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  EndingsHeldBack(const EndingsHeldBack&) = delete;
  EndingsHeldBack& operator=(const EndingsHeldBack&) = delete;

 private:
  sigset_t before_{};
};

void HandleEndings(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;  // a call that waits comes back
  for (const int signal : kEndings) sigaction(signal, &action, nullptr);
}

bool WasAsked(int status) {
  return WIFSIGNALED(status) &&
         std::find(kEndings.begin(), kEndings.end(), WTERMSIG(status)) != kEndings.end();
}

bool KilledFromOutside(int status) {
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

}  // namespace

Supervisor::Supervisor(Files& files, const Clock& clock, Patience patience)
    : files_(files), clock_(clock), patience_(patience) {}

std::optional<Life> Supervisor::Run() {
  HandleEndings(PassOn);
  Life life;
  for (;;) {
    if (Fork(life)) return life;
    const End end = Watch();
    exit_code_ = WIFSIGNALED(end.status) ? 128 + WTERMSIG(end.status) : WEXITSTATUS(end.status);
    if (life.pause > milliseconds(0)) {
      if (!PauseIsOver(life, end)) break;
      life.pause = milliseconds(0);
    } else {
      if (!ComesBack(end)) break;
      life = NextLife(end);
    }
  }
  HandleEndings(SIG_DFL);
  return std::nullopt;
}

bool Supervisor::Fork(Life& life) {
  std::array<int, 2> ends{-1, -1};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return true;
  const EndingsHeldBack held_back;
  life_ = fork();
  if (life_ > 0) {
    close(ends[1]);
    lifeline_ = ends[0];
    life_to_tell = life_;
    return false;
  }
  HandleEndings(SIG_DFL);
  close(ends[0]);
  life.lifeline = Lifeline(ends[1]);
  return true;
}

Supervisor::End Supervisor::Watch() {
  End end;
  const SteadyTime begun = clock_.Steady();
  const milliseconds look = patience_.heartbeat / kLooksForAHeartbeat;
  int looks_in_vain = 0;
  for (;;) {
    pollfd line{lifeline_, POLLIN, 0};
    const int heard = poll(&line, 1, static_cast<int>(look.count()));
    if (heard == 0 && end.on_air && ++looks_in_vain >= kLooksForAHeartbeat) {
      end.hung = true;
      kill(life_, SIGKILL);
    }
    if (heard <= 0) continue;
    char word = 0;
    if (recv(lifeline_, &word, 1, 0) <= 0) break;  // gone, and its end of the line with it
    looks_in_vain = 0;
    end.display = true;
    end.asked = end.asked || word == static_cast<char>(Word::kLeaving);
    end.on_air =
        word == static_cast<char>(Word::kOnAir) || (end.on_air && word != static_cast<char>(Word::kIdle));
  }
  close(lifeline_);
  while (waitpid(life_, &end.status, 0) < 0 && errno == EINTR) {
  }
  life_to_tell = 0;
  end.lived = clock_.Steady() - begun;
  end.asked = end.asked || asked_to_end || WasAsked(end.status);
  return end;
}

bool Supervisor::ComesBack(const End& end) const {
  if (end.asked) return false;
  // The session is over: whatever starts the next one starts the program with it.
  if (!end.display && !KilledFromOutside(end.status)) return false;
  if (!WIFSIGNALED(end.status) && !end.on_air) return false;
  return ReadSetting(files_, station_paths::kResetOn) == "1" && ReadRestartRecord(files_).running;
}

Life Supervisor::NextLife(const End& end) {
  const RestartRecord record = ReadRestartRecord(files_);
  const bool names_event = record.mode == kPickListMode;
  const std::string event = std::to_string(record.event_number);
  const RestartPlan plan =
      rule_.After({.at = clock_.Steady(),
                   .lived = end.lived,
                   .from_outside = KilledFromOutside(end.status) && end.on_air && !end.hung,
                   .event = names_event ? record.template_name + ' ' + event : std::string()});
  const std::string cause = CauseOf(end);
  Life life;
  life.bare = plan.bare;
  life.log_line = ErrorLineStart(names_event ? ModeLetter::kPickList : ModeLetter::kRandom, clock_.Now()) +
                  " The program " + cause + " and was started again";
  if (plan.move_on) {
    const int next = record.event_number + 1;
    SkipAndGoOn(WritePickListRecord(files_, record.template_name, next));
    life.log_line += ": event " + event + " ended it twice, on with event " + std::to_string(next);
  }
  if (plan.wait) life.pause = patience_.between_tries;
  if (plan.bare) {
    life.notice = "The program failed " + std::to_string(plan.in_a_row) +
                  " times in a row: the last time it " + cause +
                  ". It starts with the console and the run alone.";
  }
  return life;
}

bool Supervisor::PauseIsOver(const Life& pause, const End& end) const {
  const bool sat_out = WIFEXITED(end.status) && WEXITSTATUS(end.status) == 0;
  if (WIFEXITED(end.status) && WEXITSTATUS(end.status) == Life::kNoMore) return false;
  if (!end.asked && !sat_out && end.lived < pause.pause) {
    const auto rest = std::chrono::duration_cast<milliseconds>(pause.pause - end.lived);
    poll(nullptr, 0, static_cast<int>(rest.count()));  // until a signal, if one comes
  }
  return !end.asked && !asked_to_end;
}

std::string Supervisor::CauseOf(const End& end) {
  if (end.hung) return "stood still";
  if (!WIFSIGNALED(end.status)) return "ended by a fault";
  const int signal = WTERMSIG(end.status);
  return "was ended by signal " + std::to_string(signal) + " (" + strsignal(signal) + ')';
}

}  // namespace quixair
