#pragma once

// What brings one audio file from anywhere into the library, for the screens of this folder: it looks whether
// the file can be played, removes what its id had, copies it and measures the copy, a short step at a time,
// so that the air goes on meanwhile. Here in recording/ live the screens through which recordings enter and
// change. Owned by its screen, which calls Step from a timer while IsBusy.
//
//   import.Examine({.folder = "D:\\NEW", .name = "Hit.MP3", .id = "M0100", .drive = "C"});
//   on_examined(true) -> Copy() -> on_copied("201.3"), or on_fault

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "station/platform/file_copy.h"
#include "station/platform/media.h"
#include "station/screen/screen.h"

namespace quixair {

class AudioImport {
 public:
  struct Job {
    std::string folder;  // of the source, "D:\" or "D:\NEW"
    std::string name;    // of the source
    std::string id;
    std::string drive;  // one letter

    std::string SourcePath() const;
    /// The id with the source's extension.
    std::string Target() const {
      return id + name.substr(name.size() - std::min<std::size_t>(name.size(), 4));
    }
    /// "C:\QXWAVE"
    std::string TargetFolder() const { return drive + ":\\QXWAVE"; }
    std::string TargetPath() const { return TargetFolder() + '\\' + Target(); }
    /// What the id may have had, of either type.
    std::vector<std::string> OldAudio() const;
  };

  /// `status` is told of each step, `media` measures.
  AudioImport(const Platform& platform, Label& status, MediaControl& media)
      : platform_(platform), status_(status), media_(media) {}

  /// The source is what the import would overwrite or remove, under whatever name.
  static bool IsOntoItself(Files& files, const Job& job);

  /// Touches nothing.
  void Examine(Job job);
  /// Once the source was found playable.
  void Copy();
  void Step();

  bool IsBusy() const { return stage_ != Stage::kIdle; }
  const Job& job() const { return job_; }
  /// "", or of the copy "45 %".
  std::string Progress() const;

  std::function<void(bool playable)> on_examined;
  /// Seconds with one decimal; none when the copy could not be measured.
  std::function<void(std::optional<std::string> length)> on_copied;
  std::function<void(const Status&)> on_fault;

 private:
  enum class Stage { kIdle, kExamining, kDeleting, kCopying, kMeasuring };
  void ExamineSource();
  void Begin();
  void DeleteOldAudio();
  void MovePiece();
  void Measure();
  void Fail(const Status& fault);
  /// Milliseconds, 0 when it cannot be played.
  std::int32_t LengthOf(const std::string& path);

  const Platform& platform_;
  Label& status_;
  MediaControl& media_;
  Stage stage_ = Stage::kIdle;
  Job job_;
  std::unique_ptr<FileCopy> copy_;
};

}  // namespace quixair
