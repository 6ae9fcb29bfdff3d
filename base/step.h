// base/step.h - how long work lets somebody watch and stop it.
#pragma once

#include <functional>

namespace tallyhoop {

/// Called after each step of long work. @returns false when the work is to stop
using Step = std::function<bool()>;

inline bool goOn() { return true; }

} // namespace tallyhoop
