// ui/background.h - long work that goes on in the background.
#pragma once

#include "base/step.h"

#include <exception>
#include <functional>

namespace tallyhoop::ui {

/// Does one piece of work at a time, in slices.
class Background
{
public:
    /// Does some milliseconds of the work. Shares nothing with its maker but what it guards itself.
    /// @param step says in between whether to go on; after a false what the slice has found is not wanted any longer
    /// @returns whether there is more to do
    using Slice = std::function<bool(const Step& step)>;

    /// Takes what a slice has thrown, in the thread of the slice. Throws nothing itself: memory may be short.
    using Failed = std::function<void(const std::exception_ptr& trouble)>;

    virtual ~Background() = default;

    /// Calls a slice again and again until it returns false. What ran before is abandoned: its Step says so, it is not
    /// called again, and it has ended before the new slice begins. Nobody waits here for any of that.
    /// @param failed called when a slice throws, which is not called again then
    /// @returns false when the system has nothing that could do the work now
    virtual bool run(Slice slice, Failed failed) = 0;

    /// Abandons what runs.
    virtual void abandon() = 0;
};

} // namespace tallyhoop::ui
