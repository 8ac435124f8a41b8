// quixair-script: plays a script of an operator's acts on a station in virtual time, without display or sound, or rehearses
// a station's coming hours on a copy of it.

#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "script/rehearsal.h"
#include "script/script_runner.h"
#include "simulation/simulated_station.h"
#include "simulation/temporary_folder.h"
#include "simulation/world.h"
#include "sound/length_cache.h"
#include "station/host/drives.h"
#include "station/host/system_clock.h"

namespace {

constexpr std::uint64_t kMostHours = 10000;
constexpr const char* kUsage =
    "usage: quixair-script [--drives FILE | --scratch] [--seed N] SCRIPT    (SCRIPT - reads standard input)\n"
    "       quixair-script [--seed N] --rehearse DRIVES HOURS\n";

struct CommandLine {
  std::optional<std::string> drives_file;
  bool scratch = false;
  std::optional<std::uint64_t> seed;
  std::optional<std::chrono::milliseconds> rehearsal;
  std::string script;
};

std::optional<std::uint64_t> WholeNumber(std::string_view text) {
  std::uint64_t number = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), number);
  if (parsed.ec != std::errc() || parsed.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<CommandLine> Parse(int argc, char** argv) {
  CommandLine line;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const int values = argc - i - 1;
    if (word == "--drives" && values >= 1) {
      line.drives_file = argv[++i];
    } else if (word == "--scratch") {
      line.scratch = true;
    } else if (word == "--seed" && values >= 1) {
      line.seed = WholeNumber(argv[++i]);
      if (!line.seed) return std::nullopt;
    } else if (word == "--rehearse" && values >= 2) {
      line.drives_file = argv[++i];
      const auto hours = WholeNumber(argv[++i]);
      if (!hours || *hours > kMostHours) return std::nullopt;
      line.rehearsal = std::chrono::hours(*hours);
    } else if (line.script.empty() && (word == "-" || !word.starts_with("-"))) {
      line.script = word;
    } else {
      return std::nullopt;
    }
  }
  if (line.script.empty() != line.rehearsal.has_value()) return std::nullopt;
  if (line.scratch && line.drives_file) return std::nullopt;
  return line;
}

quixair::Drives LoadDrives(const CommandLine& line) {
  const auto home = quixair::HomeFolder();
  if (!line.drives_file) return quixair::Drives::Load(quixair::ConfigurationFolder() / "drives.conf", home);
  std::ifstream stream(*line.drives_file, std::ios::binary);
  return quixair::Drives::Parse(std::string{std::istreambuf_iterator<char>(stream), {}}, home);
}

/// A station in virtual time whose items have the lengths of their real files.
struct Rig {
  Rig(quixair::Drives drives, const CommandLine& line)
      : station(
            std::move(drives), quixair::SystemClock().Now(),
            [this](const std::filesystem::path& path) { return lengths.LengthMs(path); }, line.seed) {}

  quixair::sound::LengthCache lengths;
  quixair::simulation::SimulatedStation station;
};

int PlayScript(const CommandLine& line) {
  std::ifstream file;
  if (line.script != "-") {
    file.open(line.script, std::ios::binary);
    if (!file) {
      std::cerr << "cannot read " << line.script << '\n';
      return 2;
    }
  }
  std::optional<quixair::simulation::TemporaryFolder> folder;
  if (line.scratch) folder.emplace();
  Rig rig(folder ? quixair::simulation::EmptyDrives(folder->path()) : LoadDrives(line), line);
  quixair::script::ScriptRunner runner(rig.station, std::cout, std::cerr);
  if (line.scratch || line.drives_file) runner.AllowWorld();
  return runner.Run(line.script == "-" ? std::cin : file);
}

int Rehearse(const CommandLine& line) try {
  const quixair::simulation::TemporaryFolder folder;
  Rig rig(quixair::script::CopyStation(LoadDrives(line), folder.path()), line);
  if (quixair::script::Rehearse(rig.station, *line.rehearsal, std::cout)) return 0;
  std::cout.flush();
  std::cerr << "The station did not get through its hours by itself.\n";
  return 1;
} catch (const std::filesystem::filesystem_error& error) {
  std::cerr << "The station cannot be copied: " << error.what() << '\n';
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const auto line = Parse(argc, argv);
  if (!line) {
    std::cerr << kUsage;
    return 2;
  }
  if (line->drives_file && !std::ifstream(*line->drives_file)) {
    std::cerr << "cannot read " << *line->drives_file << '\n';
    return 2;
  }
  std::ios::sync_with_stdio(false);
  const int result = line->rehearsal ? Rehearse(*line) : PlayScript(*line);
  std::cout.flush();
  return result;
}
