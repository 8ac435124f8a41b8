#pragma once

// Access keys of the screen in front come before those of the menu bar: "&Pause" and "&PickList Playback"
// share a letter, and ALT+P belongs to the operator at the air. The toolkit by itself would see two equals
// and press neither. Where two buttons of one screen share a letter, those of the frame in focus come first;
// of what is left the key presses none, it goes from one to the next, and Enter presses.

#include <QList>
#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QMdiArea;
class QMdiSubWindow;

namespace quixair::desktop {

class AccessKeys : public QObject {
 public:
  /// `area` outlives this. Follows the whole application from now on.
  explicit AccessKeys(QMdiArea& area);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// The screen in front, when the operator's keys go to it; else none.
  const QMdiSubWindow* Front() const;
  bool PressByEnter(const QKeyEvent& key) const;
  /// The buttons of the screen in front that a person may press by this key now.
  QList<QAbstractButton*> ButtonsFor(const QKeyEvent& key) const;

  QMdiArea& area_;
};

}  // namespace quixair::desktop
