#pragma once

// The words in which the recording screens tell a fault of a data file: the same for all kinds but for one
// name.

#include <string_view>

#include "station/platform/dialogs.h"

namespace quixair {

/// What comes of a fault that has no words of its own, once its box was answered. Where it ends the program,
/// that is wanted.
enum class AbnormalFault { kReturns, kEndsProgram };

/// Of a read or a write. `missing` is the name that a file not found is told by; `software` stands in the words
/// of a missing folder.
void TellRecordFault(Dialogs& dialogs, const Status& fault, std::string_view missing,
                     std::string_view software, AbnormalFault abnormal);

}  // namespace quixair
