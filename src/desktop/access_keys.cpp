#include "desktop/access_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace quixair::desktop {

namespace {

/// Enter presses the button in focus, as Space does.
bool PressesFocused(const QKeyEvent& key) {
  auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
  const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (button == nullptr || !enter || !plain || key.isAutoRepeat()) return false;
  button->click();
  return true;
}

}  // namespace

AccessKeys::AccessKeys(QMdiArea& area) : area_(area) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  // The event visits every widget from the focus outwards; the one in focus is enough.
  if (watched != QApplication::focusWidget()) return false;
  if (event->type() == QEvent::KeyPress && PressesFocused(key)) return true;
  if (key.modifiers() != Qt::AltModifier) return false;
  const QList<QAbstractButton*> buttons = ButtonsFor(key);
  if (buttons.isEmpty()) return false;
  event->accept();
  if (event->type() == QEvent::ShortcutOverride)
    return true;  // not a shortcut, then: it comes again as a key
  const qsizetype focused = buttons.indexOf(qobject_cast<QAbstractButton*>(QApplication::focusWidget()));
  QAbstractButton* button = buttons[(focused + 1) % buttons.size()];
  button->setFocus(Qt::ShortcutFocusReason);
  if (buttons.size() == 1) button->click();
  return true;
}

QList<QAbstractButton*> AccessKeys::ButtonsFor(const QKeyEvent& key) const {
  if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) return {};
  const QMdiSubWindow* front = area_.activeSubWindow();
  if (front == nullptr || front->window() != QApplication::activeWindow()) return {};
  const QKeySequence wanted(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(key.key())));
  QList<QAbstractButton*> buttons;
  for (QAbstractButton* button : front->findChildren<QAbstractButton*>()) {
    const bool can_press = button->isVisible() && button->isEnabled();
    if (can_press && QKeySequence::mnemonic(button->text()) == wanted) buttons.push_back(button);
  }
  return buttons;
}

}  // namespace quixair::desktop
