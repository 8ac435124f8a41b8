#pragma once

// The stop sets of the day at a glance, to be read from across the room: what they are up to as a word on a
// coloured plate, when the next set comes and how long that is away, and in small what the template holds.
// Quiet and grey when stop sets are off.

#include <QStringList>

#include "desktop/views/air_view.h"

namespace quixair::desktop {

/// What the panel says. Empty texts take no room.
struct StopSetTexts {
  QStringList state;  // the lines of the plate
  QString detail;     // below them: how a pause ends
  QString next;       // "Next 06:30 PM"
  QString away;       // "in 42 min"
  QString facts;      // template, sets, length

  bool operator==(const StopSetTexts&) const = default;
};

/// `item_open`: a recording is on a channel, so that a pause is the operator's and not the template's.
StopSetTexts TextsOf(const StopSetStatus& status, bool item_open);

class StopSetPanel : public AirView {
 public:
  explicit StopSetPanel(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {440, 84}; }
  QSize minimumSizeHint() const override { return {280, 64}; }
  const StopSetTexts& texts() const { return texts_; }

 protected:
  void Look(OnAirScreen& screen) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintPlate(QPainter& painter, const QRect& plate) const;
  void PaintPlan(QPainter& painter, const QRect& place) const;

  StopSetState state_ = StopSetState::kOff;
  StopSetTexts texts_;
};

}  // namespace quixair::desktop
