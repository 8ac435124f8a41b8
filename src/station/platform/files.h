#pragma once

// The station's files, under the paths that its documents name: a drive letter, a colon, folders with
// backslashes, without regard to case. Drives maps the letters to directories of the host; this interface is
// the only way from the station to a file. Every operation opens, acts and closes before it returns, but for
// the copy of a large file.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/run_time_error.h"

namespace quixair {

class FileCopy;

/// Whether a write must have reached the disk, and not only the system's memory, when the call returns.
enum class Durability { kOrdinary, kFlushed };

class Files {
 public:
  virtual ~Files() = default;

  /// The whole content. 53 no such file, 76 no such folder, 71 no such drive, 70 or 75 not allowed.
  virtual Result<std::string> Read(std::string_view path) = 0;
  /// Makes `bytes` the file's content, in one write. 61 when the disk is full, with the old content whole.
  virtual Status Write(std::string_view path, std::string_view bytes,
                       Durability durability = Durability::kOrdinary) = 0;
  /// Adds `bytes`, whole lines, at the end, in one write, or nothing of them; the first append makes the file.
  virtual Status Append(std::string_view path, std::string_view bytes,
                        Durability durability = Durability::kOrdinary) = 0;
  virtual Status Delete(std::string_view path) = 0;
  /// 70 when both are the same file of the host, under whatever names.
  virtual Status Copy(std::string_view from, std::string_view to) = 0;
  /// The same for audio, which its caller carries on piece by piece. What can be told beforehand is told here:
  /// the errors of Read for the one, of Write for the other, room for the whole included. Nothing lies under
  /// the name of `to` before the end.
  virtual Result<std::unique_ptr<FileCopy>> BeginCopy(std::string_view from, std::string_view to) = 0;
  /// 75 when it is there already.
  virtual Status MakeFolder(std::string_view path) = 0;

  /// A directory look-up: is there a file of this name?
  virtual bool Exists(std::string_view path) = 0;
  /// Names of the files in `folder` that match `pattern` ("M*.DAT", "*.TPT;*.TPP"; `*` and `?`, without
  /// regard to case), in the order in which the folder yields them.
  virtual Result<std::vector<std::string>> List(std::string_view folder, std::string_view pattern) = 0;

  /// Names of the folders in `folder`, hidden ones left out, in no order. 71 no such drive, 76 no such folder.
  virtual Result<std::vector<std::string>> ListFolders(std::string_view folder) = 0;
  /// Of the drives that the station is set up with, whether their directories are there or not; in order.
  virtual std::vector<char> DriveLetters() = 0;

  /// Where an existing file lies on the host, for the libraries that open files by themselves.
  virtual std::optional<std::filesystem::path> HostPath(std::string_view path) = 0;
  /// The same for a file that is about to be made: where it lies or will lie. 71 no such drive, 76 no such
  /// folder.
  virtual Result<std::filesystem::path> HostPathToMake(std::string_view path) = 0;
  /// Both exist and are one file of the host, under whatever names.
  bool AreSame(std::string_view a, std::string_view b);
};

}  // namespace quixair
