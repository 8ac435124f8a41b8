#pragma once

// The main frame: the console as a window, with its menu bar, an area in which every other screen opens as a
// child, the banner that tells when no sound goes out, and the status bar. It follows the screens that open
// and close; main() owns it.

#include <QMainWindow>
#include <QTimer>
#include <memory>
#include <unordered_map>

#include "desktop/access_keys.h"
#include "desktop/console_menu.h"
#include "desktop/screen_window.h"
#include "station/screen/screen_registry.h"

class QLabel;
class QMdiArea;
class QToolButton;

namespace quixair::desktop {

class ThemeSwitch;

class MainFrame : public QMainWindow, public ScreensObserver {
 public:
  /// `platform` and `theme` outlive this.
  MainFrame(const Platform& platform, ThemeSwitch& theme);
  ~MainFrame() override;

  void ScreenOpened(Screen& screen) override;
  void ScreenClosed(Screen& screen) override;
  void ScreenActivated(Screen& screen) override;

  /// Over everything else on the display, unless the splash stands before it.
  void ComeToFront();
  /// What the operator is to know of this start of the program, until its end.
  void ShowNotice(const QString& text);

  /// The form of an open screen, or none.
  QWidget* FormOf(const Screen& screen) const;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void OpenConsole(Screen& console);
  void ShowConsole(const Screen& console);
  void ShowTrouble();
  void ShowThemeName();

  const Platform& platform_;
  ThemeSwitch& theme_;
  QMdiArea* area_;
  QLabel* notice_;
  QLabel* trouble_;
  QToolButton* theme_button_;
  QTimer trouble_timer_;
  AccessKeys access_keys_;
  Screen* console_ = nullptr;
  bool shown_before_ = false;
  std::unique_ptr<ConsoleMenu> menu_;
  std::unordered_map<const Screen*, ScreenWindow*> windows_;
};

}  // namespace quixair::desktop
