#pragma once

// The looks of the program: one style, two palettes, one style sheet for both. Forms say what a widget is for
// by a "role" property; what a role looks like is decided here. The operator's choice is kept in desktop.conf
// in the user's configuration folder; until there is one, the desktop's own palette decides.

#include <QPalette>
#include <QString>
#include <filesystem>
#include <optional>

class QApplication;

namespace quixair::desktop {

enum class Theme { kLight, kDark };

QPalette PaletteOf(Theme theme);
QString StyleSheetOf(Theme theme);
/// The theme nearest to a palette of the desktop.
Theme ThemeOf(const QPalette& palette);

class ThemeSwitch {
 public:
  /// Takes the kept choice, or the desktop's.
  ThemeSwitch(QApplication& application, const std::filesystem::path& settings_file);

  Theme theme() const { return theme_; }
  /// Changes to the other theme and keeps it.
  void Toggle();

 private:
  void Apply();

  QApplication& application_;
  QString settings_file_;
  Theme theme_;
};

}  // namespace quixair::desktop
