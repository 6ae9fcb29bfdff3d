// pool/team_names.cpp - names are few: a plain search finds them.
#include "pool/team_names.h"

#include <algorithm>

namespace tallyhoop {

TeamNumber TeamNames::numberOf(std::string_view name) const
{
    if (name.empty())
        return kNoTeam;
    const auto found = std::find(m_names.begin() + 1, m_names.end(), name);
    return found == m_names.end() ? kNoTeam : static_cast<TeamNumber>(found - m_names.begin());
}

TeamNumber TeamNames::add(std::string_view name)
{
    if (name.empty())
        return kNoTeam;
    if (const TeamNumber known = numberOf(name); known != kNoTeam)
        return known;
    m_names.emplace_back(name);
    return static_cast<TeamNumber>(size());
}

} // namespace tallyhoop
