// The change of a daily pick-list to the next day's, part of the sequencing step: it happens when the list has
// come to its end. A day whose template is missing is passed over, without limit: a week of missing templates
// is searched through once, and once more at each later tick, so that the screen stays alive and the operator
// can end the run.

#include <array>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_playback.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::array<std::string_view, 7> kDays = {"MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN"};

/// "TUE.TPT" of "MON.TPT".
std::string NextDay(std::string_view template_name) {
  std::size_t next = 0;
  while (!StartsWithIgnoringCase(template_name, kDays[next])) ++next;
  return std::string(kDays[(next + 1) % kDays.size()]) + ".TPT";
}

}  // namespace

bool PickListEngine::ChangeDay() {
  PickListState& state = context_.state;
  if (!FindNextDay()) {
    LeaveStep();
    return false;
  }
  state.CurrentEvent = 1;
  state.ProgramTimeNow = 0;
  state.ProgramTimeSum = 0;
  state.BeganNext = 0;
  state.FirstEvent = 0;
  state.NextDayLoad = 1;
  state.RepeatOn = 0;
  state.ScreenActivated = 0;
  SkipAndGoOn(WriteDayChangeRecord(context_.platform.files, state.TemplateName, state.CurrentEvent));
  // Starts the new day's list from within; the step that called then plays its first event once more.
  if (activate()) return true;
  TellNotFound();
  LeaveStep();
  return false;
}

/// No blank before the name in the log: the engineer's eye knows the line by it.
void PickListEngine::TellNotFound() {
  const std::string text = context_.state.TemplateName + " Not Found!";
  context_.faults.Add(text, text);
}

bool PickListEngine::FindNextDay() {
  Files& files = context_.platform.files;
  PickListState& state = context_.state;
  for (std::size_t day = 0; day < kDays.size(); ++day) {
    state.TemplateName = NextDay(state.TemplateName);
    SkipAndGoOn(WriteTextSetting(files, station_paths::kStorePik, state.TemplateName));
    if (files.Exists(station_paths::TemplateFile(state.TemplateName))) return true;
    TellNotFound();
  }
  return false;
}

}  // namespace quixair
