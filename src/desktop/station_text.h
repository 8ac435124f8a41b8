#pragma once

// Texts of the station as the toolkit wants them, and back: the only place where the desktop leaves the
// station's code page. Also how names and captions of controls appear in forms.

#include <QString>
#include <string>
#include <string_view>

namespace quixair::desktop {

QString ToQt(std::string_view code_page_text);
/// Characters outside the code page become "?".
std::string FromQt(const QString& text);

/// A text whose blanks at the ends only place it on its line.
QString Trimmed(std::string_view code_page_text);

/// Captions of several lines: a run of blanks inside stands for a line break.
QString WithLineBreaks(std::string_view caption);

/// The object name of a control's widget: "CurrLabel(0)" is "CurrLabel_0".
QString WidgetName(std::string_view control_name);

}  // namespace quixair::desktop
