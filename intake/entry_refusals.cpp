// intake/entry_refusals.cpp - what a save on the board asks of an entry, and what nobody could do on the board.
#include "intake/entry_refusals.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/file_names.h"
#include "intake/game_words.h"
#include "intake/limits.h"
#include "intake/plain_text.h"
#include "pool/entry_check.h"
#include "pool/faults.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace tallyhoop {

namespace {

using Sentences = std::vector<std::string>;

void checkText(Sentences& reasons, const std::string& subject, const std::string& verb, std::string_view text,
               std::size_t longest)
{
    if (isBlankField(text))
        reasons.push_back(subject + verb + " missing.");
    if (hasControlCharacters(text))
        reasons.push_back(subject + (verb == " is" ? " has" : " have") + " control characters.");
    if (text.size() > longest)
        reasons.push_back(subject + verb + " longer than " + std::to_string(longest) + " characters.");
}

/// The name of a file is taken as it is, or not at all: made fit, it would be another file.
void checkGivenFileName(Sentences& reasons, const std::string& fileName)
{
    const bool isSafe = isBareName(fileName) && withoutUnsafeCharacters(fileName) == fileName;
    const bool isSelection = endsWithFolded(fileName, file_name::kSelectionExtension);
    if (!isSafe || !isSelection || toUtf8(fileName).size() > kMostBytesOfFileNameHandedIn)
        reasons.push_back("The file name " + quotedText(fileName) + " cannot be that of a selection.");
}

/// A name is made fit for a file in any case; one that is made to lead elsewhere is not a player's.
void checkFileName(Sentences& reasons, const Entry& entry)
{
    const std::string& name = entry.name;
    const std::string both = name + "_" + entry.initials;
    const bool leadsOut = both.find("../") != std::string::npos || both.find("..\\") != std::string::npos ||
                          name.starts_with('/') || name.starts_with('\\') || name.substr(0, 3).ends_with(":\\");
    if (leadsOut)
        reasons.push_back("The name " + quotedText(name) + " leads to another folder.");
    // The name of a device gets a character more, and nothing else does.
    if (withoutUnsafeCharacters(both).size() > both.size() || withoutUnsafeCharacters(name).size() > name.size())
        reasons.push_back("The name " + quotedText(name) + " is that of a device.");
}

void checkTexts(Sentences& reasons, const Entry& entry)
{
    checkText(reasons, "The name", " is", entry.name, kLongestNameHandedIn);
    checkText(reasons, "The initials", " are", entry.initials, kLongestInitialsHandedIn);
    checkFileName(reasons, entry);
    Entry named = entry; // the first fault that is found is then that of the total
    named.name = named.initials = "X";
    constexpr std::size_t kLongestTotal = 10;
    if (entryFault(named, EntryKind::Player) || hasControlCharacters(entry.finalPoints) ||
        entry.finalPoints.size() > kLongestTotal)
        reasons.push_back("The predicted total " + quotedText(entry.finalPoints) + " is not a number from 50 to 250.");
}

/// One sentence for all of the first-round rows: when one team differs, most do.
void checkRows(Sentences& reasons, const Bracket& picks, const Field& field)
{
    std::size_t different = 0;
    std::string example;
    for (const TeamRow row : allTeamRows()) {
        const std::string& team = picks.at(positionOf(row));
        if (team == field.teams[row])
            continue;
        if (different++ == 0)
            example = quotedText(team) + " is where this field has " + quotedText(field.teams[row]);
    }
    if (different > 0)
        reasons.push_back("It is for another field: " + std::to_string(different) + " of 64 teams differ, and " +
                          example + ".");
}

bool isOfField(const std::string& team, const Field& field)
{
    return std::ranges::find(field.teams.values, team) != field.teams.values.end();
}

/// A team that only the entry's own first-round rows have was spoken of there.
bool isOfRows(const std::string& team, const Bracket& picks)
{
    return std::ranges::any_of(allTeamRows(), [&](TeamRow row) { return picks.at(positionOf(row)) == team; });
}

/// Somebody who types misspells some of the teams. More of them are another year's, and need no sentence each.
constexpr std::size_t kMostUnknownTeams = 8;

void checkPicks(Sentences& reasons, const Bracket& picks, const Field& field)
{
    std::map<std::string, std::size_t> unknown; // and in how many games each is picked
    Sentences strangers;
    for (const Position position : gamePositions()) {
        const std::string& team = picks.at(position);
        if (!team.empty() && !isOfField(team, field) && !isOfRows(team, picks))
            ++unknown[team];
    }
    if (unknown.size() > kMostUnknownTeams) {
        reasons.push_back("It is for another field: " + std::to_string(unknown.size()) +
                          " of its teams are not in this one, such as " + quotedText(unknown.begin()->first) + ".");
        return; // the picks that remain follow from those
    }
    for (const Fault& fault : faultsOf(picks, field)) {
        const std::string& team = picks.at(fault.position);
        if (fault.kind == FaultKind::NotInGame && !unknown.contains(team))
            strangers.push_back(quotedText(team) +
                                " does not play in this game: " + gameWords(field, *gameOf(fault.position)) + ".");
    }
    for (const auto& [team, games] : unknown)
        reasons.push_back("Unknown team: " + quotedText(team) + ", picked in " + counted(games, "game", "games") + ".");
    std::ranges::move(strangers, std::back_inserter(reasons));
    if (std::ranges::any_of(gamePositions(),
                            [&](Position position) { return hasControlCharacters(picks.at(position)); }))
        reasons.emplace_back("A pick has control characters.");
}

} // namespace

std::vector<std::string> refusalsOf(const HandedIn& handedIn, const Field& field)
{
    Sentences reasons = handedIn.refusals;
    if (!handedIn.isLegible)
        return reasons;
    checkTexts(reasons, handedIn.entry);
    if (!handedIn.fileName.empty())
        checkGivenFileName(reasons, handedIn.fileName);
    checkRows(reasons, handedIn.entry.picks, field);
    checkPicks(reasons, handedIn.entry.picks, field);
    return reasons;
}

} // namespace tallyhoop
