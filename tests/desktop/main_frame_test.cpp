#include "desktop/main_frame.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/row_list.h"
#include "station/platform/event_gate.h"

namespace quixair::testing {
namespace {

class MainFrameTest : public DesktopFixture {
 protected:
  void SetUp() override {
    PutFile("QXAIR/REGOCX.DTA", "1\r\n");
    PutFile("QXAIR/CUSTOM.DTA", "\"Radio Caf\xE9\"\r\n");
  }
  void StartPastSplash() {
    StartDesktop();
    Advance(3s);
    Rest();
  }
  QMdiSubWindow* WindowOf(std::string_view screen) {
    return qobject_cast<QMdiSubWindow*>(Form(screen).parentWidget());
  }
};

TEST_F(MainFrameTest, SplashIsShownFirst_TheFrameAfterIt) {
  StartDesktop();
  EXPECT_FALSE(frame_->isVisible());
  EXPECT_TRUE(Form("frmSplash").isVisible());
  Advance(3s);
  Rest();
  EXPECT_TRUE(frame_->isVisible());
  EXPECT_FALSE(IsOpen("frmSplash"));
}

TEST_F(MainFrameTest, KeyTakesTheSplashAway) {
  StartDesktop();
  Form("frmSplash").activateWindow();
  Widget<QWidget>("frmSplash", "Frame1").setFocus();
  QTest::keyClick(&Widget<QWidget>("frmSplash", "Frame1"), Qt::Key_Space);
  EXPECT_FALSE(IsOpen("frmSplash"));
}

TEST_F(MainFrameTest, MenuBarShowsTheConsolesTree_AndOpensScreensAsChildren) {
  StartPastSplash();
  EXPECT_EQ(frame_->windowTitle(), QStringLiteral("Quixair 4   Radio Café"));
  const QList<QAction*> top = frame_->menuBar()->actions();
  ASSERT_FALSE(top.isEmpty());
  EXPECT_EQ(top.front()->text(), QStringLiteral("&File"));
  EXPECT_FALSE(frame_->findChild<QAction*>(QStringLiteral("ResumeLastPick"))->isVisible());
  EXPECT_TRUE(frame_->findChild<QAction*>(QStringLiteral("EditTemplate"))->isVisible());
  ChooseMenu("SetRandomDefaults");
  ASSERT_NE(WindowOf("RandomSetup"), nullptr);
  EXPECT_TRUE(Form("RandomSetup").isVisible());
  EXPECT_EQ(WindowOf("RandomSetup")->windowTitle(), QStringLiteral("Random Playback Setup"));
}

TEST_F(MainFrameTest, ClosingAChild_UnloadsItsScreen) {
  StartPastSplash();
  ChooseMenu("ViewErrorLog");
  WindowOf("ErrorLog")->close();
  EXPECT_FALSE(IsOpen("ErrorLog"));
  Rest();
  ChooseMenu("ViewErrorLog");
  EXPECT_TRUE(Form("ErrorLog").isVisible()) << "a screen can be opened again after its window was closed";
}

TEST_F(MainFrameTest, ClosingAChild_IsTheScreensDecision) {
  StartPastSplash();
  ChooseMenu("ViewErrorLog");
  QMdiSubWindow* window = WindowOf("ErrorLog");
  station_.Do([] { EndProgram(); });  // from now on no screen is asked
  window->close();
  EXPECT_TRUE(window->isVisible());
}

TEST_F(MainFrameTest, PressOnAChildsFrame_LeavesTheFocusInTheBoxThatHasIt) {
  StartPastSplash();
  frame_->activateWindow();
  ChooseMenu("Music");
  Rest();
  Widget<QAbstractButton>("RecordASong", "Command1").click();
  Rest();
  ASSERT_EQ(QApplication::focusWidget(), &Widget<QWidget>("RecordASong", "Text2"));
  QTest::mouseClick(WindowOf("RecordASong"), Qt::LeftButton, {}, {200, 8});
  EXPECT_EQ(QApplication::focusWidget(), &Widget<QWidget>("RecordASong", "Text2"));
  EXPECT_TRUE(boxes().empty()) << "an id that is empty has not been left";
  WindowOf("RecordASong")->close();
  EXPECT_FALSE(IsOpen("RecordASong"));
}

TEST_F(MainFrameTest, ClosingTheFrame_EndsTheProgramInOrder) {
  StartPastSplash();
  PutFile("QXAIR/RESET.DTA", "\"1\"\r\n\"RANDOM\"\r\n\"\"\r\n\"\"\r\n");
  frame_->close();
  EXPECT_FALSE(station_.running());
  EXPECT_TRUE(frame_->isVisible()) << "the toolkit does not close it by itself";
  EXPECT_EQ(FileText("QXAIR/RESET.DTA").substr(0, 3), "\"0\"");
}

class OnAirWindow : public MainFrameTest {
 protected:
  void SetUp() override {
    MainFrameTest::SetUp();
    AddLibrary(6, 3, 2);
    StartPastSplash();
    ChooseMenu("RandomPlaybackMode");
    Rest();
  }
  void Press(const char* button) {
    QTest::mouseClick(&Widget<QPushButton>("RandomForm1", button), Qt::LeftButton);
    Rest();
  }
};

TEST_F(OnAirWindow, StartGoesOnTheAir_TheScreenTellsIt_EndRunTakesItAway) {
  EXPECT_TRUE(WindowOf("RandomForm1")->isMaximized());
  EXPECT_FALSE(Widget<QPushButton>("RandomForm1", "PauseCommand").isVisible());
  Press("Start");
  ASSERT_EQ(aired().size(), 1U);
  Advance(1s);
  Rest();
  EXPECT_FALSE(Widget<QPushButton>("RandomForm1", "Start").isVisible());
  EXPECT_TRUE(Widget<QPushButton>("RandomForm1", "PauseCommand").isVisible());
  EXPECT_THAT(Widget<QLabel>("RandomForm1", "CurrLabel_0").text().toStdString(),
              ::testing::HasSubstr(aired().front().id));
  Press("EndRunCommand");
  EXPECT_FALSE(IsOpen("RandomForm1"));
  EXPECT_TRUE(frame_->findChild<QMdiArea*>()->subWindowList().isEmpty());
}

TEST_F(OnAirWindow, AccessKeyOfTheScreen_ComesBeforeTheMenus) {
  Press("Start");
  frame_->activateWindow();
  Widget<QPushButton>("RandomForm1", "EndRunCommand").setFocus();
  QTest::keyClick(&Widget<QPushButton>("RandomForm1", "EndRunCommand"), Qt::Key_P, Qt::AltModifier);
  Rest();
  EXPECT_FALSE(Widget<QPushButton>("RandomForm1", "PauseCommand").isEnabled())
      << "ALT+P pauses, it opens no menu";
}

TEST_F(MainFrameTest, AccessKeyOfTwoButtons_GoesBetweenThemAndPressesNeither) {
  StartPastSplash();
  ChooseMenu("Spots");
  Rest();
  QTest::mouseClick(&Widget<QPushButton>("RecordSpot", "Command1"), Qt::LeftButton);
  Rest();
  QTest::keyClicks(&Widget<QLineEdit>("RecordSpot", "Text2"), QStringLiteral("77"));
  frame_->activateWindow();
  QStringList focused;
  for (int press = 0; press < 3; ++press) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::AltModifier);
    Rest();
    focused.push_back(QApplication::focusWidget()->objectName());
  }
  EXPECT_NE(focused[0], focused[1]);
  EXPECT_EQ(focused[0], focused[2]);
  EXPECT_TRUE(Find<TextBox>("RecordSpot", "Text3").enabled()) << "neither restarted nor recorded";
  Widget<QPushButton>("RecordSpot", "Command8").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(Find<TextBox>("RecordSpot", "Text3").enabled()) << "Enter presses the one in focus";
}

TEST_F(OnAirWindow, ControlsThatGoAtAKey_LeaveTheFocusWhereItHarmsNothing) {
  frame_->activateWindow();
  struct {
    Qt::Key key;
    const char *button, *left_on;
  } const acts[] = {{Qt::Key_S, "Start", "ContinueCommand"},
                    {Qt::Key_B, "BeginNextCommand", "BeginNextCommand"},
                    {Qt::Key_P, "PauseCommand", "ContinueCommand"}};
  for (const auto& [key, button, left_on] : acts) {
    Widget<QPushButton>("RandomForm1", button).setFocus();
    QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
    Rest();
    EXPECT_EQ(QApplication::focusWidget(), &Widget<QPushButton>("RandomForm1", left_on)) << button;
  }
  EXPECT_EQ(aired().size(), 2U);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Find<Button>("RandomForm1", "GoLive").caption(), "Go &Live Next");
}

}  // namespace
}  // namespace quixair::testing
