#include "station/onair/on_air.h"

#include <array>

#include "station/library/proof_log.h"
#include "station/platform/civil_time.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {
constexpr std::chrono::milliseconds kOverlapTick{1000};
}

OnAir::OnAir(PlaybackScreen& the_screen, const Ways& ways)
    : screen(the_screen),
      deck(the_screen.Channels, the_screen.platform().clock),
      status(the_screen.Text1),
      faults(the_screen.platform().files, the_screen.platform().clock, ways.mode,
             [&the_screen](std::string row) { the_screen.List6.AddFault(std::move(row)); }),
      ways_(ways) {
  deck.Observe(faults);
  deck.Observe(*this);
}

void OnAir::ItemBegan(int /*channel*/, const AirItem& /*item*/) {
  for (Button* button : {&screen.Run.RequeueCommand, &screen.Run.BeginNextCommand}) button->Enable();
}

bool OnAir::Begin(int channel, const AirItem& item) {
  if (!deck.Begin(channel, item)) {
    TellEmpty(item.path);
    return false;
  }
  ShowTurn(channel);
  return true;
}

void OnAir::ShowTurn(int channel) {
  deck.TakeTurn(channel);
  screen.CurrLabel[2].SetCaption(" Length:   " + ShortestSeconds(screen.Channels.channel(channel).Length()));
  screen.CurrLabel[4].SetCaption('(' + screen.Channels.channel(channel).file_name() + ')');
}

void OnAir::TellEmpty(const std::string& path) {
  const std::string row = path + " = Empty!!!";
  faults.Add(row, ' ' + row);
}

void OnAir::TellProofWritten(const Status& written) {
  TextBox& warning = screen.Text3;
  if (written.error() == RunTimeError::kDiskFull) {
    warning.SetText(kDriveFullWarning);
    warning.Show();
  } else if (written.ok() && warning.visible()) {
    if (warning.text() == kDriveFullWarning) warning.SetText("");
    warning.Hide();
  }
}

void OnAir::HoldForLive() {
  status.Tell(status_text::kLiveNow);
  screen.Run.ShowLiveNow();
  deck.live.Begin();
  deck.HoldFor(Hold::kLiveBreak);
  screen.CurrLabel[0].SetCaption(" LIVE !");
  screen.CurrLabel[1].SetCaption(" ");
  screen.CurrLabel[2].SetCaption(" ");
}

void OnAir::EndStep() {
  const CivilTime now = screen.platform().clock.Now();
  screen.Text2.SetText("Today is: " + DayName(now) + ". " + MonthDayYear(now));
  ArmTimers();
}

void OnAir::ArmTimers() {
  screen.Timer2.SetInterval(ways_.channel_poll);
  const bool overlap = screen.Overlap.Settled() != 0;
  screen.Timer3.SetInterval(overlap ? kOverlapTick : std::chrono::milliseconds(0));
}

void OnAir::ShowElapsed() {
  screen.CurrLabel[3].SetCaption(" Elapsed: " + FixedDecimals(deck.elapsed(), 1));
}

void OnAir::AbortCompeting() {
  if (!deck.TwoSongsBegan(ways_.together_seconds)) return;
  faults.Add("Competing Overlap Aborted", " Competing Overlap Aborted");
  deck.End(2, EndCause::kAborted);
}

void OnAir::Guard(bool wanted, const std::function<void()>& begin_next) {
  const bool fine = !deck.running() || wanted || deck.AudioPaused() || deck.AnythingSounds();
  const auto silent = guard_.GoesOnAfter(fine, screen.platform().clock.Steady());
  if (!silent) return;
  begin_next();
  PauseNextPending = false;  // nobody is there to go on
  const AirItem* item = deck.item(deck.plays(2) ? 2 : 1);
  if (item == nullptr && *silent >= 2 * AirGuard::kMostSilence)
    return;  // told once, and when it sounds again
  const std::string row = "Silent for " + FixedDecimals(*silent, 0) + " seconds, went on with " +
                          (item == nullptr        ? "nothing yet"
                           : item->announcement() ? item->path
                                                  : item->id);
  faults.Add(row, ' ' + row);
}

void OnAir::StartWhenDue(const std::function<void()>& start) {
  if (!screen.StartTime.IsDue(HourMinuteAmPm(screen.platform().clock.Now()))) return;
  screen.Timer1.SetInterval(std::chrono::milliseconds(0));
  if (!deck.running()) start();
}

bool OnAir::MayBegin() {
  Screen* other = screen.platform().screens.OnTheAir();
  if (other == nullptr || other == &screen) return true;
  const std::string mode = other->name().starts_with("Random") ? "Random" : "Pick-List";
  const Answer answer =
      screen.platform().dialogs.MessageBox(mode + " Playback is on the air. End it and start this?",
                                           box_style::kYesNo + box_style::kQuestion, "Quixair");
  if (answer != Answer::kYes) return false;
  other->EndRunOnTheAir();
  return true;
}

void OnAir::BeginRun() {
  deck.BeginRun();
  const std::array<Control*, 7> hidden = {&screen.Start,        &screen.Command2, &screen.List1,
                                          &screen.Overlap.save, &screen.Label1,   &screen.Label2,
                                          &screen.Command4};
  for (Control* control : hidden) control->Hide();
  screen.Overlap.List2.Disable();
  screen.Overlap.save.Disable();
  screen.Run.ShowForRun();
  screen.StartTime.CloseFrame();  // its access keys are the run's
  ArmTimers();                    // a first step that finds nothing to play is tried again by the ticks
}

void OnAir::Pause(const std::string& text) {
  if (deck.AudioPaused()) return;
  status.Tell(text);
  deck.HoldFor(Hold::kOperator);
  screen.Run.ShowPaused();
}

void OnAir::GoLive() {
  deck.live.Toggle();
  if (deck.live.LiveRequested()) {
    status.Warn(status_text::kLiveAsked);
    screen.Run.ShowLiveAsked();
  } else {
    status.EndWarning();
    status.Tell(status_text::kLiveTakenBack);
    screen.Run.ShowLiveTakenBack();
  }
}

bool OnAir::EndLiveBreak() {
  if (!deck.live.on()) return false;
  deck.live.End();
  status.EndWarning();
  screen.Run.ShowLiveOver();
  return true;
}

bool OnAir::BarMayContinue(bool looks_at_pause) const {
  return !deck.live.LiveRequested() && !deck.RequeuePending() && !(looks_at_pause && deck.AudioPaused());
}

}  // namespace quixair
