#pragma once

// Reading and writing one file of the host so that neither a full disk nor the end of the program in the
// middle loses what was there. A file is overwritten where it lies and cut to its new length at the end: at
// no moment is it empty, which for the restart record would mean a silent morning. What DiskFiles,
// HostFileCopy and the sound library stand on.

#include <sys/types.h>

#include <string>
#include <string_view>

#include "station/platform/run_time_error.h"

namespace quixair::host_file {

/// An open file, closed by its owner at the latest.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(Descriptor&& other) noexcept;
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  bool open() const { return fd_ >= 0; }
  int get() const { return fd_; }
  /// Some file systems tell a full disk only when the file is closed.
  int Close();

 private:
  int fd_;
};

/// The error number that operators know for the last failed call of the host.
RunTimeError LastError();

off_t SizeOf(const Descriptor& file);
Status WriteAt(const Descriptor& file, off_t place, std::string_view bytes);
/// Claims room behind `place`: 61 when there is none. Where the file system cannot, the write itself will tell.
Status Reserve(const Descriptor& file, off_t place, off_t length);

Result<std::string> ReadAll(const std::string& host_path);

/// Makes `bytes` the file's content. 61 before anything is changed when the disk has no room for it.
/// `flush`: on the disk when the call returns.
Status Replace(const std::string& host_path, std::string_view bytes, bool flush);

/// Adds `bytes`, whole lines, at the end, or leaves the file as it was. A last line that a power cut tore is
/// ended first, so that only that line is lost.
Status AppendLines(const std::string& host_path, std::string_view bytes, bool flush);

/// A new file outlives a power cut only when its folder's entry does.
void FlushFolder(const std::string& folder);

}  // namespace quixair::host_file
