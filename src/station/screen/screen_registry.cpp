#include "station/screen/screen_registry.h"

#include <algorithm>
#include <stdexcept>

#include "station/platform/event_gate.h"
#include "station/screen/recorder_control.h"

namespace quixair {

ScreenRegistry::~ScreenRegistry() {
  CloseAll();
}

void ScreenRegistry::Open(std::string_view name, const ScreenOpening& opening) {
  if (Screen* screen = Find(name)) {
    screen->PrepareAgain(opening);
    if (Find(name) != screen) return;  // it saw that it has no reason to stay
    screen->Show();
    if (observer_ != nullptr) observer_->ScreenActivated(*screen);
    return;
  }
  const auto entry = catalogue_.find(name);
  if (entry == catalogue_.end()) throw std::out_of_range("no such screen: " + std::string(name));
  std::unique_ptr<Screen> made = entry->second(*platform_);
  Screen& screen = *made;
  screen.Prepare(opening);
  open_.push_back(std::move(made));
  if (observer_ != nullptr) observer_->ScreenOpened(screen);
  screen.RunGuarded([&screen] { screen.Load(); });
}

void ScreenRegistry::Unload(Screen& screen) {
  const auto found =
      std::find_if(open_.begin(), open_.end(), [&](const auto& held) { return held.get() == &screen; });
  if (found == open_.end()) return;
  screen.Hide();
  for (Control* control : screen.controls()) {
    if (control->kind() == ControlKind::kTimer) static_cast<Timer*>(control)->SetEnabled(false);
    if (control->kind() == ControlKind::kRecorder) static_cast<WaveRecorder*>(control)->Leave();
  }
  unloaded_.push_back(std::move(*found));
  open_.erase(found);
  if (observer_ != nullptr) observer_->ScreenClosed(screen);
  screen.set_observer(nullptr);
  platform_->gate.WhenIdle([this] { unloaded_.clear(); });
}

Screen* ScreenRegistry::Find(std::string_view name) {
  for (const auto& screen : open_) {
    if (EqualsIgnoringCase(screen->name(), name)) return screen.get();
  }
  return nullptr;
}

Screen* ScreenRegistry::OnTheAir() {
  for (const auto& screen : open_) {
    if (screen->OnTheAir()) return screen.get();
  }
  return nullptr;
}

std::vector<Screen*> ScreenRegistry::OpenScreens() const {
  std::vector<Screen*> screens;
  for (const auto& screen : open_) screens.push_back(screen.get());
  return screens;
}

void ScreenRegistry::ProgramEnds() {
  for (const auto& screen : open_) screen->ProgramEnds();
}

void ScreenRegistry::CloseAll() {
  while (!open_.empty()) {
    if (observer_ != nullptr) observer_->ScreenClosed(*open_.back());
    open_.back()->set_observer(nullptr);
    open_.pop_back();
  }
  unloaded_.clear();
}

}  // namespace quixair
