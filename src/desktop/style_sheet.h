#pragma once

// The text of the program's one style sheet. Words that start with "@" are colours of the theme, filled in by
// theme.cpp.

namespace quixair::desktop {

extern const char* const kStyleSheet;

}  // namespace quixair::desktop
