#include "desktop/station_text.h"

#include <QRegularExpression>

#include "station/platform/text.h"

namespace quixair::desktop {

QString ToQt(std::string_view code_page_text) {
  return QString::fromStdString(ToUtf8(code_page_text));
}

std::string FromQt(const QString& text) {
  return FromUtf8(text.toStdString());
}

QString Trimmed(std::string_view code_page_text) {
  return ToQt(code_page_text).trimmed();
}

QString WithLineBreaks(std::string_view caption) {
  static const QRegularExpression run_of_blanks(QStringLiteral(" {3,}"));
  return Trimmed(caption).replace(run_of_blanks, QStringLiteral("\n"));
}

QString WidgetName(std::string_view control_name) {
  QString name = ToQt(control_name);
  name.remove(u')');
  return name.replace(u'(', u'_');
}

}  // namespace quixair::desktop
