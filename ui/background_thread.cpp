// ui/background_thread.cpp - hands the work over, and abandons the one before it.
#include "ui/background_thread.h"

#include <system_error>
#include <utility>

namespace tallyhoop::ui {

BackgroundThread::~BackgroundThread() { replace({}); }

bool BackgroundThread::run(Slice slice, Failed failed)
{
    try {
        if (!m_thread.joinable())
            m_thread = std::jthread{[this](const std::stop_token& ended) { work(ended); }};
    } catch (const std::system_error&) {
        return false;
    }
    replace({std::move(slice), std::move(failed), std::stop_source{}});
    return true;
}

void BackgroundThread::abandon() { replace({}); }

void BackgroundThread::replace(Work next)
{
    {
        const std::lock_guard lock{m_mutex};
        m_abandonLast.request_stop();
        m_abandonLast = next.abandoned;
        // What waited for the thread is gone with `next`, outside of the lock.
        std::swap(m_next, next);
    }
    m_changed.notify_one();
}

void BackgroundThread::work(const std::stop_token& ended)
{
    while (true) {
        Work current;
        {
            std::unique_lock lock{m_mutex};
            if (!m_changed.wait(lock, ended, [this] { return static_cast<bool>(m_next.slice); }))
                return;
            current = std::exchange(m_next, {});
        }
        doAll(current);
    }
}

/// An exception that left the thread would end the program, and with it what is not saved yet.
void BackgroundThread::doAll(const Work& work)
{
    try {
        const Step step = [&work] { return !work.abandoned.stop_requested(); };
        while (step() && work.slice(step))
            ;
    } catch (...) {
        work.failed(std::current_exception());
    }
}

} // namespace tallyhoop::ui
