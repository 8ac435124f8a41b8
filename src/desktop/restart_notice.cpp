#include "desktop/restart_notice.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace quixair::desktop {

RestartChoice ShowRestartNotice(const QString& why, std::chrono::milliseconds pause,
                                const std::function<void(QWidget& window)>& on_look) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Quixair"), why);
  box.setTextFormat(Qt::PlainText);
  const QPushButton* const end = box.addButton(QStringLiteral("&End"), QMessageBox::DestructiveRole);
  QPushButton* const now = box.addButton(QStringLiteral("&Try Now"), QMessageBox::AcceptRole);
  box.setDefaultButton(now);
  box.setEscapeButton(now);
  QElapsedTimer since_start;
  since_start.start();
  QTimer look;
  const auto show_rest = [&] {
    const auto rest = pause - std::chrono::milliseconds(since_start.elapsed());
    box.setInformativeText(QStringLiteral("The next try is in %1 seconds.")
                               .arg(std::chrono::ceil<std::chrono::seconds>(rest).count()));
    on_look(box);
    if (rest <= std::chrono::milliseconds(0)) now->click();
  };
  QObject::connect(&look, &QTimer::timeout, &box, show_rest);
  look.start(200);
  show_rest();
  box.exec();
  return box.clickedButton() == end ? RestartChoice::kNoMore : RestartChoice::kTryAgain;
}

}  // namespace quixair::desktop
