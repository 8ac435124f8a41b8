#include "desktop/access_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace quixair::desktop {

AccessKeys::AccessKeys(QMdiArea& area) : area_(area) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  // The event visits every widget from the focus outwards; the one in focus is enough.
  if (key.modifiers() != Qt::AltModifier || watched != QApplication::focusWidget()) return false;
  QAbstractButton* button = ButtonFor(key);
  if (button == nullptr) return false;
  event->accept();
  if (event->type() == QEvent::ShortcutOverride)
    return true;  // not a shortcut, then: it comes again as a key
  button->setFocus(Qt::ShortcutFocusReason);
  button->click();
  return true;
}

QAbstractButton* AccessKeys::ButtonFor(const QKeyEvent& key) const {
  if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
    return nullptr;
  const QMdiSubWindow* front = area_.activeSubWindow();
  if (front == nullptr || front->window() != QApplication::activeWindow()) return nullptr;
  const QKeySequence wanted(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(key.key())));
  for (QAbstractButton* button : front->findChildren<QAbstractButton*>()) {
    const bool can_press = button->isVisible() && button->isEnabled();
    if (can_press && QKeySequence::mnemonic(button->text()) == wanted) return button;
  }
  return nullptr;
}

}  // namespace quixair::desktop
