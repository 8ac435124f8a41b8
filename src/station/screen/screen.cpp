#include "station/screen/screen.h"

#include <utility>

#include "station/platform/text.h"

namespace quixair {

Screen::Screen(const Platform& platform, std::string name, std::string title)
    : platform_(platform), name_(std::move(name)), title_(std::move(title)) {}

void Screen::Prepare(const ScreenOpening& opening) {
  if (!opening.title.empty()) SetTitle(opening.title);
}

void Screen::CloseWindow() {
  Unload();
}

void Screen::Unload() {
  platform_.screens.Unload(*this);
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
