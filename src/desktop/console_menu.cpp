#include "desktop/console_menu.h"

#include <QCoreApplication>
#include <QMenu>

#include "desktop/binder.h"
#include "desktop/station_text.h"

namespace quixair::desktop {

ConsoleMenu::ConsoleMenu(Screen& console, QMenuBar& bar) : console_(&console) {
  for (Control* control : console.controls()) {
    if (control->kind() != ControlKind::kMenu) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.parent() == nullptr) bar.addAction(Add(item, bar));
  }
  window_timer_.setSingleShot(true);
  window_timer_.setInterval(0);
  QObject::connect(&window_timer_, &QTimer::timeout, &window_timer_, [this] {
    // A console that is about to hide in the same step must not flash up.
    if (RepaintRunning()) {
      window_timer_.start();
    } else if (console_ != nullptr && on_window_change) {
      on_window_change(*console_);
    }
  });
  window_timer_.start();
}

QAction* ConsoleMenu::Add(MenuItem& item, QWidget& parent) {
  QAction* action = nullptr;
  if (item.items().empty()) {
    action = new QAction(&parent);
    QObject::connect(action, &QAction::triggered, action, [this, &item] {
      if (console_ != nullptr) item.Choose();
    });
  } else {
    auto* menu = new QMenu(&parent);
    for (MenuItem* inner : item.items()) menu->addAction(Add(*inner, *menu));
    action = menu->menuAction();
  }
  action->setObjectName(ToQt(item.name()));
  // The style of some desktops would move items called "Exit" or "About" elsewhere.
  action->setMenuRole(QAction::NoRole);
  actions_.emplace(&item, action);
  Show(item, *action);
  return action;
}

void ConsoleMenu::Show(const MenuItem& item, QAction& action) {
  action.setText(ToQt(item.caption()));
  action.setVisible(item.visible());
  action.setEnabled(item.enabled());
  action.setStatusTip(ToQt(item.hint()));
}

void ConsoleMenu::Leave() {
  console_ = nullptr;
  window_timer_.stop();
}

void ConsoleMenu::ControlChanged(Control& control, Aspect) {
  const auto found = actions_.find(&control);
  if (found != actions_.end()) Show(static_cast<MenuItem&>(control), *found->second);
}

void ConsoleMenu::TitleChanged(Screen&) {
  window_timer_.start();
}

void ConsoleMenu::VisibilityChanged(Screen&) {
  window_timer_.start();
}

void ConsoleMenu::Repaint(Screen&) {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace quixair::desktop
