// The statements that look: what is shown and listed, and what is expected.

#include <algorithm>
#include <array>
#include <cstdio>

#include "script/script_runner.h"
#include "station/platform/text.h"
#include "station/screen/controls.h"
#include "station/screen/grid.h"
#include "station/screen/screen.h"

namespace quixair::script {
namespace {

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

void ScriptRunner::ControlsStatement(const Arguments& words) {
  const Screen& screen = ScreenNamed(words[0].text);
  out_ << "controls " << screen.name() << ' ' << screen.controls().size() << " rows\n";
  for (const Control* control : screen.controls()) {
    const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
    out_ << "  | " << control->name() << ' ' << NameOf(control->kind()) << ' '
         << Quoted(captioned != nullptr ? captioned->caption() : "") << '\n';
  }
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

}  // namespace quixair::script
