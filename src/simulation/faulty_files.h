#pragma once

// The station's files in a world that misbehaves: everything is passed on to the files beneath, but for the acts that
// were told to fail. A full disk, a file that another program holds, a write that fails once in the middle of a sequence.
//
//   files.Fail(FileAct::kWrite, "*\\RESET.DTA", RunTimeError::kDiskFull, {.nth = 3});

#include <string>
#include <vector>

#include "station/platform/files.h"

namespace quixair::simulation {

enum class FileAct { kRead, kWrite, kAppend, kDelete, kCopy, kMakeFolder, kList };

class FaultyFiles : public Files {
 public:
  explicit FaultyFiles(Files& beneath) : beneath_(beneath) {}

  static constexpr int kAlways = -1;
  struct Spell {
    int nth = 1;          // the first act that fails, counted from now
    int times = kAlways;  // how many fail
  };
  /// Of the acts of this kind on paths that match the pattern; a copy goes by the file that it makes.
  void Fail(FileAct act, std::string pattern, RunTimeError error, Spell spell = {1, kAlways});
  /// Nothing fails any more.
  void Mend() { faults_.clear(); }

  Result<std::string> Read(std::string_view path) override;
  Status Write(std::string_view path, std::string_view bytes, Durability durability) override;
  Status Append(std::string_view path, std::string_view bytes, Durability durability) override;
  Status Delete(std::string_view path) override;
  Status Copy(std::string_view from, std::string_view to) override;
  Result<std::unique_ptr<FileCopy>> BeginCopy(std::string_view from, std::string_view to) override;
  Status MakeFolder(std::string_view path) override;
  bool Exists(std::string_view path) override { return beneath_.Exists(path); }
  Result<std::vector<std::string>> List(std::string_view folder, std::string_view pattern) override;
  Result<std::vector<std::string>> ListFolders(std::string_view folder) override;
  std::vector<char> DriveLetters() override { return beneath_.DriveLetters(); }
  std::optional<std::filesystem::path> HostPath(std::string_view path) override {
    return beneath_.HostPath(path);
  }
  Result<std::filesystem::path> HostPathToMake(std::string_view path) override {
    return beneath_.HostPathToMake(path);
  }

 private:
  struct Fault {
    FileAct act;
    std::string pattern;
    RunTimeError error;
    Spell spell;
  };
  /// What this act comes to before it is tried.
  Status Before(FileAct act, std::string_view path);

  Files& beneath_;
  std::vector<Fault> faults_;
};

}  // namespace quixair::simulation
