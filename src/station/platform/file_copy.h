#pragma once

// The copy of one large file, so that the air never waits for a disk. Nothing lies under the file's name before
// the disk has taken all of it: a copy that is given up, or that the program's end cuts off, leaves no half
// file there. The owner's timer looks after it by Step.
//
//   auto copy = files.BeginCopy(from, to);           // then, at each tick:
//   const Status moved = copy.value()->Step();
//   if (moved.ok() && copy.value()->done()) ...

#include "station/platform/run_time_error.h"

namespace quixair {

class FileCopy {
 public:
  /// One that is not done takes back what it wrote.
  virtual ~FileCopy() = default;

  /// How it goes on; takes next to no time. After a fault nothing is left of it.
  virtual Status Step() = 0;
  virtual bool done() const = 0;
  /// 0 to 1.
  virtual double progress() const = 0;
};

}  // namespace quixair
