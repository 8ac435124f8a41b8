#include "desktop/access_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace quixair::desktop {
namespace {

QWidget* FrameAround(QWidget* widget) {
  while (widget != nullptr && qobject_cast<QGroupBox*>(widget) == nullptr) widget = widget->parentWidget();
  return widget;
}

void KeepThoseOfTheFrameInFocus(QList<QAbstractButton*>& buttons) {
  const QWidget* frame = FrameAround(QApplication::focusWidget());
  if (frame == nullptr) return;
  QList<QAbstractButton*> inside = buttons;
  inside.removeIf([frame](QAbstractButton* button) { return FrameAround(button) != frame; });
  if (!inside.isEmpty()) buttons = inside;
}

QAbstractButton* AfterTheOneInFocus(const QList<QAbstractButton*>& buttons) {
  const qsizetype here = buttons.indexOf(qobject_cast<QAbstractButton*>(QApplication::focusWidget()));
  return buttons[(here + 1) % buttons.size()];
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
  if (event->type() == QEvent::KeyPress && PressByEnter(key)) return true;
  if (key.modifiers() != Qt::AltModifier) return false;
  QList<QAbstractButton*> buttons = ButtonsFor(key);
  if (buttons.isEmpty()) return false;
  event->accept();
  if (event->type() == QEvent::ShortcutOverride)
    return true;  // not a shortcut, then: it comes again as a key
  KeepThoseOfTheFrameInFocus(buttons);
  QAbstractButton* button = AfterTheOneInFocus(buttons);
  button->setFocus(Qt::ShortcutFocusReason);
  if (buttons.size() == 1) button->click();
  return true;
}

bool AccessKeys::PressByEnter(const QKeyEvent& key) const {
  if ((key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) || key.isAutoRepeat()) return false;
  auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
  const QMdiSubWindow* front = Front();
  if (button == nullptr || front == nullptr || !front->isAncestorOf(button)) return false;
  button->click();
  return true;
}

const QMdiSubWindow* AccessKeys::Front() const {
  if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
    return nullptr;
  const QMdiSubWindow* front = area_.activeSubWindow();
  return front != nullptr && front->window() == QApplication::activeWindow() ? front : nullptr;
}

QList<QAbstractButton*> AccessKeys::ButtonsFor(const QKeyEvent& key) const {
  const QMdiSubWindow* front = Front();
  if (front == nullptr) return {};
  const QKeySequence wanted(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(key.key())));
  QList<QAbstractButton*> buttons = front->findChildren<QAbstractButton*>();
  buttons.removeIf([&wanted](const QAbstractButton* button) {
    return !button->isVisible() || !button->isEnabled() || QKeySequence::mnemonic(button->text()) != wanted;
  });
  return buttons;
}

}  // namespace quixair::desktop
