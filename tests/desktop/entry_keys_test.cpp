// The screens that build a list of entries, worked by the keyboard alone.

#include <QPushButton>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/row_list.h"

namespace quixair::testing {
namespace {

constexpr const char* kErase = "EraseUtility";

class EntryKeys : public DesktopFixture {
 protected:
  EntryKeys() {
    AddLibrary(30, 2, 2);
    for (const char* id : {"S1", "S2"}) AddSpot(id, 20000);
    StartDesktop();
    Advance(3s);  // the splash is over
    Rest();
    frame_->activateWindow();
    ChooseMenu("EraseRecordings");
    Rest();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Rest();
  }
  std::string InFocus() {
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
  }
};

TEST_F(EntryKeys, TypedId_JumpsToItsRowAndEnterAddsIt) {
  EXPECT_EQ(InFocus(), "List3");
  Key(Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(InFocus(), "List1");
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("m0017"));
  Key(Qt::Key_Return);
  ASSERT_EQ(Rows(kErase, "List2").size(), 1U);
  EXPECT_EQ(Rows(kErase, "List2")[0].substr(0, 11), "0001  M0017");
}

TEST_F(EntryKeys, CutByKeys_TakesTheRowOut) {
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("S2"));
  Key(Qt::Key_Return);
  Key(Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(InFocus(), "List2");
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_TRUE(Rows(kErase, "List2").empty());
}

TEST_F(EntryKeys, LetterOfTwoButtons_LeadsFromOneToTheNextAndPressesNeither) {
  for (int round = 0; round < 2; ++round) {
    Key(Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(InFocus(), "Command2") << "Clear List";
    Key(Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(InFocus(), "Command12") << "Liners";
  }
  EXPECT_TRUE(Find<ListBox>(kErase, "List3").visible());
  EXPECT_TRUE(boxes().empty());
  Key(Qt::Key_Return);
  EXPECT_EQ(InFocus(), "List4");
}

TEST_F(EntryKeys, LetterWithinAFrame_BelongsToTheFrame) {
  PutFile("QXAIR/PIKMODE.DTA", "\"2\"\r\n");
  PutFile("QXAIR/PIKNAME.DTA", "\"A.TPL\"\r\n");
  PutTemplate("A.TPL", {"S1", "S2"});
  station_.Do([this] { station_.platform().screens.Open("BuildTemplate1"); });
  Rest();
  Click("BuildTemplate1", "localbreak");
  Rest();
  EXPECT_EQ(InFocus(), "List7");
  Key(Qt::Key_Down);
  Key(Qt::Key_Tab);
  Key(Qt::Key_Down);
  Key(Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(Shown("BuildTemplate1", "Text9"), "01:00 PM");
  Key(Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(Rows("BuildTemplate1", "List2").size(), 3U) << "accepted, and not taken for a cut";
}

}  // namespace
}  // namespace quixair::testing
