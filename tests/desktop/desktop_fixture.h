#pragma once

// The station's windows over a simulated station: what a person clicks is a widget, what passes is virtual
// time.

#include <QApplication>
#include <QWidget>
#include <memory>

#include "desktop/main_frame.h"
#include "desktop/theme.h"
#include "support/station_fixture.h"

namespace quixair::testing {

class DesktopFixture : public StationFixture {
 protected:
  ~DesktopFixture() override;

  /// The program as main() starts it, with its console open.
  void StartDesktop();
  /// Lets everything be shown that waits to be.
  static void Rest() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // as an event loop that runs on
  }
  /// The form of an open screen; fails the test when there is none.
  QWidget& Form(std::string_view screen);
  template <class Kind>
  Kind& Widget(std::string_view screen, const char* name);
  /// Chooses a menu item by its action, as the menu bar does.
  void ChooseMenu(const char* item);

  std::unique_ptr<desktop::ThemeSwitch> theme_;
  std::unique_ptr<desktop::MainFrame> frame_;

 private:
  ScreenRegistry& Registry();
};

template <class Kind>
Kind& DesktopFixture::Widget(std::string_view screen, const char* name) {
  auto* widget = dynamic_cast<Kind*>(Form(screen).findChild<QWidget*>(QString::fromLatin1(name)));
  if (widget == nullptr) throw std::runtime_error(std::string("no such widget: ") + name);
  return *widget;
}

}  // namespace quixair::testing
