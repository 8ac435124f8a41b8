// Loaded before the C library into a program under test: writes down how late its event loop came back. A loop sleeps
// until its next timer is due or something else happens, and then acts; by what it is past that due time when it goes
// to sleep again, a tick may have come too late. Each lateness worth telling is a line of the file QUIXAIR_LATE_TICKS:
// "<steady seconds> <milliseconds late>".

#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Milliseconds kWorthTelling{20};

std::optional<Clock::time_point> due;  // of the main thread, where the loop runs

bool OnMainThread() {
  return ::syscall(SYS_gettid) == ::getpid();
}

void Tell(Clock::time_point now, Milliseconds late) {
  const char* const path = std::getenv("QUIXAIR_LATE_TICKS");
  if (path == nullptr) return;
  std::array<char, 64> line{};
  const int length =
      std::snprintf(line.data(), line.size(), "%.3f %.1f\n",
                    std::chrono::duration<double>(now.time_since_epoch()).count(), late.count());
  const int file = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0) return;
  [[maybe_unused]] const ssize_t written = ::write(file, line.data(), static_cast<std::size_t>(length));
  ::close(file);
}

/// The loop goes to sleep for `patience`; none is for ever.
void Sleeps(std::optional<Milliseconds> patience) {
  const Clock::time_point now = Clock::now();
  if (due && now - *due > kWorthTelling) Tell(now, now - *due);
  due.reset();
  if (patience) due = now + std::chrono::duration_cast<Clock::duration>(*patience);
}

template <class Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int poll(pollfd* descriptors, nfds_t count, int timeout) {
  static const auto real = Real<int (*)(pollfd*, nfds_t, int)>("poll");
  if (OnMainThread()) Sleeps(timeout < 0 ? std::nullopt : std::optional(Milliseconds(timeout)));
  return real(descriptors, count, timeout);
}

int ppoll(pollfd* descriptors, nfds_t count, const timespec* timeout, const sigset_t* signals) {
  static const auto real = Real<int (*)(pollfd*, nfds_t, const timespec*, const sigset_t*)>("ppoll");
  if (OnMainThread()) {
    std::optional<Milliseconds> patience;
    if (timeout != nullptr)
      patience = std::chrono::seconds(timeout->tv_sec) + std::chrono::nanoseconds(timeout->tv_nsec);
    Sleeps(patience);
  }
  return real(descriptors, count, timeout, signals);
}
}
