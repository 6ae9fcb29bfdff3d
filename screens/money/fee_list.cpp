// screens/money/fee_list.cpp - finds the players of the selections that are named in the file.
#include "screens/money/fee_list.h"

#include "base/windows1252.h"

#include <algorithm>
#include <optional>

namespace tallyhoop {

namespace {

std::optional<std::size_t> playerOf(std::string_view file, std::span<const Entry> players)
{
    auto found = std::ranges::find(players, file, &Entry::fileName);
    if (found == players.end())
        found = std::ranges::find_if(players, [&](const Entry& entry) { return equalFolded(entry.fileName, file); });
    return found == players.end() ? std::nullopt : std::optional{static_cast<std::size_t>(found - players.begin())};
}

} // namespace

FeeList::FeeList(std::span<const Entry> players, std::span<const std::string> paid) : m_hasPaid(players.size())
{
    for (const std::string& file : paid) {
        if (const std::optional<std::size_t> player = playerOf(file, players))
            m_hasPaid[*player] = true;
        else
            m_elsewhere.push_back(file);
    }
}

std::size_t FeeList::paid() const
{
    return static_cast<std::size_t>(std::count(m_hasPaid.begin(), m_hasPaid.end(), true));
}

std::vector<std::string> FeeList::filesOfPaid(std::span<const Entry> players) const
{
    std::vector<std::string> files;
    files.reserve(m_hasPaid.size() + m_elsewhere.size());
    for (std::size_t player = 0; player < m_hasPaid.size(); ++player)
        if (m_hasPaid[player])
            files.push_back(players[player].fileName);
    files.insert(files.end(), m_elsewhere.begin(), m_elsewhere.end());
    return files;
}

} // namespace tallyhoop
