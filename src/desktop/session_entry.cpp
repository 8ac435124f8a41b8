#include "desktop/session_entry.h"

#include <QFile>
#include <QSaveFile>
#include <system_error>

namespace quixair::desktop {
namespace {

constexpr const char* kFileName = "quixair.desktop";
/// What an entry begins with, by which the program knows its own, wherever it lay when it wrote it.
const std::string kHead =
    "[Desktop Entry]\n"
    "Type=Application\n"
    "Name=Quixair\n"
    "Comment=Puts the station back on the air when the desktop session starts\n"
    "Exec=";

/// One argument of a command, between double quotes: there a backslash stands before the four characters that
/// keep a meaning, and a percent sign is doubled, since a single one begins a field.
std::string Argument(std::string_view text) {
  constexpr std::string_view kMeaningful = "\"`$\\";
  std::string argument = "\"";
  for (const char letter : text) {
    if (kMeaningful.find(letter) != std::string_view::npos) argument += '\\';
    if (letter == '%') argument += '%';
    argument += letter;
  }
  return argument + '"';
}

/// A value of the entry: its reader takes these escapes away before it looks at quotes.
std::string Value(std::string_view text) {
  std::string value;
  for (const char letter : text) {
    switch (letter) {
      case '\\':
        value += "\\\\";
        break;
      case '\n':
        value += "\\n";
        break;
      case '\r':
        value += "\\r";
        break;
      case '\t':
        value += "\\t";
        break;
      default:
        value += letter;
    }
  }
  return value;
}

RunTimeError FaultOf(const std::error_code& fault) {
  if (fault == std::errc::no_space_on_device) return RunTimeError::kDiskFull;
  return fault == std::errc::permission_denied ? RunTimeError::kPermissionDenied
                                               : RunTimeError::kPathFileAccess;
}

RunTimeError FaultOf(const QSaveFile& file) {
  if (file.error() == QFileDevice::ResourceError) return RunTimeError::kDiskFull;
  return file.error() == QFileDevice::PermissionsError ? RunTimeError::kPermissionDenied
                                                       : RunTimeError::kPathFileAccess;
}

}  // namespace

std::optional<std::string> SessionEntryText(std::string_view program) {
  if (!program.starts_with('/') || program.find('=') != std::string_view::npos) return std::nullopt;
  return kHead + Value(Argument(program)) + "\nTerminal=false\n";
}

Status SessionEntry::SetStartsWithSession(bool starts) {
  return starts ? Write() : Remove();
}

Status SessionEntry::Write() {
  const std::optional<std::string> text = SessionEntryText(program_);
  if (!text) return RunTimeError::kBadFileName;
  std::error_code fault;
  std::filesystem::create_directories(folder_, fault);
  if (fault) return FaultOf(fault);
  QSaveFile file(QString::fromStdString((folder_ / kFileName).string()));
  if (!file.open(QIODevice::WriteOnly)) return FaultOf(file);
  file.write(text->data(), static_cast<qint64>(text->size()));
  return file.commit() ? Status() : FaultOf(file);
}

Status SessionEntry::Remove() {
  QFile file(QString::fromStdString((folder_ / kFileName).string()));
  const bool of_somebody_else =
      file.open(QIODevice::ReadOnly) &&
      file.read(static_cast<qint64>(kHead.size())) != QByteArray::fromStdString(kHead);
  if (of_somebody_else) return {};
  std::error_code fault;
  std::filesystem::remove(folder_ / kFileName, fault);
  const bool gone = !fault || fault == std::errc::not_a_directory;
  return gone ? Status() : FaultOf(fault);
}

}  // namespace quixair::desktop
