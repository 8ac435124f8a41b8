#pragma once

namespace quixair {

/// Counts how deep a step is within itself, also when it is left by an exception: a count that stayed up would
/// make the step deaf in the end.
class NestedCall {
 public:
  explicit NestedCall(int& depth) : depth_(depth) { ++depth_; }
  ~NestedCall() { --depth_; }
  NestedCall(const NestedCall&) = delete;
  NestedCall& operator=(const NestedCall&) = delete;

 private:
  int& depth_;
};

}  // namespace quixair
