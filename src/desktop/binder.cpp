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

Binder::Binder(Screen& screen, QWidget& form) : screen_(&screen) {
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
  // What appears comes before what goes: the focus of a button that is hidden must find the one that takes
  // its place.
  for (const bool visible : {true, false}) {
    for (Binding* binding : marked) {
      if (binding->control() != nullptr && binding->control()->visible() == visible) binding->Apply();
    }
  }
  FoldContainers();
  if (std::exchange(window_changed_, false) && on_window_change) on_window_change(*screen_);
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
