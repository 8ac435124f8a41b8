#include "app/one_station.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace quixair {
namespace {

constexpr int kTries = 40;  // as long as a program that hangs in a run is waited for, and more
constexpr int kReplyMilliseconds = 1000;
constexpr char kKnock = 's';

struct Address {
  explicit Address(const std::string& name) {
    value.sun_family = AF_UNIX;
    const std::size_t length = std::min(name.size(), sizeof value.sun_path - 1);
    std::memcpy(value.sun_path + 1, name.data(), length);  // behind a 0: a name without a file
    size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
  }
  const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&value); }
  sockaddr_un value{};
  socklen_t size = 0;
};

/// True when the one behind the door answered.
bool Knock(const Address& address) {
  const int line = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  pollfd reply{line, POLLIN, 0};
  char word = kKnock;
  const bool answered = connect(line, address.get(), address.size) == 0 &&
                        send(line, &word, 1, MSG_NOSIGNAL) == 1 && poll(&reply, 1, kReplyMilliseconds) == 1 &&
                        recv(line, &word, 1, 0) == 1;
  close(line);
  return answered;
}

}  // namespace

OneStation::OneStation(const std::filesystem::path& folder) {
  struct stat place {};
  name_ = stat(folder.c_str(), &place) == 0
              ? std::to_string(place.st_dev) + '-' + std::to_string(place.st_ino)
              : folder.string();
  name_.insert(0, "quixair-");
}

OneStation::~OneStation() {
  if (door_ >= 0) close(door_);
}

OneStation::Standing OneStation::Take() {
  const Address address(name_);
  for (int tries = 0; tries < kTries; ++tries) {
    door_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (bind(door_, address.get(), address.size) == 0 && listen(door_, kTries) == 0) return Standing::kFirst;
    const bool taken = errno == EADDRINUSE;
    close(door_);
    door_ = -1;
    if (!taken) return Standing::kFirst;
    if (Knock(address)) return Standing::kShown;
    poll(nullptr, 0, 50);
  }
  return Standing::kNoReply;
}

bool OneStation::AnswerDoor() const {
  bool answered = false;
  for (int line = accept4(door_, nullptr, nullptr, SOCK_CLOEXEC); line >= 0;
       line = accept4(door_, nullptr, nullptr, SOCK_CLOEXEC)) {
    const char word = kKnock;
    [[maybe_unused]] const ssize_t sent = send(line, &word, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
    close(line);
    answered = true;
  }
  return answered;
}

}  // namespace quixair
