#include "support/station_fixture.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "script/script_language.h"
#include "station/console/value_form.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/templates/template_file.h"

namespace quixair::testing {
namespace {

Drives DrivesIn(const std::filesystem::path& folder) {
  for (const char* name : {"QXAIR", "QXDATA", "QXTEMPLT", "QXTIME", "QXWAVE"}) {
    std::filesystem::create_directories(folder / "C" / name);
  }
  Drives drives;
  drives.Set('C', folder / "C");
  drives.Set('D', folder / "D");
  return drives;
}

std::string Numbered(std::string_view prefix, int number, std::size_t width) {
  std::string digits = std::to_string(number);
  return std::string(prefix) + std::string(width - std::min(width, digits.size()), '0') + digits;
}

}  // namespace

std::int32_t StandInLength(const std::filesystem::path& path) {
  return WholeValue(ReadHostFile(path));
}

std::string ReadHostFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteHostFile(const std::filesystem::path& path, std::string_view bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Lines(const std::vector<std::string>& values) {
  std::string lines;
  for (const std::string& value : values) lines += '"' + value + "\"\r\n";
  return lines;
}

StationFixture::StationFixture()
    : station_(DrivesIn(folder_.path()), script::MomentOf("2026-11-22 20:30:00"), StandInLength, 1) {
  PutFile("QXAIR/REGOCX.DTA", "1\r\n");
  station_.media().on_event = [this](const simulation::ChannelEvent& event) {
    if (event.act != simulation::ChannelEvent::Act::kOpen) return;
    std::string id = event.file.substr(event.file.rfind('\\') + 1);
    id = id.substr(0, id.rfind('.'));
    aired_.push_back({HourMinuteSecond24(station_.time().Now()), event.channel, id, event.length});
  };
  station_.programs().on_run = [this](const std::string& command_line, WindowState) {
    runs_.push_back(command_line);
  };
  station_.session_start().on_set = [this](bool starts) { session_starts_.push_back(starts); };
  station_.on_fault = [](const std::string& what) { ADD_FAILURE() << "a fault in an event: " << what; };
  station_.dialogs().on_unexpected = [](const simulation::ShownBox& box) {
    ADD_FAILURE() << "an unexpected box: " << box.title << ": " << box.text;
  };
}

void StationFixture::AddAudio(std::string_view id, int milliseconds, std::string_view extension) {
  PutFile("QXWAVE/" + std::string(id) + std::string(extension), std::to_string(milliseconds));
}

void StationFixture::AddSong(std::string_view id, int milliseconds, std::string_view artist) {
  const std::string name(id);
  PutFile("QXDATA/" + name + ".DAT", Lines({ShortestSeconds(milliseconds), name, "C", std::string(artist),
                                            "Title of " + name, "A", "01-01-26", "2026"}));
  AddAudio(id, milliseconds);
}

void StationFixture::AddLiner(std::string_view id, int milliseconds) {
  const std::string name(id);
  PutFile("QXDATA/" + name + ".DAT",
          Lines({ShortestSeconds(milliseconds), name, "C", "Liner " + name, "A", "G", "01-01-26", ""}));
  AddAudio(id, milliseconds);
}

void StationFixture::AddSpot(std::string_view id, int milliseconds, std::string_view product,
                             std::string_view start, std::string_view kill, std::string_view account) {
  const std::string name(id);
  PutFile("QXDATA/" + name + ".DAT",
          Lines({ShortestSeconds(milliseconds), name, "C", std::string(account), "Spot " + name,
                 std::string(start), std::string(kill), std::string(product), "A", ""}));
  AddAudio(id, milliseconds);
}

void StationFixture::PutRotation(const std::vector<std::string>& spot_ids) {
  PutTemplate("ROTATWIN.DTA", spot_ids);
}

void StationFixture::PutTemplate(std::string_view name, const std::vector<std::string>& ids) {
  std::vector<TemplateEvent> events;
  for (const std::string& id : ids) events.push_back({id, "Title"});
  PutFile("QXTEMPLT/" + std::string(name), FormatTemplate(events));
}

void StationFixture::PutSettings(const RandomSettings& settings) {
  PutFile("QXAIR/RANDDATA.DTA", FormatRandomSettings(settings));
}

void StationFixture::AddLibrary(int songs, int liners, int legal_ids, int milliseconds) {
  for (int i = 1; i <= songs; ++i) AddSong(Numbered("M", i, 4), milliseconds);
  for (int i = 1; i <= liners; ++i) AddLiner(Numbered("L", i, 4), milliseconds);
  for (int i = 1; i <= legal_ids; ++i) AddLiner(Numbered("LL", i, 3), milliseconds);
}

void StationFixture::StartConsole() {
  station_.StartProgram();
  station_.OpenConsole();
}

void StationFixture::StartAt(std::string_view item) {
  StartConsole();
  Menu(item);
}

void StationFixture::StartRandomWith(std::string_view template_name) {
  StartAt("RandomPlaybackMode");
  for (const char* name : {"File1", "File2"}) {
    const auto rows = Rows("RandomForm1", name);
    if (std::count(rows.begin(), rows.end(), template_name) != 0) Select("RandomForm1", name, template_name);
  }
  Click("RandomForm1", "Done");
  Click("RandomForm1", "Start");
}

void StationFixture::StartRandom() {
  StartAt("RandomPlaybackMode");
  Click("RandomForm1", "Start");
}

void StationFixture::Menu(std::string_view item, std::initializer_list<const char*> answers) {
  for (const char* answer : answers) QueueAnswer(answer);
  Find<MenuItem>("Console", item).Choose();
}

void StationFixture::Click(std::string_view screen, std::string_view button,
                           std::initializer_list<const char*> answers) {
  for (const char* answer : answers) QueueAnswer(answer);
  Find<Button>(screen, button).Click();
}

ListBox& StationFixture::Select(std::string_view screen, std::string_view list, std::string_view row) {
  const std::vector<std::string>& rows = Find<ListBox>(screen, list).rows();
  const auto found = std::find(rows.begin(), rows.end(), row);
  if (found == rows.end()) throw std::runtime_error("no such row: " + std::string(row));
  return Select(screen, list, static_cast<int>(found - rows.begin()));
}

ListBox& StationFixture::Select(std::string_view screen, std::string_view list, int row) {
  auto& box = Find<ListBox>(screen, list);
  box.PersonSelects({row});
  return box;
}

void StationFixture::SetClock(std::string_view moment) {
  station_.time().SetCivil(script::MomentOf(moment));
}

std::string StationFixture::Shown(std::string_view screen, std::string_view control) {
  return Find<Control>(screen, control).shown_text();
}

std::vector<std::string> StationFixture::Rows(std::string_view screen, std::string_view list) {
  return Find<ListBox>(screen, list).rows();
}

std::vector<std::string> StationFixture::AiredIds() const {
  std::vector<std::string> ids;
  for (const Aired& item : aired_) ids.push_back(item.id);
  return ids;
}

}  // namespace quixair::testing
