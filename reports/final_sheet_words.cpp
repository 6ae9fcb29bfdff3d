// reports/final_sheet_words.cpp - the sentences, and how places and prizes are written.
#include "reports/final_sheet_words.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <numeric>
#include <utility>

namespace tallyhoop {

namespace {

std::string stateOf(const FinalSheet& sheet)
{
    if (sheet.openGames == 0)
        return "The tournament is over";
    return "If it ended like this: " + counted(sheet.openGames, "game is", "games are") + " open";
}

std::string ruleInWords(TieRule rule)
{
    switch (rule) {
    case TieRule::Nearest:
        return "Ties: the nearest prediction is ahead";
    case TieRule::NotOver:
        return "Ties: the nearest prediction that is not over the total is ahead";
    case TieRule::Share:
        break;
    }
    return "Ties: players with equal points share their places";
}

std::string totalInWords(const FinalSheet& sheet)
{
    constexpr const char* kTotal = "Total points of the final: ";
    if (sheet.total)
        return kTotal + std::to_string(*sheet.total);
    const char* const why = sheet.isTotalUseless ? "not usable" : sheet.isFinalPlayed ? "not entered" : "not known yet";
    return kTotal + std::string{why} + ", so equal points share a place";
}

void addMoney(std::vector<std::string>& notes, const FinalSheet& sheet)
{
    const Purse& purse = sheet.purse;
    const Money prizes = std::accumulate(purse.prizes.begin(), purse.prizes.end(), Money{});
    if (purse.fees == Money{} && prizes == Money{} && purse.keptBack == Money{})
        return;
    notes.push_back(fmt::format("Fees: {} ({}, {} each)", moneyInWords(purse.fees),
                                counted(sheet.rows.size(), "player", "players"), moneyInWords(sheet.entryFee)));
    std::string split = "Prizes: " + moneyInWords(prizes);
    if (purse.keptBack != Money{})
        split = "Kept back: " + moneyInWords(purse.keptBack) + "; prizes: " + moneyInWords(prizes);
    if (purse.left > Money{})
        split += "; left: " + moneyInWords(purse.left);
    if (purse.left < Money{})
        split += "; from elsewhere: " + moneyInWords(Money{} - purse.left);
    notes.push_back(std::move(split));
}

bool hasOddCents(const FinalSheet& sheet)
{
    const auto differ = [](const FinalRow& row, const FinalRow& next) {
        return row.place == next.place && row.prize != next.prize;
    };
    return std::ranges::adjacent_find(sheet.rows, differ) != sheet.rows.end();
}

/// @returns whether a place with pairs is shared by so many that not all of these are listed
bool hasCrowd(const FinalSheet& sheet)
{
    return std::ranges::any_of(sheet.pairs, [&](const TiedPair& pair) {
        return std::ranges::count(sheet.rows, pair.place, &FinalRow::place) > std::ptrdiff_t{kMostInAllPairs};
    });
}

} // namespace

std::vector<std::string> finalSheetNotes(const FinalSheet& sheet)
{
    std::vector<std::string> notes{stateOf(sheet)};
    if (sheet.rule != TieRule::Share)
        notes.push_back(totalInWords(sheet));
    notes.push_back(ruleInWords(sheet.rule));
    addMoney(notes, sheet);
    if (hasOddCents(sheet))
        notes.emplace_back("Shared prizes: odd cents go to those who are listed first");
    notes.insert(notes.end(), sheet.remarks.begin(), sheet.remarks.end());
    return notes;
}

std::string placeInWords(const FinalRow& row) { return std::to_string(row.place) + (row.isShared ? "=" : ""); }

std::string prizeInWords(const FinalRow& row) { return row.prize == Money{} ? std::string{} : moneyInWords(row.prize); }

std::string offInWords(const FinalRow& row)
{
    if (!row.off)
        return {};
    return *row.off == 0 ? "0" : fmt::format("{:+}", *row.off);
}

std::vector<std::string> pairsNotes(const FinalSheet& sheet)
{
    if (sheet.pairs.empty())
        return {};
    std::vector<std::string> notes{"Ties, by the total points of the final"};
    if (sheet.arePairsOfPrizes)
        notes.emplace_back("Those on places that win nothing are left out.");
    if (hasCrowd(sheet))
        notes.push_back(
            fmt::format("Of more than {} on one place only neighbouring predictions are compared.", kMostInAllPairs));
    return notes;
}

std::vector<PairInWords> pairsInWords(const FinalSheet& sheet)
{
    std::map<std::size_t, const FinalRow*> players;
    for (const FinalRow& row : sheet.rows)
        players[row.player] = &row;
    const auto called = [&](std::size_t player) {
        const FinalRow& row = *players.at(player);
        return asOneLine(row.name) + " (" + (row.predicted ? std::to_string(*row.predicted) : "none") + ")";
    };

    constexpr const char* kAny = "any";
    std::vector<PairInWords> pairs;
    pairs.reserve(sheet.pairs.size());
    for (const TiedPair& pair : sheet.pairs) {
        PairInWords words{std::to_string(pair.place), called(pair.lower), {}, {}, called(pair.higher), {}};
        if (pair.end == TieEnd::LowerAlways)
            words.upTo = kAny;
        if (pair.end == TieEnd::AlwaysTied)
            words.tiedAt = kAny;
        if (pair.end == TieEnd::ByTotal) {
            words.upTo = std::to_string(pair.lowerUpTo);
            words.from = std::to_string(pair.higherFrom);
            if (pair.lowerUpTo + 1 < pair.higherFrom)
                words.tiedAt = std::to_string(pair.lowerUpTo + 1);
        }
        pairs.push_back(std::move(words));
    }
    return pairs;
}

} // namespace tallyhoop
