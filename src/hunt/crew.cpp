#include "hunt/crew.h"

#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <new>
#include <sstream>
#include <thread>
#include <utility>

namespace quixair::hunt {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr std::chrono::seconds kMostOfARun{10};

/// Fields of a report travel in one line each.
std::string OneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  std::replace(text.begin(), text.end(), '\t', ' ');
  return text;
}

std::string RuleOf(int status) {
  if (!WIFSIGNALED(status)) return {};
  return WTERMSIG(status) == SIGALRM ? kRunHangs : kProgramDies;
}

void Send(int pipe, const std::string& line) {
  const std::string bytes = line + '\n';
  if (::write(pipe, bytes.data(), bytes.size()) < 0) ::_exit(1);
}

/// One process and its share of the seeds.
struct Hand {
  Hand(std::uint64_t first, std::uint64_t every) : next(first), step(every) {}
  std::uint64_t next;  // seed
  std::uint64_t step;
  pid_t process = 0;
  std::atomic<std::size_t>* line = nullptr;  // in memory of both processes
  int pipe = -1;
  std::string received;
  bool in_run = false;
};

class Crew {
 public:
  Crew(std::uint64_t from, std::uint64_t to, std::optional<std::chrono::minutes> most,
       const std::function<RunResult(std::uint64_t, const OnLine&)>& run)
      : to_(to), run_(run) {
    if (most) end_ = SteadyClock::now() + *most;
    const std::uint64_t count = std::max(1U, std::thread::hardware_concurrency());
    for (std::uint64_t i = 0; i < count; ++i) {
      hands_.emplace_back(from + i, count);
      void* const shared = ::mmap(nullptr, sizeof(std::atomic<std::size_t>), PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0);
      if (shared == MAP_FAILED) throw std::bad_alloc();
      hands_.back().line = new (shared) std::atomic<std::size_t>(0);
    }
  }

  Bag Work() {
    for (Hand& hand : hands_) Begin(hand);
    while (Listen()) {
    }
    std::sort(bag_.findings.begin(), bag_.findings.end(),
              [](const Finding& a, const Finding& b) { return a.seed < b.seed; });
    return std::move(bag_);
  }

 private:
  bool TimeIsUp() const { return end_ && SteadyClock::now() > *end_; }

  void Begin(Hand& hand) {
    hand.pipe = -1;
    if (hand.next > to_ || TimeIsUp()) return;
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0) return;
    hand.process = ::fork();
    if (hand.process == 0) {
      ::close(ends[0]);
      RunShare(hand, ends[1]);
      ::_exit(0);
    }
    ::close(ends[1]);
    hand.pipe = ends[0];
    hand.in_run = false;
  }

  /// In the process of its own.
  void RunShare(const Hand& hand, int pipe) const {
    for (std::uint64_t seed = hand.next; seed <= to_ && !TimeIsUp(); seed += hand.step) {
      Send(pipe, "begin");
      ::alarm(static_cast<unsigned>(kMostOfARun.count()));
      const RunResult result = run_(seed, [&hand](std::size_t line) { *hand.line = line; });
      ::alarm(0);
      for (const std::string& name : result.sometimes) Send(pipe, "sometimes\t" + name);
      if (result.broken) {
        const Broken& broken = *result.broken;
        Send(pipe, "broken\t" + broken.rule + '\t' + OneLine(broken.what) + '\t' + broken.moment + '\t' +
                       std::to_string(broken.line));
      }
      Send(pipe, "end");
    }
  }

  /// False when nobody works any more.
  bool Listen() {
    std::vector<pollfd> waiting;
    for (const Hand& hand : hands_) {
      if (hand.pipe >= 0) waiting.push_back({hand.pipe, POLLIN, 0});
    }
    if (waiting.empty()) return false;
    ::poll(waiting.data(), waiting.size(), -1);
    for (const pollfd& ready : waiting) {
      if (ready.revents == 0) continue;
      for (Hand& hand : hands_) {
        if (hand.pipe == ready.fd) Receive(hand);
      }
    }
    return true;
  }

  void Receive(Hand& hand) {
    char buffer[4096];
    const ssize_t got = ::read(hand.pipe, buffer, sizeof buffer);
    if (got > 0) {
      hand.received.append(buffer, static_cast<std::size_t>(got));
      for (std::size_t end = 0; (end = hand.received.find('\n')) != std::string::npos;) {
        Take(hand, hand.received.substr(0, end));
        hand.received.erase(0, end + 1);
      }
      return;
    }
    ::close(hand.pipe);
    int status = 0;
    ::waitpid(hand.process, &status, 0);
    if (hand.in_run) {
      const std::string rule = RuleOf(status);
      const std::string what = rule == kProgramDies ? "signal " + std::to_string(WTERMSIG(status)) : "";
      Found(hand, {rule.empty() ? kProgramDies : rule, what, {}, *hand.line});
      Next(hand);
    }
    Begin(hand);
  }

  void Take(Hand& hand, const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, '\t');) fields.push_back(field);
    if (fields.empty()) return;
    if (fields[0] == "begin") hand.in_run = true;
    if (fields[0] == "sometimes" && fields.size() > 1) ++bag_.sometimes[fields[1]];
    if (fields[0] == "broken" && fields.size() > 4)
      Found(hand, {fields[1], fields[2], fields[3], std::stoul(fields[4])});
    if (fields[0] == "end") Next(hand);
  }

  void Found(const Hand& hand, Broken broken) { bag_.findings.push_back({hand.next, std::move(broken)}); }
  void Next(Hand& hand) {
    hand.in_run = false;
    hand.next += hand.step;
    ++bag_.runs;
  }

  const std::uint64_t to_;
  const std::function<RunResult(std::uint64_t, const OnLine&)>& run_;
  std::optional<SteadyClock::time_point> end_;
  std::vector<Hand> hands_;
  Bag bag_;
};

}  // namespace

Bag RunCrew(std::uint64_t from, std::uint64_t to, std::optional<std::chrono::minutes> most,
            const std::function<RunResult(std::uint64_t seed, const OnLine& on_line)>& run) {
  return Crew(from, to, most, run).Work();
}

std::string RuleBrokenBy(const std::function<RunResult()>& run, std::chrono::seconds most) {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) return {};
  const pid_t process = ::fork();
  if (process == 0) {
    ::alarm(static_cast<unsigned>(most.count()));
    const RunResult result = run();
    if (result.broken) Send(ends[1], result.broken->rule);
    ::_exit(0);
  }
  ::close(ends[1]);
  std::string rule;
  for (char c = 0; ::read(ends[0], &c, 1) == 1 && c != '\n';) rule += c;
  ::close(ends[0]);
  int status = 0;
  ::waitpid(process, &status, 0);
  return rule.empty() ? RuleOf(status) : rule;
}

}  // namespace quixair::hunt
