#include "support/outside_programs.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <sstream>
#include <thread>

namespace quixair::testing {

bool IsInstalled(const std::string& program) {
  const char* const path = getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

bool Await(std::chrono::milliseconds patience, const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

Child::Child(std::vector<std::string> words, const std::filesystem::path& output,
             const Environment& environment) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  id_ = fork();
  if (id_ != 0) {
    setpgid(id_, id_);  // on both sides: whoever comes first
    return;
  }
  setpgid(0, 0);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int to = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(to, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

Child::~Child() {
  Kill();
}

void Child::Send(int signal) const {
  kill(id_, signal);
}

void Child::Kill() {
  kill(-id_, SIGKILL);
  if (reaped_) return;
  waitpid(id_, nullptr, 0);
  reaped_ = true;
}

bool Child::ended() {
  if (!reaped_) reaped_ = waitpid(id_, nullptr, WNOHANG) == id_;
  return reaped_;
}

bool NullSoundServer::Start() {
  server_.reset();
  std::filesystem::remove(Socket());
  server_ = std::make_unique<Child>(
      std::vector<std::string>{"pulseaudio", "-n", "--exit-idle-time=-1", "--daemonize=no",
                               "--use-pid-file=no", "-L",
                               "module-null-sink sink_name=card rate=48000 format=float32le channels=2", "-L",
                               "module-native-protocol-unix auth-anonymous=1 socket=" + Socket().string()},
      folder_ / "server.log");
  return Await(std::chrono::seconds(10), [this] { return std::filesystem::exists(Socket()); });
}

Child::Environment NullSoundServer::client_environment() const {
  return {{"XDG_RUNTIME_DIR", folder_.string()}, {"PULSE_SERVER", "unix:" + Socket().string()}};
}

std::unique_ptr<Child> NullSoundServer::Record(const std::filesystem::path& raw_file,
                                               const std::string& sample_format, int rate,
                                               int channels) const {
  return std::make_unique<Child>(
      std::vector<std::string>{"parec", "--raw", "--format=" + sample_format,
                               "--rate=" + std::to_string(rate), "--channels=" + std::to_string(channels),
                               "--latency-msec=20", "-d", "card.monitor"},
      raw_file, client_environment());
}

}  // namespace quixair::testing
