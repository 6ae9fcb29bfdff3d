// ui/work.cpp - counts the steps and remembers a cancel.
#include "ui/work.h"

namespace tallyhoop {

Work::Work(ui::Progress& progress, const std::string& what, std::size_t steps) : m_progress{progress}
{
    m_progress.begin(what, static_cast<int>(steps));
}

Work::~Work() { m_progress.end(); }

bool Work::step()
{
    m_cancelled = m_cancelled || !m_progress.advance(++m_done);
    return !m_cancelled;
}

} // namespace tallyhoop
