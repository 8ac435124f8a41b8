#include "desktop/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "station/platform/event_gate.h"

namespace quixair::testing {
namespace {

class QtDialogsTest : public ::testing::Test {
 protected:
  QtDialogsTest() { dialogs_.Attach(gate_); }
  /// Runs `act` while the next box is open.
  template <class Box>
  static void WhenOpen(std::function<void(Box&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
      auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr) << "no box is open";
      act(*box);
    });
  }

  desktop::QtDialogs dialogs_;
  EventGate gate_{dialogs_};
};

TEST_F(QtDialogsTest, StyleDecidesTheButtonsAndThePicture) {
  struct Case {
    int style;
    QMessageBox::StandardButton press;
    QMessageBox::Icon icon;
    Answer answer;
  };
  for (const Case& each : {Case{64, QMessageBox::Ok, QMessageBox::Information, Answer::kOk},
                           Case{33, QMessageBox::Cancel, QMessageBox::Question, Answer::kCancel},
                           Case{33, QMessageBox::Ok, QMessageBox::Question, Answer::kOk},
                           Case{52, QMessageBox::Yes, QMessageBox::Warning, Answer::kYes},
                           Case{3, QMessageBox::No, QMessageBox::NoIcon, Answer::kNo},
                           Case{16, QMessageBox::Ok, QMessageBox::Critical, Answer::kOk}}) {
    WhenOpen<QMessageBox>([&each](QMessageBox& box) {
      EXPECT_EQ(box.icon(), each.icon);
      ASSERT_NE(box.button(each.press), nullptr) << "style " << each.style;
      box.button(each.press)->click();
    });
    EXPECT_EQ(dialogs_.MessageBox("Text", each.style, "Title"), each.answer) << "style " << each.style;
  }
}

TEST_F(QtDialogsTest, TextIsPlainAndOfTheStationsCodePage) {
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("<b>Café</b>\nline two"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    box.reject();
  });
  EXPECT_EQ(dialogs_.MessageBox("<b>Caf\xE9</b>\nline two", 0, "T"), Answer::kOk)
      << "closing a box with one button answers it";
}

TEST_F(QtDialogsTest, InputBox_TakesWhatIsTypedOverAWholeAnswerAndBehindABeginning) {
  using Use = InputOffer::Use;
  const struct {
    InputOffer offer;
    const char *typed, *answer;
  } cases[] = {{{.text = "2026", .use = Use::kWhole, .limit = 4}, "1988", "1988"},
               {{.text = "2026", .use = Use::kWhole, .limit = 4}, "", "2026"},
               {{.text = "", .use = Use::kWhole, .limit = 4}, "20265", "2026"},
               {{.text = "caf\xE9", .use = Use::kWhole, .limit = 0}, "", "caf\xE9"},
               {{.text = "S", .use = Use::kBeginning, .limit = 0}, "1", "S1"}};
  for (const auto& [offer, typed, answer] : cases) {
    WhenOpen<QInputDialog>([typed = typed](QInputDialog& box) {
      QTimer::singleShot(0, &box, [&box, typed] {
        QTest::keyClicks(box.findChild<QLineEdit*>(), QString::fromLatin1(typed));
        box.accept();
      });
    });
    EXPECT_EQ(dialogs_.InputBox("Prompt", "T", offer), answer) << offer.text << " and " << typed;
  }
  WhenOpen<QInputDialog>([](QInputDialog& box) {
    box.setTextValue(QStringLiteral("Été"));
    box.reject();
  });
  EXPECT_EQ(dialogs_.InputBox("Prompt", "T", {}), "") << "cancelled";
}

TEST_F(QtDialogsTest, ProgramEndsWhileABoxIsOpen_TheEventIsLeft) {
  gate_.on_end = [this](int) { dialogs_.CloseAll(); };
  bool went_on = false;
  WhenOpen<QMessageBox>([this](QMessageBox&) { gate_.Enter([] { EndProgram(3); }); });
  gate_.Enter([this, &went_on] {
    dialogs_.MessageBox("Waiting", box_style::kOkCancel, "T");
    went_on = true;
  });
  EXPECT_FALSE(went_on) << "the step behind the box must not run in a program that has ended";
  EXPECT_EQ(gate_.exit_code(), 3);
}

}  // namespace
}  // namespace quixair::testing
