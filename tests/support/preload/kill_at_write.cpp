// Loaded before the C library into a program under test: kills its whole process group with SIGKILL in the middle
// of writing one of its files. QUIXAIR_KILL_FILE is the end of that file's name; QUIXAIR_KILL_AT is the moment:
// "opened" and not yet written, "half" of the bytes written, or "written" and not yet flushed.

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

bool IsMoment(std::string_view moment) {
  const char* const at = std::getenv("QUIXAIR_KILL_AT");
  return at != nullptr && moment == at;
}

bool IsTheFile(std::string_view path) {
  const char* const wanted = std::getenv("QUIXAIR_KILL_FILE");
  return wanted != nullptr && path.ends_with(wanted);
}

bool IsTheFile(int descriptor) {
  std::array<char, 4096> path{};
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
  return length > 0 && IsTheFile(std::string_view(path.data(), static_cast<std::size_t>(length)));
}

template <class Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  const int descriptor = Real<int (*)(const char*, int, mode_t)>("open")(path, flags, mode);
  if ((flags & O_ACCMODE) != O_RDONLY && IsMoment("opened") && IsTheFile(path)) ::kill(0, SIGKILL);
  return descriptor;
}

ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t place) {
  const auto real = Real<ssize_t (*)(int, const void*, std::size_t, off_t)>("pwrite");
  const bool half = IsMoment("half");
  if ((!half && !IsMoment("written")) || !IsTheFile(descriptor)) return real(descriptor, bytes, count, place);
  real(descriptor, bytes, half ? count / 2 : count, place);
  return ::kill(0, SIGKILL);
}
}
