#include "desktop/binder.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "desktop/station_text.h"

namespace quixair::desktop {
namespace {
int repaints_running = 0;  // of the one user interface thread
}

bool RepaintRunning() {
  return repaints_running > 0;
}

void LetEventsIn() {
  ++repaints_running;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  --repaints_running;
}

Binder::Binder(Screen& screen, QWidget& form) : screen_(&screen), form_(form) {
  flush_timer_.setSingleShot(true);
  flush_timer_.setInterval(0);
  QObject::connect(&flush_timer_, &QTimer::timeout, &flush_timer_, [this] { Flush(); });
  for (Control* control : screen.controls()) Tie(*control, form);
  for (QWidget* widget : form.findChildren<QWidget*>()) {
    if (auto* view = dynamic_cast<ScreenView*>(widget)) views_.push_back(view);
    if (widget->property("foldsAway").toBool()) folding_.push_back(widget);
  }
  for (ScreenView* view : views_) view->Follow(screen);
  Flush();
  window_changed_ = true;
  FlushSoon();
}

void Binder::Tie(Control& control, QWidget& form) {
  if (!HasWidget(control)) return;
  auto* widget = form.findChild<QWidget*>(WidgetName(control.name()));
  if (widget == nullptr) return;
  std::unique_ptr<Binding> binding = Bind(control, *widget);
  if (binding == nullptr) return;
  binding->MarkAll();
  binding->on_act = [this, tied = binding.get()] {
    marked_.push_back(tied);
    FlushSoon();
  };
  marked_.push_back(binding.get());
  bindings_.emplace(&control, std::move(binding));
}

void Binder::Leave() {
  flush_timer_.stop();
  screen_ = nullptr;
  for (auto& [control, binding] : bindings_) binding->Leave();
  for (ScreenView* view : std::exchange(views_, {})) view->Leave();
}

void Binder::FlushSoon() {
  if (!flush_timer_.isActive()) flush_timer_.start();
}

void Binder::Flush() {
  flush_timer_.stop();
  if (screen_ == nullptr) return;
  const std::vector<Binding*> marked = std::exchange(marked_, {});
  const bool focus_parked = ParkFocus(marked);
  for (Binding* binding : marked) binding->Apply();
  FoldContainers();
  if (focus_parked) HandParkedFocusOn();
  if (screen_ == nullptr) return;  // a box that lost the focus may have closed it
  if (std::exchange(window_changed_, false) && on_window_change) on_window_change(*screen_);
}

bool Binder::ParkFocus(const std::vector<Binding*>& marked) {
  // The window's own, which it remembers while another has the keys.
  const QWidget* const focus = form_.window()->focusWidget();
  const bool goes = std::any_of(marked.begin(), marked.end(), [focus](const Binding* binding) {
    const Control* const control = binding->control();
    if (focus == nullptr || control == nullptr || (control->visible() && control->enabled())) return false;
    return &binding->widget() == focus || binding->widget().isAncestorOf(focus);
  });
  if (!goes) return false;
  form_.setFocusPolicy(Qt::ClickFocus);  // else a window that comes to the front looks for another
  form_.setFocus(Qt::OtherFocusReason);
  return true;
}

void Binder::HandParkedFocusOn() {
  const QString name = form_.property("harmless").toString();
  if (name.isEmpty() || form_.window()->focusWidget() != &form_) return;  // the station said where it goes
  auto* button = form_.findChild<QWidget*>(name);
  if (button != nullptr && button->isVisibleTo(&form_) && button->isEnabled()) {
    button->setFocus(Qt::OtherFocusReason);
  }
}

void Binder::FoldContainers() {
  for (QWidget* container : folding_) {
    const QList<QWidget*> inside = container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    container->setVisible(
        std::any_of(inside.begin(), inside.end(), [](const QWidget* widget) { return !widget->isHidden(); }));
  }
}

void Binder::ControlChanged(Control& control, Aspect aspect) {
  const auto found = bindings_.find(&control);
  if (found == bindings_.end()) return;
  found->second->Mark(aspect);
  // A list that is filled changes thousands of times in a row.
  if (marked_.empty() || marked_.back() != found->second.get()) marked_.push_back(found->second.get());
  FlushSoon();
}

void Binder::TitleChanged(Screen&) {
  window_changed_ = true;
  FlushSoon();
}

void Binder::VisibilityChanged(Screen&) {
  window_changed_ = true;
  FlushSoon();
}

void Binder::Repaint(Screen&) {
  Flush();
  LetEventsIn();
}

}  // namespace quixair::desktop
