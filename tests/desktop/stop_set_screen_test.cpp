#include <gmock/gmock.h>

#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/row_list.h"

namespace quixair::testing {
namespace {

using ::testing::ElementsAre;

constexpr const char* kForm = "RandomForm1";
constexpr QSize kSmallestPlace(1024, 684);  // of a screen of 1024 x 768, without title, menu and status bar

// The on-air screen as an operator meets it with stop sets on: Sunday 20:30, the template not chosen yet.
class StopSetScreen : public DesktopFixture {
 protected:
  void SetUp() override {
    PutFile("QXAIR/REGOCX.DTA", "1\r\n");
    AddLibrary(8, 2, 2, 50000);
    PutSettings({.SongsPerLiner = 50, .LinerEnable = 1, .BreakType = break_type::kScheduledStopSet});
    PutTemplate("MON.TPD", {"08:31 PM", "S1"});
    PutTemplate("SUN.TPD", {"08:31 PM", "S1"});
    PutTemplate("GALA.TPL", {"08:31 PM", "S1"});
    StartDesktop();
    Advance(3s);
    Rest();
    ChooseMenu("RandomPlaybackMode");
    frame_->activateWindow();
    Rest();
  }
  QWidget& Focused() { return *frame_->focusWidget(); }
  void Press(Qt::Key key) {
    QTest::keyClick(&Focused(), key);
    Rest();
  }
  /// The layouts inside first: a container passes its size on only when it is laid out anew.
  QSize Needed() {
    for (QWidget* widget : Form(kForm).findChildren<QWidget*>()) {
      if (widget->layout() != nullptr) widget->layout()->activate();
    }
    Rest();
    return Form(kForm).layout()->totalMinimumSize();
  }
};

TEST_F(StopSetScreen, TabGoesFromTheDailyTemplatesThroughTheChoice) {
  std::vector<std::string> order;
  Press(Qt::Key_Down);  // else Done cannot be reached
  for (int stop = 0; stop < 5; ++stop) {
    order.push_back(Focused().objectName().toStdString());
    Press(Qt::Key_Tab);
  }
  EXPECT_THAT(order, ElementsAre("File2", "File1", "Done", "Refresh", "Quit"));
}

TEST_F(StopSetScreen, ArrowAndEnter_ChooseTodaysTemplate) {
  Press(Qt::Key_Return);
  EXPECT_TRUE(Widget<QWidget>(kForm, "Frame2").isVisible()) << "nothing was chosen yet";
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  EXPECT_FALSE(Widget<QWidget>(kForm, "Frame2").isVisible());
  EXPECT_EQ(Widget<QLabel>(kForm, "Label8").text(), QStringLiteral("SUN.TPD"));
}

TEST_F(StopSetScreen, ChoiceAndWarning_FitOnTheSmallestScreen) {
  EXPECT_EQ(Needed().boundedTo(kSmallestPlace), Needed()) << "the choice";
  Press(Qt::Key_Down);
  Press(Qt::Key_Up);
  Press(Qt::Key_Return);
  QTest::mouseClick(&Widget<QPushButton>(kForm, "Start"), Qt::LeftButton);
  Advance(1s);
  Rest();
  ASSERT_TRUE(Widget<QWidget>(kForm, "Label9").isVisible()) << "a Monday's template on a Sunday";
  EXPECT_EQ(Needed().boundedTo(kSmallestPlace), Needed()) << "the warning";
}

}  // namespace
}  // namespace quixair::testing
