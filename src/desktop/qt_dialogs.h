#pragma once

// The boxes that an operator answers, as windows of the desktop. While one is open the event loop runs on,
// and with it the timers and the air. When the program ends meanwhile, the open boxes close and leave the
// event that asked for them.

#include <QPointer>
#include <vector>

#include "station/platform/dialogs.h"

class QDialog;
class QWidget;

namespace quixair {
class EventGate;
}

namespace quixair::desktop {

class QtDialogs : public Dialogs {
 public:
  /// Before the first box. The gate is made with a reference to this, so it cannot be handed over earlier.
  void Attach(EventGate& gate) { gate_ = &gate; }
  /// The window over which boxes open; none is the middle of the display.
  void set_parent(QWidget* parent) { parent_ = parent; }

  Answer MessageBox(std::string_view text, int style, std::string_view title) override;
  void NoticeBox(std::string_view text, int style, std::string_view title, int seconds) override;
  std::string InputBox(std::string_view prompt, std::string_view title, const InputOffer& offer) override;
  std::optional<RecordingFormat> FormatBox(const RecordingFormat& initial) override;

  /// Runs a window of the desktop's own as these boxes run.
  int Run(QDialog& box);
  /// The window that boxes open over; none while it is hidden.
  QWidget* Over() const;
  /// In the middle of a long step that no act of a person may disturb.
  void LetTimersRun() const;

  /// At the program's end.
  void CloseAll();

 private:
  EventGate* gate_ = nullptr;
  QPointer<QWidget> parent_;
  std::vector<QDialog*> open_;
};

}  // namespace quixair::desktop
