#include "app/lifeline.h"

#include <sys/socket.h>

namespace quixair {

void Lifeline::Say(Word word) const {
  if (socket_ < 0) return;
  const char letter = static_cast<char>(word);
  [[maybe_unused]] const ssize_t sent = send(socket_, &letter, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
}

}  // namespace quixair
