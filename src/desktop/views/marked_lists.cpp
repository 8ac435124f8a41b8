#include "desktop/views/marked_lists.h"

#include <algorithm>

#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/stop_set_list.h"
#include "station/screen/controls.h"
#include "station/screen/screen.h"
#include "station/templates/template_file.h"

namespace quixair::desktop {
namespace {
constexpr char kDoneMark = '*';
}

StopSetRows::StopSetRows(QWidget* parent) : RowList(parent) {
  selection_place_ = PositionAtCenter;
  list_rows().look_of = [](std::string_view row) {
    const bool done = row.starts_with(kDoneMark);
    return RowLook{.bold = MinuteOfDay(row.substr(done ? 1 : 0)).has_value(), .faded = done};
  };
}

void StopSetRows::resizeEvent(QResizeEvent* event) {
  RowList::resizeEvent(event);
  if (selectionModel()->hasSelection()) scrollTo(currentIndex(), selection_place_);
}

DayTemplates::DayTemplates(QWidget* parent) : RowList(parent) {
  list_rows().look_of = [this](std::string_view row) {
    const bool today = IsOfToday(row);
    return RowLook{.bold = today, .colored = today, .note = today ? QStringLiteral("   today") : QString()};
  };
}

void DayTemplates::Follow(Screen& screen) {
  clock_ = &screen.platform().clock;
}

bool DayTemplates::IsOfToday(std::string_view row) const {
  const TemplateKind kind = KindOfTemplate(row);
  if (clock_ == nullptr || (kind != TemplateKind::kSatDaily && kind != TemplateKind::kPickDaily))
    return false;
  return UpperCased(row.substr(0, 3)) == UpperCased(DayName(clock_->Now()));
}

void DayTemplates::focusInEvent(QFocusEvent* event) {
  RowList::focusInEvent(event);
  if (selectionModel()->hasSelection()) return;
  const std::vector<std::string> rows = list_rows().rows();
  const auto today =
      std::find_if(rows.begin(), rows.end(), [this](const std::string& row) { return IsOfToday(row); });
  if (today == rows.end()) return;
  const int row = static_cast<int>(today - rows.begin());
  selectionModel()->setCurrentIndex(list_rows().index(row), QItemSelectionModel::NoUpdate);
}

}  // namespace quixair::desktop
