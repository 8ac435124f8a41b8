#include "station/library/proof_log.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"

namespace quixair {

std::string ProofLine::Format() const {
  const std::string letter(1, static_cast<char>(mode));
  return WriteForm().Texts({date, start_time, id, description, letter}).bytes();
}

std::optional<ProofLine> ProofLine::Parse(std::string_view line) {
  ProofLine proof;
  std::string letter;
  ReadForm form(line);
  for (std::string* text : {&proof.date, &proof.start_time, &proof.id, &proof.description, &letter}) {
    if (form.AtEnd()) return std::nullopt;
    *text = form.Next().value_or({});
  }
  if (letter.size() != 1 || !form.AtEnd()) return std::nullopt;
  proof.mode = static_cast<ModeLetter>(letter.front());
  return proof;
}

Status LogVerification(Files& files, const CivilTime& now, std::string_view id, std::string_view description,
                       std::string_view start_time, ModeLetter mode) {
  const ProofLine line{.date = MonthDayLongYear(now),
                       .start_time = std::string(start_time),
                       .id = std::string(id),
                       .description = std::string(description),
                       .mode = mode};
  return files.Append(station_paths::TemplateFile(DayName(now) + ".LOG"), line.Format(),
                      Durability::kFlushed);
}

bool IsVerified(std::string_view id) {
  const std::optional<RecordingKind> kind = KindOf(id);
  return kind == RecordingKind::kSpot || kind == RecordingKind::kMusic || IsLegalId(id);
}

std::string_view LogDescription(std::string_view id, std::string_view text) {
  return IsLegalId(id) ? std::string_view("*LEGAL I.D.*") : text;
}

}  // namespace quixair
