#include "station/recording/record_boxes.h"

#include "station/platform/civil_time.h"
#include "station/platform/clock.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

using enum Field;

constexpr int kDatePart = 2;
constexpr int kTypedId = 5;
constexpr Color kPaleRed{0xFFC8C8};
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kNoDate = "--";  // of three empty boxes

// The preset length of a spot has controls of its own.
constexpr FieldBox kSpot[] = {
    {kLength, "Text4", "Length:", 0},        {kRecordingId, "Text2", "Spot I.D.:", kTypedId},
    {kDrive, "Text10", "Drive:", 1},         {kAccount, "Text3", "Account:", 15},
    {kTitle, "Text5", "Title:", 15},         {kStartDate, "Start", "Start:", kDatePart},
    {kKillDate, "Kill", "Kill:", kDatePart}, {kProduct, "Text8", "Product:", 1},
    {kAnnouncer, "Text9", "Announcer:", 1}};
constexpr FieldBox kMusic[] = {{kLength, "Text4", "Length:", 0},
                               {kRecordingId, "Text2", "Song I.D.:", kTypedId},
                               {kDrive, "Text10", "Drive:", 1},
                               {kArtist, "Text3", "Artist:", 20},
                               {kTitle, "Text5", "Title:", 20},
                               {kRotation, "Text8", "Rotation:", 1},
                               {kStartDate, "Start", "Start:", kDatePart},
                               {kFromYear, "FromYear", "From Year:", 4}};
constexpr FieldBox kLiner[] = {{kLength, "Text4", "Length:", 0},
                               {kRecordingId, "Text2", "Liner I.D.:", kTypedId},
                               {kDrive, "Text10", "Drive:", 1},
                               {kTitle, "Text3", "Title:", 20},
                               {kAnnouncer, "Text8", "Announcer:", 1},
                               {kLinerType, "Text9", "Type:", 1},
                               {kStartDate, "Start", "Start:", kDatePart},
                               {kKillDate, "Kill", "Kill:", kDatePart}};

std::span<const FieldBox> FieldsOf(RecordingKind kind) {
  switch (kind) {
    case RecordingKind::kSpot:
      return kSpot;
    case RecordingKind::kMusic:
      return kMusic;
    case RecordingKind::kLiner:
      break;
  }
  return kLiner;
}

bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

/// A part of "mm-dd-yy" by its place; one that is not there is empty.
std::string PartAt(std::string_view date, std::size_t place, std::size_t length = kDatePart) {
  return std::string(date.substr(std::min(place, date.size()), std::min<std::size_t>(length, kDatePart)));
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
  return text.empty() ||
         (IsDigit(text.front()) && IsDigit(text.back()) && text.find('"') == std::string_view::npos);
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
  const std::size_t first = std::min(date.find_first_not_of(kDigits), date.size());
  const std::size_t second = std::min(date.find_first_not_of(kDigits, first + 1), date.size());
  month.SetText(PartAt(date, 0, first));
  day.SetText(PartAt(date, first + 1, second - first - 1));
  year.SetText(PartAt(date, second + 1));
}

std::string DateBoxes::Joined() const {
  return month.text() + '-' + day.text() + '-' + year.text();
}

void DateBoxes::Enable(bool enabled) {
  for (TextBox* part : {&month, &day, &year}) part->Enable(enabled);
}

void DateBoxes::MarkUnlessDate(int this_year) {
  const std::string date = Joined();
  const bool marked = date != kNoDate && !CalendarDay(date, this_year);
  for (TextBox* part : {&month, &day, &year}) {
    part->SetBackColor(marked ? std::optional<Color>(kPaleRed) : std::nullopt);
  }
}

RecordBoxes::RecordBoxes(Screen& screen, RecordingKind kind, TextBox::Use use)
    : screen_(screen), fields_(FieldsOf(kind)) {
  for (const FieldBox& field : fields_) {
    captions_.emplace_back(screen, std::string("Caption") + field.box, field.caption);
    if (field.field == kStartDate || field.field == kKillDate) {
      DateBoxes& date = dates_.emplace_back(screen, field.box, use);
      (field.field == kStartDate ? start_ : kill_) = &date;
      continue;
    }
    TextBox& box = boxes_.emplace_back(screen, field.box, use);
    box.SetMaxLength(field.limit);
    if (field.field == kLength) {
      length_ = &box;
    } else if (field.field == kRecordingId) {
      id_ = &box;
    } else if (field.field == kDrive) {
      drive_ = &box;
    } else if (field.field == kFromYear) {
      year_ = &box;
    } else {
      texts_.push_back(&box);
    }
  }
  if (use == TextBox::Use::kEnter) HoldToRules();
}

void RecordBoxes::Show(const Recording& recording) {
  auto box = boxes_.begin();
  for (const auto& [field, name, caption, limit] : fields_) {
    if (field == kStartDate) {
      start_->Show(recording.value(field));
    } else if (field == kKillDate) {
      kill_->Show(recording.value(field));
    } else {
      (box++)->SetText(recording.value(field));
    }
  }
  MarkDates();
}

void RecordBoxes::PutInto(Recording& recording) const {
  auto box = boxes_.begin();
  for (const auto& [field, name, caption, limit] : fields_) {
    if (field == kStartDate) {
      recording.Set(field, start_->Joined());
    } else if (field == kKillDate) {
      const std::string date = kill_->Joined();
      recording.Set(field, date == kNoDate ? std::string() : date);
    } else {
      recording.Set(field, (box++)->text());
    }
  }
}

void RecordBoxes::EnableData(bool enabled) {
  for (TextBox* box : texts_) box->Enable(enabled);
  for (DateBoxes& date : dates_) date.Enable(enabled);
  if (year_ != nullptr) year_->Enable(enabled);
}

void RecordBoxes::Clear() {
  for (TextBox& box : boxes_) box.SetText({});
  for (DateBoxes& date : dates_) date.Show({});
  MarkDates();
}

void RecordBoxes::ShowToday() {
  start_->Show(MonthDayYear(screen_.platform().clock.Now()));
  MarkDates();
}

void RecordBoxes::MarkDates() {
  for (DateBoxes& date : dates_) date.MarkUnlessDate(screen_.platform().clock.Now().year);
}

void RecordBoxes::SetCaptionColor(std::optional<Color> color) {
  for (Label& caption : captions_) caption.SetBackColor(color);
}

void RecordBoxes::HoldToRules() {
  for (TextBox* box : texts_) RefuseQuotes(*box);
  for (DateBoxes& date : dates_) {
    for (TextBox* part : {&date.month, &date.day, &date.year}) {
      KeepToDigits(*part);
      part->on_change = [this, keep = part->on_change] {
        keep();
        MarkDates();
      };
    }
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
  for (TextBox* part : {&start_->month, &start_->day, &start_->year}) {
    part->on_lost_focus = [this, check = part->on_lost_focus] {
      check();
      MarkDates();
    };
  }
}

}  // namespace quixair
