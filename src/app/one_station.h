#pragma once

// One program for one station: the first that comes holds a name made of the station's folder, for as long as it or a
// later life of it is there; one that is started beside it only asks the first to show its window. The name is a socket's
// that lies in no folder, so that nothing is left behind by a program that dies.

#include <filesystem>
#include <string>

namespace quixair {

class OneStation {
 public:
  /// `folder`: of drive C.
  explicit OneStation(const std::filesystem::path& folder);
  ~OneStation();
  OneStation(const OneStation&) = delete;
  OneStation& operator=(const OneStation&) = delete;

  enum class Standing {
    kFirst,   // also where no name can be held
    kShown,   // another is there, and shows itself
    kNoReply  // another is there and does not answer
  };
  /// Waits while the other one is being started again, or is just dying.
  Standing Take();

  /// Where those that come later knock; -1 for none. It is handed down to forks.
  int door() const { return door_; }
  /// Answers all who have knocked. True when there was one.
  bool AnswerDoor() const;

 private:
  std::string name_;
  int door_ = -1;
};

}  // namespace quixair
