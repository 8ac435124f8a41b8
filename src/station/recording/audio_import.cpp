#include "station/recording/audio_import.h"

#include <cmath>
#include <utility>

#include "station/console/station_paths.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::size_t kRootLength = 3;  // of a drive, a colon, a backslash

}  // namespace

std::string AudioImport::Job::SourcePath() const {
  return folder.size() <= kRootLength ? folder + name : folder + '\\' + name;
}

std::vector<std::string> AudioImport::Job::OldAudio() const {
  const std::string stem = UpperCased(id);
  return {station_paths::AudioFile(drive, stem, ".WAV"), station_paths::AudioFile(drive, stem, ".MP3")};
}

bool AudioImport::IsOntoItself(Files& files, const Job& job) {
  if (EqualsIgnoringCase(job.SourcePath(), job.TargetPath())) return true;
  for (const std::string& old : job.OldAudio()) {
    if (files.AreSame(job.SourcePath(), old)) return true;
  }
  return false;
}

void AudioImport::Examine(Job job) {
  job_ = std::move(job);
  stage_ = Stage::kExamining;
  Step();
}

void AudioImport::Copy() {
  status_.SetCaption("Deleting " + job_.TargetFolder() + ' ' + job_.id + ".WAV/.MP3 (if exists)...");
  stage_ = Stage::kDeleting;
}

void AudioImport::Step() {
  switch (stage_) {
    case Stage::kIdle:
      return;
    case Stage::kExamining:
      return ExamineSource();
    case Stage::kDeleting:
      return Begin();
    case Stage::kCopying:
      return MovePiece();
    case Stage::kMeasuring:
      return Measure();
  }
}

std::string AudioImport::Progress() const {
  if (!copy_) return {};
  return std::to_string(std::lround(copy_->progress() * 100)) + " %";
}

void AudioImport::ExamineSource() {
  if (!platform_.media.IsReadyToOpen(platform_.files.HostPath(job_.SourcePath()))) return;
  const bool playable = LengthOf(job_.SourcePath()) > 0;
  stage_ = Stage::kIdle;
  if (on_examined) on_examined(playable);
}

/// The copy begins before the old audio goes: a drive that is not there or cannot be written is told with all
/// still in place. Only where the disk is full can the old audio's room be what is needed.
void AudioImport::Begin() {
  const auto begin = [this] { return platform_.files.BeginCopy(job_.SourcePath(), job_.TargetPath()); };
  auto copy = begin();
  if (!copy.ok() && copy.error() != RunTimeError::kDiskFull) return Fail(copy.status());
  DeleteOldAudio();
  if (!copy.ok()) copy = begin();
  if (!copy.ok()) return Fail(copy.status());
  copy_ = std::move(copy).value();
  status_.SetCaption("Copying " + job_.SourcePath() + "  to  " + job_.TargetPath());
  stage_ = Stage::kCopying;
}

void AudioImport::DeleteOldAudio() {
  for (const std::string& old : job_.OldAudio()) {
    while (platform_.files.Delete(old).ok()) {  // a host may hold it in two spellings
    }
  }
}

void AudioImport::MovePiece() {
  const Status moved = copy_->Step();
  if (!moved.ok()) return Fail(moved);
  if (!copy_->done()) return;
  copy_.reset();
  stage_ = Stage::kMeasuring;
}

void AudioImport::Measure() {
  if (!platform_.media.IsReadyToOpen(platform_.files.HostPath(job_.TargetPath()))) return;
  const std::int32_t milliseconds = LengthOf(job_.TargetPath());
  stage_ = Stage::kIdle;
  std::optional<std::string> length;
  if (milliseconds > 0) length = FixedDecimals(milliseconds / 1000.0, 1);
  if (on_copied) on_copied(std::move(length));
}

void AudioImport::Fail(const Status& fault) {
  copy_.reset();
  stage_ = Stage::kIdle;
  if (on_fault) on_fault(fault);
}

std::int32_t AudioImport::LengthOf(const std::string& path) {
  media_.Command(ChannelCommand::kClose);
  media_.SetFileName(path);
  media_.Command(ChannelCommand::kOpen);
  const std::int32_t length = media_.Length();
  media_.Command(ChannelCommand::kClose);
  return length;
}

}  // namespace quixair
