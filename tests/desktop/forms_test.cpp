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

TEST_F(Forms, EveryFormHasItsScreen) {
  const ScreenRegistry::Catalogue screens = StationScreens();
  for (const QString& file : QDir(QStringLiteral(":/forms")).entryList()) {
    const std::string name = QString(file).remove(QStringLiteral(".ui")).toStdString();
    EXPECT_EQ(screens.count(name), 1U) << file.toStdString() << " is the form of no screen";
  }
}

TEST_F(Forms, WhatDoesNotFit_IsAFault) {
  const std::pair<std::function<void(SampleForm&)>, const char*> cases[] = {
      {[](SampleForm& form) { delete form.button; }, "control Command1 has no widget"},
      {[](SampleForm& form) { AddWidget<QLabel>(*form.frame, "Forgotten"); },
       "widget Forgotten has no control"},
      {[](SampleForm& form) { form.root.layout()->addWidget(form.second); },
       "control Option(1) lies in another frame on the form"},
      {[](SampleForm& form) {
         delete form.check;
         AddWidget<QLabel>(form.root, "Check1");
       },
       "control Check1 is a CheckBox, its widget a QLabel"}};
  SampleScreen screen(station_.platform());
  for (const auto& [spoil, fault] : cases) {
    SampleForm form;
    spoil(form);
    EXPECT_THAT(desktop::FormFaults(screen, form.root), ElementsAre(fault));
  }
}

}  // namespace
}  // namespace quixair::testing
