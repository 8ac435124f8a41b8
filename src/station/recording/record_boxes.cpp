#include "station/recording/record_boxes.h"

#include "station/platform/civil_time.h"
#include "station/platform/clock.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr int kDatePart = 2;

bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

/// The three parts of "mm-dd-yy" by their places; parts that are not there are empty.
std::string PartAt(std::string_view date, std::size_t place) {
  return std::string(date.substr(std::min(place, date.size()), kDatePart));
}

/// The month is compared as text, so that "9" is not held to thirty days: wanted.
bool IsDayOfMonth(const std::string& day, const std::string& month) {
  const int number = WholeValue(day);
  if (number > 31) return false;
  if (number >= 31 && (month == "09" || month == "04" || month == "06" || month == "11")) return false;
  return number < 30 || month != "02";
}

}  // namespace

bool LooksLikeDigits(std::string_view text) {
  return text.empty() || (IsDigit(text.front()) && IsDigit(text.back()));
}

void KeepToDigits(TextBox& box) {
  box.on_change = [&box] {
    if (!LooksLikeDigits(box.text())) box.SetText({});
  };
}

void RefuseCharacters(TextBox& box, std::string_view refused, const std::function<void(char)>& tell) {
  box.on_key_press = [&box, refused, tell](char& key) {
    if (refused.find(key) == std::string_view::npos) return;
    box.SetText({});
    tell(std::exchange(key, 0));
  };
  box.on_change = [&box, refused, tell] {  // a key in the middle of the text, or what was pasted
    const std::size_t place = box.text().find_first_of(refused);
    if (place == std::string::npos) return;
    const std::string text = box.text();
    box.SetText({});
    if (text.size() > 1) tell(text[place]);
  };
}

DateBoxes::DateBoxes(Screen& screen, const std::string& name, TextBox::Use use)
    : month(screen, name + "MM", use), day(screen, name + "DD", use), year(screen, name + "YY", use) {
  for (TextBox* part : {&month, &day, &year}) part->SetMaxLength(kDatePart);
}

void DateBoxes::Show(std::string_view date) {
  month.SetText(PartAt(date, 0));
  day.SetText(PartAt(date, 3));
  year.SetText(PartAt(date, 6));
}

std::string DateBoxes::Joined() const {
  return month.text() + '-' + day.text() + '-' + year.text();
}

void DateBoxes::Enable(bool enabled) {
  for (TextBox* part : {&month, &day, &year}) part->Enable(enabled);
}

RecordBoxes::RecordBoxes(Screen& screen, const RecordLayout& layout, TextBox::Use use)
    : screen_(screen), layout_(layout) {
  for (const RecordLine& line : layout.lines) {
    if (line.slot == RecordSlot::kPreset) continue;
    captions_.emplace_back(screen, std::string("Caption") + line.box, line.caption);
    if (line.slot == RecordSlot::kStartDate || line.slot == RecordSlot::kKillDate) {
      DateBoxes& date = dates_.emplace_back(screen, line.box, use);
      (line.slot == RecordSlot::kStartDate ? start_ : kill_) = &date;
      continue;
    }
    TextBox& box = boxes_.emplace_back(screen, line.box, use);
    box.SetMaxLength(line.limit);
    if (line.slot == RecordSlot::kLength) length_ = &box;
    if (line.slot == RecordSlot::kId) id_ = &box;
    if (line.slot == RecordSlot::kDrive) drive_ = &box;
    if (line.slot == RecordSlot::kYear) year_ = &box;
    if (line.slot == RecordSlot::kText) texts_.push_back(&box);
  }
  first_text_ = texts_.front();
  if (use == TextBox::Use::kEnter) HoldToRules();
}

void RecordBoxes::Show(const RecordValues& values) {
  auto box = boxes_.begin();
  for (std::size_t i = 0; i < layout_.lines.size(); ++i) {
    const RecordSlot slot = layout_.lines[i].slot;
    if (slot == RecordSlot::kPreset) continue;
    if (slot == RecordSlot::kStartDate) {
      start_->Show(values[i]);
    } else if (slot == RecordSlot::kKillDate) {
      kill_->Show(values[i]);
    } else {
      (box++)->SetText(values[i]);
    }
  }
}

RecordValues RecordBoxes::Typed() const {
  RecordValues values;
  auto box = boxes_.begin();
  for (const RecordLine& line : layout_.lines) {
    if (line.slot == RecordSlot::kPreset) {
      values.emplace_back();
    } else if (line.slot == RecordSlot::kStartDate) {
      values.push_back(start_->Joined());
    } else if (line.slot == RecordSlot::kKillDate) {
      values.push_back(KillDateFromEntry(kill_->month.text(), kill_->day.text(), kill_->year.text()));
    } else {
      values.push_back((box++)->text());
    }
  }
  return values;
}

void RecordBoxes::EnableData(bool enabled) {
  for (TextBox* box : texts_) box->Enable(enabled);
  for (DateBoxes& date : dates_) date.Enable(enabled);
  if (year_ != nullptr) year_->Enable(enabled);
}

void RecordBoxes::Clear() {
  for (TextBox& box : boxes_) box.SetText({});
  for (DateBoxes& date : dates_) date.Show({});
}

void RecordBoxes::ShowToday() {
  start_->Show(MonthDayYear(screen_.platform().clock.Now()));
}

void RecordBoxes::SetCaptionColor(std::optional<Color> color) {
  for (Label& caption : captions_) caption.SetBackColor(color);
}

void RecordBoxes::HoldToRules() {
  for (TextBox* box : texts_) RefuseQuotes(*box);
  for (DateBoxes& date : dates_) {
    for (TextBox* part : {&date.month, &date.day, &date.year}) KeepToDigits(*part);
  }
  if (year_ != nullptr) KeepToDigits(*year_);
  HoldStartDate();
}

void RecordBoxes::RefuseQuotes(TextBox& box) {
  RefuseCharacters(box, "\"", [this](char) {
    screen_.platform().dialogs.MessageBox(
        "Never Enter Quotes (\") in these data fields\nLet's try this again...", box_style::kExclamation,
        "No Quotes! ");
  });
}

/// Only the start is checked further: a kill date may be given in part.
void RecordBoxes::HoldStartDate() {
  const auto today = [this](std::size_t place) {
    return PartAt(MonthDayYear(screen_.platform().clock.Now()), place);
  };
  for (TextBox* part : {&start_->month, &start_->year}) {
    part->on_key_press = [part](char& key) {
      if (IsDigit(key)) return;
      key = 0;
      part->SetText({});
    };
  }
  start_->month.on_lost_focus = [this, today] {
    TextBox& month = start_->month;
    if (month.text().empty()) {
      month.SetText(today(0));
    } else if (WholeValue(month.text()) > 12) {
      month.SetText({});
      month.SetFocus();
    }
  };
  start_->day.on_lost_focus = [this, today] {
    TextBox& day = start_->day;
    if (day.text().empty()) {
      day.SetText(today(3));
    } else if (!IsDayOfMonth(day.text(), start_->month.text())) {
      day.SetText({});
      day.SetFocus();
    }
  };
  start_->year.on_lost_focus = [this, today] {
    if (start_->year.text().empty()) start_->year.SetText(today(6));
  };
}

}  // namespace quixair
