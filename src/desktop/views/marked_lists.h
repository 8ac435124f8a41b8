#pragma once

// Two list boxes whose rows have looks by what they say. Classes "StopSetRows" and "DayTemplates" in a form
// make them; to the binder they are the views of plain list boxes.

#include "desktop/row_list.h"
#include "desktop/views/screen_view.h"

namespace quixair {
class Clock;
}

namespace quixair::desktop {

/// The rows of the day's stop sets: times stand out, what had its turn fades, and the row in play stays in
/// sight with what comes after it.
class StopSetRows : public RowList {
 public:
  explicit StopSetRows(QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

/// The daily templates: today's stands out, and the first arrow key chooses it.
class DayTemplates : public RowList, public ScreenView {
 public:
  explicit DayTemplates(QWidget* parent = nullptr);
  void Follow(Screen& screen) override;
  void Leave() override { clock_ = nullptr; }

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool IsOfToday(std::string_view row) const;

  const Clock* clock_ = nullptr;
};

}  // namespace quixair::desktop
