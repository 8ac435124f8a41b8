#pragma once

// The menu bar of the main frame, built from the console's menu items and kept up with them. It observes the
// console, which has no form: its other controls are timers.

#include <QMenuBar>
#include <QTimer>
#include <functional>
#include <unordered_map>

#include "station/screen/screen.h"

namespace quixair::desktop {

class ConsoleMenu : public ScreenObserver {
 public:
  /// `console` is followed until Leave; `bar` outlives this.
  ConsoleMenu(Screen& console, QMenuBar& bar);
  ConsoleMenu(const ConsoleMenu&) = delete;
  ConsoleMenu& operator=(const ConsoleMenu&) = delete;
  virtual ~ConsoleMenu() = default;
  void Leave();

  /// Title or visibility of the console changed; called when the program comes to rest.
  std::function<void(const Screen& console)> on_window_change;

  void ControlChanged(Control& control, Aspect aspect) override;
  void TitleChanged(Screen& console) override;
  void VisibilityChanged(Screen& console) override;
  void Repaint(Screen& console) override;

 private:
  QAction* Add(MenuItem& item, QWidget& parent);
  void Show(const MenuItem& item, QAction& action);

  Screen* console_;
  std::unordered_map<const Control*, QAction*> actions_;
  QTimer window_timer_;
};

}  // namespace quixair::desktop
