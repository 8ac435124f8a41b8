#include "desktop/termination_signals.h"

#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <utility>

namespace quixair::desktop {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};
std::atomic<int> write_end{-1};  // all that a signal handler may touch

void OnSignal(int) {
  const char byte = 1;
  const int socket = write_end.load();
  if (socket < 0) return;
  [[maybe_unused]] const ssize_t written = write(socket, &byte, 1);  // a full socket has been told already
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> on_signal) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, sockets_.data()) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(sockets_[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, told = std::move(on_signal)] {
                     notifier_->setEnabled(false);
                     told();
                   });
  write_end = sockets_[0];
  for (const int number : kSignals) std::signal(number, OnSignal);
}

TerminationSignals::~TerminationSignals() {
  for (const int number : kSignals) std::signal(number, SIG_DFL);
  write_end = -1;
  notifier_.reset();
  for (const int socket : sockets_) {
    if (socket >= 0) close(socket);
  }
}

}  // namespace quixair::desktop
