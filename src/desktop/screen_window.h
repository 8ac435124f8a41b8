#pragma once

// The window of one open screen: its form, the binder, and a child window of the main frame around them, or
// for a form with the property "splash" a frameless window of its own. Closing it by its frame is the
// screen's business and never the toolkit's. The main frame owns it and lets go of it when the screen goes.

#include <QObject>
#include <memory>

#include "desktop/binder.h"

class QMdiArea;
class QMdiSubWindow;

namespace quixair::desktop {

class ScreenWindow : public QObject {
 public:
  ScreenWindow(Screen& screen, QWidget* form, QMdiArea& area);
  ~ScreenWindow() override;

  /// Shows or hides the window and sets its title as the screen wants them. A child waits for the main frame:
  /// one that is maximised in a hidden frame does not become so.
  void ShowState();
  void BringToFront();
  /// The screen is about to be destroyed; the window disappears now and is deleted when its own events have
  /// ended.
  void Leave();

  QWidget& form() const { return *form_; }
  const QWidget& window() const { return *window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowFirst();
  void PersonCloses();

  Screen* screen_;
  QWidget* form_;
  QMdiSubWindow* child_ = nullptr;
  QWidget* window_;
  bool shown_before_ = false;
  std::unique_ptr<Binder> binder_;
};

}  // namespace quixair::desktop
