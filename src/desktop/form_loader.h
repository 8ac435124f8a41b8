#pragma once

// Loads the forms that are built into the program and lays them out as widgets. The custom widgets that forms
// may name are known here and nowhere else.

#include <QWidget>
#include <memory>
#include <string_view>

namespace quixair::desktop {

/// The form of a screen; none when the program holds none for it, or one that does not load.
std::unique_ptr<QWidget> LoadForm(std::string_view screen_name);

}  // namespace quixair::desktop
