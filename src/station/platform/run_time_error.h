#pragma once

// The run-time errors of the station, under the numbers that its operators and its manual know, and the
// values that carry them. A function that can fail returns Status or Result; the caller holds to one of three
// regimes, each visible where it is used:
//   SkipAndGoOn(files.Write(...));            the failed statement is skipped and the next one runs
//   if (status.error() == RunTimeError::k...) a handler by number
//   OrEndProgram(files.Write(...));           no rule: the fault ends the program after a box

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace quixair {

enum class RunTimeError {
  kNone = 0,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kBadFileName = 52,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceInputOutput = 57,
  kDiskFull = 61,
  kInputPastEnd = 62,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccess = 75,
  kPathNotFound = 76,
};

class [[nodiscard]] Status {
 public:
  Status() = default;
  Status(RunTimeError error) : error_(error) {}  // NOLINT(google-explicit-constructor): an error is a status

  bool ok() const { return error_ == RunTimeError::kNone; }
  RunTimeError error() const { return error_; }
  int number() const { return static_cast<int>(error_); }

 private:
  RunTimeError error_ = RunTimeError::kNone;
};

template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}  // NOLINT(google-explicit-constructor)
  Result(RunTimeError error) : error_(error) {}  // NOLINT(google-explicit-constructor)

  bool ok() const { return value_.has_value(); }
  RunTimeError error() const { return error_; }
  Status status() const { return error_; }
  const T& value() const& { return *value_; }
  T&& value() && { return std::move(*value_); }
  T value_or(T otherwise) && { return value_ ? std::move(*value_) : std::move(otherwise); }

 private:
  std::optional<T> value_;
  RunTimeError error_ = RunTimeError::kNone;
};

/// The regime of the settings reads and of the playback flow: the fault has no consequence of its own.
inline void SkipAndGoOn(const Status&) {}
template <class T>
void SkipAndGoOn(const Result<T>&) {}

/// Thrown where no rule is in force; EventGate turns it into a box and an orderly end of the program.
class UnhandledRunTimeError : public std::exception {
 public:
  /// `remedy` tells where the fault lies and what mends it, when that is known.
  explicit UnhandledRunTimeError(RunTimeError error, std::string remedy = {})
      : error_(error), remedy_(std::move(remedy)) {}
  RunTimeError error() const { return error_; }
  const std::string& remedy() const { return remedy_; }
  const char* what() const noexcept override { return "run-time error"; }

 private:
  RunTimeError error_;
  std::string remedy_;
};
/// What the box of such a fault says.
std::string FaultText(const UnhandledRunTimeError& fault);

inline void OrEndProgram(const Status& status) {
  if (!status.ok()) throw UnhandledRunTimeError(status.error());
}
template <class T>
T OrEndProgram(Result<T> result) {
  if (!result.ok()) throw UnhandledRunTimeError(result.error());
  return std::move(result).value();
}

}  // namespace quixair
