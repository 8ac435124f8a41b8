#include "desktop/desktop_fixture.h"

#include <QAction>

namespace quixair::testing {

DesktopFixture::~DesktopFixture() {
  if (frame_ == nullptr) return;
  Registry().CloseAll();
  Registry().set_observer(nullptr);
}

ScreenRegistry& DesktopFixture::Registry() {
  return dynamic_cast<ScreenRegistry&>(station_.platform().screens);
}

void DesktopFixture::StartDesktop() {
  station_.StartProgram();
  theme_ = std::make_unique<desktop::ThemeSwitch>(*qApp, folder_.path() / "desktop.conf");
  frame_ = std::make_unique<desktop::MainFrame>(station_.platform(), *theme_);
  Registry().set_observer(frame_.get());
  station_.OpenConsole();
  Rest();
}

QWidget& DesktopFixture::Form(std::string_view screen) {
  const Screen* open = station_.FindScreen(screen);
  QWidget* form = open != nullptr ? frame_->FormOf(*open) : nullptr;
  if (form == nullptr) throw std::runtime_error("no window for the screen " + std::string(screen));
  return *form;
}

void DesktopFixture::ChooseMenu(const char* item) {
  auto* action = frame_->findChild<QAction*>(QString::fromLatin1(item));
  if (action == nullptr) throw std::runtime_error(std::string("no menu item ") + item);
  action->trigger();
  Rest();
}

}  // namespace quixair::testing
