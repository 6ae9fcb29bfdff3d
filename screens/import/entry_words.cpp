// screens/import/entry_words.cpp - whatever was handed in is shown as plain text of one line.
#include "screens/import/entry_words.h"

#include "base/text.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kLongestCell = 200;
constexpr const char* kOnBoard = "It is open on the board with changes that are not saved.";

std::string shownText(const std::string& text)
{
    std::string line = asOneLine(text.substr(0, kLongestCell));
    if (text.size() > kLongestCell)
        line += "...";
    return line;
}

std::string picksText(const ReviewRow& row) { return std::to_string(row.picks) + " of 63"; }

/// @returns the address that the mail came from, or else the one that was given, or else the file that it came in
std::string senderOf(const ReviewRow& row)
{
    const Origin& origin = row.handedIn.origin;
    if (!origin.sender.empty())
        return origin.sender;
    if (!row.handedIn.email.empty())
        return row.handedIn.email;
    return origin.file.empty() ? "pasted" : origin.file;
}

std::string originOf(const Origin& origin)
{
    std::string words = origin.file.empty() ? "Pasted text" : shownText(origin.file);
    words += ", entry " + std::to_string(origin.number);
    if (!origin.sender.empty())
        words += ", from " + shownText(origin.sender);
    return words + ".";
}

void addPlayer(std::vector<std::string>& lines, const ReviewRow& row)
{
    const Entry& entry = row.handedIn.entry;
    lines.push_back("Name: " + shownText(entry.name) + ", initials: " + shownText(entry.initials) +
                    ", total: " + shownText(entry.finalPoints) + ", picks: " + picksText(row) + ".");
    if (!row.handedIn.email.empty())
        lines.push_back("E-mail: " + shownText(row.handedIn.email) + ".");
    if (!row.fileName.empty())
        lines.push_back("File: " + row.fileName + ".");
}

} // namespace

std::vector<ui::GridColumn> entryColumns()
{
    using ui::Alignment;
    return {{.heading = "Import", .width = 3, .ticks = true},
            {.heading = "Row", .alignment = Alignment::Right, .width = 3},
            {.heading = "Name", .width = 13},
            {.heading = "Initials", .width = 4},
            {.heading = "File", .width = 16, .grows = true},
            {.heading = "Picks", .alignment = Alignment::Right, .width = 7},
            {.heading = "Total", .alignment = Alignment::Right, .width = 4},
            {.heading = "Sender", .width = 13, .grows = true},
            {.heading = "What would happen", .width = 18, .grows = true}};
}

std::string explanationOf(EntryColumn column)
{
    switch (column) {
    case EntryColumn::Tick:
        return "Press Space, or click the box, to have the entry written by Import, or not.";
    case EntryColumn::Row:
        return "In the order in which the entries were handed in.";
    case EntryColumn::Name:
        return "The player's name, as handed in.";
    case EntryColumn::Initials:
        return "The player's initials, as handed in.";
    case EntryColumn::File:
        return "The selection that it becomes.";
    case EntryColumn::Picks:
        return "How many of the games have a pick.";
    case EntryColumn::Total:
        return "The points of the final that the player predicts.";
    case EntryColumn::Sender:
        return "The address that the mail came from, or else the one in the entry; without one the file that it came "
               "in.";
    case EntryColumn::Words:
        break;
    }
    return "What Import does with it when it is ticked, and what is special about it.";
}

std::vector<std::string> entryCells(const ReviewRow& row, std::size_t index, bool isOnBoard)
{
    const Entry& entry = row.handedIn.entry;
    const char* const tick = row.effect == Effect::Refused ? "" : row.isTicked ? ui::kTicked : ui::kNotTicked;
    return {tick,
            std::to_string(index + 1),
            shownText(entry.name),
            shownText(entry.initials),
            row.fileName,
            row.handedIn.isLegible ? picksText(row) : std::string{},
            shownText(entry.finalPoints),
            shownText(senderOf(row)),
            shownText(isOnBoard ? row.words + " " + kOnBoard : row.words)};
}

std::string entryHeading(const ReviewRow& row, std::size_t index)
{
    const std::string name = withoutOuterBlanks(row.handedIn.entry.name);
    const std::string& file = row.handedIn.origin.file;
    return "Row " + std::to_string(index + 1) + ": " +
           shownText(!name.empty()   ? name
                     : !file.empty() ? file
                                     : "pasted text");
}

std::string entryDetails(const ReviewRow& row, bool isOnBoard)
{
    std::vector<std::string> lines;
    if (row.effect == Effect::Refused) {
        lines.emplace_back("Refused:");
        for (const std::string& reason : row.reasons)
            lines.push_back("- " + asOneLine(reason));
    } else {
        lines.push_back(asOneLine(row.words));
    }
    if (isOnBoard)
        lines.emplace_back(kOnBoard);
    if (row.handedIn.isLegible)
        addPlayer(lines, row);
    lines.push_back(originOf(row.handedIn.origin));
    return joinLines(lines);
}

Bracket shownPicks(const Bracket& picks)
{
    Bracket shown = picks;
    for (const Position position : allPositions())
        shown.put(position, shownText(picks.at(position)));
    return shown;
}

} // namespace tallyhoop
