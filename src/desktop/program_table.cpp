#include "desktop/program_table.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <system_error>

#include "station/platform/text.h"

namespace quixair::desktop {
namespace {

constexpr std::string_view kDefaults =
    "# What is started for the outside programs that the station names.\n"
    "#   NAME.EXE = command | another command   the first that is installed is taken\n"
    "#   NAME.EXE =                             nothing to do on this PC\n"
    "#   NAME.EXE *.DOC = command               for documents with such names\n"
    "# %program is the program's own file, ~ the home folder. A name without a line here is told as "
    "missing.\n"
    "\n"
    "# Recorder, mixers, sound settings\n"
    "SNDREC32.EXE = gnome-sound-recorder | audacity | audio-recorder | kwave\n"
    "SNDVOL32.EXE = pavucontrol | pavucontrol-qt | kmix | gnome-control-center sound\n"
    "AMIX95.EXE   = pavucontrol | pavucontrol-qt | kmix\n"
    "CONTROL.EXE  = gnome-control-center sound | systemsettings kcm_pulseaudio | xfce4-settings-manager | "
    "pavucontrol\n"
    "\n"
    "# Files and texts\n"
    "EXPLORER.EXE = xdg-open ~\n"
    "WORDPAD.EXE  = gnome-text-editor | gedit | kate | kwrite | mousepad | featherpad | xdg-open\n"
    "WORDPAD.EXE *.DOC = libreoffice --view | abiword | calligrawords | xdg-open\n"
    "VOLWATCH.EXE = baobab | filelight | gnome-system-monitor\n"
    "\n"
    "# About this PC\n"
    "MSINFO32.EXE = hardinfo2 | hardinfo | kinfocenter | gnome-control-center info-overview | "
    "gnome-system-monitor\n"
    "\n"
    "# The recorder's components are part of this program: nothing to register.\n"
    "MMREGOCX.EXE =\n"
    "\n"
    "# Sibling programs of the old PC, which need an emulator.\n"
    "LOGTRIM.EXE  = dosbox %program\n"
    "BRKCOUNT.EXE = dosbox %program\n"
    "CONSOLE.EXE  = dosbox %program\n"
    "VOXPLAN.EXE  = dosbox %program\n"
    "LINKPLAN.EXE = dosbox %program\n"
    "FEEDOPTS.EXE = dosbox %program\n";

constexpr std::string_view kProgramPlace = "%program";
constexpr std::string_view kBlanks = " \t\r";

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// What stands before `divider`; `rest` keeps what stands behind it.
std::string_view TakeUpTo(std::string_view& rest, char divider) {
  const std::size_t end = std::min(rest.find(divider), rest.size());
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return part;
}

/// Words divided by blanks; double quotes keep blanks in a word.
std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  text = WithoutBlanks(text);
  while (!text.empty()) {
    if (text.front() == '"') {
      text.remove_prefix(1);
      words.emplace_back(TakeUpTo(text, '"'));
    } else {
      const std::size_t end = std::min(text.find_first_of(kBlanks), text.size());
      words.emplace_back(text.substr(0, end));
      text.remove_prefix(end);
    }
    text = WithoutBlanks(text);
  }
  return words;
}

/// Behind the first ".EXE", ".COM" or ".BAT" that ends a word, else at the first blank.
std::size_t EndOfPath(std::string_view line) {
  constexpr std::array<std::string_view, 3> kEndings = {".EXE", ".COM", ".BAT"};
  const std::string upper = UpperCased(line);
  std::size_t end = std::string::npos;
  for (const std::string_view ending : kEndings) {
    for (std::size_t at = upper.find(ending); at != std::string::npos; at = upper.find(ending, at + 1)) {
      const std::size_t behind = at + ending.size();
      if (behind == upper.size() || upper[behind] == ' ') end = std::min(end, behind);
    }
  }
  return std::min({end, end == std::string::npos ? line.find(' ') : end, line.size()});
}

}  // namespace

CommandLine SplitCommandLine(std::string_view line) {
  line = WithoutBlanks(line);
  CommandLine split;
  if (!line.empty() && line.front() == '"') {
    line.remove_prefix(1);
    split.path = TakeUpTo(line, '"');
  } else {
    const std::size_t end = EndOfPath(line);
    split.path = line.substr(0, end);
    line.remove_prefix(end);
  }
  split.arguments = Words(line);
  return split;
}

std::string_view FileNameOf(std::string_view path) {
  const std::size_t divider = path.find_last_of("\\/:");
  return divider == std::string_view::npos ? path : path.substr(divider + 1);
}

bool IsStationPath(std::string_view argument) {
  return argument.size() > 2 && argument[1] == ':' && argument[2] == '\\' && UpperCased(argument[0]) >= 'A' &&
         UpperCased(argument[0]) <= 'Z';
}

std::optional<HostCommand> HostWords(const HostCommand& command, const CommandLine& asked_for,
                                     const HostPathFinder& host_path) {
  HostCommand words;
  for (const std::string& word : command) {
    if (word != kProgramPlace) {
      words.push_back(word);
      continue;
    }
    const auto own_file = host_path(asked_for.path);
    if (!own_file) return std::nullopt;
    words.push_back(own_file->string());
  }
  for (const std::string& argument : asked_for.arguments) {
    const auto found = IsStationPath(argument) ? host_path(argument) : std::nullopt;
    words.push_back(found ? found->string() : argument);
  }
  return words;
}

ProgramTable ProgramTable::Parse(std::string_view content, const std::filesystem::path& home) {
  ProgramTable table;
  while (!content.empty()) {
    std::string_view line = TakeUpTo(content, '\n');
    line = line.substr(0, line.find('#'));
    if (line.find('=') == std::string_view::npos) continue;
    const std::string_view asked_for = WithoutBlanks(TakeUpTo(line, '='));
    const std::size_t documents = std::min(asked_for.find(" *"), asked_for.size());  // names may hold blanks
    Entry entry{.name = std::string(WithoutBlanks(asked_for.substr(0, documents))),
                .documents = std::string(WithoutBlanks(asked_for.substr(documents))),
                .commands = {}};
    if (entry.name.empty()) continue;
    while (!line.empty()) {
      HostCommand command = Words(TakeUpTo(line, '|'));
      for (std::string& word : command) {
        if (word == "~" || word.starts_with("~/")) word = home.string() + word.substr(1);
      }
      if (!command.empty()) entry.commands.push_back(std::move(command));
    }
    table.entries_.push_back(std::move(entry));
  }
  return table;
}

std::string_view ProgramTable::Defaults() {
  return kDefaults;
}

ProgramTable ProgramTable::Load(const std::filesystem::path& file, const std::filesystem::path& home) {
  std::error_code ignored;  // a table that cannot be kept is the defaults, every time
  if (!std::filesystem::exists(file, ignored)) {
    std::filesystem::create_directories(file.parent_path(), ignored);
    std::ofstream(file) << kDefaults;
    return Parse(kDefaults, home);
  }
  std::ifstream stream(file, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(stream), {}};
  return Parse(content, home);
}

std::optional<std::vector<HostCommand>> ProgramTable::Find(std::string_view file_name,
                                                           std::string_view document) const {
  const Entry* found = nullptr;
  for (const Entry& entry : entries_) {
    if (!EqualsIgnoringCase(entry.name, file_name)) continue;
    if (!entry.documents.empty() && MatchesPattern(document, entry.documents)) return entry.commands;
    if (entry.documents.empty() && found == nullptr) found = &entry;
  }
  return found != nullptr ? std::optional(found->commands) : std::nullopt;
}

}  // namespace quixair::desktop
