// reports/team_selection_detail.cpp - one line per team, one indented row per player below it.
#include "reports/team_selection_detail.h"

#include "base/text.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kPlayerColumn = 22;
constexpr std::size_t kCountsAfterPlayer = 24;
constexpr int kHeaderLines = 7;
constexpr int kLastLineOfPage = 63;

/// Collects a player's picks of a team and writes their row once a pick of another player or team comes.
class Detail
{
public:
    explicit Detail(std::string_view title) : m_title{title} {}

    Result<Done> add(const Pick& pick)
    {
        // Players are compared exactly: those that differ only in case, one after the other, are two.
        if (pick.team != m_team || pick.playerLabel != m_playerLabel)
            if (const Result<Done> written = writeRow(); !written)
                return written;
        m_team = pick.team;
        m_playerLabel = pick.playerLabel;
        ++m_counts[pick.category];
        return Done{};
    }

    /// The last player's row, with the header of the first page where there was no pick at all.
    Result<Done> close() { return writeRow(); }

    ReportLines lines;

private:
    /// Writes nothing but a header that is due as long as there is no team.
    Result<Done> writeRow()
    {
        if (m_lineOfPage == 0)
            if (const Result<Done> page = startPage(); !page)
                return page;
        if (!m_team.empty())
            if (const Result<Done> row = writePlayer(); !row)
                return row;
        m_counts = {};
        return Done{};
    }

    Result<Done> writePlayer()
    {
        if (m_team != m_lastTeam)
            if (const Result<Done> team = writeTeam(); !team)
                return team;
        lines.push_back(blanks(5) + fitted(fitted(m_playerLabel, kPlayerColumn), kCountsAfterPlayer) +
                        countColumns(m_counts));
        if (++m_lineOfPage > kLastLineOfPage) {
            lines.emplace_back(kFormFeedLine);
            m_lineOfPage = 0;
        }
        return Done{};
    }

    Result<Done> writeTeam()
    {
        const Result<std::string> column = teamColumn(m_team);
        if (!column)
            return column.failure();
        lines.push_back(*column);
        ++m_lineOfPage;
        m_lastTeam = m_team;
        return Done{};
    }

    Result<Done> startPage()
    {
        if (lines.empty()) {
            lines.emplace_back(kBlankLine);
            ++m_lineOfPage;
        }
        m_lineOfPage += kHeaderLines;
        return addTeamSelectionHeader(lines, m_title, "Team Selection Detail");
    }

    std::string_view m_title;
    std::string m_team; ///< of the next row; empty before the first team
    std::string m_playerLabel;
    CategoryCounts m_counts{};
    std::string m_lastTeam; ///< whose line was written last
    int m_lineOfPage = 0;
};

} // namespace

Result<ReportLines> teamSelectionDetailLines(std::string_view title, const std::vector<std::string>& entries)
{
    Detail detail{title};
    for (const std::string& entry : entries) {
        const Result<Pick> pick = parsePickEntry(entry);
        if (!pick)
            return pick.failure();
        if (const Result<Done> added = detail.add(*pick); !added)
            return added.failure();
    }
    if (const Result<Done> closed = detail.close(); !closed)
        return closed.failure();
    return std::move(detail.lines);
}

} // namespace tallyhoop
