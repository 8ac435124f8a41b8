#pragma once

// A small button of a transport bar with its sign drawn in the theme's own colour.

#include <QToolButton>

namespace quixair::desktop {

class TransportButton : public QToolButton {
 public:
  enum class Sign { kPlay, kPause };
  TransportButton(Sign sign, const QString& hint, QWidget* parent);
  QSize sizeHint() const override { return {22, 20}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Sign sign_;
};

}  // namespace quixair::desktop
