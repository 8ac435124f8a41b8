#include "desktop/views/transport_bar.h"

#include <QHBoxLayout>
#include <QLabel>

#include "desktop/views/transport_button.h"
#include "station/screen/controls.h"

namespace quixair::desktop {
namespace {

constexpr int kLookInterval = 200;  // milliseconds: an item's end is nobody's command

QString WordOf(ChannelMode mode) {
  switch (mode) {
    case ChannelMode::kNotOpen:
      return QStringLiteral("closed");
    case ChannelMode::kStopped:
      return QStringLiteral("stopped");
    case ChannelMode::kPlaying:
      return QStringLiteral("playing");
    case ChannelMode::kPaused:
      return QStringLiteral("paused");
  }
  return {};
}

}  // namespace

TransportBar::TransportBar(QWidget* parent)
    : QFrame(parent),
      state_(new QLabel(this)),
      play_(new TransportButton(TransportButton::Sign::kPlay, QStringLiteral("Play"), this)),
      pause_(new TransportButton(TransportButton::Sign::kPause, QStringLiteral("Pause"), this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  row->addWidget(play_);
  row->addWidget(pause_);
  row->addWidget(state_, 1);
  timer_.setInterval(kLookInterval);
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { ShowState(); });
}

void TransportBar::Follow(const MediaControl* channel) {
  channel_ = channel;
  if (channel_ == nullptr) {
    timer_.stop();
    return;
  }
  timer_.start();
  ShowState();
}

void TransportBar::ShowState() {
  if (channel_ == nullptr) return;
  const QString word = WordOf(channel_->Mode());
  if (state_->text() != word) state_->setText(word);
}

}  // namespace quixair::desktop
