#include "desktop/qt_dialogs.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "desktop/binder.h"
#include "desktop/station_text.h"
#include "station/platform/event_gate.h"

namespace quixair::desktop {
namespace {

QMessageBox::StandardButtons ButtonsOf(int style) {
  switch (style & box_style::kButtonMask) {
    case box_style::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case box_style::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case box_style::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOf(int style) {
  switch (style & box_style::kIconMask) {
    case box_style::kCritical:
      return QMessageBox::Critical;
    case box_style::kQuestion:
      return QMessageBox::Question;
    case box_style::kExclamation:
      return QMessageBox::Warning;
    case box_style::kInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

Answer AnswerOf(int button, int style) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    case QMessageBox::Cancel:
      return Answer::kCancel;
    default:
      break;
  }
  // A box with the one button is answered by closing it too.
  return button == QMessageBox::Ok || (style & box_style::kButtonMask) == box_style::kOk ? Answer::kOk
                                                                                         : Answer::kCancel;
}

void GoBehindText(QLineEdit& line) {
  line.deselect();
  line.end(false);
}

QComboBox* AddChoice(QFormLayout& form, const char* caption, const std::vector<int>& values, int chosen,
                     const char* unit) {
  auto* box = new QComboBox;
  for (const int value : values) box->addItem(QString::number(value) + QLatin1String(unit), value);
  box->setCurrentIndex(box->findData(chosen));
  form.addRow(QLatin1String(caption), box);
  return box;
}

}  // namespace

Answer QtDialogs::MessageBox(std::string_view text, int style, std::string_view title) {
  QMessageBox box(IconOf(style), ToQt(title), ToQt(text), ButtonsOf(style), Over());
  box.setTextFormat(Qt::PlainText);
  return AnswerOf(Run(box), style);
}

void QtDialogs::NoticeBox(std::string_view text, int style, std::string_view title, int seconds) {
  QMessageBox box(IconOf(style), ToQt(title), ToQt(text), QMessageBox::Ok, Over());
  box.setTextFormat(Qt::PlainText);
  QTimer second;
  auto count_down = [&box, left = seconds]() mutable {
    box.button(QMessageBox::Ok)->setText(QStringLiteral("OK (%1)").arg(left));
    if (left-- == 0) box.accept();
  };
  QObject::connect(&second, &QTimer::timeout, &box, count_down);
  count_down();
  second.start(std::chrono::seconds(1));
  Run(box);
}

std::string QtDialogs::InputBox(std::string_view prompt, std::string_view title, const InputOffer& offer) {
  QInputDialog box(Over());
  box.setWindowTitle(ToQt(title));
  box.setLabelText(ToQt(prompt));
  box.setTextValue(ToQt(offer.text));
  auto* line = box.findChild<QLineEdit*>();
  if (offer.limit > 0) line->setMaxLength(offer.limit);
  if (offer.use == InputOffer::Use::kBeginning) QTimer::singleShot(0, line, [line] { GoBehindText(*line); });
  return Run(box) == QDialog::Accepted ? FromQt(box.textValue()) : std::string();
}

std::optional<RecordingFormat> QtDialogs::FormatBox(const RecordingFormat& initial) {
  QDialog box(Over());
  box.setWindowTitle(QStringLiteral("Recording Format"));
  auto* form = new QFormLayout(&box);
  auto* rate = AddChoice(*form, "&Rate:", RecordingRates(), initial.rate, " Hz");
  auto* bits = AddChoice(*form, "&Sample:", RecordingBits(), initial.bits, " bits");
  auto* channels = AddChoice(*form, "&Channels:", {1, 2}, initial.channels, {});
  channels->setItemText(0, QStringLiteral("Mono"));
  channels->setItemText(1, QStringLiteral("Stereo"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  form->addRow(buttons);
  if (Run(box) != QDialog::Accepted) return std::nullopt;
  return RecordingFormat{rate->currentData().toInt(), bits->currentData().toInt(),
                         channels->currentData().toInt()};
}

void QtDialogs::CloseAll() {
  for (QDialog* box : open_) box->done(QDialog::Rejected);
}

int QtDialogs::Run(QDialog& box) {
  open_.push_back(&box);
  const int result = box.exec();
  std::erase(open_, &box);
  if (gate_ != nullptr) gate_->LeaveIfEnded();
  return result;
}

void QtDialogs::LetTimersRun() const {
  LetEventsIn();
  if (gate_ != nullptr) gate_->LeaveIfEnded();
}

QWidget* QtDialogs::Over() const {
  return parent_ != nullptr && parent_->isVisible() ? parent_.data() : nullptr;
}

}  // namespace quixair::desktop
