#include "simulation/faulty_files.h"

#include <utility>

#include "station/platform/file_copy.h"
#include "station/platform/text.h"

namespace quixair::simulation {

void FaultyFiles::Fail(FileAct act, std::string pattern, RunTimeError error, Spell spell) {
  faults_.push_back({act, std::move(pattern), error, spell});
}

Status FaultyFiles::Before(FileAct act, std::string_view path) {
  Status status;
  for (Fault& fault : faults_) {
    if (fault.act != act || !MatchesPattern(path, fault.pattern)) continue;
    if (--fault.spell.nth > 0 || fault.spell.times == 0) continue;
    if (fault.spell.times != kAlways) --fault.spell.times;
    status = fault.error;
  }
  return status;
}

Result<std::string> FaultyFiles::Read(std::string_view path) {
  const Status status = Before(FileAct::kRead, path);
  return status.ok() ? beneath_.Read(path) : status.error();
}

Status FaultyFiles::Write(std::string_view path, std::string_view bytes, Durability durability) {
  const Status status = Before(FileAct::kWrite, path);
  return status.ok() ? beneath_.Write(path, bytes, durability) : status;
}

Status FaultyFiles::Append(std::string_view path, std::string_view bytes, Durability durability) {
  const Status status = Before(FileAct::kAppend, path);
  return status.ok() ? beneath_.Append(path, bytes, durability) : status;
}

Status FaultyFiles::Delete(std::string_view path) {
  const Status status = Before(FileAct::kDelete, path);
  return status.ok() ? beneath_.Delete(path) : status;
}

Status FaultyFiles::Copy(std::string_view from, std::string_view to) {
  const Status status = Before(FileAct::kCopy, to);
  return status.ok() ? beneath_.Copy(from, to) : status;
}

Result<std::unique_ptr<FileCopy>> FaultyFiles::BeginCopy(std::string_view from, std::string_view to) {
  const Status status = Before(FileAct::kCopy, to);
  return status.ok() ? beneath_.BeginCopy(from, to) : status.error();
}

Status FaultyFiles::MakeFolder(std::string_view path) {
  const Status status = Before(FileAct::kMakeFolder, path);
  return status.ok() ? beneath_.MakeFolder(path) : status;
}

Result<std::vector<std::string>> FaultyFiles::List(std::string_view folder, std::string_view pattern) {
  const Status status = Before(FileAct::kList, folder);
  return status.ok() ? beneath_.List(folder, pattern) : status.error();
}

Result<std::vector<std::string>> FaultyFiles::ListFolders(std::string_view folder) {
  const Status status = Before(FileAct::kList, folder);
  return status.ok() ? beneath_.ListFolders(folder) : status.error();
}

}  // namespace quixair::simulation
