#pragma once

// The screens that are open, and the catalogue of those that can be. It makes a screen by its name, tells the
// front end, loads it, and destroys an unloaded one when no event is running.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "station/platform/platform.h"
#include "station/platform/screens.h"
#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair {

/// How a front end follows the opening and closing of screens.
class ScreensObserver {
 public:
  /// The screen is made and prepared, and about to load.
  virtual void ScreenOpened(Screen& screen) = 0;
  /// It is about to be destroyed.
  virtual void ScreenClosed(Screen& screen) = 0;
  /// It was open already and should come to the front.
  virtual void ScreenActivated(Screen& screen) = 0;

 protected:
  ~ScreensObserver() = default;
};

struct IgnoringCase {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return LessIgnoringCase(a, b); }
};

class ScreenRegistry : public Screens {
 public:
  using Factory = std::function<std::unique_ptr<Screen>(const Platform&)>;
  using Catalogue = std::map<std::string, Factory, IgnoringCase>;

  explicit ScreenRegistry(Catalogue catalogue) : catalogue_(std::move(catalogue)) {}
  ~ScreenRegistry() override;
  ScreenRegistry(const ScreenRegistry&) = delete;
  ScreenRegistry& operator=(const ScreenRegistry&) = delete;

  /// Before the first Open; `platform` outlives this.
  void Attach(const Platform& platform) { platform_ = &platform; }
  void set_observer(ScreensObserver* observer) { observer_ = observer; }

  void Open(std::string_view name, const ScreenOpening& opening = {}) override;
  void Unload(Screen& screen) override;
  Screen* Find(std::string_view name) override;
  Screen* OnTheAir() override;

  /// In the order of their opening.
  std::vector<Screen*> OpenScreens() const;
  const Catalogue& catalogue() const { return catalogue_; }
  /// Tells every screen that the program ends.
  void ProgramEnds();
  /// Takes every screen away without an event of theirs: the program is gone.
  void CloseAll();

 private:
  Catalogue catalogue_;
  const Platform* platform_ = nullptr;
  ScreensObserver* observer_ = nullptr;
  std::vector<std::unique_ptr<Screen>> open_;
  std::vector<std::unique_ptr<Screen>> unloaded_;
};

}  // namespace quixair
