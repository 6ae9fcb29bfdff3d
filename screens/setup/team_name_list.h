// screens/setup/team_name_list.h - the team names that can be picked, and what the person has changed about them.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// Names are kept exactly as typed. Rows are in ascending case-insensitive order, but a changed name keeps its row.
class TeamNameList
{
public:
    TeamNameList() = default;

    /// @param names in any order; an empty one ends the list
    explicit TeamNameList(std::span<const std::string> names);

    const std::vector<std::string>& rows() const { return m_rows; }

    /// Whether a name was added, changed, removed or typed that no file holds yet.
    bool isChanged() const { return m_isChanged; }

    /// @returns the row that the name has got
    std::size_t add(const std::string& name);
    void change(std::size_t row, const std::string& name);
    void remove(std::size_t row);

    /// Remembers a name that was typed freely, for withTypedNames(). Nothing happens for an empty one, and for one that
    /// was typed before; whether a row has it is not asked.
    void addTyped(const std::string& name);

    /// @returns the rows and the typed names in one list without changes: what a save writes
    TeamNameList withTypedNames() const;

    /// Forgets the typed names; the rows stay, and count as unchanged from now on.
    void forgetChanges();

    /// Whether a row holds exactly this name.
    bool contains(const std::string& name) const;

    /// @returns the list's own spelling of a name typed in any case, empty when the list lacks it
    std::string spellingOf(const std::string& name) const;

private:
    std::vector<std::string> m_rows;
    std::vector<std::string> m_typed; ///< in the order typed
    bool m_isChanged = false;
};

} // namespace tallyhoop
