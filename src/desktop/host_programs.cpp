#include "desktop/host_programs.h"

#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

#include "station/platform/dialogs.h"
#include "station/platform/files.h"

namespace quixair::desktop {
namespace {

/// Its file on this host; empty when it is not installed.
QString InstalledProgram(const HostCommand& command) {
  return QStandardPaths::findExecutable(QString::fromStdString(command.front()));
}

}  // namespace

// Windows open as the host's window manager sees fit: there is no way to ask an unknown program for a state.
void HostPrograms::Run(std::string_view command_line, WindowState) {
  const CommandLine asked_for = SplitCommandLine(command_line);
  const auto commands = CommandsFor(asked_for);
  if (commands && commands->empty()) return;
  for (const std::string& argument : asked_for.arguments) {
    if (!IsStationPath(argument) || files_.HostPath(argument)) continue;
    TellMissing(argument, "");
    return;
  }
  for (const HostCommand& command : commands.value_or(std::vector<HostCommand>{})) {
    if (Start(command, asked_for)) return;
  }
  TellMissing(asked_for.path, "\n\nThe program for it is named in the file programs.conf.");
}

bool HostPrograms::Knows(std::string_view command_line) {
  const auto commands = CommandsFor(SplitCommandLine(command_line)).value_or(std::vector<HostCommand>{});
  return std::any_of(commands.begin(), commands.end(),
                     [](const HostCommand& command) { return !InstalledProgram(command).isEmpty(); });
}

std::optional<std::vector<HostCommand>> HostPrograms::CommandsFor(const CommandLine& asked_for) const {
  const std::string document = asked_for.arguments.empty() ? std::string() : asked_for.arguments.front();
  return table_.Find(FileNameOf(asked_for.path), FileNameOf(document));
}

bool HostPrograms::Start(const HostCommand& command, const CommandLine& asked_for) {
  const QString program = InstalledProgram(command);
  if (program.isEmpty()) return false;
  const auto words =
      HostWords(command, asked_for, [this](std::string_view path) { return files_.HostPath(path); });
  if (!words) return false;
  QStringList arguments;
  for (std::size_t i = 1; i < words->size(); ++i) arguments += QString::fromStdString((*words)[i]);
  return QProcess::startDetached(program, arguments);
}

void HostPrograms::TellMissing(std::string_view what, std::string_view how_to_mend) {
  dialogs_.MessageBox("Not found on this PC: " + std::string(what) + std::string(how_to_mend),
                      box_style::kOk + box_style::kExclamation, "Quixair");
}

// Key strokes steer dialogs of the old PC that this host does not have; sent to whatever is in front here
// they could only do harm.
void HostPrograms::SendKeys(std::string_view) {}

}  // namespace quixair::desktop
