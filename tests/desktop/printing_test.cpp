#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <future>

#include "desktop/qt_printer.h"
#include "desktop/report_paper.h"
#include "desktop/report_preview.h"
#include "station/platform/event_gate.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using desktop::PrintersFound;
using desktop::ReportPreview;
using namespace std::chrono_literals;

const PrintersFound kTwoPrinters = {{QStringLiteral("Ink"), QStringLiteral("Laser")},
                                    QStringLiteral("Laser")};

QPageLayout Paper(QPageSize::PageSizeId id) {
  return QPageLayout(QPageSize(id), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                     QPageLayout::Millimeter);
}

/// The part of a painted page that bears ink, in points from the corner inside the margins.
QRectF InkOf(const PrintedPage& page, const QSizeF& area) {
  constexpr int kScale = 4;
  constexpr int kBeyond = 40;  // points painted beyond the area, to see what runs over
  QImage image((area.toSize() + QSize(kBeyond, kBeyond)) * kScale, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(kScale, kScale);
  desktop::PaintReportPage(painter, QRectF(QPointF(0, 0), area), page, desktop::ExtentOf({page}));
  painter.end();
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return QRectF(QPointF(ink.topLeft()) / kScale, QSizeF(ink.size()) / kScale);
}

TEST(ReportPaper, EveryPageLiesInsideTheMargins) {
  const PrintedPage full(60, std::string(80, 'W'));
  const PrintedPage wide(5, std::string(110, 'W'));
  const PrintedPage high(90, std::string(80, 'W'));
  for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::Letter, QPageSize::A5}) {
    const QSizeF area = Paper(id).paintRect(QPageLayout::Point).size();
    for (const PrintedPage& page : {full, wide, high}) {
      const QRectF ink = InkOf(page, area);
      EXPECT_LE(ink.right(), area.width()) << QPageSize::key(id).toStdString();
      EXPECT_LE(ink.bottom(), area.height()) << QPageSize::key(id).toStdString();
      EXPECT_TRUE(ink.right() > area.width() * 0.8 || ink.bottom() > area.height() * 0.8)
          << "needlessly small";
    }
  }
}

TEST(ReportPaper, LettersHaveOnePitch) {
  const QSizeF area(500, 700);
  const QRectF narrow = InkOf({"i" + std::string(40, ' ') + '|'}, area);
  const QRectF wide = InkOf({"W" + std::string(40, ' ') + '|'}, area);
  EXPECT_NEAR(narrow.right(), wide.right(), 0.3);
}

class Printing : public ::testing::Test {
 protected:
  Printing() { dialogs_.Attach(gate_); }
  static void WhenPreviewed(std::function<void(ReportPreview&)> act) {
    auto* look = new QTimer(qApp);
    look->start(5);
    QObject::connect(look, &QTimer::timeout, look, [look, act = std::move(act)] {
      auto* preview = dynamic_cast<ReportPreview*>(QApplication::activeModalWidget());
      if (preview == nullptr) return;
      look->deleteLater();
      act(*preview);
    });
  }
  static QPushButton& Named(QWidget& window, const char* name) {
    return *window.findChild<QPushButton*>(QLatin1String(name));
  }

  TemporaryFolder folder_;
  const std::vector<PrintedPage> pages_ = {{"first"}, {"second"}, {"third"}};
  desktop::QtDialogs dialogs_;
  EventGate gate_{dialogs_};
};

TEST_F(Printing, Preview_GoesFromPageToPage) {
  ReportPreview preview(pages_, QStringLiteral("List"), Paper(QPageSize::A4), kTwoPrinters, nullptr);
  const auto place = [&preview] { return preview.findChild<QLabel*>(QStringLiteral("place"))->text(); };
  EXPECT_FALSE(Named(preview, "previous").isEnabled());
  Named(preview, "next").click();
  Named(preview, "next").click();
  EXPECT_EQ(place(), QStringLiteral("Page 3 of 3"));
  EXPECT_FALSE(Named(preview, "next").isEnabled());
  Named(preview, "previous").click();
  EXPECT_EQ(place(), QStringLiteral("Page 2 of 3"));
  preview.findChild<QComboBox*>(QStringLiteral("paper"))->setCurrentIndex(1);
  EXPECT_EQ(preview.paper().pageSize().id(), QPageSize::Letter);
  EXPECT_EQ(preview.printer(), QStringLiteral("Laser"));
}

TEST_F(Printing, PreviewWithoutAPrinter_OffersThePdfOnly) {
  ReportPreview preview(pages_, QStringLiteral("List"), Paper(QPageSize::A4), PrintersFound{}, nullptr);
  EXPECT_FALSE(Named(preview, "print").isEnabled());
  Named(preview, "savePdf").click();
  EXPECT_EQ(preview.result(), ReportPreview::kSavePdf);
}

TEST_F(Printing, PreviewCancelled_PrintsNothing) {
  desktop::QtPrinter printer(dialogs_);
  WhenPreviewed([](ReportPreview& preview) { Named(preview, "cancel").click(); });
  EXPECT_EQ(printer.Print(pages_, "List"), PrintOutcome::kCancelled);
}

/// The timers must go on: what plays would end in silence.
TEST_F(Printing, PrintSystemThatHangs_IsToldAndHoldsUpNeitherTheTimersNorTheEnd) {
  const auto hangs = std::make_shared<std::promise<PrintersFound>>();
  {
    desktop::QtPrinter printer(dialogs_, desktop::PrintSystem([hangs] { return hangs->get_future().get(); }),
                               60ms);
    EXPECT_EQ(printer.DefaultName(), "");
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(5);
    QString told;
    WhenPreviewed([&told](ReportPreview& preview) {
      EXPECT_FALSE(Named(preview, "print").isEnabled());
      for (const QLabel* label : preview.findChildren<QLabel*>()) told += label->text();
      Named(preview, "cancel").click();
    });
    EXPECT_EQ(printer.Print(pages_, "List"), PrintOutcome::kCancelled);
    EXPECT_TRUE(told.contains(QStringLiteral("does not answer"))) << told.toStdString();
    EXPECT_GT(ticks, 2);
  }
  hangs->set_value({});
}

TEST_F(Printing, JobThatHangs_IsAFaultAndNothingElseIsAskedMeanwhile) {
  const auto hangs = std::make_shared<std::promise<bool>>();
  int searches = 0;
  desktop::PrintSystem system([&searches] {
    ++searches;
    return kTwoPrinters;
  });
  EXPECT_EQ(system.Find(5s, [] {})->default_name, QStringLiteral("Laser"));
  EXPECT_FALSE(system.Do([hangs] { return hangs->get_future().get(); }, 20ms, [] {}));
  EXPECT_FALSE(system.Do([] { return true; }, 5s, [] {}));
  EXPECT_FALSE(system.Find(5s, [] {}).has_value());
  EXPECT_EQ(searches, 1);
  hangs->set_value(true);
}

TEST_F(Printing, ProgramEndsWhileThePreviewIsOpen_TheEventIsLeft) {
  desktop::QtPrinter printer(dialogs_);
  gate_.on_end = [this](int) { dialogs_.CloseAll(); };
  bool went_on = false;
  WhenPreviewed([this](ReportPreview&) { gate_.Enter([] { EndProgram(3); }); });
  gate_.Enter([&] {
    printer.Print(pages_, "List");
    went_on = true;
  });
  EXPECT_FALSE(went_on);
}

TEST_F(Printing, PdfHasEveryPage_AndLetsTheTimersInBetween) {
  const std::filesystem::path file = folder_.path() / "list.pdf";
  int turns = 0;
  ASSERT_TRUE(desktop::WritePdf(QString::fromStdString(file.string()), pages_, QStringLiteral("List"),
                                Paper(QPageSize::Letter), [&turns] { ++turns; }));
  EXPECT_EQ(turns, 3);
  const std::string bytes = ReadHostFile(file);
  EXPECT_TRUE(bytes.starts_with("%PDF"));
  EXPECT_THAT(bytes, ::testing::HasSubstr("/Count 3"));
}

TEST_F(Printing, PdfThatCannotBeWritten_IsAFaultAndLeavesTheOldOne) {
  const std::filesystem::path file = folder_.path() / "none" / "list.pdf";
  EXPECT_FALSE(desktop::WritePdf(QString::fromStdString(file.string()), pages_, QStringLiteral("List"),
                                 Paper(QPageSize::A4), [] {}));
  const std::filesystem::path old = folder_.path() / "old.pdf";
  WriteHostFile(old, "the old one");
  EXPECT_THROW(desktop::WritePdf(QString::fromStdString(old.string()), pages_, QStringLiteral("List"),
                                 Paper(QPageSize::A4), [] { throw ProgramEnd{}; }),
               ProgramEnd);
  EXPECT_EQ(ReadHostFile(old), "the old one");
}

}  // namespace
}  // namespace quixair::testing
