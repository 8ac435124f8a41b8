#include "hunt/witness.h"

#include <algorithm>
#include <utility>

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/proof_log.h"
#include "station/library/recording.h"
#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair::hunt {
namespace {

using std::chrono::milliseconds;
using namespace std::chrono_literals;

constexpr milliseconds kLookAround{500};
constexpr milliseconds kTicksHaveTheirTurn{400};
constexpr milliseconds kTimeToBeBack{2000};
constexpr milliseconds kTelling{3000};  // who tries again more often than that is telling why nothing sounds
constexpr std::array kModes = {std::pair(Mode::kRandom, "RandomForm1"),
                               std::pair(Mode::kPickList, "PickListForm1")};

milliseconds Span(SteadyTime from, SteadyTime to) {
  return std::chrono::duration_cast<milliseconds>(to - from);
}

std::string Stem(std::string_view path) {
  path.remove_prefix(std::min(path.rfind('\\') + 1, path.size()));
  return std::string(path.substr(0, path.rfind('.')));
}

std::string FirstWord(std::string_view text) {
  text = Trimmed(text);
  return std::string(text.substr(0, text.find(' ')));
}

Cause CauseOf(std::string_view statement) {
  if (statement.starts_with("try ")) statement.remove_prefix(4);
  const std::string word = FirstWord(statement);
  if (word.empty() || word == "#") return Cause::kNothing;
  if (word == "start") return Cause::kStart;
  if (word == "powercut") return Cause::kPowerCut;
  if (word == "advance" || word == "until") return Cause::kTime;
  for (const char* act : {"menu", "open", "click", "doubleclick", "enter", "select", "type", "clear", "leave",
                          "tick", "close"}) {
    if (word == act) return Cause::kOperator;
  }
  return Cause::kWorld;
}

/// Daily templates change in this minute.
bool AtMidnight(const CivilTime& now) {
  return now.hour == 0 && now.minute == 0;
}

template <class Function>
void Also(std::function<void(Function)>& hook, std::function<void(Function)> then) {
  hook = [before = std::move(hook), then = std::move(then)](Function value) {
    if (before) before(value);
    then(value);
  };
}

}  // namespace

std::string Channel::id() const {
  return Stem(path);
}

Witness::Witness(simulation::SimulatedStation& station)
    : station_(station), timer_(station.time().MakeTimer([this] { Look(true); })) {
  timer_->Start(kLookAround);
  Connect();
}

/// The station may outlive its witness.
Witness::~Witness() {
  station_.media().on_event = nullptr;
  station_.dialogs().on_box = nullptr;
  station_.dialogs().on_open = nullptr;
  station_.on_fault = nullptr;
  station_.on_screen = nullptr;
}

void Witness::Connect() {
  Also<const simulation::ChannelEvent&>(station_.media().on_event,
                                        [this](const simulation::ChannelEvent& event) { OnChannel(event); });
  Also<const simulation::ShownBox&>(station_.dialogs().on_box, [this](const simulation::ShownBox& box) {
    box_open_ = false;
    news_.box = box;
    if (box.text.starts_with("Run-time error")) told_error_ = box.text;
    Look(false);
  });
  Also<const std::string&>(station_.on_fault, [this](const std::string& what) {
    news_.fault = what;
    Look(false);
  });
  station_.dialogs().on_open = [this, before = station_.dialogs().on_open] {
    box_open_ = true;
    before();
  };
  station_.on_screen = [this, before = station_.on_screen](const std::string& screen, bool opened) {
    if (before) before(screen, opened);
    hands_.clear();  // another one may come to lie at the same place
    if (screen == "Console" || screen == kModes[0].second || screen == kModes[1].second) return;
    opened ? static_cast<void>(other_screens_.insert(screen))
           : static_cast<void>(other_screens_.erase(screen));
  };
}

void Witness::Begin(std::string_view statement) {
  cause_ = CauseOf(statement);
  told_error_.clear();
  if (cause_ != Cause::kTime) changed_at_ = station_.time().Steady();
  const auto says = [&](std::string_view what) { return statement.find(what) != std::string_view::npos; };
  if (cause_ == Cause::kPowerCut) NotePowerCut();
  if (cause_ == Cause::kStart) started_at_ = station_.time().Steady();
  if (cause_ == Cause::kOperator) broken_off_.reset();
  if (cause_ != Cause::kWorld) return;
  if (says("fail ")) disk_full_ = true;
  if (says("mend")) disk_full_ = output_lost_ = false;
  if (says("output lost")) output_lost_ = true;
  if (says("output back")) output_lost_ = false;
  if (says("fail ") || says("\\QXAIR") || says("away C:") || says("\\QXTEMPLT")) record_spoilt_ = true;
}

void Witness::End() {
  if (!station_.running()) {
    hands_.clear();
    other_screens_.clear();
  }
  Look(true);
  cause_ = Cause::kNothing;
}

bool Witness::settled() const {
  return settled_ && !box_open_ && Span(changed_at_, station_.time().Steady()) >= kTicksHaveTheirTurn;
}

bool Witness::in_run() const {
  return std::any_of(on_air_.begin(), on_air_.end(), [](const OnAir& screen) { return screen.in_run(); });
}

Control* Witness::Find(Mode mode, std::string_view control) const {
  for (const auto& [known, name] : kModes) {
    Screen* screen = known == mode ? station_.FindScreen(name) : nullptr;
    if (screen != nullptr) return screen->FindControl(control);
  }
  return nullptr;
}

std::string Witness::Shown(Mode mode, std::string_view control) const {
  const Control* found = Find(mode, control);
  return found == nullptr ? std::string() : found->shown_text();
}

void Witness::OnChannel(const simulation::ChannelEvent& event) {
  if (event.act == simulation::ChannelEvent::Act::kOpen && event.channel <= 2) {
    if (event.length == 0) {
      failed_path_ = event.file;
      failed_at_ = station_.time().Steady();
      passed_over_.insert(UpperCased(Stem(event.file)));
    }
    for (const auto& [mode, name] : kModes) {
      const ScreenHands& hands = Hands(mode);
      if (hands.screen == nullptr) continue;
      const MediaControl& channel = *hands.channels[static_cast<std::size_t>(event.channel - 1)];
      const bool opened = channel.Mode() == ChannelMode::kStopped && channel.Position() == 0;
      if (channel.file_name() == event.file && opened)
        heard_[{mode, event.channel}] = {.reopened = true, .plays = false, .path = event.file, .airing = {}};
    }
  }
  Look(false);
}

Witness::ScreenHands& Witness::Hands(Mode mode) {
  const auto known = hands_.find(mode);
  if (known != hands_.end()) return known->second;
  ScreenHands& hands = hands_[mode];
  hands.screen = station_.FindScreen(kModes[static_cast<std::size_t>(mode)].second);
  if (hands.screen == nullptr) return hands;
  hands.on_air = dynamic_cast<const OnAirScreen*>(hands.screen);
  for (std::size_t i = 0; i < hands.channels.size(); ++i) {
    hands.channels[i] =
        dynamic_cast<MediaControl*>(hands.screen->FindControl("MMControl" + std::to_string(i + 1)));
  }
  return hands;
}

OnAir Witness::LookAt(Mode mode, ScreenHands& hands) {
  OnAir seen;
  seen.mode = mode;
  seen.state = hands.on_air->on_air_status().state;
  if (const auto sets = hands.on_air->stop_set_status()) {
    seen.in_set = sets->state == StopSetState::kDue || sets->state == StopSetState::kPlaying ||
                  (sets->state == StopSetState::kPaused);
  }
  for (std::size_t i = 0; i < seen.channels.size(); ++i) {
    const MediaControl& channel = *hands.channels[i];
    seen.channels[i] = {channel.Mode(), heard_[{mode, static_cast<int>(i) + 1}].path, channel.Position(),
                        channel.Length()};
  }
  return seen;
}

void Witness::Look(bool settled) {
  settled_ = settled;
  const SteadyTime now = station_.time().Steady();
  if (!settled) changed_at_ = now;
  const milliseconds passed = Span(last_look_, now);
  last_look_ = now;
  before_ = std::exchange(on_air_, {});
  for (const auto& [mode, name] : kModes) {
    ScreenHands& hands = Hands(mode);
    if (station_.running() && hands.screen != nullptr) on_air_.push_back(LookAt(mode, hands));
  }
  for (auto& [place, heard] : heard_) {  // what sounded until now
    if (heard.plays && heard.airing) airings_[*heard.airing].sounded += passed;
    heard.plays = false;
  }
  for (const OnAir& screen : on_air_) Follow(screen);
  for (auto& [place, heard] : heard_) {
    const auto same = [mode = place.mode](const OnAir& screen) { return screen.mode == mode; };
    const auto screen = std::find_if(on_air_.begin(), on_air_.end(), same);
    const ChannelMode mode = screen == on_air_.end()
                                 ? ChannelMode::kNotOpen
                                 : screen->channels[static_cast<std::size_t>(place.number - 1)].mode;
    if (heard.airing && mode != ChannelMode::kPlaying && mode != ChannelMode::kPaused) {
      airings_[*heard.airing].over = true;
    }
  }
  for (const OnAir& screen : before_) {
    const auto same = [&](const OnAir& other) { return other.mode == screen.mode && other.in_run(); };
    if (screen.in_run() && std::none_of(on_air_.begin(), on_air_.end(), same)) news_.run_ended = screen.mode;
  }
  if (!in_run()) record_spoilt_ = disk_full_;
  if (news_.began) NotePassedOver();
  CountSilence();
  CompareAfterRestart();
  NoteRareThings();
  if (on_look) on_look();
  news_ = {};
}

void Witness::Follow(const OnAir& screen) {
  for (int number = 1; number <= 2; ++number) {
    if (!screen.channels[static_cast<std::size_t>(number - 1)].plays()) continue;
    Heard& heard = heard_[{screen.mode, number}];
    heard.plays = true;
    if (!std::exchange(heard.reopened, false)) continue;
    heard.airing = airings_.size();
    airings_.push_back(NewAiring(screen, number));
    news_.began = airings_.back();
  }
}

Airing Witness::NewAiring(const OnAir& screen, int number) {
  const Channel& channel = screen.channels[static_cast<std::size_t>(number - 1)];
  Airing airing;
  airing.mode = screen.mode;
  airing.channel = number;
  airing.path = channel.path;
  airing.id = channel.id();
  airing.began = station_.time().Now();
  airing.began_at = station_.time().Steady();
  airing.in_set = screen.in_set;
  airing.wants_proof = WantsProof(screen, airing.id);
  if (UpperCased(airing.path).find("\\QXWAVE\\") != std::string::npos) airing.refusal = RefusalOf(airing.id);
  return airing;
}

bool Witness::WantsProof(const OnAir& screen, const std::string& id) const {
  if (disk_full_ || (screen.mode == Mode::kRandom && screen.in_set) || !IsVerified(id)) return false;
  const auto* box = dynamic_cast<const CheckBox*>(Find(screen.mode, "Check2"));
  return box != nullptr && box->ticked() &&
         station_.files().List(station_paths::kTemplateFolder, "*.LOG").ok();
}

bool Witness::Exists(std::string_view path) const {
  return station_.files().Exists(path);
}

std::string Witness::RefusalOf(const std::string& id) const {
  if (!IsSpotId(id) || ReadSpotDateSwitch(station_.files()) != SpotDateSwitch::kOn) return {};
  Recording spot(id);
  SkipAndGoOn(spot.Read(station_.files()));
  return SpotDateRefusal(spot.value(Field::kStartDate), spot.value(Field::kKillDate), station_.time().Now())
      .value_or(std::string());
}

/// The screen's list of faults tells them.
void Witness::NotePassedOver() {
  const auto* faults = dynamic_cast<const ListBox*>(Find(news_.began->mode, "List6"));
  if (faults == nullptr) return;
  for (const std::string& row : faults->rows()) {
    if (row.find(" Date ") == std::string::npos) continue;
    passed_over_.insert(UpperCased(FirstWord(row)));
    Happened("a spot out of its dates");
  }
}

milliseconds Witness::UnwantedSilence() const {
  return silent_ ? Span(silent_since_, station_.time().Steady()) : 0ms;
}

milliseconds Witness::SinceFailedOpen() const {
  return failed_path_.empty() ? milliseconds::max() : Span(failed_at_, station_.time().Steady());
}

void Witness::CountSilence() {
  const bool sounds = std::any_of(on_air_.begin(), on_air_.end(), [](const OnAir& s) { return s.sounds(); });
  const bool misses = std::any_of(on_air_.begin(), on_air_.end(), [this](const OnAir& screen) {
    return screen.in_run() && !SilenceIsWanted(screen);
  });
  const bool silent = misses && !sounds;
  if (silent && !silent_) silent_since_ = station_.time().Steady();
  silent_ = silent;
}

bool Witness::SilenceIsWanted(const OnAir& screen) const {
  if (screen.sounds() || screen.state == AirState::kPaused || screen.state == AirState::kLive) return true;
  if (screen.state == AirState::kSilent && SinceFailedOpen() < kTelling) return true;
  if (box_open_) return true;  // which says why
  if (screen.mode == Mode::kRandom) return false;
  if (Shown(Mode::kPickList, "GoLive") == "Cancel &Live") return true;
  // A list may stand at an event that is no recording, or whose data file is gone: it then waits for the operator.
  const std::string shown = Shown(Mode::kPickList, "CurrLabel(0)");
  const std::string id = FirstWord(shown);
  if (id.empty() || id.starts_with('>') || id.starts_with("EM") || id.starts_with('0') || id.starts_with('1'))
    return true;
  if (shown.find("[Empty?]") != std::string::npos || !Exists(station_paths::DataFile(id))) return true;
  return Shown(Mode::kPickList, "Text1").starts_with("Endless Loop");
}

std::string Witness::TemplateName(Mode mode) const {
  return Shown(mode, mode == Mode::kRandom ? "Label8" : "Label7");
}

void Witness::NotePowerCut() {
  broken_off_.reset();
  if (record_spoilt_ || ReadSetting(station_.files(), station_paths::kResetOn) != "1") return;
  for (const OnAir& screen : on_air_) {
    if (screen.in_run()) broken_off_ = BrokenOff{screen.mode, TemplateName(screen.mode)};
  }
}

void Witness::CompareAfterRestart() {
  if (news_.box || box_open_) broken_off_.reset();  // it says why it is not
  if (!broken_off_ || !station_.running() || Span(started_at_, station_.time().Steady()) < kTimeToBeBack)
    return;
  const BrokenOff was = *std::exchange(broken_off_, std::nullopt);
  const auto back = std::find_if(on_air_.begin(), on_air_.end(),
                                 [&](const OnAir& screen) { return screen.mode == was.mode; });
  if (back == on_air_.end() || !back->in_run()) {
    news_.not_back = "the run is not taken up again";
  } else if (!AtMidnight(station_.time().Now()) && TemplateName(was.mode) != was.template_name) {
    news_.not_back = "the template was " + was.template_name + " and is " + TemplateName(was.mode);
  }
  if (news_.not_back.empty()) Happened("a run taken up after a power cut");
  if (++restarts_ == 2) Happened("two restarts in one run");
}

void Witness::NoteRareThings() {
  const CivilTime now = station_.time().Now();
  for (const OnAir& screen : on_air_) {
    if (!screen.in_run()) continue;
    Happened(screen.mode == Mode::kRandom ? "random on the air" : "pick-list on the air");
    if (screen.state == AirState::kLive) Happened(screen.in_set ? "live in a stop set" : "live");
    if (screen.in_set && disk_full_) Happened("a full disk in a stop set");
    if (output_lost_ && screen.sounds()) Happened("the output lost");
    if (screen.state == AirState::kPaused && now.hour == 23 && now.minute == 59)
      paused_before_midnight_ = true;
    if (screen.state == AirState::kPaused && now.hour == 0 && paused_before_midnight_) {
      Happened("midnight while paused");
    }
    if (news_.box) Happened("a box while on the air");
  }
  if (!in_run()) paused_before_midnight_ = false;
  if (!news_.began) return;
  const Airing& began = *news_.began;
  if (began.in_set) Happened("an item of a stop set");
  if (UpperCased(began.path).starts_with("C:\\QXTIME")) Happened("a time announcement");
  for (const OnAir& screen : on_air_) {
    if (screen.mode != began.mode || !screen.channels[0].plays() || !screen.channels[1].plays()) continue;
    Happened(began.channel == 2 ? "overlap to the second channel" : "overlap back to the first");
  }
}

}  // namespace quixair::hunt
