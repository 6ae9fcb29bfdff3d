// reports/results_by_player.cpp - projects, scores and lays out the results by player.
#include "reports/results_by_player.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pool/scoring.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr int kHeaderLines = 4;
constexpr int kLastLineOfPage = 54;

struct Widths {
    std::size_t file = 0;
    std::size_t team = 0;
    std::size_t page = 0;
};

Widths widthsOf(const FinalFour& finalFour, std::span<const ResultsByPlayerRow> rows)
{
    Widths widths;
    std::size_t pick = 0;
    for (const ResultsByPlayerRow& row : rows) {
        widths.file = std::max(widths.file, row.fileName.size());
        // Of the final game, the champion counts with a width of 0. This page width only centres the header.
        pick = std::max(pick, row.runnerUpPick.size() + 6);
    }
    for (const std::string& team : finalFour)
        widths.team = std::max(widths.team, team.size());
    widths.file = std::max(widths.file, widths.team + 3);
    widths.page = std::max(widths.file + 2 + 23 + pick, widths.file + 2 + 14 + widths.team + 14);
    return widths;
}

std::string finalText(const ResultsByPlayerRow& row)
{
    const std::string winner = row.winningPick.empty() ? "NO SELECTION & over " : row.winningPick + " over ";
    return winner + (row.runnerUpPick.empty() ? kNoSelection : row.runnerUpPick);
}

std::string outcomeText(const FinalOutcome& outcome, int points, std::size_t teamWidth)
{
    return "  winning over  " + fitted(outcome.opponent, teamWidth) + "  Points = " + threeDigits(points);
}

/// Lays out one player after another; a player's block is never split.
class Layout
{
public:
    Layout(std::string_view title, const FinalFour& finalFour, const ByFinal<FinalOutcome>& outcomes,
           const Widths& widths)
        : m_title{title}, m_finalFour{finalFour}, m_outcomes{outcomes}, m_widths{widths}
    {
    }

    Result<Done> add(const ResultsByPlayerRow& row)
    {
        if (m_lineOfPage == 0) {
            const Result<Done> header =
                addCentredPageHeader(lines, centredOnce, m_widths.page, m_title, "Projected Results by Player");
            if (!header)
                return header;
            m_lineOfPage = kHeaderLines;
        }
        if (const Result<Done> current = addCurrent(row); !current)
            return current;
        for (std::size_t team = 0; team < m_outcomes.size(); ++team)
            addOutcomes(row, team);
        lines.emplace_back(kBlankLine);
        if (++m_lineOfPage > kLastLineOfPage) {
            m_lineOfPage = 0;
            lines.emplace_back(kFormFeedLine);
        }
        return Done{};
    }

    ReportLines lines;

private:
    Result<Done> addCurrent(const ResultsByPlayerRow& row)
    {
        constexpr std::size_t kNarrowestTeam = 11;
        if (m_widths.team < kNarrowestTeam)
            return Failure{"The names of the Final Four teams are too short for this report: the longest of them needs "
                           "at least 11 characters."};
        lines.push_back(fitted(row.fileName, m_widths.file) + "  Final Game Selection:  " + finalText(row));
        lines.push_back(blanks(m_widths.file + 2) + "Current Points: " + threeDigits(row.points) +
                        blanks(m_widths.team - kNarrowestTeam) + "Maximum Points = " + threeDigits(row.maxPoints));
        lines.push_back("   " + dashes(m_widths.file + m_widths.team + 27));
        m_lineOfPage += 3;
        return Done{};
    }

    void addOutcomes(const ResultsByPlayerRow& row, std::size_t team)
    {
        const std::string name = fitted(m_finalFour[team], m_widths.team);
        const auto& [first, second] = m_outcomes[team];
        const auto& [firstPoints, secondPoints] = row.projected[team];
        if (first && firstPoints)
            lines.push_back("   " + name + outcomeText(*first, *firstPoints, m_widths.team));
        if (second && secondPoints) {
            const std::string start = "   " + (first ? blanks(name.size()) : name);
            lines.push_back(start + outcomeText(*second, *secondPoints, m_widths.team));
            m_lineOfPage += 2; // also when there is no first line: a page may then end early
        }
    }

    std::string_view m_title;
    const FinalFour& m_finalFour;
    const ByFinal<FinalOutcome>& m_outcomes;
    const Widths& m_widths;
    int m_lineOfPage = 0;
};

/// Scores one player under every outcome that can still happen.
Result<ByFinal<int>> projectedPoints(const Entry& entry, const ByFinal<FinalOutcome>& outcomes, const Payoffs& payoffs)
{
    ByFinal<int> points;
    for (std::size_t team = 0; team < outcomes.size(); ++team) {
        for (std::size_t opponent = 0; opponent < outcomes[team].size(); ++opponent) {
            const std::optional<FinalOutcome>& outcome = outcomes[team][opponent];
            if (!outcome)
                continue;
            const Result<PlayerScore> score = scoreEntry(entry, outcome->results, payoffs);
            if (!score)
                return score.failure();
            points[team][opponent] = score->maxPoints;
        }
    }
    return points;
}

} // namespace

ByFinal<FinalOutcome> finalOutcomes(const Bracket& results)
{
    constexpr std::array kOpponents{FinalOpponent::First, FinalOpponent::Second};
    const FinalFour finalFour = finalFourOf(results);
    ByFinal<FinalOutcome> outcomes;
    for (std::size_t team = 0; team < outcomes.size(); ++team)
        for (std::size_t i = 0; i < kOpponents.size(); ++i)
            if (const auto projected = projectWinner(results, finalFour[team], kOpponents[i]))
                outcomes[team][i] = FinalOutcome{finalOpponent(*projected, static_cast<int>(team)), *projected};
    return outcomes;
}

Result<std::vector<ResultsByPlayerRow>> resultsByPlayerRows(std::span<const Entry> entries, const Bracket& results,
                                                            const ByFinal<FinalOutcome>& outcomes,
                                                            const Payoffs& payoffs, const Step& step)
{
    std::vector<ResultsByPlayerRow> rows;
    rows.reserve(entries.size());
    for (const Entry& entry : entries) {
        const Result<PlayerScore> now = scoreEntry(entry, results, payoffs);
        if (!now)
            return now.failure();
        const Result<ByFinal<int>> projected = projectedPoints(entry, outcomes, payoffs);
        if (!projected)
            return projected.failure();
        rows.push_back({entry.fileName, now->winningPick, now->runnerUpPick, now->points, now->maxPoints, *projected});
        if (!step())
            break;
    }
    return rows;
}

Result<ReportLines> resultsByPlayerLines(std::string_view title, const FinalFour& finalFour,
                                         const ByFinal<FinalOutcome>& outcomes,
                                         std::span<const ResultsByPlayerRow> rows)
{
    const Widths widths = widthsOf(finalFour, rows);
    Layout layout{title, finalFour, outcomes, widths};
    for (const ResultsByPlayerRow& row : rows)
        if (const Result<Done> added = layout.add(row); !added)
            return added.failure();
    return std::move(layout.lines);
}

} // namespace tallyhoop
