#include "station/host/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace quixair::host_file {
namespace {

RunTimeError FromErrno(int error) {
  switch (error) {
    case ENOENT:
      return RunTimeError::kFileNotFound;
    case ENOTDIR:
      return RunTimeError::kPathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return RunTimeError::kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return RunTimeError::kPermissionDenied;
    case EISDIR:
    case EEXIST:
    case ENOTEMPTY:
      return RunTimeError::kPathFileAccess;
    case EBUSY:
    case ETXTBSY:
      return RunTimeError::kFileAlreadyOpen;
    case ENAMETOOLONG:
    case EINVAL:
      return RunTimeError::kBadFileName;
    default:
      return RunTimeError::kDeviceInputOutput;
  }
}

Status Finish(Descriptor& file, bool flush) {
  if (flush && ::fdatasync(file.get()) != 0) return LastError();
  if (file.Close() != 0) return LastError();
  return {};
}

bool EndsInMidLine(const Descriptor& file, off_t size) {
  char last = '\n';
  return size > 0 && ::pread(file.get(), &last, 1, size - 1) == 1 && last != '\n';
}

Descriptor OpenToWrite(const std::string& host_path) {
  return Descriptor(::open(host_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
}

}  // namespace

Descriptor::Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

Descriptor::~Descriptor() {
  if (fd_ >= 0) ::close(fd_);
}

int Descriptor::Close() {
  return ::close(std::exchange(fd_, -1));
}

RunTimeError LastError() {
  return FromErrno(errno);
}

off_t SizeOf(const Descriptor& file) {
  struct stat about {};
  return ::fstat(file.get(), &about) == 0 ? about.st_size : 0;
}

Status WriteAt(const Descriptor& file, off_t place, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = ::pwrite(file.get(), bytes.data(), bytes.size(), place);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return LastError();
    place += put;
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
  return {};
}

Status Reserve(const Descriptor& file, off_t place, off_t length) {
  if (length <= 0) return {};
  if (::fallocate(file.get(), FALLOC_FL_KEEP_SIZE, place, length) != 0 && errno == ENOSPC) return LastError();
  return {};
}

Result<std::string> ReadAll(const std::string& host_path) {
  Descriptor file(::open(host_path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.open()) return LastError();
  // Nearly every file of a station is smaller than this: one read is all.
  std::array<char, 4096> chunk;
  std::string content;
  for (;;) {
    const ssize_t got = ::read(file.get(), chunk.data(), chunk.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return LastError();
    content.append(chunk.data(), static_cast<std::size_t>(got));
    if (static_cast<std::size_t>(got) < chunk.size()) return content;  // of a file, that is its end
  }
}

Status Replace(const std::string& host_path, std::string_view bytes, bool flush) {
  Descriptor file = OpenToWrite(host_path);
  if (!file.open()) return LastError();
  const off_t old_size = SizeOf(file);
  const auto new_size = static_cast<off_t>(bytes.size());
  const Status reserved = Reserve(file, old_size, new_size - old_size);
  if (!reserved.ok()) return reserved;
  const Status written = WriteAt(file, 0, bytes);
  if (!written.ok()) return written;
  if (old_size > new_size && ::ftruncate(file.get(), new_size) != 0) return LastError();
  return Finish(file, flush);
}

Status AppendLines(const std::string& host_path, std::string_view bytes, bool flush) {
  Descriptor file = OpenToWrite(host_path);
  if (!file.open()) return LastError();
  const off_t old_size = SizeOf(file);
  const std::string lines = (EndsInMidLine(file, old_size) ? "\r\n" : "") + std::string(bytes);
  const Status written = WriteAt(file, old_size, lines);
  if (written.ok()) return Finish(file, flush);
  // Half a line would spoil the next one too. What the operator is told is why the line is missing.
  [[maybe_unused]] const int cut = ::ftruncate(file.get(), old_size);
  return written;
}

void FlushFolder(const std::string& folder) {
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.open()) ::fsync(opened.get());
}

}  // namespace quixair::host_file
