// intake/review_words.cpp - the words of the review, a sentence for each thing.
#include "intake/review_words.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/selection_file.h"
#include "intake/addresses.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop {

namespace {

std::string effectOf(const ReviewRow& row)
{
    switch (row.effect) {
    case Effect::New:
        return "New.";
    case Effect::Identical:
        return row.addsPlayer ? "Identical to what is here; the player is not in the list yet."
                              : "Identical to what is here.";
    case Effect::Refused:
        return "Refused: " + joined(row.reasons, " ");
    case Effect::Replaces:
        break;
    }
    if (row.seen.trouble)
        return "Replaces a file that cannot be read.";
    if (row.isDamagedHere)
        return "Replaces a file that is no whole selection.";
    // On some systems two names that differ only in their capitals are two files: then the player would have both.
    const Entry& entry = row.handedIn.entry;
    const bool isNamed = row.fileName == proposedFileName(entry.name, entry.initials);
    const std::string replaces = isNamed ? "Replaces" : "Replaces " + row.fileName;
    if (row.differentPicks == 0)
        return replaces + " (same picks; name, initials or total differ).";
    return replaces + " (" + counted(static_cast<std::size_t>(row.differentPicks), "pick differs", "picks differ") +
           ").";
}

/// @returns whether two rows, both for one file, would write the same
bool isSame(const ReviewRow& left, const ReviewRow& right)
{
    return bytesToWrite(left.handedIn) == bytesToWrite(right.handedIn);
}

std::string aboutOthers(const ReviewRow& row, const std::vector<ReviewRow>& rows)
{
    if (!row.later)
        return {};
    const std::string number = std::to_string(*row.later + 1);
    return isSame(row, rows[*row.later]) ? "The same as row " + number + "."
                                         : "Handed in again later: row " + number + ".";
}

std::string shownAddress(std::string_view address)
{
    constexpr std::size_t kMost = 60;
    return asOneLine(std::string{address.substr(0, kMost)}) + (address.size() > kMost ? "..." : "");
}

} // namespace

NewPlayer playerOf(const ReviewRow& row)
{
    const Entry& entry = row.handedIn.entry;
    return {entry.name + "," + entry.initials, row.fileName, {}};
}

std::string wordsOf(const ReviewRow& row, const std::vector<ReviewRow>& rows)
{
    std::vector<std::string> sentences{row.warning, effectOf(row)};
    if (row.effect != Effect::Refused && !row.isComplete())
        sentences.push_back("Incomplete: " + std::to_string(row.picks) + " of 63 picks.");
    if (row.isLate)
        sentences.emplace_back("Late.");
    sentences.push_back(aboutOthers(row, rows));
    std::erase(sentences, std::string{});
    return joined(sentences, " ");
}

std::string otherAddressWarning(const ReviewRow& row, const PlayersHere& players)
{
    // Whoever looks the same in the player list and has handed in before is probably another one.
    const bool isKnown =
        row.effect == Effect::Replaces || (row.effect == Effect::New && !PlayersHere::isCut(row.fileName));
    const std::string known = isKnown ? players.addressesOf(playerOf(row)) : std::string{};
    if (firstAddressIn(known).empty())
        return {};
    const auto isOther = [&](const std::string& address) { return !address.empty() && !namesAddress(known, address); };
    const std::string& given = row.handedIn.email;
    const std::string& sender = row.handedIn.origin.sender;
    if (!isOther(given) && !isOther(sender))
        return {};
    const bool isSenderGiven = equalFolded(given, sender) || !isOther(given);
    const std::string words = !isOther(sender) ? "Its address is " + shownAddress(given)
                              : isSenderGiven  ? "Sent from " + shownAddress(sender)
                                               : "Sent from " + shownAddress(sender) + " for " + shownAddress(given);
    return words + ", not " + known + " as in the player list.";
}

std::string otherFileWarning(const ReviewRow& row, const PlayersHere& players)
{
    const NewPlayer player = playerOf(row);
    const PlayerRecord* record = players.findName(player.name);
    const bool isAdded = row.effect == Effect::New || (row.effect == Effect::Identical && row.addsPlayer);
    if (!isAdded || record == nullptr || players.find(player) != nullptr)
        return {};
    const std::string what = player.name.size() <= kNameWidth ? "has this name" : "may have this player";
    return "The player list " + what + " with another file: " + trimTrailingBlanks(record->fileName) + ".";
}

std::string summaryOf(const Review& review)
{
    const auto count = [&](auto matches) {
        return static_cast<std::size_t>(std::ranges::count_if(review.rows, matches));
    };
    const auto withEffect = [&](Effect effect) {
        return count([effect](const ReviewRow& row) { return row.effect == effect; });
    };
    std::vector<std::string> kinds;
    const auto add = [&](std::size_t number, const std::string& words) {
        if (number > 0)
            kinds.push_back(std::to_string(number) + " " + words);
    };
    add(withEffect(Effect::New), "new");
    add(withEffect(Effect::Replaces), "replacing others");
    add(withEffect(Effect::Identical), "identical to what is here");
    add(withEffect(Effect::Refused), "refused");
    add(count([](const ReviewRow& row) { return row.effect != Effect::Refused && !row.isComplete(); }), "incomplete");
    std::string summary = counted(review.rows.size(), "entry", "entries");
    summary += kinds.empty() ? "." : ": " + joined(kinds, ", ") + ".";
    if (review.resultsHere > 0)
        summary += " They are late: the results of " +
                   counted(static_cast<std::size_t>(review.resultsHere), "game are", "games are") + " entered already.";
    if (!review.playerListTrouble.empty())
        summary += " No player can be added: " + review.playerListTrouble + ".";
    return summary;
}

} // namespace tallyhoop
