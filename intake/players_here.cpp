// intake/players_here.cpp - records hold capitals, and no more than 33 characters of a file's name.
#include "intake/players_here.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "intake/addresses.h"

#include <algorithm>
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

} // namespace

PlayersHere::PlayersHere(std::vector<PlayerRecord> records) : m_records{std::move(records)}
{
    for (std::size_t i = 0; i < m_records.size(); ++i)
        m_byFile.emplace(keyOf(m_records[i].fileName), i);
}

const PlayerRecord* PlayersHere::find(const NewPlayer& player) const
{
    const bool isCut = player.fileName.size() > kFileNameWidth;
    const auto [begin, end] = m_byFile.equal_range(keyOf(player.fileName));
    for (auto found = begin; found != end; ++found) {
        const PlayerRecord& record = m_records[found->second];
        if (!isCut || equalFolded(fitted(record.name, kNameWidth), fitted(player.name, kNameWidth)))
            return &record;
    }
    return nullptr;
}

bool PlayersHere::add(const NewPlayer& player)
{
    if (find(player) != nullptr)
        return false;
    m_byFile.emplace(keyOf(player.fileName), m_records.size());
    m_records.push_back({player.name, upperCase(player.fileName), recordedAddress(player.email), {}});
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
