#pragma once

// The small transport bar of one channel: its state in a word, Play and Pause. It is the widget of a
// MediaControl.

#include <QFrame>
#include <QTimer>
#include <functional>

class QLabel;
class QToolButton;

namespace quixair {
class MediaControl;
}

namespace quixair::desktop {

class TransportBar : public QFrame {
 public:
  explicit TransportBar(QWidget* parent = nullptr);
  /// None when the channel is about to go.
  void Follow(const MediaControl* channel);
  void ShowState();

  QToolButton& play_button() { return *play_; }
  QToolButton& pause_button() { return *pause_; }

 private:
  const MediaControl* channel_ = nullptr;
  QLabel* state_;
  QToolButton* play_;
  QToolButton* pause_;
  QTimer timer_;
};

}  // namespace quixair::desktop
