#pragma once

// Which command of the host stands for an outside program of the old PC. The table is the file programs.conf
// beside drives.conf: lines "NAME.EXE = command with arguments", or "NAME.EXE *.DOC = ..." for documents whose
// names match, where "|" divides commands of which the
// first that is installed is taken, "%program" is the program's own file on the host, "~" the user's home,
// and an empty command means that there is nothing to do. "#" starts a comment. All functions here are pure.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quixair::desktop {

/// The words of one command.
using HostCommand = std::vector<std::string>;

/// A command line of the old PC taken apart: `path` may hold blanks, and ends behind its ".EXE".
struct CommandLine {
  std::string path;
  std::vector<std::string> arguments;
};
CommandLine SplitCommandLine(std::string_view line);

/// "C:\WINDOWS\sndvol32.exe" is "sndvol32.exe".
std::string_view FileNameOf(std::string_view path);
/// "C:\QXAIR\QXERROR.LOG" is one, "MMTypesX.OCX" is not.
bool IsStationPath(std::string_view argument);

using HostPathFinder = std::function<std::optional<std::filesystem::path>(std::string_view station_path)>;

/// The words to start: the command's own, then the arguments asked for, with station paths as the host's.
/// None when the command wants the program's own file and there is no such file.
std::optional<HostCommand> HostWords(const HostCommand& command, const CommandLine& asked_for,
                                     const HostPathFinder& host_path);

class ProgramTable {
 public:
  static ProgramTable Parse(std::string_view content, const std::filesystem::path& home);
  /// Reads the file; a missing one is made from the defaults.
  static ProgramTable Load(const std::filesystem::path& file, const std::filesystem::path& home);
  static std::string_view Defaults();

  /// The commands to try for a program by its file name and that of the document it is to open, without regard
  /// to case; a line for such documents goes before one for all. None for a name that is not in the table; an
  /// empty list when there is nothing to do.
  std::optional<std::vector<HostCommand>> Find(std::string_view file_name,
                                               std::string_view document = {}) const;

 private:
  struct Entry {
    std::string name;
    std::string documents;  // a pattern, empty for all and for none
    std::vector<HostCommand> commands;
  };
  std::vector<Entry> entries_;
};

}  // namespace quixair::desktop
