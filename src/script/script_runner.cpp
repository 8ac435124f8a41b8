#include "script/script_runner.h"

#include <algorithm>
#include <charconv>

#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/screen/controls.h"
#include "station/screen/grid.h"
#include "station/screen/screen.h"

namespace quixair::script {
namespace {

constexpr std::size_t kAny = 1000;

}  // namespace

ScriptRunner::ScriptRunner(simulation::SimulatedStation& station, std::ostream& out, std::ostream& errors)
    : station_(station), out_(out), errors_(errors), world_(station), trace_(station, out) {
  station.dialogs().on_unexpected = [this](const simulation::ShownBox& box) {
    if (failure_.empty()) failure_ = "an unexpected box: " + Quoted(box.title) + ' ' + Quoted(box.text);
  };
}

int ScriptRunner::Run(std::istream& script) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    const Outcome outcome = Play(line);
    if (outcome.exit_code == 0) continue;
    errors_ << "line " << number << ": " << outcome.why << '\n';
    return outcome.exit_code;
  }
  return 0;
}

ScriptRunner::Outcome ScriptRunner::Play(std::string_view line) {
  failure_.clear();
  try {
    const std::vector<Word> words = WordsOf(line);
    if (!words.empty()) Execute(words);
    if (!station_.running()) station_.PowerCut();  // what has ended leaves nothing behind that could tick
  } catch (const ScriptError& error) {
    return {2, error.what()};
  }
  return {failure_.empty() ? 0 : 1, failure_};
}

const std::map<std::string, ScriptRunner::Entry, std::less<>>& ScriptRunner::Statements() {
  using R = ScriptRunner;
  static const std::map<std::string, Entry, std::less<>> statements = {
      {"clock", {&R::ClockStatement, 1, 1}},
      {"start", {&R::StartStatement, 0, 0}},
      {"menu", {&R::MenuStatement, 1, 1}},
      {"open", {&R::OpenStatement, 1, 1}},
      {"click", {&R::ClickStatement, 1, 1}},
      {"doubleclick", {&R::DoubleClickStatement, 1, 1}},
      {"enter", {&R::EnterStatement, 1, 1}},
      {"controls", {&R::ControlsStatement, 1, 1}},
      {"select", {&R::SelectStatement, 2, kAny}},
      {"type", {&R::TypeStatement, 2, 2}},
      {"clear", {&R::ClearStatement, 1, 1}},
      {"leave", {&R::LeaveStatement, 1, 1}},
      {"tick", {&R::TickStatement, 2, 2}},
      {"close", {&R::CloseStatement, 1, 1}},
      {"answer", {&R::AnswerStatement, 1, 1}},
      {"advance", {&R::AdvanceStatement, 1, 1}},
      {"until", {&R::UntilStatement, 1, 1}},
      {"show", {&R::ShowStatement, 1, 1}},
      {"state", {&R::StateStatement, 1, 1}},
      {"expect", {&R::ExpectStatement, 2, 2}},
      {"expect-row", {&R::ExpectRowStatement, 2, 2}},
      {"expect-box", {&R::ExpectBoxStatement, 1, 1}},
      {"powercut", {&R::PowerCutStatement, 0, 0}},
      {"try", {&R::TryStatement, 1, kAny}},
      {"answer-others", {&R::AnswerOthersStatement, 1, 1}},
      {"think", {&R::ThinkStatement, 1, 1}},
      {"quiet", {&R::QuietStatement, 0, 0}},
      {"trace", {&R::TraceStatement, 0, 0}},
      {"seed", {&R::SeedStatement, 1, 1}},
      {"put", {&R::PutStatement, 1, kAny, true}},
      {"audio", {&R::AudioStatement, 2, 2, true}},
      {"tear", {&R::TearStatement, 2, 2, true}},
      {"remove", {&R::RemoveStatement, 1, 1, true}},
      {"away", {&R::AwayStatement, 1, 1, true}},
      {"back", {&R::BackStatement, 1, 1, true}},
      {"fail", {&R::FailStatement, 3, 3, true}},
      {"output", {&R::OutputStatement, 1, 1}},
      {"input", {&R::InputStatement, 1, 1}},
      {"mend", {&R::MendStatement, 0, 0}},
  };
  return statements;
}

void ScriptRunner::Execute(const std::vector<Word>& words) {
  const auto found = Statements().find(words.front().text);
  if (found == Statements().end()) throw ScriptError("no statement: " + ToUtf8(words.front().text));
  const Arguments arguments(words.begin() + 1, words.end());
  if (arguments.size() < found->second.least || arguments.size() > found->second.most) {
    throw ScriptError(found->first + " has a wrong number of words");
  }
  if (found->second.of_the_world && !world_allowed_) {
    throw ScriptError(found->first + " is not done to your own station (--drives or --scratch is wanted)");
  }
  (this->*found->second.statement)(arguments);
}

Screen& ScriptRunner::ScreenNamed(std::string_view name) {
  Screen* screen = station_.FindScreen(name);
  if (screen == nullptr) throw CannotBeDone("the screen is not open: " + ToUtf8(name));
  return *screen;
}

Control& ScriptRunner::ControlNamed(const Word& word) {
  const ControlReference reference = ReferenceOf(word);
  const Screen& screen = ScreenNamed(reference.screen);
  Control* found = nullptr;
  if (reference.by_caption) {
    const auto captioned =
        std::find_if(screen.controls().begin(), screen.controls().end(), [&](const Control* control) {
          const auto* candidate = dynamic_cast<const CaptionedControl*>(control);
          return candidate != nullptr && candidate->caption() == reference.control;
        });
    if (captioned != screen.controls().end()) found = *captioned;
  } else {
    found = screen.FindControl(reference.control);
  }
  if (found == nullptr) throw ScriptError("no such control: " + ToUtf8(word.text));
  return *found;
}

template <class Kind>
Kind& ScriptRunner::Acting(const Word& word) {
  Control& control = ControlNamed(word);
  auto* wanted = dynamic_cast<Kind*>(&control);
  if (wanted == nullptr) {
    throw ScriptError(ToUtf8(word.text) + " is a " + std::string(NameOf(control.kind())) +
                      " and cannot do that");
  }
  if (!control.visible_to_person()) throw CannotBeDone("the control is hidden: " + ToUtf8(word.text));
  if (!control.enabled_for_person()) throw CannotBeDone("the control is disabled: " + ToUtf8(word.text));
  return *wanted;
}

void ScriptRunner::ClockStatement(const Arguments& words) {
  const std::string& text = words[0].text;
  const bool step = text.starts_with('+') || text.starts_with('-');
  station_.time().SetCivil(
      step ? CivilFromMilliseconds(MillisecondsFromCivil(station_.time().Now()) + SignedSpanOf(text).count())
           : MomentOf(text));
}

void ScriptRunner::StartStatement(const Arguments&) {
  if (station_.running()) throw CannotBeDone("the program runs already");
  station_.StartProgram();
  station_.OpenConsole();
}

void ScriptRunner::MenuStatement(const Arguments& words) {
  Word item{.text = "Console." + words[0].text, .quoted_at = words[0].quoted() ? 8 : std::string::npos};
  Acting<MenuItem>(item).Choose();
}

void ScriptRunner::OpenStatement(const Arguments& words) {
  if (!station_.running()) throw CannotBeDone("the program does not run");
  station_.Do([&] { station_.platform().screens.Open(words[0].text); });
}

void ScriptRunner::ClickStatement(const Arguments& words) {
  Control& control = Acting<Control>(words[0]);
  const std::string& name = words[0].text;
  if (auto* button = dynamic_cast<Button*>(&control)) return button->Click();
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->PersonTicks(!box->ticked());
  if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->PersonSelects();
  if (auto* item = dynamic_cast<MenuItem*>(&control)) return item->Choose();
  if (auto* frame = dynamic_cast<Frame*>(&control)) return frame->Click();
  if (auto* media = dynamic_cast<MediaControl*>(&control)) return media->ClickPlay();
  if (auto* list = dynamic_cast<ListBox*>(&control)) return list->PersonSelects(list->selected_rows());
  throw ScriptError("nothing to click: " + ToUtf8(name));
}

void ScriptRunner::DoubleClickStatement(const Arguments& words) {
  Acting<ListBox>(words[0]).DoubleClick();
}

void ScriptRunner::EnterStatement(const Arguments& words) {
  if (auto* box = dynamic_cast<TextBox*>(&Acting<Control>(words[0]))) return box->PressEnter();
  Acting<ListBox>(words[0]).PressEnter();
}

int ScriptRunner::RowNamed(const ListBox& list, const Word& word) {
  if (!word.quoted() && word.text.starts_with('#')) {
    int row = 0;
    std::from_chars(word.text.data() + 1, word.text.data() + word.text.size(), row);
    if (row < 1 || row > list.row_count()) throw CannotBeDone("no such row: " + word.text);
    return row - 1;
  }
  const auto found = std::find(list.rows().begin(), list.rows().end(), word.text);
  if (found == list.rows().end()) throw CannotBeDone("no such row: " + Quoted(word.text));
  return static_cast<int>(found - list.rows().begin());
}

void ScriptRunner::SelectStatement(const Arguments& words) {
  auto& list = Acting<ListBox>(words[0]);
  std::vector<int> rows;
  for (std::size_t i = 1; i < words.size(); ++i) rows.push_back(RowNamed(list, words[i]));
  if (rows.size() > 1 && !list.several()) throw ScriptError("the list takes one row only");
  list.PersonSelects(rows);
}

void ScriptRunner::TypeStatement(const Arguments& words) {
  auto& box = Acting<TextBox>(words[0]);
  if (box.read_only()) throw CannotBeDone("the box is read only: " + ToUtf8(words[0].text));
  for (const char key : words[1].text) box.TypeKey(key);
}

void ScriptRunner::ClearStatement(const Arguments& words) {
  auto& box = Acting<TextBox>(words[0]);
  if (box.read_only()) throw CannotBeDone("the box is read only: " + ToUtf8(words[0].text));
  box.Edit({});
}

void ScriptRunner::LeaveStatement(const Arguments& words) {
  Acting<Control>(words[0]).LeaveFocus();
}

void ScriptRunner::TickStatement(const Arguments& words) {
  const bool on = words[1].text == "on";
  if (!on && words[1].text != "off") throw ScriptError("on or off is wanted");
  Control& control = Acting<Control>(words[0]);
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->PersonTicks(on);
  auto* option = dynamic_cast<OptionButton*>(&control);
  if (option == nullptr || !on) throw ScriptError("nothing to tick: " + ToUtf8(words[0].text));
  option->PersonSelects();
}

void ScriptRunner::CloseStatement(const Arguments& words) {
  Screen& screen = ScreenNamed(words[0].text);
  station_.Do([&screen] { screen.CloseWindow(); });
}

void ScriptRunner::AnswerStatement(const Arguments& words) {
  station_.dialogs().QueueAnswer(words[0].text);
}

void ScriptRunner::AdvanceStatement(const Arguments& words) {
  station_.time().Advance(SpanOf(words[0].text));
}

void ScriptRunner::UntilStatement(const Arguments& words) {
  const CivilTime time = TimeOfDayOf(words[0].text);
  station_.time().AdvanceUntil(time.hour, time.minute, time.second);
}

void ScriptRunner::PowerCutStatement(const Arguments&) {
  station_.PowerCut();
}
void ScriptRunner::QuietStatement(const Arguments&) {
  trace_.SetQuiet(true);
}
void ScriptRunner::TraceStatement(const Arguments&) {
  trace_.SetQuiet(false);
}

}  // namespace quixair::script
