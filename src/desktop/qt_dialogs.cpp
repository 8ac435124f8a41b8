#include "desktop/qt_dialogs.h"

#include <QInputDialog>
#include <QMessageBox>

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

}  // namespace

Answer QtDialogs::MessageBox(std::string_view text, int style, std::string_view title) {
  QMessageBox box(IconOf(style), ToQt(title), ToQt(text), ButtonsOf(style), Over());
  box.setTextFormat(Qt::PlainText);
  return AnswerOf(Run(box), style);
}

std::string QtDialogs::InputBox(std::string_view prompt, std::string_view title, std::string_view initial) {
  QInputDialog box(Over());
  box.setWindowTitle(ToQt(title));
  box.setLabelText(ToQt(prompt));
  box.setTextValue(ToQt(initial));
  return Run(box) == QDialog::Accepted ? FromQt(box.textValue()) : std::string();
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

QWidget* QtDialogs::Over() const {
  return parent_ != nullptr && parent_->isVisible() ? parent_.data() : nullptr;
}

}  // namespace quixair::desktop
