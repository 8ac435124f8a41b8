#pragma once

// The program's mark, for its windows and the task bar: drawn, so that it is sharp in every size.

#include <QIcon>

namespace quixair::desktop {

QIcon ProgramIcon();

}  // namespace quixair::desktop
