#include "script/script_runner.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "station/platform/text.h"
#include "station/screen/controls.h"
#include "station/screen/grid.h"
#include "station/screen/screen.h"

namespace quixair::script {
namespace {

constexpr std::size_t kAny = 1000;

std::string ColorName(const std::optional<Color>& color) {
  if (!color) return "default";
  std::array<char, 16> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), "#%06X", static_cast<unsigned>(color->rgb));
  return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string StateOf(const Control& control) {
  std::string state = std::string("visible=") + (control.visible_to_person() ? "yes" : "no") +
                      " enabled=" + (control.enabled_for_person() ? "yes" : "no");
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    state += std::string(" ticked=") + (box->ticked() ? "yes" : "no");
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    state += std::string(" selected=") + (option->selected() ? "yes" : "no");
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    state += " selected=";
    if (list->selected_rows().empty()) state += "none";
    bool first = true;
    for (const int row : list->selected_rows()) {
      state += (first ? "#" : ",#") + std::to_string(row + 1);
      first = false;
    }
  }
  return state + " fore=" + ColorName(control.fore_color()) + " back=" + ColorName(control.back_color());
}

/// Of the columns that a person sees.
std::string ShownCells(const Grid& grid, const GridRow& row) {
  std::string text;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (grid.columns()[i].pixels == 0) continue;
    if (!text.empty()) text += " | ";
    text += ToUtf8(row[i]);
  }
  return text;
}

}  // namespace

ScriptRunner::ScriptRunner(simulation::SimulatedStation& station, std::ostream& out, std::ostream& errors)
    : station_(station), out_(out), errors_(errors), trace_(station, out) {
  station.dialogs().on_unexpected = [this](const simulation::ShownBox& box) {
    if (failure_.empty()) failure_ = "an unexpected box: " + Quoted(box.title) + ' ' + Quoted(box.text);
  };
}

int ScriptRunner::Run(std::istream& script) {
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    failure_.clear();
    try {
      const std::vector<Word> words = WordsOf(line);
      if (!words.empty()) Execute(words);
      if (!station_.running()) station_.PowerCut();  // what has ended leaves nothing behind that could tick
    } catch (const ScriptError& error) {
      errors_ << "line " << number << ": " << error.what() << '\n';
      return 2;
    }
    if (!failure_.empty()) {
      errors_ << "line " << number << ": " << failure_ << '\n';
      return 1;
    }
  }
  return 0;
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
      {"quiet", {&R::QuietStatement, 0, 0}},
      {"trace", {&R::TraceStatement, 0, 0}},
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
  (this->*found->second.statement)(arguments);
}

Screen& ScriptRunner::ScreenNamed(std::string_view name) {
  Screen* screen = station_.FindScreen(name);
  if (screen == nullptr) throw ScriptError("the screen is not open: " + ToUtf8(name));
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
  if (!control.visible_to_person()) throw ScriptError("the control is hidden: " + ToUtf8(word.text));
  if (!control.enabled_for_person()) throw ScriptError("the control is disabled: " + ToUtf8(word.text));
  return *wanted;
}

void ScriptRunner::ClockStatement(const Arguments& words) {
  station_.time().SetCivil(MomentOf(words[0].text));
}

void ScriptRunner::StartStatement(const Arguments&) {
  if (station_.running()) throw ScriptError("the program runs already");
  station_.StartProgram();
  station_.OpenConsole();
}

void ScriptRunner::MenuStatement(const Arguments& words) {
  Word item{.text = "Console." + words[0].text, .quoted_at = words[0].quoted() ? 8 : std::string::npos};
  Acting<MenuItem>(item).Choose();
}

void ScriptRunner::OpenStatement(const Arguments& words) {
  if (!station_.running()) throw ScriptError("the program does not run");
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

void ScriptRunner::ControlsStatement(const Arguments& words) {
  const Screen& screen = ScreenNamed(words[0].text);
  out_ << "controls " << screen.name() << ' ' << screen.controls().size() << " rows\n";
  for (const Control* control : screen.controls()) {
    const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
    out_ << "  | " << control->name() << ' ' << NameOf(control->kind()) << ' '
         << Quoted(captioned != nullptr ? captioned->caption() : "") << '\n';
  }
}

int ScriptRunner::RowNamed(const ListBox& list, const Word& word) {
  if (!word.quoted() && word.text.starts_with('#')) {
    int row = 0;
    std::from_chars(word.text.data() + 1, word.text.data() + word.text.size(), row);
    if (row < 1 || row > list.row_count()) throw ScriptError("no such row: " + word.text);
    return row - 1;
  }
  const auto found = std::find(list.rows().begin(), list.rows().end(), word.text);
  if (found == list.rows().end()) throw ScriptError("no such row: " + Quoted(word.text));
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
  if (box.read_only()) throw ScriptError("the box is read only: " + ToUtf8(words[0].text));
  for (const char key : words[1].text) box.TypeKey(key);
}

void ScriptRunner::ClearStatement(const Arguments& words) {
  auto& box = Acting<TextBox>(words[0]);
  if (box.read_only()) throw ScriptError("the box is read only: " + ToUtf8(words[0].text));
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

void ScriptRunner::ShowStatement(const Arguments& words) {
  if (words[0].text.find('.') == std::string::npos) {
    const Screen& screen = ScreenNamed(words[0].text);
    out_ << "show " << screen.name() << ' ' << Quoted(screen.title()) << '\n';
    return;
  }
  const Control& control = ControlNamed(words[0]);
  out_ << "show " << control.screen().name() << '.' << control.name();
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    out_ << ' ' << grid->row_count() << " rows\n";
    for (const GridRow& row : grid->rows()) out_ << "  | " << ShownCells(*grid, row) << '\n';
    return;
  }
  const auto* list = dynamic_cast<const ListBox*>(&control);
  if (list == nullptr) {
    out_ << ' ' << Quoted(control.shown_text()) << '\n';
    return;
  }
  out_ << ' ' << list->row_count() << " rows\n";
  for (const std::string& row : list->rows()) out_ << "  | " << ToUtf8(row) << '\n';
}

void ScriptRunner::StateStatement(const Arguments& words) {
  const Control& control = ControlNamed(words[0]);
  out_ << "state " << control.screen().name() << '.' << control.name() << ' ' << StateOf(control) << '\n';
}

void ScriptRunner::ExpectStatement(const Arguments& words) {
  const bool screen_title = words[0].text.find('.') == std::string::npos;
  std::string seen;
  if (screen_title) {
    seen = ScreenNamed(words[0].text).title();
  } else {
    const Control& control = ControlNamed(words[0]);
    const auto* list = dynamic_cast<const ListBox*>(&control);
    seen = list != nullptr ? list->selected_text() : control.shown_text();
  }
  if (seen != words[1].text) {
    failure_ = ToUtf8(words[0].text) + " is " + Quoted(seen) + ", expected was " + Quoted(words[1].text);
  }
}

void ScriptRunner::ExpectRowStatement(const Arguments& words) {
  const auto* list = dynamic_cast<const ListBox*>(&ControlNamed(words[0]));
  if (list == nullptr) throw ScriptError("not a list: " + ToUtf8(words[0].text));
  if (std::find(list->rows().begin(), list->rows().end(), words[1].text) == list->rows().end()) {
    failure_ = ToUtf8(words[0].text) + " has no row " + Quoted(words[1].text);
  }
}

void ScriptRunner::ExpectBoxStatement(const Arguments& words) {
  const auto& shown = station_.dialogs().shown();
  const std::string title = shown.empty() ? std::string() : shown.back().title;
  if (shown.empty() || title != words[0].text) {
    failure_ = shown.empty()
                   ? "no box was shown, expected was " + Quoted(words[0].text)
                   : "the last box was " + Quoted(title) + ", expected was " + Quoted(words[0].text);
  }
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
