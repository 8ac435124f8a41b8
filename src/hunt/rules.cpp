#include "hunt/rules.h"

#include <algorithm>
#include <cstdlib>

#include "script/script_language.h"
#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"

namespace quixair::hunt {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLongestSilence{7000};  // the air guard's five seconds, and the ticks around them
constexpr int kOverlapSlack = 2500;            // a second early by rule, a second by the grain of the tick
constexpr double kElapsedSlack = 1.5;
constexpr milliseconds kSureToBeLogged{1000};
constexpr std::int64_t kSameStart = 2500;  // a proof line has whole seconds, and a step may take one

bool Says(const std::string& text, std::string_view what) {
  return text.find(what) != std::string::npos;
}

bool Usable(const Witness& witness, Mode mode, std::string_view control) {
  const Control* found = witness.Find(mode, control);
  return found != nullptr && found->visible_to_person() && found->enabled_for_person();
}

const OnAir* ScreenOf(const Witness& witness, Mode mode) {
  const auto& screens = witness.on_air();
  const auto found =
      std::find_if(screens.begin(), screens.end(), [&](const OnAir& screen) { return screen.mode == mode; });
  return found == screens.end() ? nullptr : &*found;
}

std::string Silence(const Witness& witness) {
  if (witness.UnwantedSilence() < kLongestSilence) return {};
  return "silent for " + std::to_string(witness.UnwantedSilence().count()) +
         " ms in a run, and nobody wants it";
}

/// Only where the operator has set an overlap, and not longer than that.
std::string TwoItems(const Witness& witness) {
  const auto& began = witness.news().began;
  const OnAir* screen = began ? ScreenOf(witness, began->mode) : nullptr;
  if (screen == nullptr) return {};
  const Channel& other = screen->channels[began->channel == 1 ? 1 : 0];
  if (!other.plays()) return {};
  const int overlap = WholeValue(witness.Shown(began->mode, "List2"));
  const auto* list = dynamic_cast<const ListBox*>(witness.Find(began->mode, "List2"));
  const int seconds = list == nullptr ? overlap : WholeValue(list->selected_text());
  const int left = other.length - other.position;
  if (seconds > 0 && left <= seconds * 1000 + kOverlapSlack) return {};
  return began->id + " begins over " + other.id() + ", of which " + std::to_string(left) +
         " ms are left, with an overlap of " + std::to_string(seconds) + " s";
}

/// Upper case alone: a list's spots in lower case are known to overlap.
std::string OverASpot(const Witness& witness) {
  for (const OnAir& screen : witness.on_air()) {
    if (!screen.channels[0].plays() || !screen.channels[1].plays()) continue;
    for (const Channel& channel : screen.channels) {
      if (channel.id().starts_with('S'))
        return screen.channels[0].id() + " and " + screen.channels[1].id() + " sound together";
    }
  }
  return {};
}

std::string OverInASet(const Witness& witness) {
  const auto& began = witness.news().began;
  const OnAir* screen = began ? ScreenOf(witness, began->mode) : nullptr;
  if (screen == nullptr || !began->in_set || !screen->channels[0].plays() || !screen->channels[1].plays())
    return {};
  return began->id + " begins over another item while a stop set is on";
}

std::string TwoProgrammes(const Witness& witness) {
  const auto sounding = std::count_if(witness.on_air().begin(), witness.on_air().end(),
                                      [](const OnAir& screen) { return screen.sounds(); });
  return sounding > 1 ? "Random and Pick-List playback sound together" : "";
}

std::string RefusedSpot(const Witness& witness) {
  const auto& began = witness.news().began;
  return began && !began->refusal.empty() ? began->id + began->refusal + " sounds" : std::string();
}

/// Of the rotation; a stop set may name them at any time.
std::string LegalIdWindow(const Witness& witness) {
  const auto& began = witness.news().began;
  if (!began || began->mode != Mode::kRandom || began->in_set || !IsLegalId(began->id)) return {};
  if (began->began.minute >= 56 || began->began.minute <= 15) return {};
  return began->id + " at minute " + std::to_string(began->began.minute);
}

std::string BackAfterPowerCut(const Witness& witness) {
  return witness.news().not_back;
}

std::string FaultOfTheProgram(const Witness& witness) {
  return witness.news().fault;
}

std::string FaultEndsRun(const Witness& witness) {
  return witness.news().run_ended ? witness.told_error() : std::string();
}

/// A list may come to its end.
std::string RunEndsByItself(const Witness& witness) {
  const bool by_itself = witness.cause() == Cause::kTime && witness.news().run_ended == Mode::kRandom;
  return by_itself ? "the run of Random playback has ended, and nobody ended it" : "";
}

std::string UnaskedBox(const Witness& witness) {
  const auto& box = witness.news().box;
  if (!box || !witness.in_run() || witness.cause() != Cause::kTime || witness.other_screen_open()) return {};
  if (box->text.starts_with("Run-time error")) return {};  // has a rule of its own
  return box->title + ": " + box->text;
}

std::string StatusLine(const Witness& witness) {
  if (!witness.settled()) return {};
  for (const OnAir& screen : witness.on_air()) {
    const std::string text = witness.Shown(screen.mode, "Text1");
    const auto usable = [&](const char* button) { return Usable(witness, screen.mode, button); };
    const std::string said = '"' + std::string(Trimmed(text)) + "\" and ";
    if (screen.in_run()) {
      if (Says(text, "<Begin Next>") && !usable("BeginNextCommand"))
        return said + "Begin Next cannot be pressed";
      if ((Says(text, "<CONTINUE>") || Says(text, "Click Continue")) && !usable("ContinueCommand"))
        return said + "Continue cannot be pressed";
      if (Says(text, "Press START") || Says(text, "Select an Existing") || Says(text, "Loading"))
        return said + "a run is on";
      if (screen.state == AirState::kPlaying && Says(UpperCased(text), "AUDIO PAUSED"))
        return said + "it plays";
      if (screen.state == AirState::kPaused && Says(text, "Playback in Progress"))
        return said + "it is paused";
    } else {
      if (Says(text, "Press START") && !usable("Start")) return said + "START cannot be pressed";
      if (Says(text, "Select an Existing") && !usable("File2"))
        return said + "there is nothing to select from";
    }
  }
  return {};
}

std::string Lamp(const Witness& witness) {
  if (!witness.settled()) return {};
  for (const OnAir& screen : witness.on_air()) {
    const bool live = witness.Shown(screen.mode, "GoLive") == "LIVE NOW!";
    if (live != (screen.state == AirState::kLive))
      return live ? "LIVE NOW! and no live break" : "a live break, and no LIVE NOW!";
    const bool lit = screen.state == AirState::kPlaying;
    if (lit && !screen.sounds()) return "ON AIR, and nothing sounds";
    if (screen.state == AirState::kPaused && screen.sounds() && witness.news().began)
      return "PAUSED, and an item begins";
  }
  return {};
}

/// While one item alone plays.
std::string ElapsedTime(const Witness& witness) {
  if (!witness.settled()) return {};
  for (const OnAir& screen : witness.on_air()) {
    const bool first = screen.channels[0].plays();
    if (screen.state != AirState::kPlaying || first == screen.channels[1].plays()) continue;
    const std::string shown = witness.Shown(screen.mode, "CurrLabel(3)");
    const std::size_t number = shown.find_first_of("-0123456789");
    if (number == std::string::npos) continue;
    const double position = screen.channels[first ? 0 : 1].position / 1000.0;
    if (std::abs(NumericValue(shown.substr(number)) - position) > kElapsedSlack)
      return '"' + shown + "\" at " + std::to_string(position) + " s of the item";
  }
  return {};
}

/// The file under "Currently Playing" is one that plays.
std::string ShownFile(const Witness& witness) {
  if (!witness.settled()) return {};
  for (const OnAir& screen : witness.on_air()) {
    const std::string shown = witness.Shown(screen.mode, "CurrLabel(4)");
    if (screen.state != AirState::kPlaying || shown.empty()) continue;
    const bool plays = std::any_of(
        screen.channels.begin(), screen.channels.end(),
        [&](const Channel& channel) { return channel.plays() && shown == '(' + channel.path + ')'; });
    if (!plays)
      return "shown is " + shown + ", and " + screen.channels[screen.channels[0].plays() ? 0 : 1].path +
             " plays";
  }
  return {};
}

// at the end

struct ProofLineRead {
  std::string id;
  std::int64_t began = 0;  // civil milliseconds
  std::string text;
};

/// "11-22-2026" and "08:30:05 PM".
std::optional<std::int64_t> MomentOf(const std::string& date, const std::string& time) {
  if (date.size() != 10 || time.size() != 11) return std::nullopt;
  CivilTime moment;
  moment.month = WholeValue(date.substr(0, 2));
  moment.day = WholeValue(date.substr(3, 2));
  moment.year = WholeValue(date.substr(6, 4));
  moment.hour = WholeValue(time.substr(0, 2)) % 12 + (time.ends_with("PM") ? 12 : 0);
  moment.minute = WholeValue(time.substr(3, 2));
  moment.second = WholeValue(time.substr(6, 2));
  return MillisecondsFromCivil(moment);
}

std::vector<ProofLineRead> ProofLines(const Witness& witness) {
  std::vector<ProofLineRead> lines;
  for (const char* day : {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}) {
    const std::string log =
        witness.station().files().Read("C:\\QXTEMPLT\\" + std::string(day) + ".LOG").value_or({});
    for (std::size_t at = 0; at < log.size();) {
      const std::size_t end = std::min(log.find('\n', at), log.size());
      const std::string line = log.substr(at, end - at);
      at = end + 1;
      const std::vector<std::string> values = ReadValues(line, 5);
      if (values.size() < 5) continue;
      if (const auto began = MomentOf(values[0], values[1])) lines.push_back({values[2], *began, line});
    }
  }
  return lines;
}

bool SameStart(const ProofLineRead& line, const Airing& airing) {
  return EqualsIgnoringCase(line.id, airing.id) &&
         std::abs(line.began - MillisecondsFromCivil(airing.began)) <= kSameStart;
}

/// A step that replaces what it passed over writes a second line, with the name of what it replaced: known.
bool IsOfANestedStep(const Witness& witness, const ProofLineRead& line) {
  const bool passed_over =
      witness.WasPassedOver(line.id) || !witness.station().files().Exists(station_paths::DataFile(line.id));
  return passed_over &&
         std::any_of(witness.airings().begin(), witness.airings().end(), [&](const Airing& airing) {
           return std::abs(line.began - MillisecondsFromCivil(airing.began)) <= kSameStart;
         });
}

std::string ProofOfNothing(const Witness& witness) {
  const std::vector<ProofLineRead> lines = ProofLines(witness);
  for (const ProofLineRead& line : lines) {
    const bool heard =
        std::any_of(witness.airings().begin(), witness.airings().end(), [&](const Airing& airing) {
          return SameStart(line, airing) && (airing.sounded.count() > 0 || !airing.over);
        });
    if (!heard && !IsOfANestedStep(witness, line)) return line.text + " was not heard";
  }
  return {};
}

std::string AiringWithoutProof(const Witness& witness) {
  const std::vector<ProofLineRead> lines = ProofLines(witness);
  for (const Airing& airing : witness.airings()) {
    if (!airing.wants_proof || airing.sounded < kSureToBeLogged) continue;
    const bool proved = std::any_of(lines.begin(), lines.end(),
                                    [&](const ProofLineRead& line) { return SameStart(line, airing); });
    if (!proved) return airing.id + " of " + script::Stamp(airing.began) + " has no line";
  }
  return {};
}

}  // namespace

const std::vector<Rule>& RulesAlways() {
  static const std::vector<Rule> rules = {{"fault-of-the-program", FaultOfTheProgram},
                                          {"fault-ends-run", FaultEndsRun},
                                          {"run-ends-by-itself", RunEndsByItself},
                                          {"unwanted-silence", Silence},
                                          {"two-programmes", TwoProgrammes},
                                          {"over-a-spot", OverASpot},
                                          {"over-in-a-set", OverInASet},
                                          {"two-items", TwoItems},
                                          {"refused-spot-heard", RefusedSpot},
                                          {"legal-id-outside-its-window", LegalIdWindow},
                                          {"not-back-after-power-cut", BackAfterPowerCut},
                                          {"unasked-box", UnaskedBox},
                                          {"status-line-lies", StatusLine},
                                          {"lamp-lies", Lamp},
                                          {"elapsed-time-lies", ElapsedTime},
                                          {"shown-file-does-not-play", ShownFile}};
  return rules;
}

const std::vector<Rule>& RulesAtTheEnd() {
  static const std::vector<Rule> rules = {{"proof-of-nothing", ProofOfNothing},
                                          {"airing-without-proof", AiringWithoutProof}};
  return rules;
}

}  // namespace quixair::hunt
