#include <gmock/gmock.h>

#include <QDir>

#include "desktop/binder.h"
#include "desktop/form_loader.h"
#include "desktop/sample_screen.h"
#include "desktop/station_text.h"
#include "station/screen_catalogue.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Forms : public StationFixture {
 protected:
  void SetUp() override { station_.StartProgram(); }
};

TEST_F(Forms, EveryScreenFitsItsForm) {
  for (const auto& [name, make] : StationScreens()) {
    const std::unique_ptr<Screen> screen = make(station_.platform());
    EXPECT_EQ(screen->name(), name) << "a screen that opens under another name is never found again";
    if (name == "Console") continue;  // the main frame itself
    const std::unique_ptr<QWidget> form = desktop::LoadForm(name);
    ASSERT_NE(form, nullptr) << "no form for " << name;
    EXPECT_THAT(desktop::FormFaults(*screen, *form), IsEmpty()) << "on " << name;
  }
}

TEST_F(Forms, ConsoleNeedsNoForm) {
  const std::unique_ptr<Screen> console = StationScreens().at("Console")(station_.platform());
  for (const Control* control : console->controls())
    EXPECT_FALSE(desktop::HasWidget(*control)) << control->name();
}

TEST_F(Forms, EveryFormHasItsScreen) {
  const ScreenRegistry::Catalogue screens = StationScreens();
  for (const QString& file : QDir(QStringLiteral(":/forms")).entryList()) {
    const std::string name = QString(file).remove(QStringLiteral(".ui")).toStdString();
    EXPECT_EQ(screens.count(name), 1U) << file.toStdString() << " is the form of no screen";
  }
}

TEST_F(Forms, FaultlessSample_HasNoFaults) {
  SampleScreen screen(station_.platform());
  SampleForm form;
  AddWidget<QLabel>(form.root, "staticHeading");
  EXPECT_THAT(desktop::FormFaults(screen, form.root), IsEmpty());
}

TEST_F(Forms, ControlWithoutWidget_IsAFault) {
  SampleScreen screen(station_.platform());
  SampleForm form;
  delete form.button;
  EXPECT_THAT(desktop::FormFaults(screen, form.root), ElementsAre("control Command1 has no widget"));
}

TEST_F(Forms, WidgetWithoutControl_IsAFault) {
  SampleScreen screen(station_.platform());
  SampleForm form;
  AddWidget<QLabel>(*form.frame, "Forgotten");
  EXPECT_THAT(desktop::FormFaults(screen, form.root), ElementsAre("widget Forgotten has no control"));
}

TEST_F(Forms, ControlOutsideItsFrame_IsAFault) {
  SampleScreen screen(station_.platform());
  SampleForm form;
  form.root.layout()->addWidget(form.second);
  EXPECT_THAT(desktop::FormFaults(screen, form.root),
              ElementsAre("control Option(1) lies in another frame on the form"));
}

TEST_F(Forms, WidgetOfAnotherKind_IsAFault) {
  SampleScreen screen(station_.platform());
  SampleForm form;
  delete form.check;
  AddWidget<QLabel>(form.root, "Check1");
  EXPECT_THAT(desktop::FormFaults(screen, form.root),
              ElementsAre("control Check1 is a CheckBox, its widget a QLabel"));
}

}  // namespace
}  // namespace quixair::testing
