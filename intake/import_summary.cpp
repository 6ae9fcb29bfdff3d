// intake/import_summary.cpp - counts first, then everything that a person may have to do something about.
#include "intake/import_summary.h"

#include "base/numbers.h"
#include "base/text.h"
#include "intake/review_words.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tallyhoop {

namespace {

/// @returns who is meant by a row: the file that it becomes, or else what is known of its origin
std::string nameOf(const ReviewRow& row, std::size_t number)
{
    if (!row.fileName.empty())
        return row.fileName;
    const std::string name = withoutOuterBlanks(row.handedIn.entry.name);
    if (!name.empty())
        return asOneLine(name);
    return row.handedIn.origin.file.empty() ? "Row " + std::to_string(number + 1) : row.handedIn.origin.file;
}

void addCount(std::vector<std::string>& lines, std::size_t count, std::string_view words)
{
    if (count > 0)
        lines.push_back("  " + std::to_string(count) + " " + std::string{words});
}

void addNotWritten(std::vector<std::string>& lines, const Review& review, const ImportOutcome& outcome)
{
    if (outcome.notWritten.empty())
        return;
    lines.insert(lines.end(), {"", "Not written:"});
    for (const NotWritten& failed : outcome.notWritten)
        lines.push_back("  " + nameOf(review.rows[failed.row], failed.row) + ": " + failed.reason);
}

void addKept(std::vector<std::string>& lines, const Review& review, const ImportOutcome& outcome)
{
    if (outcome.kept.empty())
        return;
    lines.insert(lines.end(), {"", "What was no whole selection is kept:"});
    for (const Kept& kept : outcome.kept)
        lines.push_back("  " + nameOf(review.rows[kept.row], kept.row) + ": in the folder " +
                        shown(kept.folder.filename()));
}

void addRefused(std::vector<std::string>& lines, const Review& review)
{
    bool isFirst = true;
    for (std::size_t i = 0; i < review.rows.size(); ++i) {
        const ReviewRow& row = review.rows[i];
        if (row.effect != Effect::Refused)
            continue;
        if (isFirst)
            lines.insert(lines.end(), {"", "Refused:"});
        isFirst = false;
        const std::string& sender = row.handedIn.origin.sender;
        const std::string from = sender.empty() ? std::string{} : ", from " + asOneLine(sender);
        lines.push_back("  " + nameOf(row, i) + from + ": " + joined(row.reasons, " "));
    }
}

void addPlayers(std::vector<std::string>& lines, const ImportOutcome& outcome)
{
    if (outcome.playersAdded == 0 && outcome.playerListTrouble.empty())
        return;
    lines.emplace_back();
    if (!outcome.playerListTrouble.empty())
        lines.push_back("No player was added to the player list. " + outcome.playerListTrouble);
    else
        lines.push_back(counted(outcome.playersAdded, "player was", "players were") + " added to the player list.");
    for (const std::string& player : outcome.playersAlike)
        lines.push_back("  " + player + ": the list cuts this name, and has another player who looks the same there.");
    for (const std::string& player : outcome.playersWithSender)
        lines.push_back(
            "  " + player +
            ": the e-mail address does not fit into the list; that of the mail's sender was entered instead.");
    for (const std::string& player : outcome.playersWithoutAddress)
        lines.push_back("  " + player + ": the e-mail address does not fit into the list and was left out.");
}

} // namespace

std::string summaryOf(const Review& review, const ImportOutcome& outcome)
{
    const std::size_t imported = outcome.created + outcome.replaced + outcome.unchanged;
    const auto unticked = static_cast<std::size_t>(std::ranges::count_if(
        review.rows, [](const ReviewRow& row) { return !row.isTicked && row.effect != Effect::Refused; }));
    std::vector<std::string> lines{std::to_string(imported) + " of " + counted(review.rows.size(), "entry", "entries") +
                                   " imported."};
    addCount(lines, outcome.created, "new");
    addCount(lines, outcome.replaced, "replaced");
    addCount(lines, outcome.unchanged, "identical to what was here");
    addCount(lines, unticked, "not ticked");
    addNotWritten(lines, review, outcome);
    addKept(lines, review, outcome);
    addRefused(lines, review);
    addPlayers(lines, outcome);
    return joinLines(lines);
}

} // namespace tallyhoop
