#pragma once

// Programs that tests start beside themselves: a sound server, a recorder, a display, the on-air program
// itself.

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quixair::testing {

bool IsInstalled(const std::string& program);

/// Asks until the condition holds; false when it did not within `patience`.
bool Await(std::chrono::milliseconds patience, const std::function<bool()>& condition);

/// A program that is gone when this is, with all that it started in its turn.
class Child {
 public:
  using Environment = std::vector<std::pair<std::string, std::string>>;
  /// Standard output goes to the file `output`, standard error nowhere.
  Child(std::vector<std::string> words, const std::filesystem::path& output,
        const Environment& environment = {});
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t id() const { return id_; }
  void Send(int signal) const;
  /// Sends SIGKILL to it and to what it started, and waits until it is gone.
  void Kill();
  /// Whether it has ended by itself, or by a signal.
  bool ended();

 private:
  pid_t id_ = -1;
  bool reaped_ = false;
};

/// A sound server with one card that plays to nowhere and can be recorded. Set the environment of its
/// clients to client_environment().
class NullSoundServer {
 public:
  /// `folder` for its socket and log. Check running() before use.
  explicit NullSoundServer(std::filesystem::path folder) : folder_(std::move(folder)) {}
  static bool IsInstalledHere() { return IsInstalled("pulseaudio") && IsInstalled("parec"); }

  /// False when it did not come up.
  bool Start();
  void Kill() { server_.reset(); }
  void Send(int signal) const { server_->Send(signal); }
  Child::Environment client_environment() const;
  /// Records what the card plays to a raw file, for as long as it lives.
  std::unique_ptr<Child> Record(const std::filesystem::path& raw_file, const std::string& sample_format,
                                int rate, int channels) const;

 private:
  std::filesystem::path Socket() const { return folder_ / "socket"; }

  std::filesystem::path folder_;
  std::unique_ptr<Child> server_;
};

}  // namespace quixair::testing
