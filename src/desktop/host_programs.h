#pragma once

// Starts the host's stand-ins for the outside programs and forgets them. A program or file that is not there
// is told in a plain box, and nothing ends.

#include "desktop/program_table.h"
#include "station/platform/programs.h"

namespace quixair {
class Dialogs;
class Files;
}  // namespace quixair

namespace quixair::desktop {

class HostPrograms : public Programs {
 public:
  HostPrograms(ProgramTable table, Files& files, Dialogs& dialogs)
      : table_(std::move(table)), files_(files), dialogs_(dialogs) {}

  void Run(std::string_view command_line, WindowState window) override;
  bool Knows(std::string_view command_line) override;
  void SendKeys(std::string_view keys) override;

 private:
  /// The commands of the table for what is asked for; none when it holds none.
  std::optional<std::vector<HostCommand>> CommandsFor(const CommandLine& asked_for) const;
  bool Start(const HostCommand& command, const CommandLine& asked_for);
  void TellMissing(std::string_view what, std::string_view how_to_mend);

  ProgramTable table_;
  Files& files_;
  Dialogs& dialogs_;
};

}  // namespace quixair::desktop
