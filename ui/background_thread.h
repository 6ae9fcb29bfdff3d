// ui/background_thread.h - work in the background, in a thread of its own.
#pragma once

#include "ui/background.h"

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

namespace tallyhoop::ui {

/// One thread for all that is run after one another; it begins with the first work, and waits between two.
class BackgroundThread : public Background
{
public:
    BackgroundThread() = default;
    BackgroundThread(const BackgroundThread&) = delete;
    BackgroundThread& operator=(const BackgroundThread&) = delete;

    /// Waits for the end of the slice that is running, which is abandoned.
    ~BackgroundThread() override;

    bool run(Slice slice, Failed failed) override;
    void abandon() override;

private:
    /// A piece of work, and what ends it.
    struct Work {
        Slice slice; ///< empty = none
        Failed failed;
        std::stop_source abandoned{std::nostopstate}; ///< none where there is no slice: that takes no memory
    };

    void replace(Work next);
    void work(const std::stop_token& ended);
    static void doAll(const Work& work);

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    Work m_next;                                      ///< that waits for the thread
    std::stop_source m_abandonLast{std::nostopstate}; ///< of the work that was run last
    std::jthread m_thread;                            ///< last: it ends before the rest is gone
};

} // namespace tallyhoop::ui
