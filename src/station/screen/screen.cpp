#include "station/screen/screen.h"

#include <utility>

#include "station/platform/dialogs.h"
#include "station/platform/event_gate.h"
#include "station/platform/text.h"

namespace quixair {

Screen::Screen(const Platform& platform, std::string name, std::string title)
    : platform_(platform), name_(std::move(name)), title_(std::move(title)) {}

void Screen::Prepare(const ScreenOpening& opening) {
  if (!opening.title.empty()) SetTitle(opening.title);
}

void Screen::PrepareAgain(const ScreenOpening&) {
  for (Control* control : controls_) {
    if (control->kind() == ControlKind::kFileListBox) static_cast<FileListBox*>(control)->CatchUp();
  }
}

void Screen::CloseWindow() {
  Unload();
}

void Screen::Unload() {
  platform_.screens.Unload(*this);
}

void Screen::RunGuarded(const std::function<void()>& work) {
  constexpr int kSecondsToAnswer = 60;
  constexpr int kFaultBox = box_style::kOk + box_style::kCritical;
  try {
    work();
  } catch (const UnhandledRunTimeError& fault) {
    const bool alone = EndsAlone();
    if (!alone && !OnTheAir()) throw;
    platform_.dialogs.NoticeBox(FaultText(fault), kFaultBox, "Quixair", kSecondsToAnswer);
    if (!alone) EndProgram(1);
    Unload();
  } catch (const ProgramEnd&) {
    if (platform_.gate.ended() || !EndsAlone()) throw;
    Unload();
  }
}

/// The air goes on whatever happens in a screen beside it.
bool Screen::EndsAlone() const {
  const Screen* on_air = platform_.screens.OnTheAir();
  return on_air != nullptr && on_air != this && !IsWholeProgram();
}

void Screen::SetTitle(std::string title) {
  title_ = std::move(title);
  if (observer_ != nullptr) observer_->TitleChanged(*this);
}

void Screen::Show(bool visible) {
  visible_ = visible;
  if (observer_ != nullptr) observer_->VisibilityChanged(*this);
}

Control* Screen::FindControl(std::string_view name) const {
  for (Control* control : controls_) {
    if (EqualsIgnoringCase(control->name(), name)) return control;
  }
  return nullptr;
}

void Screen::Repaint() {
  if (observer_ != nullptr) observer_->Repaint(*this);
}

void Screen::ControlChanged(Control& control, Aspect aspect) {
  if (aspect == Aspect::kFocus) focused_ = &control;
  if (observer_ != nullptr) observer_->ControlChanged(control, aspect);
}

}  // namespace quixair
