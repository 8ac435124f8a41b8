#pragma once

// Files on the host's file system. The old PC did not tell upper from lower case: a path is tried by its
// exact name first, and failing that by an index of the folder (upper-cased name to real name). The index is
// kept in memory for as long as the folder's modification time stands, is kept up by our own writes, and is
// listed again once when it led astray, since listing a folder of 10,000 for each miss would take minutes
// over a whole library. A name that the code page or the old PC could not hold is listed with "?" in place of
// what does not fit, "~2" and so on where two would look alike, and is found by that name.

#include <chrono>
#include <map>
#include <string>
#include <unordered_map>

#include "station/host/drives.h"
#include "station/platform/files.h"

namespace quixair {

class DiskFiles : public Files {
 public:
  /// What a flushed write does: a rehearsal on a copy has no need to wait for the disk, nor for helper threads.
  enum class Flushing { kToDisk, kNone };
  explicit DiskFiles(Drives drives, Flushing flushing = Flushing::kToDisk)
      : drives_(std::move(drives)), flushing_(flushing) {}

  Result<std::string> Read(std::string_view path) override;
  Status Write(std::string_view path, std::string_view bytes, Durability durability) override;
  Status Append(std::string_view path, std::string_view bytes, Durability durability) override;
  Status Delete(std::string_view path) override;
  Status Copy(std::string_view from, std::string_view to) override;
  Result<std::unique_ptr<FileCopy>> BeginCopy(std::string_view from, std::string_view to) override;
  Status MakeFolder(std::string_view path) override;
  bool Exists(std::string_view path) override;
  Result<std::vector<std::string>> List(std::string_view folder, std::string_view pattern) override;
  Result<std::vector<std::string>> ListFolders(std::string_view folder) override;
  std::vector<char> DriveLetters() override;
  std::optional<std::filesystem::path> HostPath(std::string_view path) override;
  Result<std::filesystem::path> HostPathToMake(std::string_view path) override;

  const Drives& drives() const { return drives_; }

 private:
  struct Entry {
    std::string name;   // on the host
    std::string shown;  // in the station
    std::filesystem::file_type type = std::filesystem::file_type::unknown;
  };
  struct FolderIndex {
    std::filesystem::file_time_type modified;
    std::vector<Entry> entries;  // in the folder's own order; empty when it is not known any more
    bool ordered = false;
    std::unordered_map<std::string, std::string> real_names;  // by upper-cased name
    bool named = false;
  };
  struct Place {
    std::string folder;  // on the host
    std::string name;    // as asked for, in the host's encoding
    std::string exact() const { return folder + '/' + name; }
  };

  Result<Place> Locate(std::string_view path);
  Result<std::string> HostFolder(std::string_view drive_and_folders);
  /// The listed content of a folder, or why it cannot be listed.
  Result<const FolderIndex*> Listing(std::string_view folder);
  Result<std::string> Existing(const Place& place);
  /// Folders are taken to be where they were found first; true when this one has gone and must be looked for again.
  bool ForgetMissingFolder(const Place& place);
  std::optional<std::string> RealName(const std::string& folder, const std::string& name);
  /// What is held of the folder while its modification time stands, else an empty index; none when it cannot be read.
  FolderIndex* CurrentIndex(const std::string& folder);
  static void TellApart(std::vector<Entry>& entries);
  const FolderIndex* OrderedIndex(const std::string& folder);
  const FolderIndex* NamedIndex(const std::string& folder);
  void Remember(const std::string& folder, const std::string& name, bool folder_was_current);
  /// A file of ours is gone from a folder whose index was current.
  void Forget(const std::string& folder, const std::string& name);
  using PutFunction = Status (*)(const std::string& host_path, std::string_view bytes, bool flush);
  Status Put(std::string_view path, std::string_view bytes, PutFunction put, Durability durability);

  Drives drives_;
  Flushing flushing_;
  std::map<std::string, std::string, std::less<>> folders_;  // station's folder to host's
  std::unordered_map<std::string, FolderIndex> indexes_;
};

}  // namespace quixair
