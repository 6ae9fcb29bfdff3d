// reports/team_selection_summary.cpp - one row of counts per team.
#include "reports/team_selection.h"

namespace tallyhoop {

namespace {

constexpr int kFirstLineOfPage = 1;
constexpr int kLastLineOfPage = 63;

class Summary
{
public:
    explicit Summary(std::string_view title) : m_title{title} {}

    Result<Done> add(const Pick& pick)
    {
        if (pick.team != m_team)
            if (const Result<Done> changed = changeTeam(pick.team); !changed)
                return changed;
        ++m_counts[pick.category];
        return Done{};
    }

    /// The last team's row, brought out as the arrival of one more team would.
    Result<Done> close() { return changeTeam({}); }

    ReportLines lines;

private:
    Result<Done> changeTeam(const std::string& team)
    {
        // The counter is at its start until the first row of a page is written: the header must not come twice.
        if (m_lineOfPage == kFirstLineOfPage && !m_hasHeader) {
            if (const Result<Done> header = addTeamSelectionHeader(lines, m_title, "Team Selection Summary"); !header)
                return header;
            m_hasHeader = true;
        }
        if (!m_isFirst)
            if (const Result<Done> row = addRow(); !row)
                return row;
        if (m_lineOfPage > kLastLineOfPage) {
            lines.emplace_back(kBlankLine);
            lines.emplace_back(kFormFeedLine);
            m_lineOfPage = kFirstLineOfPage;
            m_hasHeader = false;
        }
        m_team = team;
        m_isFirst = false;
        return Done{};
    }

    Result<Done> addRow()
    {
        const Result<std::string> team = teamColumn(m_team);
        if (!team)
            return team.failure();
        lines.push_back(*team + countColumns(m_counts));
        lines.push_back(countRule());
        m_lineOfPage += 2;
        m_counts = {};
        return Done{};
    }

    std::string_view m_title;
    std::string m_team;
    CategoryCounts m_counts{};
    int m_lineOfPage = kFirstLineOfPage;
    bool m_isFirst = true;
    bool m_hasHeader = false;
};

} // namespace

Result<ReportLines> teamSelectionSummaryLines(std::string_view title, const std::vector<std::string>& entries)
{
    Summary summary{title};
    for (const std::string& entry : entries) {
        const Result<Pick> pick = parsePickEntry(entry);
        if (!pick)
            return pick.failure();
        if (const Result<Done> added = summary.add(*pick); !added)
            return added.failure();
    }
    if (const Result<Done> closed = summary.close(); !closed)
        return closed.failure();
    return std::move(summary.lines);
}

} // namespace tallyhoop
