#include "station/picklist/pick_list_engine.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/onair/nested_call.h"
#include "station/picklist/lineup_totals.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_run.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/templates/template_file.h"

namespace quixair {
namespace {

constexpr int kMostExpiredSkips = 150;
constexpr double kSecondsBetweenRounds = 30;  // of a repeated list in which nothing may play

using Rows = std::array<std::string, 3>;

Rows NextUpRows(const PickListEvent& event, bool length_may_lack) {
  const bool no_length = length_may_lack && event.EventLength.empty();
  const std::string minutes = FixedDecimals(NumericValue(event.EventLength) / 60, 2);
  return {' ' + event.EventId + "  " + event.EventField4,
          event.EventField5.empty() ? std::string() : ' ' + event.EventField5,
          no_length ? std::string("Len:  N/A") : " Len: " + event.EventLength + '(' + minutes + ')'};
}

void Show(std::array<Label, 3>& labels, const Rows& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) labels[row].SetCaption(rows[row]);
}

}  // namespace

void PickListEngine::PlayNextEvent() {
  if (context_.run.run_over) return;
  if (depth_ >= kMaxNestedSteps) {
    LeaveStep();
    return;
  }
  if (depth_ == 0) step_left_ = false;
  const NestedCall nested(depth_);
  Step();
}

void PickListEngine::GoOnWhereLeft() {
  if (!step_left_ || SecondsBetween(left_at_, context_.platform.clock.Steady()) < go_on_after_) return;
  step_left_ = false;
  PlayNextEvent();
}

bool PickListEngine::WaitsForOperator() const {
  return step_left_ || KindOfEvent(context_.current_id()) == EventKind::kLocalBreak;
}

void PickListEngine::LeaveStep(double seconds) {
  step_left_ = true;
  go_on_after_ = seconds;
  left_at_ = context_.platform.clock.Steady();
}

void PickListEngine::Step() {
  PickListRun& run = context_.run;
  AddUpTime();
  if (!PassListEnd()) return;
  if (context_.air.deck.live.LiveRequested()) {
    context_.air.HoldForLive();
    if (run.CurrentEvent > 1) ShowLast();
    return;
  }
  ShowLabels();
  WriteRecord();
  CheckSpot();
  if (run.run_over || step_left_) return;  // what was refused is not the outer step's to play
  run.ExpiredSkipCount = 0;
  if (IsPauseEvent(context_.current_id())) {
    // Nothing is closed: a channel that plays goes on to its end.
    context_.air.status.Tell(status_text::kPauseEvent);
    context_.air.deck.HoldFor(Hold::kPauseEvent);
  }
  if (IsTimeEvent(context_.current_id()) && AnnounceTime()) return;
  if (run.run_over) return;
  const Started started = StartItem();
  if (started == Started::kStepEnds || run.run_over) return;
  if (started == Started::kNothing) ProveAgain();
  context_.air.deck.clock().Start();  // also when nothing began: the time sums go by steps
  context_.air.EndStep();
}

void PickListEngine::AddUpTime() {
  PickListRun& run = context_.run;
  if (!run.SkipSumming && run.CurrentEvent > 1) run.ProgramTimeSum += run.ElapsedSecs;
}

/// False when the step has nothing more to do: the run is over, or the next day's template is yet to be found.
bool PickListEngine::PassListEnd() {
  PickListRun& run = context_.run;
  if (run.CurrentEvent <= context_.events.EventCount()) return true;
  if (run.RepeatOn) {
    run.CurrentEvent = 1;
    run.ProgramTimeNow = 0;
    run.TotalSeconds = run.TotalAtLoad;
    run.ProgramTimeSum = 0;
    return true;
  }
  if (KindOfTemplate(run.TemplateName) == TemplateKind::kPickDaily && !ChangeDay()) return false;
  if (run.run_over) return false;
  context_.air.deck.EndAll(EndCause::kHandOver);
  if (run.PikModeValue == "4" || !run.NextDayLoad) {
    EndOfRun();
    return false;
  }
  run.NextDayLoad = false;
  return true;
}

void PickListEngine::EndOfRun() {
  PickListRun& run = context_.run;
  Files& files = context_.platform.files;
  OrEndProgram(WriteTextSetting(files, station_paths::kPickList, ""));
  OrEndProgram(WriteTextSetting(files, station_paths::kStorePik, ""));
  context_.screen.List3.Clear();
  if (run.PikModeValue == "4") context_.platform.screens.Open("BuildTemplate1");
  run.TotalSeconds = 0;
  run.TotalAtLoad = 0;
  context_.screen.Hide();
  run.ScreenActivated = false;
  context_.air.deck.EndRun(EndCause::kOperator);
  run.run_over = true;
  OrEndProgram(WriteCleanExitRecord(files));
  context_.platform.screens.Unload(context_.screen);
}

void PickListEngine::ShowLabels() {
  PickListForm1& screen = context_.screen;
  const PickListRun& run = context_.run;
  const PickListEvent& event = context_.events.event(run.CurrentEvent);
  screen.EventLbl.SetCaption("Event #: " + std::to_string(run.CurrentEvent) + " out of " +
                             std::to_string(context_.events.EventCount()));
  context_.air.status.Tell(PickListPlaybackText());
  ShowNextUp();
  screen.CurrLabel[0].SetCaption(' ' + event.EventId + "  " + event.EventField4);
  screen.CurrLabel[1].SetCaption(' ' + event.EventField5);
  screen.CurrLabel[2].SetCaption(" Length:   " + event.EventLength);
  screen.CurrLabel[3].SetCaption(" Elapsed: ");
  if (run.CurrentEvent > 1) ShowLast();
  screen.List3.Select(run.CurrentEvent - 1);
}

void PickListEngine::ShowNextUp() {
  PickListForm1& screen = context_.screen;
  const EventTable& events = context_.events;
  const int next = context_.run.CurrentEvent + 1;
  const bool has_next = next <= events.EventCount();
  const bool has_second = next + 1 <= events.EventCount();
  Show(screen.NextLabel2, has_second ? NextUpRows(events.event(next + 1), true) : Rows());
  // The nearer one never reads "N/A".
  Show(screen.NextLabel1, has_next ? NextUpRows(events.event(next), false) : Rows());
}

void PickListEngine::ShowLast() {
  const PickListEvent& last = context_.events.event(context_.run.CurrentEvent - 1);
  context_.screen.LastLabel[0].SetCaption(' ' + last.EventId + "  " + last.EventField4);
  context_.screen.LastLabel[1].SetCaption(' ' + last.EventField5 + "   Len: " + last.EventLength);
}

/// What the record names is what plays after a power cut: the hand-over files that a screen beside the run may have
/// written meanwhile are brought in line with it.
void PickListEngine::WriteRecord() {
  const PickListRun& run = context_.run;
  Files& files = context_.platform.files;
  const auto bring_in_line = [&files](std::string_view path, const std::string& value) {
    if (ReadSetting(files, path) != value) SkipAndGoOn(WriteTextSetting(files, path, value));
  };
  bring_in_line(station_paths::kPikMode, run.PikModeValue);
  if (run.PikModeValue == "0") bring_in_line(station_paths::kStorePik, run.TemplateName);
  // A full disk costs the restart its place in the list, and not the air.
  const Status written = WritePickListRecord(files, run.TemplateName, run.CurrentEvent);
  if (written.ok()) return;
  const std::string row =
      std::string(station_paths::kReset) + " = Not Written, Error " + std::to_string(written.number());
  context_.air.faults.Add(row, ' ' + row);
}

void PickListEngine::CheckSpot() {
  const std::string id = context_.current_id();
  if (!IsSpotId(id)) return;
  Files& files = context_.platform.files;
  if (!files.Exists(station_paths::DataFile(id))) {
    PassOverSpot();
    return;
  }
  const SpotDateSwitch date_check = ReadSpotDateSwitch(files);
  if (date_check == SpotDateSwitch::kUnknown) {
    context_.screen.Switches.Check4.SetCaption(SpotDateCaption(date_check));
  }
  if (date_check != SpotDateSwitch::kOn) return;
  const auto refusal = RefusalByDates(id);
  if (!refusal) return;
  context_.air.faults.Add(id + *refusal, ' ' + id + *refusal);
  PassOverSpot();
}

/// Random playback lets a text that is no date pass; here it is a fault that nothing catches. The kill date of a
/// spot that has yet to start is not looked at.
std::optional<std::string> PickListEngine::RefusalByDates(const std::string& id) const {
  Recording spot(id);
  SkipAndGoOn(spot.Read(context_.platform.files));
  const std::string& start_date = spot.value(Field::kStartDate);
  const std::string& kill_date = spot.value(Field::kKillDate);
  const CivilTime today = context_.platform.clock.Now();
  CheckDate(id, "start date", start_date);
  if (auto too_early = SpotDateRefusal(start_date, "", today)) return too_early;
  CheckDate(id, "kill date", kill_date);
  return SpotDateRefusal("", kill_date, today);
}

/// The fault names what has to be mended, and where.
void PickListEngine::CheckDate(const std::string& id, const char* field, const std::string& date) const {
  if (date.empty() || CalendarDay(date, context_.platform.clock.Now().year)) return;
  const std::string row = id + ": " + field + ' ' + date + " is not a date. Record / Spots / Edit Data";
  context_.air.faults.Add(row, ' ' + row);
  throw UnhandledRunTimeError(RunTimeError::kTypeMismatch, row);
}

/// What was refused never sounds. A list of nothing but spots that are out of their dates must come to an end:
/// after too many in a row, or a whole round of a repeated list, the operator is told, and a later tick goes on.
void PickListEngine::PassOverSpot() {
  PickListRun& run = context_.run;
  run.ElapsedSecs = NumericValue(context_.events.event(run.CurrentEvent).EventLength);
  ++run.CurrentEvent;
  const bool whole_round = ++run.ExpiredSkipCount >= context_.events.EventCount() && run.RepeatOn;
  if (run.ExpiredSkipCount <= kMostExpiredSkips && !whole_round) {
    PlayNextEvent();
    return;
  }
  run.ExpiredSkipCount = 0;
  context_.air.status.Warn("Endless Loop Aborted: This EXPIRED spot will not play. Press END RUN now!");
  LeaveStep(whole_round ? kSecondsBetweenRounds : kSecondsUntilGoingOn);
}

/// True when the announcement plays, which ends the step.
bool PickListEngine::AnnounceTime() {
  PickListForm1& screen = context_.screen;
  const AirItem announcement{.id = {},
                             .path = TimeFileName(context_.platform.clock.Now()),
                             .first_text = {},
                             .title = {},
                             .origin = ItemOrigin::kPickList,
                             .row = context_.run.CurrentEvent};
  context_.air.deck.TakeTurn(1);
  context_.air.deck.clock().Start();
  if (context_.air.Begin(1, announcement)) {
    screen.CurrLabel[3].SetCaption(" ");
    return true;
  }
  context_.run.ElapsedSecs = 0;
  ++context_.run.CurrentEvent;
  PlayNextEvent();
  return false;
}

/// On channel 1 when it does not play, else on channel 2 when the overlap wants a second item.
PickListEngine::Started PickListEngine::StartItem() {
  if (StartsNoChannel(context_.current_id())) return Started::kNothing;
  const Deck& deck = context_.air.deck;
  if (deck.plays(1) && !deck.OverlapActive) return Started::kNothing;
  // Nothing plays and no tick moves on: so a local break waits for the operator, and so does an event whose
  // data file is gone.
  if (context_.events.StandsAt(context_.run.CurrentEvent)) return Started::kStepEnds;
  const bool begun = deck.plays(1) ? StartOnSecond() : StartOnFirst();
  if (!context_.run.run_over) CorrectForOverlap();
  return begun ? Started::kBegun : Started::kNothing;
}

AirItem PickListEngine::ItemInTurn() const {
  const PickListEvent& event = context_.events.event(context_.run.CurrentEvent);
  const std::string extension =
      FindAudioFile(context_.platform.files, event.EventDrive, event.EventId).value_or(std::string());
  return {.id = event.EventId,
          .path = station_paths::AudioFile(event.EventDrive, event.EventId, extension),
          .first_text = event.EventField4,
          .title = event.EventField5,
          .origin = ItemOrigin::kPickList,
          .row = context_.run.CurrentEvent};
}

bool PickListEngine::StartOnFirst() {
  if (context_.air.Begin(1, ItemInTurn())) return true;
  LeaveOutEmpty();
  context_.run.ElapsedSecs = 0;  // the item before is in the sum already
  ++context_.run.CurrentEvent;
  PlayNextEvent();
  if (!context_.run.run_over) context_.air.ShowTurn(1);
  return false;
}

/// An empty file is not replaced here: the run then waits for the operator or for the end of channel 1.
bool PickListEngine::StartOnSecond() {
  Deck& deck = context_.air.deck;
  const bool begun_within = deck.plays(2);
  const bool begun = !begun_within && context_.air.Begin(2, ItemInTurn());
  if (!begun && !begun_within) LeaveOutEmpty();
  if (!begun) context_.air.ShowTurn(2);
  deck.OverlapActive = false;
  return begun;
}

/// Behind a nested step the event in turn is one that the inner step began. It stands in the proof a second time,
/// which is wanted; what makes no sound of its own is not proved.
void PickListEngine::ProveAgain() const {
  const Deck& deck = context_.air.deck;
  for (const int channel : {1, 2}) {
    const AirItem* item = deck.item(channel);
    if (item != nullptr && deck.plays(channel) && item->row == context_.run.CurrentEvent)
      context_.proof.Write(*item);
  }
}

/// The seconds of what could not be played leave the total.
void PickListEngine::LeaveOutEmpty() {
  PickListRun& run = context_.run;
  const double length = NumericValue(context_.events.event(run.CurrentEvent).EventLength);
  run.ProgramTimeNow = length + run.ProgramTimeSum;
  run.SecondsRemaining = run.TotalSeconds - run.ProgramTimeNow;
  ShowRemaining();
  run.TotalSeconds = RoundedSeconds(run.TotalSeconds - length);
}

/// Two items that overlap last so much less together.
void PickListEngine::CorrectForOverlap() {
  PickListRun& run = context_.run;
  const int overlap = context_.screen.Overlap.seconds();
  if (overlap != 0 && !run.SkipSumming && run.CurrentEvent > 1 && !context_.current_id().starts_with('S') &&
      !context_.events.event(run.CurrentEvent - 1).EventId.starts_with('S')) {
    run.TotalSeconds -= overlap;
  }
  run.SkipSumming = false;
}

void PickListEngine::ShowRemaining(bool wide) {
  Show(context_.screen.TotalRemain, RemainingTexts(context_.run.SecondsRemaining, wide));
}

std::string PickListPlaybackText() {
  return std::string(50, ' ') + "Digital Audio Playback in Progress";
}

}  // namespace quixair
