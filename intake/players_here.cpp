// intake/players_here.cpp - records hold capitals, and no more than 33 characters of a file's name.
#include "intake/players_here.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "intake/addresses.h"
#include "intake/known_teams.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tallyhoop {

namespace {

/// @returns what a record's file name and the name of its file have in common: capitals, without the extension
std::string keyOf(std::string_view fileName)
{
    std::string key = upperCase(trimTrailingBlanks(fileName.substr(0, kFileNameWidth)));
    const std::string_view extension = file_name::kSelectionExtension;
    if (key.ends_with(extension))
        key.resize(key.size() - extension.size());
    return key;
}

/// Cut as the record is first: a character in its canonical form may be longer.
std::string nameKeyOf(std::string_view player) { return upperCase(canonicalOf(fitted(player, kNameWidth))); }

/// @returns the same for a file whose name does not fit into a record: then the player's name has to agree, too
std::string keyOf(std::string_view fileName, std::string_view player)
{
    return keyOf(fileName) + '\n' + nameKeyOf(player);
}

} // namespace

PlayersHere::PlayersHere(std::vector<PlayerRecord> records, const std::vector<NewPlayer>& selections)
    : m_records{std::move(records)}
{
    for (std::size_t i = 0; i < m_records.size(); ++i)
        index(i);
    std::set<std::string> counted; // one player's file may be there twice, in another case of its letters
    for (const NewPlayer& player : selections)
        if (counted.insert(upperCase(player.fileName)).second)
            ++m_selections[keyOf(player.fileName, player.name)];
}

void PlayersHere::index(std::size_t record)
{
    const PlayerRecord& indexed = m_records[record];
    const std::string whole = keyOf(indexed.fileName, indexed.name);
    m_byFile.emplace(keyOf(indexed.fileName), record);
    m_byFile.emplace(whole, record);
    m_byName.emplace(nameKeyOf(indexed.name), record);
    m_alike[whole].push_back(record);
}

bool PlayersHere::isCut(std::string_view fileName) { return fileName.size() > kFileNameWidth; }

const PlayerRecord* PlayersHere::find(const NewPlayer& player) const
{
    const auto found =
        m_byFile.find(isCut(player.fileName) ? keyOf(player.fileName, player.name) : keyOf(player.fileName));
    return found != m_byFile.end() ? &m_records[found->second] : nullptr;
}

std::string PlayersHere::addressesOf(const NewPlayer& player) const
{
    std::vector<std::string> addresses;
    const auto add = [&](const PlayerRecord& record) {
        if (std::string address = withoutOuterBlanks(record.email); !address.empty())
            addresses.push_back(std::move(address));
    };
    const PlayerRecord* const found = find(player);
    if (found != nullptr && !isCut(player.fileName))
        add(*found);
    else if (found != nullptr)
        for (const std::size_t record : m_alike.at(keyOf(player.fileName, player.name)))
            add(m_records[record]);
    return joined(addresses, "; ");
}

bool PlayersHere::isListed(const NewPlayer& player) const
{
    if (find(player) == nullptr)
        return false;
    if (!isCut(player.fileName))
        return true;
    const std::string key = keyOf(player.fileName, player.name);
    const auto selections = m_selections.find(key);
    return selections == m_selections.end() || m_alike.at(key).size() >= selections->second;
}

const PlayerRecord* PlayersHere::findName(std::string_view name) const
{
    const auto found = m_byName.find(nameKeyOf(name));
    return found != m_byName.end() ? &m_records[found->second] : nullptr;
}

bool PlayersHere::add(const NewPlayer& player)
{
    if (isListed(player))
        return false;
    m_records.push_back({player.name, upperCase(player.fileName), recordedAddress(player.email), {}});
    index(m_records.size() - 1);
    return true;
}

std::vector<PlayerRecord> PlayersHere::sorted() const
{
    std::vector<std::pair<std::string, const PlayerRecord*>> rows;
    rows.reserve(m_records.size());
    for (const PlayerRecord& record : m_records)
        rows.emplace_back(playerRow(record), &record);
    std::ranges::stable_sort(rows, FoldedLess{}, &std::pair<std::string, const PlayerRecord*>::first);
    std::vector<PlayerRecord> records;
    records.reserve(rows.size());
    for (const auto& [row, record] : rows)
        records.push_back(*record);
    return records;
}

std::string recordedAddress(std::string_view email)
{
    // A cut address is somebody else's.
    const bool fits = email.size() <= kEmailWidth && firstAddressIn(email) == email;
    return fits ? std::string{email} : std::string{};
}

} // namespace tallyhoop
