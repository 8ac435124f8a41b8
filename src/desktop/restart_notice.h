#pragma once

// What stands on the screen while the supervisor waits before it starts the program once more: why, for how long still,
// and the operator's two ways out. It is all that runs meanwhile.

#include <QString>
#include <QWidget>
#include <chrono>
#include <functional>

namespace quixair::desktop {

enum class RestartChoice { kTryAgain, kNoMore };

/// Returns when the pause is over or the operator has chosen. `on_look` is called several times a second, with the
/// window.
RestartChoice ShowRestartNotice(const QString& why, std::chrono::milliseconds pause,
                                const std::function<void(QWidget& window)>& on_look);

}  // namespace quixair::desktop
