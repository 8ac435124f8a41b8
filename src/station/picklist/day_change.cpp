// The change of a daily pick-list to the next day's, part of the sequencing step: it happens when the list has
// come to its end. A day whose template is missing is passed over, without limit: a week of missing templates
// is searched through once, and once more at each later tick, so that the screen stays alive and the operator
// can end the run.

#include <array>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/picklist/pick_list_engine.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_run.h"
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
  PickListRun& run = context_.run;
  if (!FindNextDay()) {
    LeaveStep();
    return false;
  }
  run.CurrentEvent = 1;
  run.ProgramTimeNow = 0;
  run.ProgramTimeSum = 0;
  run.FirstEvent = 0;
  run.NextDayLoad = true;
  run.RepeatOn = false;
  run.ScreenActivated = false;
  SkipAndGoOn(WriteDayChangeRecord(context_.platform.files, run.TemplateName, run.CurrentEvent));
  // Starts the new day's list from within; the step that called then plays its first event once more.
  if (activate()) return true;
  TellNotFound();
  LeaveStep();
  return false;
}

/// No blank before the name in the log: the engineer's eye knows the line by it.
void PickListEngine::TellNotFound() {
  const std::string text = context_.run.TemplateName + " Not Found!";
  context_.air.faults.Add(text, text);
}

bool PickListEngine::FindNextDay() {
  Files& files = context_.platform.files;
  PickListRun& run = context_.run;
  for (std::size_t day = 0; day < kDays.size(); ++day) {
    run.TemplateName = NextDay(run.TemplateName);
    SkipAndGoOn(WriteTextSetting(files, station_paths::kStorePik, run.TemplateName));
    if (files.Exists(station_paths::TemplateFile(run.TemplateName))) return true;
    TellNotFound();
  }
  return false;
}

}  // namespace quixair
