#include "desktop/theme.h"

#include <QApplication>
#include <QSettings>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "desktop/desktop_style.h"
#include "desktop/style_sheet.h"

namespace quixair::desktop {
namespace {

constexpr const char* kThemeKey = "theme";
constexpr int kMiddleLightness = 128;

struct NamedColor {
  const char* name;
  const char* light;
  const char* dark;
};

constexpr std::array kColors = {
    NamedColor{"window", "#e9edf2", "#1a2028"},       NamedColor{"bar", "#f7f9fb", "#141a21"},
    NamedColor{"panel", "#f3f5f8", "#1f2731"},        NamedColor{"base", "#ffffff", "#11161c"},
    NamedColor{"text", "#16202b", "#e7ecf2"},         NamedColor{"muted", "#566474", "#98a6b6"},
    NamedColor{"faint", "#9aa6b3", "#5d6a79"},        NamedColor{"line", "#c2ccd7", "#36414e"},
    NamedColor{"strong_line", "#8493a4", "#56657a"},  NamedColor{"faint_line", "#d4dce4", "#2a333e"},
    NamedColor{"button", "#ffffff", "#29333f"},       NamedColor{"hover", "#dfe8f3", "#323e4c"},
    NamedColor{"pressed", "#c8d6e8", "#1b222b"},      NamedColor{"accent", "#1d5fbf", "#3d86e0"},
    NamedColor{"accent_hover", "#2a72da", "#5a9bea"}, NamedColor{"accent_text", "#ffffff", "#ffffff"},
    NamedColor{"focus", "#0b1c33", "#ffffff"},        NamedColor{"tip", "#ffffff", "#29333f"},
    NamedColor{"scroll", "#b4bfcb", "#46535f"},       NamedColor{"notice", "#fff6d6", "#3a3212"},
    NamedColor{"notice_text", "#4a3a00", "#ffe590"},  NamedColor{"notice_line", "#e3cc7a", "#6b5b1c"},
};

QColor ColorOf(Theme theme, std::string_view name) {
  const auto found = std::find_if(kColors.begin(), kColors.end(),
                                  [name](const NamedColor& color) { return color.name == name; });
  return QColor(QLatin1String(theme == Theme::kLight ? found->light : found->dark));
}

}  // namespace

QPalette PaletteOf(Theme theme) {
  constexpr std::array<std::pair<QPalette::ColorRole, const char*>, 14> kRoles = {{
      {QPalette::Window, "window"},
      {QPalette::WindowText, "text"},
      {QPalette::Base, "base"},
      {QPalette::AlternateBase, "panel"},
      {QPalette::Text, "text"},
      {QPalette::PlaceholderText, "muted"},
      {QPalette::Button, "button"},
      {QPalette::ButtonText, "text"},
      {QPalette::ToolTipBase, "tip"},
      {QPalette::ToolTipText, "text"},
      {QPalette::Highlight, "accent"},
      {QPalette::HighlightedText, "accent_text"},
      {QPalette::Link, "accent"},
      {QPalette::Mid, "line"},
  }};
  QPalette palette(ColorOf(theme, "button"), ColorOf(theme, "window"));
  for (const auto& [role, name] : kRoles) palette.setColor(role, ColorOf(theme, name));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, ColorOf(theme, "faint"));
  }
  return palette;
}

QString StyleSheetOf(Theme theme) {
  std::vector<NamedColor> colors(kColors.begin(), kColors.end());
  // Longer names first: "accent" is the beginning of "accent_text".
  std::sort(colors.begin(), colors.end(), [](const NamedColor& a, const NamedColor& b) {
    return std::string_view(a.name).size() > std::string_view(b.name).size();
  });
  QString sheet = QLatin1String(kStyleSheet);
  for (const NamedColor& color : colors) {
    sheet.replace(QLatin1Char('@') + QLatin1String(color.name),
                  QLatin1String(theme == Theme::kLight ? color.light : color.dark));
  }
  return sheet;
}

Theme ThemeOf(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kMiddleLightness ? Theme::kDark : Theme::kLight;
}

ThemeSwitch::ThemeSwitch(QApplication& application, const std::filesystem::path& settings_file)
    : application_(application),
      settings_file_(QString::fromStdString(settings_file.string())),
      theme_(ThemeOf(QApplication::palette())) {
  const QString kept =
      QSettings(settings_file_, QSettings::IniFormat).value(QLatin1String(kThemeKey)).toString();
  if (kept == QLatin1String("light")) theme_ = Theme::kLight;
  if (kept == QLatin1String("dark")) theme_ = Theme::kDark;
  QApplication::setStyle(new DesktopStyle);
  Apply();
}

void ThemeSwitch::Toggle() {
  theme_ = theme_ == Theme::kLight ? Theme::kDark : Theme::kLight;
  QSettings(settings_file_, QSettings::IniFormat)
      .setValue(QLatin1String(kThemeKey), QLatin1String(theme_ == Theme::kLight ? "light" : "dark"));
  Apply();
}

void ThemeSwitch::Apply() {
  QApplication::setPalette(PaletteOf(theme_));
  application_.setStyleSheet(StyleSheetOf(theme_));
}

}  // namespace quixair::desktop
