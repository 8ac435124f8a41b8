#include "desktop/binder.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "desktop/sample_screen.h"
#include "desktop/theme.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class BinderTest : public StationFixture {
 protected:
  void SetUp() override {
    station_.StartProgram();
    screen_ = std::make_unique<SampleScreen>(station_.platform());
  }
  /// Ties the screen as it is now and shows the form.
  void Bind() {
    binder_ = std::make_unique<desktop::Binder>(*screen_, form_.root);
    screen_->set_observer(binder_.get());
    form_.root.show();
    QCoreApplication::processEvents();
  }
  void ClickRow(int row) {
    const QRect place = form_.list->visualRect(form_.list->model()->index(row, 0));
    QTest::mouseClick(form_.list->viewport(), Qt::LeftButton, {}, place.center());
  }

  SampleForm form_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<desktop::Binder> binder_;
};

TEST_F(BinderTest, Texts_AreUnicodeAndBreakAtRunsOfBlanksWhereTheyWrap) {
  Bind();
  const struct {
    bool wraps;
    const char* caption;
    const char* shown;
  } labels[] = {{false, "Caf\xE9 \x80 5 & more", "Café € 5 & more"},
                {true, "HH:MM A/P.          Click Done", "HH:MM A/P.\nClick Done"},
                {false, " Elapsed:    1.5", " Elapsed:    1.5"}};
  for (const auto& [wraps, caption, shown] : labels) {
    form_.label->setWordWrap(wraps);
    screen_->Label1.SetCaption(caption);
    binder_->Flush();
    EXPECT_EQ(form_.label->text().toStdString(), shown);
  }
  screen_->Command1.SetCaption("   Re-&Queue           Current");
  binder_->Flush();
  EXPECT_EQ(form_.button->text(), QStringLiteral("Re-&Queue\nCurrent"));
}

TEST_F(BinderTest, TenThousandRows_AreOneReset) {
  Bind();
  QSignalSpy resets(form_.list->model(), &QAbstractItemModel::modelReset);
  QSignalSpy inserted(form_.list->model(), &QAbstractItemModel::rowsInserted);
  for (int i = 0; i < 10000; ++i) screen_->List1.AddRow("row " + std::to_string(i));
  QCoreApplication::processEvents();
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(inserted.count(), 0);
  EXPECT_EQ(form_.list->model()->rowCount(), 10000);
  EXPECT_EQ(form_.list->model()->index(9999, 0).data().toString(), QStringLiteral("row 9999"));
}

TEST_F(BinderTest, RowClickedOrReachedByKey_IsSelectedOnceInTheControl) {
  for (const char* row : {"a", "b", "c"}) screen_->List1.AddRow(row);
  int clicks = 0;
  screen_->List1.on_click = [&clicks] { ++clicks; };
  Bind();
  ClickRow(1);
  EXPECT_EQ(screen_->List1.selected_index(), 1);
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(form_.list, Qt::Key_Down);
  EXPECT_EQ(screen_->List1.selected_text(), "c");
}

TEST_F(BinderTest, DoubleClickAndEnter_AreEventsOfTheirOwn) {
  screen_->List1.AddRow("a");
  std::string events;
  screen_->List1.on_click = [&events] { events += "click "; };
  screen_->List1.on_double_click = [&events] { events += "double "; };
  screen_->List1.on_enter = [&events] { events += "enter "; };
  Bind();
  const QPoint place = form_.list->visualRect(form_.list->model()->index(0, 0)).center();
  QTest::mouseClick(form_.list->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(form_.list->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseRelease(form_.list->viewport(), Qt::LeftButton, {}, place);
  EXPECT_THAT(events, ::testing::EndsWith("double ")) << "no click may follow a double click";
  events.clear();
  QTest::keyClick(form_.list, Qt::Key_Return);
  EXPECT_EQ(events, "enter ");
}

TEST_F(BinderTest, SelectionByTheStation_ShowsAndRaisesNothing) {
  for (const char* row : {"a", "b"}) screen_->List1.AddRow(row);
  int clicks = 0;
  screen_->List1.on_click = [&clicks] { ++clicks; };
  Bind();
  screen_->List1.Select(1);
  binder_->Flush();
  ASSERT_EQ(form_.list->selectionModel()->selectedIndexes().size(), 1);
  EXPECT_EQ(form_.list->selectionModel()->selectedIndexes().front().row(), 1);
  EXPECT_EQ(clicks, 0);
  screen_->List1.AddRow("c");
  QCoreApplication::processEvents();
  ASSERT_EQ(form_.list->selectionModel()->selectedIndexes().size(), 1) << "it outlives changed rows";
  EXPECT_EQ(form_.list->selectionModel()->selectedIndexes().front().row(), 1);
}

TEST_F(BinderTest, DriveChosen_ReachesItsControlAndCanBeTakenBack) {
  int clicks = 0;
  screen_->Drive1.Refresh();
  screen_->Drive1.SelectDrive('C');
  Bind();
  EXPECT_EQ(form_.drives->currentText(), QStringLiteral("C:"));
  screen_->Drive1.on_click = [&] { ++clicks; };
  QTest::keyClick(form_.drives, Qt::Key_Down);
  EXPECT_EQ(screen_->Drive1.drive(), 'D');
  EXPECT_EQ(clicks, 1);
  screen_->Drive1.on_click = [&] { screen_->Drive1.SelectDrive('D'); };
  QTest::keyClick(form_.drives, Qt::Key_Up);
  QCoreApplication::processEvents();
  EXPECT_EQ(form_.drives->currentText(), QStringLiteral("D:")) << "the station took it back";
}

TEST_F(BinderTest, BoxOrDriveListThatIsLeft_TellsItsControl) {
  screen_->Drive1.Refresh();
  Bind();
  form_.root.activateWindow();
  const std::pair<Control*, QWidget*> cases[] = {{&screen_->Drive1, form_.drives},
                                                 {&screen_->Text1, form_.line}};
  for (const auto& [control, widget] : cases) {
    int left = 0;
    control->on_lost_focus = [&left] { ++left; };
    for (const Qt::FocusReason comes_back :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
      QFocusEvent event(QEvent::FocusOut, comes_back);
      QApplication::sendEvent(widget, &event);
      EXPECT_EQ(left, 0) << control->name() << ' ' << comes_back;
    }
    widget->setFocus(Qt::TabFocusReason);
    form_.check->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(left, 1) << control->name();
    control->on_lost_focus = nullptr;
  }
}

TEST_F(BinderTest, EnterOnAFolder_GoesIn) {
  ASSERT_TRUE(screen_->Dir1.SetPath("C:\\").ok());
  Bind();
  form_.folders->setFocus();
  QTest::keyClick(form_.folders, Qt::Key_Down);
  QTest::keyClick(form_.folders, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(screen_->Dir1.path(), "C:\\QXAIR");
  EXPECT_EQ(form_.folders->model()->index(0, 0).data().toString(), QStringLiteral(".."));
}

TEST_F(BinderTest, GridShowsItsColumnsAndRows) {
  screen_->Grid1.SetColumns({{"Number", 50}, {"Key", 0}, {"Title", 100}});
  screen_->Grid1.SetRows({{"1", "b", "Caf\xE9"}, {"2", "a"}});
  Bind();
  const QAbstractItemModel& cells = *form_.grid->model();
  EXPECT_EQ(cells.headerData(2, Qt::Horizontal).toString(), QStringLiteral("Title"));
  EXPECT_TRUE(form_.grid->isColumnHidden(1));
  EXPECT_FALSE(form_.grid->isColumnHidden(2));
  EXPECT_GE(form_.grid->columnWidth(2), 100);
  EXPECT_EQ(cells.index(0, 2).data().toString(), QStringLiteral("Café"));
  screen_->Grid1.SortBy(1);
  binder_->Flush();
  EXPECT_EQ(cells.index(0, 0).data().toString(), QStringLiteral("2"));
  screen_->Grid1.RemoveRows(0, 0);
  EXPECT_FALSE(cells.index(1, 0).data().isValid()) << "looked at before the change is shown";
  binder_->Flush();
  EXPECT_EQ(cells.rowCount(), 1);
}

TEST_F(BinderTest, Tick_ShowsWhatTheStationMadeOfIt) {
  Bind();
  const auto click = [this] {
    QTest::mouseClick(form_.check, Qt::LeftButton, {}, QPoint(8, form_.check->height() / 2));
    QCoreApplication::processEvents();
    EXPECT_EQ(form_.check->isChecked(), screen_->Check1.ticked());
  };
  click();
  EXPECT_TRUE(screen_->Check1.ticked());
  screen_->Check1.on_click = [this] { screen_->Check1.Tick(true); };
  click();
  EXPECT_TRUE(screen_->Check1.ticked()) << "the station took it back";
  screen_->Check1.on_click = nullptr;
  screen_->Check1.Disable();  // and the window does not show it yet
  click();
  EXPECT_TRUE(screen_->Check1.ticked()) << "it came too late";
}

TEST_F(BinderTest, OptionsFollowTheStation_AndCanAllBeClear) {
  Bind();
  QTest::mouseClick(form_.second, Qt::LeftButton, {}, QPoint(8, form_.second->height() / 2));
  EXPECT_TRUE(screen_->Option2.selected());
  screen_->Option2.Select(false);
  binder_->Flush();
  EXPECT_FALSE(form_.second->isChecked());
}

TEST_F(BinderTest, Keys_ReachTheControlInItsCodePageAndAreReplacedOrRefusedByIt) {
  screen_->Text1.on_key_press = [](char& key) {
    if (key == '"') key = 0;
    if (key == 'a') key = 'A';
  };
  Bind();
  QTest::keyClicks(form_.line, QStringLiteral("\"ac\""));
  form_.line->setCursorPosition(1);
  QTest::sendKeyEvent(QTest::Click, form_.line, Qt::Key_unknown, QStringLiteral("é"), Qt::NoModifier);
  EXPECT_EQ(screen_->Text1.text(),
            "A\xE9"
            "c");
  EXPECT_EQ(form_.line->text(), QStringLiteral("Aéc"));
}

TEST_F(BinderTest, SeveralLines_AreDividedAsOnTheOldPc) {
  Bind();
  form_.page->setPlainText(QStringLiteral("one\ntwo"));
  EXPECT_EQ(screen_->Text2.text(), "one\r\ntwo");
}

TEST_F(BinderTest, StatusLine_CannotBeTypedInAndLosesItsLeadingBlanks) {
  Bind();
  screen_->Status.SetText(std::string(50, ' ') + "Digital Audio");
  binder_->Flush();
  EXPECT_EQ(form_.status->text(), QStringLiteral("Digital Audio"));
  QTest::keyClicks(form_.status, QStringLiteral("x"));
  EXPECT_EQ(screen_->Status.text(), std::string(50, ' ') + "Digital Audio");
}

TEST_F(BinderTest, YellowGround_HasBlackText_InADarkThemeToo) {
  WriteHostFile(folder_.path() / "desktop.conf", "[General]\ntheme=dark\n");
  const desktop::ThemeSwitch theme(*qApp, folder_.path() / "desktop.conf");
  screen_->Status.SetBackColor(kYellow);
  Bind();
  form_.status->ensurePolished();
  EXPECT_EQ(form_.status->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0x00));
  EXPECT_EQ(form_.status->palette().color(QPalette::Text), QColor(Qt::black));
}

TEST_F(BinderTest, WhatIsHiddenDisabledOrInFocus_ShowsSo) {
  Bind();
  form_.root.activateWindow();
  screen_->Frame1.Hide();
  screen_->Command1.Disable();
  screen_->Check1.SetFocus();
  binder_->Flush();
  EXPECT_FALSE(form_.first->isVisible());
  EXPECT_FALSE(form_.button->isEnabled());
  EXPECT_EQ(form_.root.focusWidget(), form_.check);
}

TEST_F(BinderTest, FocusOfAControlThatGoes_IsLeftToTheHarmlessButton_NeverToTheNext) {
  struct Case {
    const char* what;
    QWidget* focus;
    std::function<void()> act;
    QWidget* expected;
  };
  Bind();
  form_.root.activateWindow();
  form_.root.setProperty("harmless", "Command1");
  const std::vector<Case> cases = {
      {"disabled", form_.line, [&] { screen_->Text1.Disable(); }, form_.button},
      {"hidden", form_.check, [&] { screen_->Check1.Hide(); }, form_.button},
      {"in a frame that is hidden", form_.first, [&] { screen_->Frame1.Hide(); }, form_.button},
      {"hidden, the station says where", form_.page,
       [&] { screen_->List1.SetFocus(), screen_->Text2.Hide(); }, form_.list},
      {"another one is disabled", form_.list, [&] { screen_->Drive1.Disable(); }, form_.list},
      {"the harmless one itself", form_.button, [&] { screen_->Command1.Disable(); }, &form_.root},
      {"no harmless one to press", form_.list, [&] { screen_->List1.Disable(); }, &form_.root},
  };
  for (const Case& trial : cases) {
    trial.focus->setFocus();
    trial.act();
    binder_->Flush();
    EXPECT_EQ(form_.root.focusWidget(), trial.expected) << trial.what;
  }
}

TEST_F(BinderTest, Clicks_ReachTheirControls) {
  std::string events;
  screen_->Command1.on_click = [&events] { events += "press "; };
  screen_->Frame1.on_click = [&events] { events += "frame "; };
  screen_->MMControl1.on_play_click = [&events] { events += "play "; };
  screen_->MMControl1.on_pause_click = [&events] { events += "pause "; };
  Bind();
  QTest::mouseClick(form_.button, Qt::LeftButton);
  QTest::mouseClick(form_.frame, Qt::LeftButton, {},
                    QPoint(form_.frame->width() - 5, form_.frame->height() - 3));
  QTest::mouseClick(&form_.bar->play_button(), Qt::LeftButton);
  QTest::mouseClick(&form_.bar->pause_button(), Qt::LeftButton);
  EXPECT_EQ(events, "press frame play pause ");
}

TEST_F(BinderTest, Repaint_ShowsInTheMiddleOfAStep) {
  QString shown;
  screen_->Command1.on_click = [this, &shown] {
    screen_->Label1.SetCaption("half way");
    screen_->Repaint();
    shown = form_.label->text();
  };
  Bind();
  QTest::mouseClick(form_.button, Qt::LeftButton);
  EXPECT_EQ(shown, QStringLiteral("half way"));
}

TEST_F(BinderTest, ScreenIsGone_NothingReachesIt) {
  screen_->List1.AddRow("a");
  Bind();
  screen_->set_observer(nullptr);
  binder_->Leave();
  screen_.reset();
  QTest::mouseClick(form_.button, Qt::LeftButton);
  QTest::keyClicks(form_.line, QStringLiteral("x"));
  QCoreApplication::processEvents();
  EXPECT_EQ(form_.list->model()->rowCount(), 0);
}

TEST_F(BinderTest, ClickThatTakesItsScreenAway_IsSurvived) {
  screen_->Command1.on_click = [this] {
    screen_->set_observer(nullptr);
    binder_->Leave();
  };
  Bind();
  QTest::mouseClick(form_.button, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(form_.button->text(), QStringLiteral("&Press"));
}

}  // namespace
}  // namespace quixair::testing
