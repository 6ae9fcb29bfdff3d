// screens/money/fee_list.h - who has paid the entry fee.
#pragma once

#include "pool/entry.h"
#include "pool/prizes/money.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// A tick for each player. Who has paid and is not in the folder now, because the selection was put away, stays known.
class FeeList
{
public:
    FeeList() = default;

    /// @param paid names of selections, matched exactly, or else in any case
    FeeList(std::span<const Entry> players, std::span<const std::string> paid);

    std::size_t players() const { return m_hasPaid.size(); }
    std::size_t paid() const;
    bool hasPaid(std::size_t player) const { return m_hasPaid.at(player); }
    void setPaid(std::size_t player, bool hasPaid) { m_hasPaid.at(player) = hasPaid; }
    void setAll(bool hasPaid) { m_hasPaid.assign(m_hasPaid.size(), hasPaid); }

    /// @param players those of the constructor
    /// @returns the names of the selections of all who have paid
    std::vector<std::string> filesOfPaid(std::span<const Entry> players) const;

private:
    std::vector<bool> m_hasPaid;
    std::vector<std::string> m_elsewhere; ///< who have paid and are not among the players
};

} // namespace tallyhoop
