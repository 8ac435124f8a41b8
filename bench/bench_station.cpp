#include "bench_station.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "station/console/value_form.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"
#include "station/templates/template_file.h"

namespace quixair::bench {
namespace {

namespace fs = std::filesystem;

void Put(const fs::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Id(const char* pattern, int number) {
  char id[16];
  std::snprintf(id, sizeof id, pattern, number);
  return id;
}

std::string Lines(std::initializer_list<std::string_view> values) {
  WriteForm form;
  for (const std::string_view value : values) form.Text(value);
  return form.bytes();
}

std::int32_t StandInLength(const fs::path& path) {
  std::ifstream stream(path);
  std::int32_t length = 0;
  stream >> length;
  return length;
}

/// A line of the process's status, in MiB.
double OfStatus(std::string_view name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) return NumericValue(std::string_view(line).substr(name.size())) / 1024;
  }
  return 0;
}

}  // namespace

RandomSettings TypicalSettings() {
  RandomSettings settings;
  settings.SongsPerLiner = 3;
  settings.SongsPerBreak = 6;
  settings.MaxSpotsPerBreak = 2;
  settings.LinerEnable = 1;
  settings.BreakType = break_type::kInternalRandom;
  settings.BreakOpensWithLiner = 1;
  settings.BreakClosesWithLiner = 1;
  return settings;
}

BenchStation::BenchStation(int songs, int song_ms) {
  std::string pattern = (fs::temp_directory_path() / "quixair-bench-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = pattern;
  for (const char* name : {"QXAIR", "QXDATA", "QXTEMPLT", "QXTIME", "QXWAVE"})
    fs::create_directories(folder_ / name);
  const auto add = [this](const std::string& id, const std::string& record, int milliseconds) {
    Put(folder_ / "QXDATA" / (id + ".DAT"), record);
    Put(folder_ / "QXWAVE" / (id + ".wav"), std::to_string(milliseconds));
  };
  for (int i = 1; i <= songs; ++i) {
    const std::string id = Id("M%05d", i);
    add(id, Lines({"180", id, "C", "Artist of " + id, "Title of " + id, "A", "01-01-26", "2026"}), song_ms);
  }
  for (int i = 1; i <= 14; ++i) {
    const std::string id = i <= 10 ? Id("L%04d", i) : Id("LL%03d", i);
    add(id, Lines({"5", id, "C", "Liner " + id, "A", "G", "01-01-26", ""}), 5000);
  }
  std::vector<TemplateEvent> rotation;
  for (int i = 1; i <= 40; ++i) {
    const std::string id = Id("S%04d", i);
    const std::string product(1, static_cast<char>('A' + i % 20));
    add(id, Lines({"30", id, "C", "Account", "Spot " + id, "01-01-26", "", product, "A", "30"}), 30000);
    rotation.push_back({id, "Spot"});
  }
  Put(folder_ / "QXTEMPLT" / "ROTATWIN.DTA", FormatTemplate(rotation));
  Put(folder_ / "QXAIR" / "RANDDATA.DTA", FormatRandomSettings(TypicalSettings()));
  Put(folder_ / "QXAIR" / "REGOCX.DTA", "1\r\n");
  Put(folder_ / "QXAIR" / "SPOTDRST.DTA", "\"1\"\r\n");
}

BenchStation::~BenchStation() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::unique_ptr<simulation::SimulatedStation> BenchStation::Start() const {
  Drives drives;
  drives.Set('C', folder_);
  CivilTime evening;
  evening.year = 2026;
  evening.month = 11;
  evening.day = 22;
  evening.hour = 20;
  evening.weekday = 0;
  auto station = std::make_unique<simulation::SimulatedStation>(drives, evening, StandInLength, 1);
  station->StartProgram();
  return station;
}

std::vector<std::string> BenchStation::DataFiles() const {
  std::vector<std::string> files;
  for (const auto& entry : fs::directory_iterator(folder_ / "QXDATA")) {
    files.push_back(entry.path().string());
  }
  return files;
}

void BenchStation::PutStopSets(int sets, int rows) const {
  std::vector<TemplateEvent> events;
  int spot = 0;
  for (int set = 0; set < sets; ++set) {
    CivilTime time;
    time.hour = set * 1440 / sets / 60;
    time.minute = set * 1440 / sets % 60;
    events.push_back({HourMinuteAmPm(time), "****LOCAL BREAK***"});
    for (int row = 0; row < rows; ++row) events.push_back({Id("S%04d", spot++ % 40 + 1), "Spot"});
  }
  for (const char* day : {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}) {
    Put(folder_ / "QXTEMPLT" / (std::string(day) + ".TPD"), FormatTemplate(events));
  }
  RandomSettings settings = TypicalSettings();
  settings.BreakType = break_type::kScheduledStopSet;
  Put(folder_ / "QXAIR" / "RANDDATA.DTA", FormatRandomSettings(settings));
}

void BenchStation::PutPickLists(int events) const {
  std::vector<TemplateEvent> list;
  for (int i = 1; i <= events; ++i) list.push_back({Id("M%05d", i), "Title"});
  for (const char* day : {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"}) {
    Put(folder_ / "QXTEMPLT" / (std::string(day) + ".TPT"), FormatTemplate(list));
  }
  Put(folder_ / "QXAIR" / "PIKMODE.DTA", "\"0\"\r\n");
  Put(folder_ / "QXAIR" / "STOREPIK.DTA", "\"SUN.TPT\"\r\n");
}

void BenchStation::PutOverlap(int seconds) const {
  Put(folder_ / "QXAIR" / "overlap.dta", WriteForm().Text(std::to_string(seconds)).bytes());
}

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void ReadAll(const std::vector<std::string>& files) {
  char buffer[4096];
  for (const std::string& file : files) {
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    benchmark::DoNotOptimize(::read(fd, buffer, sizeof buffer));
    ::close(fd);
  }
}

double PeakMebibytes() {
  return OfStatus("VmHWM:");
}

double ResidentMebibytes() {
  return OfStatus("VmRSS:");
}

void ResetPeakMemory() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

void OpenRandom(simulation::SimulatedStation& station) {
  station.Do([&station] { station.platform().screens.Open("RandomForm1"); });
}

void ChooseTodaysTemplate(simulation::SimulatedStation& station) {
  Screen& screen = *station.FindScreen("RandomForm1");
  auto& list = dynamic_cast<FileListBox&>(*screen.FindControl("File2"));
  const std::string today = UpperCased(DayName(station.time().Now())) + ".TPD";
  const auto row = std::find(list.rows().begin(), list.rows().end(), today);
  list.PersonSelects({static_cast<int>(row - list.rows().begin())});
  dynamic_cast<Button&>(*screen.FindControl("Done")).Click();
}

void PressStart(simulation::SimulatedStation& station) {
  dynamic_cast<Button&>(*station.FindScreen("RandomForm1")->FindControl("Start")).Click();
}

}  // namespace quixair::bench
