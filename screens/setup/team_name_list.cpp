// screens/setup/team_name_list.cpp - a changed name keeps its row; typed names wait for the save.
#include "screens/setup/team_name_list.h"

#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>

namespace tallyhoop {

TeamNameList::TeamNameList(std::span<const std::string> names)
{
    for (const std::string& name : names) {
        if (name.empty())
            break;
        m_rows.push_back(name);
    }
    std::ranges::stable_sort(m_rows, FoldedLess{}); // at once: sorting each name in would take minutes for a long list
}

std::size_t TeamNameList::add(const std::string& name)
{
    m_isChanged = true;
    // Next to an equal name wherever that is: a changed name keeps its row, which can mislead the search for the
    // sorted place, and only adjacent doubles are left out of the file.
    const auto same = std::ranges::find(m_rows, name);
    if (same == m_rows.end())
        return insertSorted(m_rows, name);
    const auto row = same - m_rows.begin(); // before the rows grow, which may move them all
    m_rows.insert(same, name);
    return static_cast<std::size_t>(row);
}

void TeamNameList::change(std::size_t row, const std::string& name)
{
    m_rows.at(row) = name;
    m_isChanged = true;
}

void TeamNameList::remove(std::size_t row)
{
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row));
    m_isChanged = true;
}

void TeamNameList::addTyped(const std::string& name)
{
    if (name.empty() || std::ranges::find(m_typed, name) != m_typed.end())
        return;
    m_typed.push_back(name);
    m_isChanged = true;
}

TeamNameList TeamNameList::withTypedNames() const
{
    TeamNameList list = *this;
    for (const std::string& name : m_typed)
        list.add(name);
    list.forgetChanges();
    return list;
}

void TeamNameList::forgetChanges()
{
    m_typed.clear();
    m_isChanged = false;
}

bool TeamNameList::contains(const std::string& name) const { return std::ranges::find(m_rows, name) != m_rows.end(); }

std::string TeamNameList::spellingOf(const std::string& name) const
{
    const auto at = std::ranges::find_if(m_rows, [&](const std::string& row) { return equalFolded(row, name); });
    return at == m_rows.end() ? std::string{} : *at;
}

} // namespace tallyhoop
