// files/prizes_file.cpp - one row after another, and what is wrong with those that cannot be read.
#include "files/prizes_file.h"

#include "base/csv_cells.h"
#include "base/text.h"
#include "base/utf8_mark.h"
#include "base/windows1252.h"
#include "files/file_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kItem = "Item";
constexpr const char* kEntryFee = "Entry fee";
constexpr const char* kKeptBack = "Kept back";
constexpr const char* kTies = "Ties";
constexpr const char* kPrize = "Prize";
constexpr const char* kPaid = "Paid";
constexpr const char* kYes = "Yes";
constexpr const char* kNo = "No";

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

/// @returns a fault of the file, named as faults of other files are
Failure faultOfFile(const std::string& words) { return Failure{std::string{file_name::kPrizes} + ": " + words}; }

Failure unreadable(const Failure& failure) { return faultOfFile("It cannot be read. " + failure.message); }

class PrizesReader
{
public:
    void read(std::string_view text)
    {
        const Result<std::vector<CsvRow>> rows = csvRows(text);
        if (!rows) {
            m_faults.push_back(unreadable(rows.failure()));
            return;
        }
        for (std::size_t i = 0; i < rows->size(); ++i)
            if (!take((*rows)[i]))
                m_faults.push_back(
                    faultOfFile("Row " + std::to_string(i + 1) + " is not understood:\r\n" + joined((*rows)[i], ", ")));
        m_value.table.prizes.reserve(m_prizes.size());
        for (const std::optional<Prize>& prize : m_prizes)
            m_value.table.prizes.push_back(prize.value_or(Money{}));
        if (const std::optional<Failure> fault = faultOf(m_value.table))
            m_faults.push_back(faultOfFile(fault->message));
    }

    Read<Prizes> takeRead()
    {
        Read<Prizes> read{std::move(m_value), {}};
        if (!m_faults.empty())
            read.trouble = m_faults.front();
        return read;
    }

    std::vector<Failure> takeFaults() { return std::move(m_faults); }

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
            return takeOnce(m_hasFee, moneyOf(value), m_value.table.entryFee);
        if (equalFolded(item, kKeptBack))
            return takeOnce(m_hasKeptBack, prizeOf(value), m_value.table.keptBack);
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
        return rule != kRules.end() && takeOnce(m_hasRule, std::optional{rule->first}, m_value.table.ties);
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
        if (file.empty())
            return false;
        if (equalFolded(value, kYes))
            m_value.paid.push_back(file);
        return equalFolded(value, kYes) || equalFolded(value, kNo);
    }

    Prizes m_value;
    std::vector<Failure> m_faults;
    std::vector<std::optional<Prize>> m_prizes;
    bool m_hasFee = false;
    bool m_hasKeptBack = false;
    bool m_hasRule = false;
};

/// @returns a reader that has read the bytes
PrizesReader readerOf(std::string_view bytes)
{
    PrizesReader reader;
    if (bytes.starts_with(kUtf8Mark))
        reader.read(fromUtf8(bytes.substr(kUtf8Mark.size())));
    else
        reader.read(bytes);
    return reader;
}

} // namespace

Read<Prizes> prizesOf(std::string_view bytes) { return readerOf(bytes).takeRead(); }

std::vector<Failure> prizesFaults(std::string_view bytes) { return readerOf(bytes).takeFaults(); }

Read<Prizes> readPrizes(const DataFolder& folder)
{
    if (!folder.exists(file_name::kPrizes))
        return {};
    const Result<std::string> bytes = folder.read(file_name::kPrizes);
    if (!bytes)
        return {{}, unreadable(bytes.failure())};
    return prizesOf(*bytes);
}

std::vector<Failure> readPrizesFaults(const DataFolder& folder)
{
    if (!folder.exists(file_name::kPrizes))
        return {};
    const Result<std::string> bytes = folder.read(file_name::kPrizes);
    return bytes ? prizesFaults(*bytes) : std::vector{unreadable(bytes.failure())};
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
