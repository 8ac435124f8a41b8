#pragma once

// One control tied to its widget: what changed on the control is shown when the binder says so, and a
// person's act on the widget is told to the control. There is one kind of binding for each kind of control,
// and no rule of the station in any of them: whatever a control makes of an act is what its widget shows
// afterwards, also when that is nothing.

#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>

#include "station/screen/controls.h"

namespace quixair::desktop {

class Binding : public QObject {
 public:
  Binding(Control& control, QWidget& widget) : control_(&control), widget_(widget) {}

  const Control* control() const { return control_; }
  QWidget& widget() const { return widget_; }

  void Mark(Aspect aspect) { marked_ |= Bit(aspect); }
  void MarkAll() { marked_ = ~0U & ~Bit(Aspect::kFocus) & ~Bit(Aspect::kTopRow); }
  /// Shows what was marked.
  void Apply();
  /// The control is about to be destroyed: neither side reaches the other any more.
  virtual void Leave() { control_ = nullptr; }

  /// Told after each act of a person, so that the widget can be brought in line.
  std::function<void()> on_act;

 protected:
  virtual void ShowText() {}
  virtual void ShowRows() {}
  virtual void ShowSelection() {}
  virtual void ShowTopRow() {}
  virtual void ShowColumns() {}
  virtual void ShowTicked() {}
  virtual void ShowTransport() {}
  /// Runs the act of a person unless the control is gone.
  void Act(const std::function<void()>& act);
  /// For widgets that are left as an act: an event of theirs.
  void TellIfLeft(const QEvent& event);

 private:
  static unsigned Bit(Aspect aspect) { return 1U << static_cast<unsigned>(aspect); }
  void ShowColors();
  void ShowHint();

  Control* control_;
  QWidget& widget_;
  unsigned marked_ = 0;
};

/// None for a widget that cannot show this kind of control, and for controls that are not shown.
std::unique_ptr<Binding> Bind(Control& control, QWidget& widget);
/// Timers and menu items have no widget.
bool HasWidget(const Control& control);

/// The binding of a text box, which sees keys before its editor does.
std::unique_ptr<Binding> BindTextBox(TextBox& box, QWidget& widget);

}  // namespace quixair::desktop
