#pragma once

// A copy on the host's disk. It grows under a name of its own beside its place, "<stem>.COPYING", and gets its
// name when the disk has taken all of it. A busy disk holds up a plain write for a tenth of a second and more;
// so a helper thread moves the bytes and waits for the disk. It holds nothing but the two open files. In virtual
// time, where nothing may depend on a thread's pace, Step itself moves a piece at a time.

#include <sys/types.h>

#include <atomic>
#include <future>
#include <memory>
#include <string>
#include <utility>

#include "station/host/host_file.h"
#include "station/platform/file_copy.h"
#include "station/platform/run_time_error.h"

namespace quixair {

class HostFileCopy : public FileCopy {
 public:
  enum class Pace { kBeside, kByStep };
  /// `name` in `folder`, both of the host. 76 when there is no such folder, 61 when there is no room. kBeside
  /// has the copy on the disk before it is done.
  static Result<std::unique_ptr<FileCopy>> Begin(const std::string& source, const std::string& folder,
                                                 const std::string& name, Pace pace);
  ~HostFileCopy() override;
  HostFileCopy(const HostFileCopy&) = delete;
  HostFileCopy& operator=(const HostFileCopy&) = delete;

  Status Step() override;
  bool done() const override { return stage_ == Stage::kDone; }
  double progress() const override;

 private:
  struct Work {
    Work(host_file::Descriptor from, host_file::Descriptor to)
        : source(std::move(from)), target(std::move(to)) {}
    host_file::Descriptor source;
    host_file::Descriptor target;
    std::atomic<off_t> moved = 0;
    std::atomic<bool> given_up = false;
  };
  enum class Stage { kMoving, kNaming, kDone, kGivenUp };

  HostFileCopy(std::shared_ptr<Work> work, std::string growing, std::string place, Pace pace);
  /// True at the end of the source.
  static Result<bool> MovePiece(Work& work);
  static Status MoveAll(Work& work);
  Status MoveByStep();
  Status TakePlace();
  Status GiveUp(const Status& fault);

  const std::shared_ptr<Work> work_;  // with the helper thread, which may outlive this
  const std::string growing_;
  const std::string place_;
  const Pace pace_;
  const off_t size_;  // as it was at the start
  Stage stage_ = Stage::kMoving;
  std::future<Status> beside_;
};

}  // namespace quixair
