// files/prizes_file.cpp - one row after another, and what is wrong with the first that cannot be read.
#include "files/prizes_file.h"

#include "base/csv_cells.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kItem = "Item";
constexpr const char* kEntryFee = "Entry fee";
constexpr const char* kKeptBack = "Kept back";
constexpr const char* kTies = "Ties";
constexpr const char* kPrize = "Prize";
constexpr const char* kPaid = "Paid";
constexpr const char* kYes = "Yes";

constexpr std::array<std::pair<TieRule, const char*>, 3> kRules{
    {{TieRule::Nearest, "Nearest"}, {TieRule::NotOver, "Not over"}, {TieRule::Share, "Share"}}};

const char* wordsOf(TieRule rule)
{
    return std::ranges::find(kRules, rule, &std::pair<TieRule, const char*>::first)->second;
}

/// @returns the place 1..kMostPrizes; 0 for other texts
std::size_t placeOf(std::string_view text)
{
    std::size_t place = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), place);
    const bool isPlace = error == std::errc{} && end == text.data() + text.size() && place <= kMostPrizes;
    return isPlace ? place : 0;
}

class PrizesReader
{
public:
    Read<Prizes> read(std::string_view text)
    {
        const Result<std::vector<CsvRow>> rows = csvRows(text);
        if (!rows)
            return {{}, Failure{std::string{file_name::kPrizes} + " cannot be read. " + rows.failure().message}};
        for (std::size_t i = 0; i < rows->size(); ++i)
            if (!take((*rows)[i]) && !m_read.trouble)
                m_read.trouble = Failure{"Row " + std::to_string(i + 1) + " of " + file_name::kPrizes +
                                         " is not understood:\r\n" + joined((*rows)[i], ", ")};
        for (const std::optional<Prize>& prize : m_prizes)
            m_read.value.table.prizes.push_back(prize.value_or(Money{}));
        if (!m_read.trouble)
            m_read.trouble = faultOf(m_read.value.table);
        return std::move(m_read);
    }

private:
    /// @returns false for a row that is not understood
    bool take(const CsvRow& row)
    {
        const auto exact = [&](std::size_t i) { return i < row.size() ? unguarded(row[i]) : std::string{}; };
        const std::string item = withoutOuterBlanks(exact(0));
        const std::string which = exact(1);
        const std::string value = withoutOuterBlanks(exact(2));
        if (item.empty())
            return which.empty() && value.empty();
        if (equalFolded(item, kItem))
            return true;
        if (equalFolded(item, kEntryFee))
            return takeOnce(m_hasFee, moneyOf(value), m_read.value.table.entryFee);
        if (equalFolded(item, kKeptBack))
            return takeOnce(m_hasKeptBack, prizeOf(value), m_read.value.table.keptBack);
        if (equalFolded(item, kTies))
            return takeRule(value);
        if (equalFolded(item, kPrize))
            return takePrize(placeOf(withoutOuterBlanks(which)), prizeOf(value));
        return equalFolded(item, kPaid) && takePaid(which, value);
    }

    template <class Value>
    static bool takeOnce(bool& has, const std::optional<Value>& value, Value& place)
    {
        if (has || !value)
            return false;
        has = true;
        place = *value;
        return true;
    }

    bool takeRule(const std::string& value)
    {
        const auto rule =
            std::ranges::find_if(kRules, [&](const auto& known) { return equalFolded(known.second, value); });
        return rule != kRules.end() && takeOnce(m_hasRule, std::optional{rule->first}, m_read.value.table.ties);
    }

    bool takePrize(std::size_t place, const std::optional<Prize>& prize)
    {
        if (place == 0 || !prize)
            return false;
        if (m_prizes.size() < place)
            m_prizes.resize(place);
        if (m_prizes[place - 1])
            return false;
        m_prizes[place - 1] = prize;
        return true;
    }

    bool takePaid(const std::string& file, const std::string& value)
    {
        if (file.empty() || !equalFolded(value, kYes))
            return false;
        m_read.value.paid.push_back(file);
        return true;
    }

    Read<Prizes> m_read;
    std::vector<std::optional<Prize>> m_prizes;
    bool m_hasFee = false;
    bool m_hasKeptBack = false;
    bool m_hasRule = false;
};

} // namespace

Read<Prizes> prizesOf(std::string_view bytes)
{
    if (bytes.starts_with(kByteOrderMark))
        return PrizesReader{}.read(fromUtf8(bytes.substr(kByteOrderMark.size())));
    return PrizesReader{}.read(bytes);
}

Read<Prizes> readPrizes(const DataFolder& folder)
{
    if (!folder.exists(file_name::kPrizes))
        return {};
    const Result<std::string> bytes = folder.read(file_name::kPrizes);
    if (!bytes)
        return {{}, Failure{std::string{file_name::kPrizes} + " cannot be read. " + bytes.failure().message}};
    return prizesOf(*bytes);
}

std::string prizesFile(const Prizes& prizes)
{
    std::vector<CsvRow> rows{{kItem, "Which", "Value"},
                             {kEntryFee, "", moneyInWords(prizes.table.entryFee)},
                             {kKeptBack, "", prizeInWords(prizes.table.keptBack)},
                             {kTies, "", wordsOf(prizes.table.ties)}};
    rows.reserve(rows.size() + prizes.table.prizes.size() + prizes.paid.size());
    for (std::size_t i = 0; i < prizes.table.prizes.size(); ++i)
        rows.push_back({kPrize, std::to_string(i + 1), prizeInWords(prizes.table.prizes[i])});
    for (const std::string& file : prizes.paid)
        rows.push_back({kPaid, guarded(file), kYes});
    return csvText(rows);
}

} // namespace tallyhoop
