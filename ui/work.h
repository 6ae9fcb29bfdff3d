// ui/work.h - long work, step by step, that the person can cancel.
#pragma once

#include "ui/platform.h"

#include <cstddef>
#include <string>

namespace tallyhoop {

/// Long work under a busy pointer that the person can cancel. The pointer is normal again when it goes out of scope.
class Work
{
public:
    /// @param what  what is being done, for the progress window
    /// @param steps how many times step() will be called
    Work(ui::Progress& progress, const std::string& what, std::size_t steps);
    ~Work();
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    /// One more step is done. @returns false when the person has cancelled; so does every later step
    bool step();

    /// @returns the number of steps done
    int done() const { return m_done; }

    bool cancelled() const { return m_cancelled; }

private:
    ui::Progress& m_progress;
    int m_done = 0;
    bool m_cancelled = false;
};

} // namespace tallyhoop
