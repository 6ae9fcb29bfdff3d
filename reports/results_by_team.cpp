// reports/results_by_team.cpp - projects, packs, sorts and lays out the results by team.
// Texts are kept letter for letter, odd spellings included.
#include "reports/results_by_team.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pool/projection.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr char kSeparator = ',';
constexpr std::size_t kFields = 6;
constexpr std::size_t kFileColumn = 24;
constexpr int kHeaderLines = 4;
constexpr int kTeamHeaderLines = 4;
constexpr int kContinuationLines = 6;
constexpr int kLastLineOfPage = 62;
constexpr int kLastLineForANewTeam = 50;

void addColumnHeadings(ReportLines& lines, std::size_t pickWidth)
{
    lines.push_back(blanks(28) + "<-- Points -->  Points");
    lines.push_back(blanks(29) + "Best   Shure   Current " + "Team Selections in Final");
    lines.push_back(blanks(28) + "------  ------  ------  " + dashes(pickWidth + 6));
}

std::string orNoSelection(const std::string& pick) { return pick.empty() ? kNoSelection : pick; }

std::string rowLine(const ResultsByTeamRow& row)
{
    return "   " + fitted(row.fileName, kFileColumn) + "  " + row.best + "     " + row.sure + "     " + row.current +
           "    " + orNoSelection(row.winningPick) + " over " + orNoSelection(row.runnerUpPick);
}

/// Writes a team's rows, from the most points down, with the header of a continuation page after a full one.
void addRows(ReportLines& lines, const TeamOutcome& outcome, int& lineOfPage)
{
    for (auto workRow = outcome.workRows.rbegin(); workRow != outcome.workRows.rend(); ++workRow) {
        lines.push_back(rowLine(resultsByTeamRow(*workRow)));
        if (++lineOfPage <= kLastLineOfPage)
            continue;
        lines.emplace_back(kFormFeedLine);
        lines.emplace_back(kBlankLine);
        lines.emplace_back(kBlankLine);
        lines.push_back("If " + outcome.team + " Wins (cont.):");
        addColumnHeadings(lines, outcome.pickWidth);
        lineOfPage = kContinuationLines;
    }
}

/// Packs every player's score if a team wins, ascending.
/// @param scores under the projection; no more than `now`
TeamOutcome outcomeOf(const std::string& team, std::span<const PlayerScore> scores, std::span<const PlayerScore> now)
{
    TeamOutcome outcome{team, {}, 0};
    outcome.workRows.reserve(scores.size());
    for (std::size_t player = 0; player < scores.size(); ++player) {
        const PlayerScore& score = scores[player];
        outcome.workRows.push_back(resultsByTeamWorkRow(score, now[player].points));
        outcome.pickWidth = std::max(outcome.pickWidth, score.winningPick.size() + score.runnerUpPick.size());
    }
    sortWorkRows(outcome.workRows);
    return outcome;
}

} // namespace

std::string resultsByTeamWorkRow(const PlayerScore& projected, int currentPoints)
{
    return threeDigits(projected.maxPoints) + kSeparator + projected.fileName + kSeparator +
           threeDigits(projected.points) + kSeparator + threeDigits(currentPoints) + kSeparator +
           projected.winningPick + kSeparator + projected.runnerUpPick;
}

ResultsByTeamRow resultsByTeamRow(std::string_view workRow)
{
    const std::vector<std::string> field = workRowFields(workRow, kSeparator, kFields);
    return {field[0], field[1], field[2], field[3], field[4], field[5]};
}

Result<std::vector<TeamOutcome>> resultsByTeamOutcomes(std::span<const Entry> entries, const Bracket& results,
                                                       const Payoffs& payoffs, const Step& step)
{
    bool isStopped = false;
    const Step watchedStep = [&] {
        isStopped = !step();
        return !isStopped;
    };
    const Result<std::vector<PlayerScore>> now = scoreEntries(entries, results, payoffs, watchedStep);
    if (!now)
        return now.failure();

    std::vector<TeamOutcome> outcomes;
    for (const std::string& team : finalFourOf(results)) {
        if (isStopped)
            break;
        const auto projected = projectWinner(results, team, FinalOpponent::Open);
        if (!projected)
            continue;
        const Result<std::vector<PlayerScore>> scores = scoreEntries(entries, *projected, payoffs, watchedStep);
        if (!scores)
            return scores.failure();
        outcomes.push_back(outcomeOf(team, *scores, *now));
    }
    return outcomes;
}

Result<ReportLines> resultsByTeamLines(std::string_view title, std::span<const TeamOutcome> outcomes)
{
    ReportLines lines;
    int lineOfPage = 0;
    for (const TeamOutcome& outcome : outcomes) {
        if (lineOfPage == 0) {
            const Result<Done> header =
                addCentredPageHeader(lines, centredTwice, outcome.pickWidth + 58, title, "Projected Results by Team");
            if (!header)
                return header.failure();
            lineOfPage = kHeaderLines;
        }
        lines.push_back("If " + outcome.team + " Wins:");
        addColumnHeadings(lines, outcome.pickWidth);
        lineOfPage += kTeamHeaderLines;
        addRows(lines, outcome, lineOfPage);
        lines.emplace_back(kBlankLine);
        lines.emplace_back(kBlankLine);
        lineOfPage += 2;
        if (lineOfPage > kLastLineForANewTeam) {
            lineOfPage = 0;
            lines.emplace_back(kFormFeedLine);
        }
    }
    return lines;
}

} // namespace tallyhoop
