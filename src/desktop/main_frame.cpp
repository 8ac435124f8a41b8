#include "desktop/main_frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/form_loader.h"
#include "desktop/program_icon.h"
#include "desktop/station_text.h"
#include "desktop/theme.h"
#include "station/platform/event_gate.h"
#include "station/platform/media.h"

namespace quixair::desktop {
namespace {

constexpr int kTroubleInterval = 500;  // milliseconds
constexpr QSize kFirstSize{1280, 780};
constexpr double kMarkOpacity = 0.35;
constexpr int kMarkSide = 112;
constexpr int kMarkPoints = 26;

/// Where the screens open: empty, it carries the program's mark.
class ScreenArea : public QMdiArea {
 protected:
  void paintEvent(QPaintEvent* event) override {
    QMdiArea::paintEvent(event);
    QPainter painter(viewport());
    painter.setOpacity(kMarkOpacity);
    QRect place(0, 0, kMarkSide, kMarkSide);
    place.moveCenter(viewport()->rect().center() - QPoint(0, kMarkSide / 3));
    windowIcon().paint(&painter, place);  // the frame's: one made here would stay in the toolkit's cache
    QFont large = font();
    large.setPointSize(kMarkPoints);
    large.setBold(true);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, place.bottom(), viewport()->width(), kMarkSide),
                     Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Quixair"));
  }
};

QLabel* MakeBanner(const char* name, const char* role) {
  auto* banner = new QLabel;
  banner->setObjectName(QLatin1String(name));
  banner->setProperty("role", QLatin1String(role));
  banner->setTextFormat(Qt::PlainText);
  banner->setWordWrap(true);
  QFont font = banner->font();
  font.setPointSize(12);
  font.setBold(true);
  banner->setFont(font);
  banner->hide();
  return banner;
}

}  // namespace

MainFrame::MainFrame(const Platform& platform, ThemeSwitch& theme)
    : platform_(platform),
      theme_(theme),
      area_(new ScreenArea),
      notice_(MakeBanner("viewNotice", "notice")),
      trouble_(MakeBanner("viewTrouble", "trouble")),
      theme_button_(new QToolButton),
      access_keys_(*area_) {
  setWindowIcon(ProgramIcon());
  auto* center = new QWidget(this);
  auto* column = new QVBoxLayout(center);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(area_, 1);
  column->addWidget(notice_);
  column->addWidget(trouble_);
  setCentralWidget(center);
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  area_->setFrameShape(QFrame::NoFrame);
  // Without scroll bars the area would push the frame to the size of its largest child.
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);

  theme_button_->setProperty("role", QStringLiteral("switch"));
  theme_button_->setToolTip(QStringLiteral("Change between the light and the dark look"));
  theme_button_->setFocusPolicy(Qt::NoFocus);
  connect(theme_button_, &QToolButton::clicked, this, [this] {
    // A maximised child hands the focus on when its style changes.
    const QPointer<QWidget> focus = QApplication::focusWidget();
    theme_.Toggle();
    ShowThemeName();
    if (focus != nullptr) focus->setFocus();
  });
  statusBar()->addPermanentWidget(theme_button_);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->setContentsMargins(8, 0, 8, 0);
  ShowThemeName();

  trouble_timer_.setInterval(kTroubleInterval);
  connect(&trouble_timer_, &QTimer::timeout, this, [this] { ShowTrouble(); });
  trouble_timer_.start();
  resize(kFirstSize);
}

MainFrame::~MainFrame() {
  // Windows that have let go of their screens wait for an event loop that will not run again.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  for (const auto& [screen, window] : windows_) delete window;
}

void MainFrame::ShowThemeName() {
  const bool light = theme_.theme() == Theme::kLight;
  theme_button_->setText(light ? QStringLiteral("Dark look") : QStringLiteral("Light look"));
  area_->setBackground(palette().brush(QPalette::Window).color().darker(light ? 112 : 130));
}

void MainFrame::ShowTrouble() {
  const QString trouble = ToQt(platform_.media.OutputTrouble());
  trouble_->setText(trouble);
  trouble_->setVisible(!trouble.isEmpty());
}

void MainFrame::ShowNotice(const QString& text) {
  notice_->setText(text);
  notice_->setVisible(!text.isEmpty());
}

void MainFrame::ComeToFront() {
  if (!isVisible()) return;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void MainFrame::ScreenOpened(Screen& screen) {
  if (screen.name() == "Console") {
    OpenConsole(screen);
    return;
  }
  std::unique_ptr<QWidget> form = LoadForm(screen.name());
  if (form == nullptr) {
    qWarning("no form for the screen %s", screen.name().c_str());
    return;
  }
  windows_.emplace(&screen, new ScreenWindow(screen, form.release(), *area_));
}

void MainFrame::OpenConsole(Screen& console) {
  console_ = &console;
  menu_ = std::make_unique<ConsoleMenu>(console, *menuBar());
  menu_->on_window_change = [this](const Screen& changed) { ShowConsole(changed); };
  console.set_observer(menu_.get());
}

void MainFrame::ShowConsole(const Screen& console) {
  setWindowTitle(Trimmed(console.title()));
  if (console.visible() == isVisible()) return;
  if (!console.visible()) {
    hide();
    return;
  }
  const bool maximised = !shown_before_ || isMaximized();
  shown_before_ = true;
  if (maximised) {
    showMaximized();
  } else {
    show();
  }
  for (const auto& [screen, window] : windows_) window->ShowState();
}

void MainFrame::ScreenClosed(Screen& screen) {
  if (&screen == console_) {
    menu_->Leave();
    console_ = nullptr;
    return;
  }
  const auto found = windows_.find(&screen);
  if (found == windows_.end()) return;
  found->second->Leave();
  windows_.erase(found);
}

void MainFrame::ScreenActivated(Screen& screen) {
  if (&screen == console_) {
    activateWindow();
    return;
  }
  const auto found = windows_.find(&screen);
  if (found != windows_.end()) found->second->BringToFront();
}

QWidget* MainFrame::FormOf(const Screen& screen) const {
  const auto found = windows_.find(&screen);
  return found == windows_.end() ? nullptr : &found->second->form();
}

void MainFrame::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (console_ == nullptr || RepaintRunning()) return;
  platform_.gate.Enter([this] { console_->CloseWindow(); });
}

}  // namespace quixair::desktop
