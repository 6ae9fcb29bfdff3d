// reports/team_selection_detail.cpp - one line per team, one indented row per player below it.
#include "reports/team_selection_detail.h"

#include "base/text.h"
#include "reports/report_table.h"

namespace tallyhoop {

namespace {

constexpr std::size_t kPlayerColumn = 22;
constexpr std::size_t kCountsBehindPlayer = 24;
constexpr int kHeadLines = 7;
constexpr int kLastLineOfPage = 63;

ui::Message failed(const Failure& failure)
{
    return reportFailure(reportKind(ReportId::TeamSelectionDetail), failure.message);
}

} // namespace

std::optional<ui::Message> TeamSelectionDetailWriter::WriteTmSelDetail(std::string_view option)
{
    if (option == "Open" || option == "Close") {
        if (option == "Open")
            open();
        return std::nullopt;
    }
    if (option != "Output")
        return ui::Message{"Tallyhoop - WriteTmSelDetail Routine", "Error with the routine - Invalid Option request",
                           ui::Buttons::Ok, ui::Icon::Exclamation};
    const Result<Done> written = output();
    counts = {};
    return written ? std::nullopt : std::optional{failed(written.failure())};
}

void TeamSelectionDetailWriter::open()
{
    m_lines.clear();
    m_lastTeam.clear();
    m_lineOfPage = 0;
    m_isFirstPage = true;
}

Result<Done> TeamSelectionDetailWriter::output()
{
    if (m_lineOfPage == 0)
        if (const Result<Done> page = startPage(); !page)
            return page;
    if (team.empty())
        return Done{};
    if (team != m_lastTeam)
        if (const Result<Done> written = writeTeam(); !written)
            return written;
    m_lines.push_back(blanks(5) + fitted(fitted(playerLabel, kPlayerColumn), kCountsBehindPlayer) +
                      countColumns(counts));
    if (++m_lineOfPage > kLastLineOfPage) {
        m_lines.emplace_back(kFormFeedLine);
        m_lineOfPage = 0;
    }
    return Done{};
}

Result<Done> TeamSelectionDetailWriter::startPage()
{
    if (m_isFirstPage) {
        m_lines.emplace_back(kBlankLine);
        ++m_lineOfPage;
        m_isFirstPage = false;
    }
    m_lineOfPage += kHeadLines;
    return addTeamSelectionHead(m_lines, m_title, "Team Selection Detail");
}

Result<Done> TeamSelectionDetailWriter::writeTeam()
{
    const Result<std::string> column = teamColumn(team);
    if (!column)
        return column.failure();
    m_lines.push_back(*column);
    ++m_lineOfPage;
    m_lastTeam = team;
    return Done{};
}

TeamSelectionDetail teamSelectionDetail(std::string_view title, const std::vector<std::string>& entries)
{
    TeamSelectionDetailWriter writer{title};
    std::optional<ui::Message> trouble = writer.WriteTmSelDetail("Open");
    for (std::size_t i = 0; i < entries.size() && !trouble; ++i) {
        const Result<Pick> pick = parsePickEntry(entries[i]);
        if (!pick)
            return {{}, failed(pick.failure())};
        // Players are told apart exactly, also those that differ only in case and stand together.
        if (pick->team != writer.team || pick->playerLabel != writer.playerLabel)
            trouble = writer.WriteTmSelDetail("Output");
        writer.team = pick->team;
        writer.playerLabel = pick->playerLabel;
        ++writer.counts[pick->category];
    }
    if (!trouble)
        trouble = writer.WriteTmSelDetail("Output"); // the last player has nobody behind to bring the row out
    if (!trouble)
        trouble = writer.WriteTmSelDetail("Close");
    if (trouble)
        return {{}, trouble};
    return {writer.takeLines(), std::nullopt};
}

} // namespace tallyhoop
