#include "station/console/settings_files.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/text.h"

namespace quixair {

std::optional<std::string> ReadSetting(Files& files, std::string_view path) {
  const std::string content = files.Read(path).value_or({});
  const std::vector<std::string> values = ReadValues(content, 1);
  if (values.empty()) return std::nullopt;
  return values.front();
}

int ReadNumberSetting(Files& files, std::string_view path) {
  return WholeValue(ReadSetting(files, path).value_or(std::string()));
}

Status WriteTextSetting(Files& files, std::string_view path, std::string_view value) {
  // A restart goes by some of them: they reach the disk no later than its record does.
  return files.Write(path, WriteForm().Text(value).bytes(), Durability::kFlushed);
}

Status WriteNumberSetting(Files& files, std::string_view path, int value) {
  return files.Write(path, WriteForm().Number(value).bytes());
}

RestartRecord ReadRestartRecord(Files& files) {
  const std::string content = files.Read(station_paths::kReset).value_or({});
  std::vector<std::string> values = ReadValues(content, 4);
  values.resize(4);
  return {.running = values[0] == "1",
          .mode = values[1],
          .template_name = values[2],
          .event_number = WholeValue(values[3])};
}

Status WriteRunningRecord(Files& files, std::string_view mode, std::string_view template_name) {
  const WriteForm form = WriteForm().Text("1").Text(mode).Text(template_name).Text("");
  return files.Write(station_paths::kReset, form.bytes(), Durability::kFlushed);
}

Status WritePickListRecord(Files& files, std::string_view template_name, int event_number) {
  const WriteForm form = WriteForm().Text("1").Text(kPickListMode).Text(template_name).Number(event_number);
  return files.Write(station_paths::kReset, form.bytes(), Durability::kFlushed);
}

Status WriteDayChangeRecord(Files& files, std::string_view template_name, int event_number) {
  const WriteForm form = WriteForm().Text("").Text("").Text(template_name).Number(event_number);
  return files.Write(station_paths::kReset, form.bytes(), Durability::kFlushed);
}

Status WriteCleanExitRecord(Files& files) {
  const WriteForm form = WriteForm().Text("0").Text("X").Text("X").Text("X").Text("X");
  return files.Write(station_paths::kReset, form.bytes(), Durability::kFlushed);
}

}  // namespace quixair
