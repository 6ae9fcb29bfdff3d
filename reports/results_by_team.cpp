// reports/results_by_team.cpp - projects, packs, sorts and lays out the results by team.
#include "reports/results_by_team.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr char kSeparator = ',';
constexpr std::size_t kFields = 6;
constexpr std::size_t kFileColumn = 24;
constexpr int kHeadLines = 4;
constexpr int kTeamHeadLines = 4;
constexpr int kContinuationLines = 6;
constexpr int kLastLineOfPage = 62;
constexpr int kLastLineForANewTeam = 50;

void addColumnHeads(ReportLines& lines, std::size_t pickWidth)
{
    lines.push_back(blanks(28) + "<-- Points -->  Points");
    lines.push_back(blanks(29) + "Best   Shure   Current " + "Team Selections in Final"); // sic
    lines.push_back(blanks(28) + "------  ------  ------  " + dashes(pickWidth + 6));
}

std::string orNoSelection(const std::string& pick) { return pick.empty() ? kNoSelection : pick; }

std::string rowLine(const ResultsByTeamRow& row)
{
    return "   " + fitted(row.fileName, kFileColumn) + "  " + row.best + "     " + row.sure + "     " + row.current +
           "    " + orNoSelection(row.winningPick) + " over " + orNoSelection(row.runnerUpPick);
}

/// Writes a team's rows, from the most points down, with the head of a continuation page after a full one.
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
        addColumnHeads(lines, outcome.pickWidth);
        lineOfPage = kContinuationLines;
    }
}

} // namespace

std::string resultsByTeamWorkRow(const ScoreLine& projected, int currentPoints)
{
    return threeDigits(projected.MaxPoints) + kSeparator + projected.FileName + kSeparator +
           threeDigits(projected.Points) + kSeparator + threeDigits(currentPoints) + kSeparator +
           projected.WinningPick + kSeparator + projected.RunnerUpPick;
}

ResultsByTeamRow resultsByTeamRow(std::string_view workRow)
{
    const std::vector<std::string> field = workRowFields(workRow, kSeparator, kFields);
    return {field[0], field[1], field[2], field[3], field[4], field[5]};
}

Result<std::vector<TeamOutcome>> resultsByTeamOutcomes(const ReadPool& pool, const SelectionLines& results,
                                                       const FinalFour& finalFour, const Payoffs& payoffs, Work& work)
{
    const Result<std::vector<ScoreLine>> now = scorePool(pool, results, payoffs, work);
    if (!now)
        return now.failure();

    std::vector<TeamOutcome> outcomes;
    std::size_t pickWidth = 0;
    for (std::size_t team = 1; team < finalFour.size() && !work.cancelled(); ++team) {
        const auto projected = ProjectWinner(results, finalFour, team, FinalOpponent::Open);
        if (!projected)
            continue;
        const Result<std::vector<ScoreLine>> scores = scorePool(pool, *projected, payoffs, work);
        if (!scores)
            return scores.failure();
        TeamOutcome outcome{finalFour[team], {}, 0};
        for (std::size_t player = 0; player < scores->size(); ++player) {
            const ScoreLine& score = (*scores)[player];
            outcome.workRows.push_back(resultsByTeamWorkRow(score, (*now)[player].Points));
            pickWidth = std::max(pickWidth, score.WinningPick.size() + score.RunnerUpPick.size());
        }
        sortWorkRows(outcome.workRows);
        outcome.pickWidth = pickWidth;
        outcomes.push_back(std::move(outcome));
    }
    return outcomes;
}

Result<ReportLines> resultsByTeamLines(std::string_view title, std::span<const TeamOutcome> outcomes)
{
    ReportLines lines;
    int lineOfPage = 0;
    for (const TeamOutcome& outcome : outcomes) {
        if (lineOfPage == 0) {
            const Result<Done> head =
                addCentredPageHead(lines, centredTwice, outcome.pickWidth + 58, title, "Projected Results by Team");
            if (!head)
                return head.failure();
            lineOfPage = kHeadLines;
        }
        lines.push_back("If " + outcome.team + " Wins:");
        addColumnHeads(lines, outcome.pickWidth);
        lineOfPage += kTeamHeadLines;
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
