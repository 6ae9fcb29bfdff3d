// pool/outlook/worked_out.cpp - which results something is kept of.
#include "pool/outlook/worked_out.h"

namespace tallyhoop {

const WorkedOut& KeptOutlooks::turnTo(const Bracket& results)
{
    if (results == m_entered)
        return m_ofEntered;
    if (!(results == m_supposed)) {
        m_ofSupposed = {};
        m_supposed = results;
    }
    return m_ofSupposed;
}

void KeptOutlooks::keep(const Bracket& results, WorkedOut found)
{
    if (results == m_entered)
        m_ofEntered = std::move(found);
    else if (results == m_supposed)
        m_ofSupposed = std::move(found);
}

} // namespace tallyhoop
