// quixair-script: plays a script of an operator's acts on a station in virtual time, without display or sound.

#include <charconv>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "script/script_runner.h"
#include "simulation/simulated_station.h"
#include "sound/length_cache.h"
#include "station/host/drives.h"
#include "station/host/system_clock.h"

namespace {

struct CommandLine {
  std::optional<std::string> drives_file;
  std::optional<std::uint64_t> seed;
  std::string script;
};

std::optional<CommandLine> Parse(int argc, char** argv) {
  CommandLine line;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const bool has_value = i + 1 < argc;
    if (word == "--drives" && has_value) {
      line.drives_file = argv[++i];
    } else if (word == "--seed" && has_value) {
      const char* text = argv[++i];
      std::uint64_t seed = 0;
      const auto parsed = std::from_chars(text, text + std::strlen(text), seed);
      if (parsed.ec != std::errc() || *parsed.ptr != 0) return std::nullopt;
      line.seed = seed;
    } else if (line.script.empty() && (word == "-" || !word.starts_with("-"))) {
      line.script = word;
    } else {
      return std::nullopt;
    }
  }
  if (line.script.empty()) return std::nullopt;
  return line;
}

quixair::Drives LoadDrives(const CommandLine& line) {
  const auto home = quixair::HomeFolder();
  if (!line.drives_file) return quixair::Drives::Load(quixair::ConfigurationFolder() / "drives.conf", home);
  std::ifstream stream(*line.drives_file, std::ios::binary);
  return quixair::Drives::Parse(std::string{std::istreambuf_iterator<char>(stream), {}}, home);
}

}  // namespace

int main(int argc, char** argv) {
  const auto line = Parse(argc, argv);
  if (!line) {
    std::cerr
        << "usage: quixair-script [--drives FILE] [--seed N] SCRIPT    (SCRIPT - reads standard input)\n";
    return 2;
  }
  std::ios::sync_with_stdio(false);
  std::ifstream file;
  if (line->script != "-") {
    file.open(line->script, std::ios::binary);
    if (!file) {
      std::cerr << "cannot read " << line->script << '\n';
      return 2;
    }
  }
  if (line->drives_file && !std::ifstream(*line->drives_file)) {
    std::cerr << "cannot read " << *line->drives_file << '\n';
    return 2;
  }
  quixair::sound::LengthCache lengths;
  quixair::simulation::SimulatedStation station(
      LoadDrives(*line), quixair::SystemClock().Now(),
      [&lengths](const std::filesystem::path& path) { return lengths.LengthMs(path); }, line->seed);
  quixair::script::ScriptRunner runner(station, std::cout, std::cerr);
  const int result = runner.Run(line->script == "-" ? std::cin : file);
  std::cout.flush();
  return result;
}
