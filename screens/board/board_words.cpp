// screens/board/board_words.cpp - regions, rounds and verdicts in words.
#include "screens/board/board_words.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pool/filled_in.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop {

namespace {

constexpr std::array<const char*, kRounds> kSpokenRounds = {"first round",    "second round", "regional semi-final",
                                                            "regional final", "semi-final",   "final"};

constexpr const char* kFastKeys = " 1 and 2 fill in the open games, one after another.";

const char* spokenRound(int round) { return kSpokenRounds.at(roundIndex(round)); }

/// @returns "winner of second round, game 3": the games of a column are counted downwards, region by region
std::string spokenGame(Position position)
{
    const int round = roundOf(position);
    std::string spoken = std::string{"winner of "} + spokenRound(round);
    const bool isOnlyGame = round == 4 || round == kRounds;
    if (!isOnlyGame)
        spoken += ", game " + std::to_string(gameOfColumn(position) + 1);
    return spoken;
}

std::string spokenRow(const Field& field, TeamRow row)
{
    return shortNameOfRegion(field, regionOf(row)) + ", first round, row " + std::to_string(rowInRegion(row) + 1) +
           ", seed " + withoutOuterBlanks(field.seedOf(row));
}

/// @returns "Duke won, " for a decided game; why the pick is lost already for one that is still open
std::string whoWon(const BoardPicture& picture, Position position)
{
    if (picture.results == nullptr)
        return {};
    if (!picture.results->isEmpty(position))
        return picture.results->at(position) + " won, ";
    return picture.bracket.isEmpty(position) ? std::string{} : picture.bracket.at(position) + " is out already, ";
}

std::string explanationOfMark(const BoardPicture& picture, Position position)
{
    if (isFirstRound(position))
        return "The picks are marked; choose Default Colors to change them again.";
    const std::string& worth = picture.field.payoffs.text(roundOf(position));
    const std::string points = worth + (leadingNumber(worth) == 1 ? " point" : " points");
    switch (picture.verdictAt(position)) {
    case Verdict::Good:
        return "A right pick: " + points + " earned.";
    case Verdict::Bad:
        return (picture.bracket.isEmpty(position) ? "No pick: " : "A wrong pick: ") + whoWon(picture, position) +
               points + " lost.";
    default:
        return "Not decided yet: worth " + points + ".";
    }
}

/// The keys are the first that is said: who listens presses one as soon as both teams are known.
std::string explanationOfOpen(const Bracket& bracket, Position position)
{
    const auto teams = feeders(position);
    if (!teams || bracket.isEmpty(teams->front()) || bracket.isEmpty(teams->back()))
        return "No team picked yet: click or drag a team that can get here.";
    return "1 picks " + bracket.at(teams->front()) + ", 2 picks " + bracket.at(teams->back()) +
           ", Backspace goes back; or click or drag a team that can get here.";
}

/// The names on the board are the results, not the player's picks.
std::string explanationOfListed(const BoardPicture& picture, Position position)
{
    if (isFirstRound(position))
        return "The marks are those of the player chosen in the list of scores.";
    switch (picture.verdictAt(position)) {
    case Verdict::Good:
        return "The player in the list of scores picked " + picture.bracket.at(position) + ".";
    case Verdict::Bad:
        if (picture.bracket.isEmpty(position))
            return "The player in the list of scores has no team here that can still win.";
        return "The player in the list of scores did not pick " + picture.bracket.at(position) + ".";
    default:
        return "This game of the player in the list of scores is not decided yet.";
    }
}

} // namespace

std::string shortNameOfRegion(const Field& field, int region)
{
    constexpr std::string_view kRegion = " Region";
    const std::string& title = field.regionTitles.at(static_cast<std::size_t>(region));
    return title.ends_with(kRegion) ? title.substr(0, title.size() - kRegion.size()) : title;
}

std::string nameOfPlace(const Field& field, Position position)
{
    if (const std::optional<TeamRow> row = teamRowOf(position))
        return spokenRow(field, *row);
    const std::optional<int> region = regionOf(position);
    return (region ? shortNameOfRegion(field, *region) + ", " : std::string{}) + spokenGame(position);
}

std::string spokenPlace(const BoardPicture& picture, Position position)
{
    std::string spoken = nameOfPlace(picture.field, position);
    if (!isFirstRound(position))
        if (const std::string mark = spokenMark(picture.verdictAt(position), picture.names); !mark.empty())
            spoken += ", " + mark;
    return spoken + ": " + (picture.bracket.isEmpty(position) ? "no team" : picture.bracket.at(position));
}

std::string spokenSeed(const Field& field, TeamRow row)
{
    return "Seed of " + shortNameOfRegion(field, regionOf(row)) + ", row " + std::to_string(rowInRegion(row) + 1);
}

std::string spokenMark(Verdict verdict, MarkedNames whose)
{
    const std::string mark = markOf(verdict).text;
    if (mark.empty())
        return {};
    if (whose == MarkedNames::Results)
        return mark + (verdict == Verdict::Good ? " picked by the player" : " missed by the player");
    return mark + (verdict == Verdict::Good ? " right pick" : " wrong pick");
}

std::string spokenPayoff(int round) { return std::string{"Points for a win in the "} + spokenRound(round); }

std::string explanationOf(const BoardPicture& picture, Position position)
{
    if (picture.verdicts != nullptr)
        return picture.names == MarkedNames::Results ? explanationOfListed(picture, position)
                                                     : explanationOfMark(picture, position);
    if (picture.bracket.isEmpty(position))
        return explanationOfOpen(picture.bracket, position);
    const std::string& team = picture.bracket.at(position);
    if (position == kChampion)
        return team + " wins the tournament. A right click or Delete takes the team away.";
    if (isFirstRound(position))
        return "Click or press Space to send " + team + " to the next round, or drag it as far as it goes." + kFastKeys;
    return "Click or press Space to send " + team + " on, drag it further; right click or Delete takes it away." +
           kFastKeys;
}

std::string progressOf(const Bracket& bracket, bool isResults)
{
    return std::to_string(gamesFilledIn(bracket)) + " of " + std::to_string(kGames) +
           (isResults ? " played" : " picked");
}

std::string withoutPick(const Bracket& bracket)
{
    const int missing = static_cast<int>(kGames) - gamesFilledIn(bracket);
    if (missing == 0)
        return {};
    return " " + std::to_string(missing) + (missing == 1 ? " game has no pick." : " games have no pick.");
}

} // namespace tallyhoop
