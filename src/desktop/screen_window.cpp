#include "desktop/screen_window.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "desktop/station_text.h"
#include "station/platform/event_gate.h"

namespace quixair::desktop {

ScreenWindow::ScreenWindow(Screen& screen, QWidget* form, QMdiArea& area)
    : screen_(&screen), form_(form), window_(form) {
  if (form->property("splash").toBool()) {
    form->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  } else {
    child_ = new QMdiSubWindow;
    child_->setAttribute(Qt::WA_DeleteOnClose, false);
    child_->setFocusPolicy(Qt::NoFocus);  // a press on its frame, to move or close it, leaves no box
    child_->setWindowIcon(area.windowIcon());
    child_->setWidget(form);
    window_ = child_;
    area.addSubWindow(child_);
    child_->hide();  // else it is shown with the main frame, in a size of its own
  }
  window_->installEventFilter(this);
  binder_ = std::make_unique<Binder>(screen, *form);
  binder_->on_window_change = [this](const Screen&) { ShowState(); };
  screen.set_observer(
      binder_.get());  // shown when the event that opened it comes to rest, or asks for a repaint
}

ScreenWindow::~ScreenWindow() {
  binder_.reset();  // it reaches into the form
  delete window_;
}

void ScreenWindow::ShowState() {
  if (screen_ == nullptr) return;
  window_->setWindowTitle(Trimmed(screen_->title()));
  if (child_ != nullptr && !child_->mdiArea()->isVisible()) return;
  if (screen_->visible() == !window_->isHidden()) return;
  if (!screen_->visible()) {
    window_->hide();
  } else if (shown_before_) {
    window_->show();
  } else {
    ShowFirst();
  }
}

void ScreenWindow::ShowFirst() {
  shown_before_ = true;
  if (child_ == nullptr) {
    window_->adjustSize();
    const QScreen* display = QGuiApplication::primaryScreen();
    if (display != nullptr) window_->move(display->availableGeometry().center() - window_->rect().center());
    window_->show();
    window_->activateWindow();
    return;
  }
  if (form_->property("maximised").toBool()) {
    child_->showMaximized();
    return;
  }
  child_->resize(child_->sizeHint().boundedTo(child_->mdiArea()->viewport()->size()));
  child_->show();
  const QRect area = child_->mdiArea()->viewport()->rect();
  child_->move((area.center() - child_->rect().center()).x(), (area.height() - child_->height()) / 3);
}

void ScreenWindow::BringToFront() {
  if (child_ == nullptr || screen_ == nullptr) return;
  binder_->Flush();
  child_->mdiArea()->setActiveSubWindow(child_);
}

void ScreenWindow::Leave() {
  binder_->Leave();
  screen_ = nullptr;
  window_->hide();
  deleteLater();
}

void ScreenWindow::PersonCloses() {
  if (screen_ == nullptr || RepaintRunning()) return;
  screen_->platform().gate.Enter([this] { screen_->CloseWindow(); });
}

bool ScreenWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != window_ || event->type() != QEvent::Close) return false;
  event->ignore();
  PersonCloses();
  return true;
}

}  // namespace quixair::desktop
