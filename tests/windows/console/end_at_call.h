// tests/windows/console/end_at_call.h - the end of the program at a chosen call of the system.
#pragma once

namespace tallyhoop::test {

inline constexpr int kEndedAtCall = 99; // the exit status then

/// From now on calls about files are counted, and this one (the first is 1) is the last; one that writes is left in the
/// middle. The program ends at once, as by the task manager. On other systems than Windows nothing is counted.
void endAtCall(int call);

} // namespace tallyhoop::test
