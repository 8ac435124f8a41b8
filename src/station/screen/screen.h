#pragma once

// A screen: a window of the program as a plain class whose members are controls. It owns what it loads for as
// long as it is open; nothing outlives it but what it wrote. Both front ends reach its controls by name.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/platform.h"
#include "station/platform/screens.h"
#include "station/screen/controls.h"

namespace quixair {

/// How a front end follows a screen. All calls come on the user interface thread.
class ScreenObserver {
 public:
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
  virtual void TitleChanged(Screen& screen) = 0;
  virtual void VisibilityChanged(Screen& screen) = 0;
  /// Paint now what has changed: the screen is in the middle of a long step. No act of a person may come in
  /// meanwhile.
  virtual void Repaint(Screen& screen) = 0;

 protected:
  ~ScreenObserver() = default;
};

class Screen : public ControlOwner {
 public:
  Screen(const Platform& platform, std::string name, std::string title);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  /// What the caller sets before Load; the default takes the title.
  virtual void Prepare(const ScreenOpening& opening);
  /// Asked for again while it is open; the default leaves the screen as it is, with the files in its lists that
  /// came meanwhile.
  virtual void PrepareAgain(const ScreenOpening& opening);
  /// In the middle of what must not be broken off for another task.
  virtual bool IsBusy() const { return false; }
  /// Runs once, when the screen is made and shown.
  virtual void Load() {}
  /// A person closed the window by its frame; the default unloads.
  virtual void CloseWindow();
  /// Its run is on the air.
  virtual bool OnTheAir() const { return false; }
  /// Ends that run and takes the screen away.
  virtual void EndRunOnTheAir() {}
  /// The program ends with this screen open: what must not be lost is saved, with no box.
  virtual void ProgramEnds() {}

  const std::string& name() const { return name_; }
  const std::string& title() const { return title_; }
  void SetTitle(std::string title);
  bool visible() const { return visible_; }
  void Show(bool visible = true);
  void Hide() { Show(false); }

  const std::vector<Control*>& controls() const { return controls_; }
  /// By name, without regard to case; none when there is no such control.
  Control* FindControl(std::string_view name) const;
  Control* focused() const { return focused_; }

  /// Runs an event of this screen, or a part of one. While another screen's run is on the air, a fault without a
  /// rule, or an end of the program that this screen asks for, ends this screen alone; a fault that ends the run on
  /// the air shows its box no longer than a minute.
  void RunGuarded(const std::function<void()>& work);

  /// Lets a long step show its progress.
  void Repaint();
  void set_observer(ScreenObserver* observer) { observer_ = observer; }
  const Platform& platform() const { return platform_; }

  Screen& owner_screen() override { return *this; }
  Frame* owner_frame() override { return nullptr; }

 protected:
  /// Takes this screen away at the end of the running event.
  void Unload();
  /// The program ends when this screen asks for it, whatever is on the air.
  virtual bool IsWholeProgram() const { return false; }

  const Platform& platform_;

 private:
  bool EndsAlone() const;

  friend class Control;
  void Register(Control& control) { controls_.push_back(&control); }
  void ControlChanged(Control& control, Aspect aspect);

  std::string name_;
  std::string title_;
  bool visible_ = true;
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
  ScreenObserver* observer_ = nullptr;
};

}  // namespace quixair
