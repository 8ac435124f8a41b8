#include "station/host/host_file_copy.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>
#include <vector>

#include "station/platform/beside.h"

namespace quixair {
namespace {

using host_file::Descriptor;

constexpr std::size_t kPiece = std::size_t{512} * 1024;

std::string GrowingName(const std::string& name) {
  return name.substr(0, name.rfind('.')) + ".COPYING";
}

}  // namespace

Result<std::unique_ptr<FileCopy>> HostFileCopy::Begin(const std::string& source, const std::string& folder,
                                                      const std::string& name, Pace pace) {
  Descriptor from(::open(source.c_str(), O_RDONLY | O_CLOEXEC));
  if (!from.open()) return host_file::LastError();
  const std::string growing = folder + '/' + GrowingName(name);
  Descriptor to(::open(growing.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (!to.open()) return errno == ENOENT ? RunTimeError::kPathNotFound : host_file::LastError();
  auto work = std::make_shared<Work>(std::move(from), std::move(to));
  std::unique_ptr<HostFileCopy> copy(new HostFileCopy(work, growing, folder + '/' + name, pace));
  const Status reserved = host_file::Reserve(work->target, 0, copy->size_);
  if (!reserved.ok()) return reserved.error();
  if (pace == Pace::kBeside) copy->beside_ = Beside([work] { return MoveAll(*work); });
  return std::unique_ptr<FileCopy>(std::move(copy));
}

HostFileCopy::HostFileCopy(std::shared_ptr<Work> work, std::string growing, std::string place, Pace pace)
    : work_(std::move(work)),
      growing_(std::move(growing)),
      place_(std::move(place)),
      pace_(pace),
      size_(host_file::SizeOf(work_->source)) {}

HostFileCopy::~HostFileCopy() {
  work_->given_up = true;
  if (stage_ == Stage::kMoving) ::unlink(growing_.c_str());
}

double HostFileCopy::progress() const {
  if (done()) return 1;
  return size_ == 0 ? 0 : std::min(1.0, static_cast<double>(work_->moved) / static_cast<double>(size_));
}

Status HostFileCopy::Step() {
  if (stage_ == Stage::kMoving && pace_ == Pace::kByStep) return MoveByStep();
  if (!beside_.valid() || !IsThrough(beside_)) return {};
  const Status status = beside_.get();
  if (stage_ == Stage::kMoving) return status.ok() ? TakePlace() : GiveUp(status);
  stage_ = Stage::kDone;  // the file is whole, even where its folder cannot be flushed
  return {};
}

Result<bool> HostFileCopy::MovePiece(Work& work) {
  std::vector<char> piece(kPiece);
  const off_t place = work.moved;
  const ssize_t got = ::pread(work.source.get(), piece.data(), piece.size(), place);
  if (got < 0 && errno != EINTR) return host_file::LastError();
  if (got <= 0) return got == 0;
  const Status written =
      host_file::WriteAt(work.target, place, std::string_view(piece.data(), static_cast<std::size_t>(got)));
  if (!written.ok()) return written.error();
  work.moved += got;
  return false;
}

Status HostFileCopy::MoveAll(Work& work) {
  for (bool at_end = false; !at_end && !work.given_up;) {
    const Result<bool> moved = MovePiece(work);
    if (!moved.ok()) return moved.status();
    at_end = moved.value();
  }
  if (work.given_up) return {};
  if (::fdatasync(work.target.get()) != 0) return host_file::LastError();
  if (work.target.Close() != 0) return host_file::LastError();
  return {};
}

Status HostFileCopy::MoveByStep() {
  const Result<bool> moved = MovePiece(*work_);
  if (!moved.ok()) return GiveUp(moved.status());
  if (!moved.value()) return {};
  return work_->target.Close() == 0 ? TakePlace() : GiveUp(host_file::LastError());
}

Status HostFileCopy::TakePlace() {
  if (::rename(growing_.c_str(), place_.c_str()) != 0) return GiveUp(host_file::LastError());
  stage_ = pace_ == Pace::kBeside ? Stage::kNaming : Stage::kDone;
  if (pace_ == Pace::kBeside) {
    beside_ = Beside([folder = place_.substr(0, place_.rfind('/'))] {
      host_file::FlushFolder(folder);
      return Status();
    });
  }
  return {};
}

Status HostFileCopy::GiveUp(const Status& fault) {
  stage_ = Stage::kGivenUp;
  ::unlink(growing_.c_str());
  return fault;
}

}  // namespace quixair
