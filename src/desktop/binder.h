#pragma once

// Ties a screen of the station to its form: each control to the widget of its name. Changes on the screen are
// collected and shown together when the program comes to rest, so that a step may change a list ten thousand
// times; acts of a person go to the controls at once. A control that goes while it has the focus leaves it to
// the form's harmless button, so that no key presses what nobody aimed at. The binder belongs to the window
// that holds the form and is told when the screen goes.

#include <QTimer>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "desktop/binding.h"
#include "desktop/views/screen_view.h"
#include "station/screen/screen.h"

namespace quixair::desktop {

class Binder : public ScreenObserver {
 public:
  /// `screen` outlives the binder or is taken away by Leave; `form` outlives it.
  Binder(Screen& screen, QWidget& form);
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;
  virtual ~Binder() = default;

  void Leave();
  /// Shows all changes now.
  void Flush();

  /// For the window around the form; called like the others when the program comes to rest.
  std::function<void(const Screen& screen)> on_window_change;

  void ControlChanged(Control& control, Aspect aspect) override;
  void TitleChanged(Screen& screen) override;
  void VisibilityChanged(Screen& screen) override;
  void Repaint(Screen& screen) override;

 private:
  void Tie(Control& control, QWidget& form);
  void FlushSoon();
  /// Takes the focus from a control that is about to be disabled or hidden, before the toolkit hands it on to
  /// the next one. True when it did.
  bool ParkFocus(const std::vector<Binding*>& marked);
  /// To the button that the form's property "harmless" names, when it can be pressed; else the form keeps it,
  /// where keys do nothing.
  void HandParkedFocusOn();
  /// A container of the form with the property "foldsAway" gives its place up while all in it is hidden.
  void FoldContainers();

  Screen* screen_;
  QWidget& form_;
  std::unordered_map<const Control*, std::unique_ptr<Binding>> bindings_;
  std::vector<Binding*> marked_;
  std::vector<ScreenView*> views_;
  std::vector<QWidget*> folding_;
  bool window_changed_ = false;
  QTimer flush_timer_;
};

/// What is wrong between a screen and a form, a sentence each: a control without a widget or with one that
/// cannot show it, a widget without a control, a control outside its frame.
std::vector<std::string> FormFaults(Screen& screen, QWidget& form);

/// Lets timers and the window system in, but no act of a person, while a step goes on.
void LetEventsIn();
/// True while a repaint in the middle of a step lets the window system in: no window may be closed then.
bool RepaintRunning();

}  // namespace quixair::desktop
