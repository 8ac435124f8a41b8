#pragma once

// A label for a warning that nobody may overlook: white on red over the whole width, its text in at most two
// lines, as large as they allow. The border blinks slowly; the text never does. Hidden it takes no room.
// Class "WarningBanner" in a form makes one.

#include <QLabel>
#include <QTimer>

namespace quixair::desktop {

class WarningBanner : public QLabel {
 public:
  explicit WarningBanner(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {600, 66}; }
  QSize minimumSizeHint() const override { return {200, 66}; }
  /// The font in which the text as it stands fits beside the signs.
  QFont TextFont() const;
  QRect TextPlace() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QTimer blink_;
  bool lit_ = true;
};

}  // namespace quixair::desktop
