#include "station/random/random_settings.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr auto kOrder = {&RandomSettings::SongsPerStinger,
                         &RandomSettings::SongsPerLiner,
                         &RandomSettings::SongsPerBreak,
                         &RandomSettings::MaxSpotsPerBreak,
                         &RandomSettings::LinerEnable,
                         &RandomSettings::StingerEnable,
                         &RandomSettings::BreakType,
                         &RandomSettings::BreakOpensWithLiner,
                         &RandomSettings::BreakClosesWithLiner,
                         &RandomSettings::PauseOverrideSecs};

void DefaultTo(int& value, int otherwise) {
  if (value == 0) value = otherwise;
}

const char* YesNo(bool yes) {
  return yes ? "YES" : "NO";
}

}  // namespace

RandomSettings ParseRandomSettings(std::string_view content) {
  RandomSettings settings;
  ReadForm form(content);
  for (const auto field : kOrder) settings.*field = WholeValue(form.Next().value_or({}));
  return settings;
}

std::string FormatRandomSettings(const RandomSettings& settings) {
  WriteForm form;
  for (const auto field : kOrder) form.Number(settings.*field);
  return form.bytes();
}

RandomSettings ReadRandomSettings(Files& files) {
  return ParseRandomSettings(files.Read(station_paths::kRandomSettings).value_or({}));
}

void ApplySetupDefaults(RandomSettings& settings) {
  DefaultTo(settings.SongsPerStinger, 2);
  DefaultTo(settings.SongsPerLiner, 4);
  DefaultTo(settings.SongsPerBreak, 8);
  DefaultTo(settings.MaxSpotsPerBreak, 5);
}

void ApplyPlaybackDefaults(RandomSettings& settings) {
  DefaultTo(settings.SongsPerLiner, 3);
  DefaultTo(settings.SongsPerBreak, 6);
  DefaultTo(settings.MaxSpotsPerBreak, 5);
  if (settings.LinerEnable == 0) {
    settings.BreakOpensWithLiner = 0;
    settings.BreakClosesWithLiner = 0;
  }
}

std::vector<std::string> SettingsPrintOut(const RandomSettings& settings) {
  std::vector<std::string> rows = {
      "Settings:",
      "----------------------------------------------------------",
      "No. Songs Between Liners = " + std::to_string(settings.SongsPerLiner),
      "No. Songs Between Breaks = " + std::to_string(settings.SongsPerBreak),
      "Max. Spots in Each Break = " + std::to_string(settings.MaxSpotsPerBreak),
      std::string("Start Internal Break w/ Liner: ") + YesNo(settings.BreakOpensWithLiner == 1),
      std::string("End Internal Break w/ Liner: ") + YesNo(settings.BreakClosesWithLiner == 1),
      std::string("Liner Playback Disabled: ") + YesNo(settings.LinerEnable == 0),
      std::string("Break Playback Disabled: ") + YesNo(settings.BreakType == break_type::kNone),
  };
  if (settings.BreakType == break_type::kScheduledStopSet) {
    rows.emplace_back("Satellite List Play Enabled = YES");
    rows.push_back("Pause Override Len. (Secs) " + std::to_string(settings.PauseOverrideSecs));
  }
  return rows;
}

}  // namespace quixair
