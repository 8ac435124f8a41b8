#include "desktop/views/stop_set_panel.h"

#include <QPainter>
#include <algorithm>

#include "desktop/station_text.h"
#include "desktop/views/fitted_text.h"
#include "desktop/views/item_progress.h"

namespace quixair::desktop {
namespace {

constexpr int kLooksPerSecond = 5;
constexpr int kCorner = 6;
constexpr int kWidestPlate = 260;
constexpr double kLargestPlan = 40;   // points
constexpr double kLargestFacts = 12;  // points
const QString kBetween = QStringLiteral("  ·  ");

struct Plate {
  QColor back;
  QColor text;
};

Plate PlateOf(StopSetState state) {
  switch (state) {
    case StopSetState::kNotChosen:
      return {QColor(0x1d, 0x6f, 0xd6), Qt::white};
    case StopSetState::kMissing:
    case StopSetState::kWrongDay:
      return {QColor(0xc6, 0x14, 0x14), Qt::white};
    case StopSetState::kDue:
      return {QColor(0xff, 0x8a, 0x1f), Qt::black};
    case StopSetState::kPlaying:
      return {QColor(0x14, 0x8f, 0x46), Qt::white};
    case StopSetState::kPaused:
      return {QColor(0xf5, 0xb8, 0x00), Qt::black};
    case StopSetState::kScanning:
    case StopSetState::kOff:
      break;
  }
  return {QColor(0x2c, 0x5a, 0x7d), Qt::white};
}

QStringList WordsOf(StopSetState state) {
  switch (state) {
    case StopSetState::kNotChosen:
      return {QStringLiteral("CHOOSE A"), QStringLiteral("TEMPLATE")};
    case StopSetState::kMissing:
      return {QStringLiteral("TEMPLATE"), QStringLiteral("MISSING")};
    case StopSetState::kWrongDay:
      return {QStringLiteral("WRONG"), QStringLiteral("DAY")};
    case StopSetState::kScanning:
      return {QStringLiteral("SCANNING")};
    case StopSetState::kDue:
      return {QStringLiteral("STOP SET"), QStringLiteral("DUE")};
    case StopSetState::kPlaying:
      return {QStringLiteral("STOP SET"), QStringLiteral("PLAYING")};
    case StopSetState::kPaused:
      return {QStringLiteral("PAUSED")};
    case StopSetState::kOff:
      break;
  }
  return {QStringLiteral("Stop sets off")};
}

QString PauseEnd(const StopSetStatus& status, bool item_open) {
  if (status.override_seconds) {
    return QStringLiteral("resumes in ") + MinutesAndSeconds(*status.override_seconds);
  }
  return item_open ? QStringLiteral("waits for Continue") : QStringLiteral("waits for Begin Next");
}

QString Away(int minutes) {
  if (minutes <= 0) return QStringLiteral("now");
  if (minutes < 60) return QStringLiteral("in %1 min").arg(minutes);
  const QString hours = QStringLiteral("in %1 h").arg(minutes / 60);
  return minutes % 60 == 0 ? hours : hours + QStringLiteral(" %1 min").arg(minutes % 60);
}

/// A template that is not in force today may hold times; none of them will be met.
bool IsInForce(StopSetState state) {
  return state == StopSetState::kScanning || state == StopSetState::kDue || state == StopSetState::kPlaying ||
         state == StopSetState::kPaused;
}

QString NextText(const StopSetStatus& status) {
  if (status.state == StopSetState::kNotChosen) return QStringLiteral("No template yet");
  if (!IsInForce(status.state)) return QStringLiteral("No sets today");
  if (status.set_count == 0) return QStringLiteral("No sets in template");
  if (status.next_time.empty()) return QStringLiteral("No more sets today");
  return QStringLiteral("Next ") + ToQt(status.next_time);
}

QString Facts(const StopSetStatus& status) {
  if (status.state == StopSetState::kNotChosen) return {};
  const QString name = ToQt(status.template_name);
  if (!IsInForce(status.state)) return name;
  const QString sets =
      status.set_count == 1 ? QStringLiteral("1 set") : QStringLiteral("%1 sets").arg(status.set_count);
  return name + kBetween + sets + kBetween + MinutesAndSeconds(status.total_seconds) +
         QStringLiteral(" in all");
}

QString Longest(const QStringList& lines) {
  return *std::max_element(lines.begin(), lines.end(),
                           [](const QString& a, const QString& b) { return a.size() < b.size(); });
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

StopSetTexts TextsOf(const StopSetStatus& status, bool item_open) {
  StopSetTexts texts;
  texts.state = WordsOf(status.state);
  if (status.state == StopSetState::kOff) return texts;
  if (status.state == StopSetState::kPaused) texts.detail = PauseEnd(status, item_open);
  texts.next = NextText(status);
  if (IsInForce(status.state) && !status.next_time.empty()) texts.away = Away(status.minutes_to_next);
  texts.facts = Facts(status);
  return texts;
}

StopSetPanel::StopSetPanel(QWidget* parent)
    : AirView(parent, kLooksPerSecond), texts_(TextsOf(StopSetStatus(), false)) {
  setAccessibleName(texts_.state.join(u' '));
}

void StopSetPanel::Look(OnAirScreen& screen) {
  const StopSetStatus status = screen.stop_set_status().value_or(StopSetStatus());
  const StopSetTexts now = TextsOf(status, screen.on_air_status().length_seconds > 0);
  if (status.state == state_ && now == texts_) return;
  state_ = status.state;
  texts_ = now;
  setAccessibleName(texts_.state.join(u' '));
  update();
}

void StopSetPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::AlternateBase));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  if (state_ == StopSetState::kOff) {
    const QRect place = rect().adjusted(12, 8, -12, -8);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.setFont(FittedFont(font(), texts_.state.front(), place.size(), kLargestFacts));
    painter.drawText(place, Qt::AlignCenter, texts_.state.front());
    return;
  }
  const int plate_width = std::min(width() * 4 / 10, kWidestPlate);
  PaintPlate(painter, QRect(0, 0, plate_width, height()));
  PaintPlan(painter, rect().adjusted(plate_width + 12, 4, -10, -4));
}

void StopSetPanel::PaintPlate(QPainter& painter, const QRect& plate) const {
  const Plate colors = PlateOf(state_);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.back);
  painter.drawRoundedRect(plate, kCorner, kCorner);
  painter.setPen(colors.text);
  QRect place = plate.adjusted(8, 4, -8, -4);
  if (!texts_.detail.isEmpty()) {
    const QRect lower = place.adjusted(0, place.height() * 3 / 5, 0, 0);
    place.setBottom(lower.top());
    painter.setFont(FittedFont(Bold(font()), texts_.detail, lower.size()));
    painter.drawText(lower, Qt::AlignCenter, texts_.detail);
  }
  const int lines = static_cast<int>(texts_.state.size());
  const QSize line(place.width(), place.height() / lines);
  painter.setFont(FittedFont(Bold(font()), Longest(texts_.state), line));
  for (int number = 0; number < lines; ++number) {
    painter.drawText(QRect(place.topLeft() + QPoint(0, number * line.height()), line), Qt::AlignCenter,
                     texts_.state[number]);
  }
}

void StopSetPanel::PaintPlan(QPainter& painter, const QRect& place) const {
  // The facts keep a quarter of the height, so that the large texts do not move when they come and go.
  const QRect lower = place.adjusted(0, place.height() * 3 / 4, 0, 0);
  QRect upper = place;
  upper.setBottom(lower.top());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.setFont(FittedFont(font(), texts_.facts, lower.size(), kLargestFacts));
  painter.drawText(lower, Qt::AlignLeft | Qt::AlignVCenter, texts_.facts);

  painter.setPen(palette().color(QPalette::WindowText));
  const int first_height = texts_.away.isEmpty() ? upper.height() : upper.height() * 3 / 5;
  const QRect first(upper.left(), upper.top(), upper.width(), first_height);
  painter.setFont(FittedFont(Bold(font()), texts_.next, first.size(), kLargestPlan));
  painter.drawText(first, Qt::AlignLeft | Qt::AlignVCenter, texts_.next);
  if (texts_.away.isEmpty()) return;
  const QRect second = upper.adjusted(0, first_height, 0, 0);
  painter.setFont(FittedFont(Bold(font()), texts_.away, second.size(), kLargestPlan));
  painter.drawText(second, Qt::AlignLeft | Qt::AlignVCenter, texts_.away);
}

}  // namespace quixair::desktop
