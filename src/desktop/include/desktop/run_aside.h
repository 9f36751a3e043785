#pragma once

#include "desktop/run_action.h"

namespace nimbrel {

/// Does `work` in a thread of its own and returns when it is done. Throws what the work throws. Meanwhile the windows
/// are drawn and timers run; what the user types and clicks waits, and the pointer shows so if it takes long.
void runAside(const Action& work);

}  // namespace nimbrel
