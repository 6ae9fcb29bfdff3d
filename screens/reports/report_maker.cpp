// screens/reports/report_maker.cpp - what each report checks and reads before it is laid out.
#include "screens/reports/report_maker.h"

#include "base/lines.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "pool/projection.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"
#include "reports/team_selection_detail.h"
#include "screens/help_topics.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kNoFiles = "There aren't any Player Selection files saved,  so the\r\n";
constexpr const char* kNoResults = "Game Results have not been entered, this option\r\n"
                                   "is NOT valid until this activity has been completed";
constexpr const char* kFaultyPlayerNames = "Problems found with PLAYERNAMES.CSV file\r\n"
                                           "This condition must be corrected, See Help content";
constexpr const char* kFinalFourTitle = "Tallyhoop - frmPoolReports, ChkFinalFour";
constexpr const char* kFinalFourIncomplete = "You will need to enter the four teams that have\r\n"
                                             "progressed to the Final Four before this option\r\n"
                                             "can be selected.\r\n"
                                             "\r\n"
                                             "Please correct and re-select this option.";
constexpr const char* kChampionKnown = "You have already scored the tournament winner, so\r\n"
                                       "a projection isn't meaningful";
constexpr const char* kCancelled = "The report was cancelled: no report was made.";

NoReport failed(const ReportKind& kind, const std::string& reason) { return {reportFailure(kind, reason)}; }

NoReport cancelled(const ReportKind& kind)
{
    return {{kind.failureTitle, kCancelled, ui::Buttons::Ok, ui::Icon::Information}, false, true};
}

/// @returns nothing when the projections are possible
std::optional<NoReport> finalFourTrouble(const SelectionLines& results, FinalFour& finalFour)
{
    const FinalFourState state = ChkFinalFour(results, finalFour);
    if (state == FinalFourState::Known)
        return std::nullopt;
    const char* text = state == FinalFourState::Incomplete ? kFinalFourIncomplete : kChampionKnown;
    return NoReport{{kFinalFourTitle, text, ui::Buttons::Ok, ui::Icon::Exclamation}};
}

MadeReport outcome(const ReportKind& kind, const Result<ReportLines>& lines)
{
    if (!lines)
        return failed(kind, lines.failure().message);
    return *lines;
}

} // namespace

ReportMaker::ReportMaker(const DataFolder& folder, const ui::Platform& platform, const BracketBoard& board)
    : m_folder{folder}, m_platform{platform}, m_board{board}
{
}

MadeReport ReportMaker::make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files)
{
    const Request request{kind, title, files};
    switch (kind.id) {
    case ReportId::TournamentStandings:
        return makeStandings(request);
    case ReportId::PlayerListing:
        return makePlayerListing(request);
    case ReportId::TeamSelectionSummary:
    case ReportId::TeamSelectionDetail:
        return makeTeamSelection(request);
    case ReportId::PlayerSelectionDetail:
        return makePlayerSelectionDetail(request);
    case ReportId::ResultsByPlayer:
        return makeResultsByPlayer(request);
    case ReportId::ResultsByTeam:
        return makeResultsByTeam(request);
    }
    return failed(kind, {});
}

MadeReport ReportMaker::makeStandings(const Request& request)
{
    ScoringInput input;
    if (auto trouble = openResults(request, "\"Tournament Standings Report\" cannot be prepared.", input))
        return *trouble;
    if (auto trouble = openPool(request, input))
        return *trouble;

    Work work{m_platform.progress, request.kind.name, input.pool.players.size()};
    const auto scores = scorePool(input.pool, input.results, input.payoffs, work);
    if (!scores)
        return failed(request.kind, scores.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, standingsLines(request.title, *scores));
}

MadeReport ReportMaker::makePlayerListing(const Request& request)
{
    if (!validatePlayerNames(m_folder, m_platform.dialogs)) {
        NoReport refusal = failed(request.kind, kFaultyPlayerNames);
        refusal.message.helpTopic = help_topic::kRepair;
        return refusal;
    }
    const Result<std::string> bytes = m_folder.read(file_name::kPlayerNames);
    if (!bytes)
        return failed(request.kind, bytes.failure().message);
    return playerListingLines(request.title, linesOf(*bytes));
}

MadeReport ReportMaker::makeTeamSelection(const Request& request)
{
    const bool isSummary = request.kind.id == ReportId::TeamSelectionSummary;
    if (request.files.empty())
        return NoReport{{"Tallyhoop - TeamSelSetup",
                         std::string{kNoFiles} + "Team Selection Reports cannot be prepared.", ui::Buttons::Ok,
                         ui::Icon::Exclamation},
                        isSummary};
    const std::optional<ReadPool> pool = readPlayers(request);
    if (!pool)
        return cancelled(request.kind);
    const Work work{m_platform.progress, request.kind.name, 1}; // sorting all picks takes a moment
    const std::vector<std::string> entries = pickEntries(*pool);
    if (isSummary)
        return outcome(request.kind, teamSelectionSummaryLines(request.title, entries));

    TeamSelectionDetail detail = teamSelectionDetail(request.title, entries);
    if (detail.trouble)
        return NoReport{*detail.trouble};
    return std::move(detail.lines);
}

MadeReport ReportMaker::makePlayerSelectionDetail(const Request& request)
{
    if (request.files.empty())
        return NoReport{{request.kind.failureTitle,
                         std::string{kNoFiles} + "\"Player Selection Detail\" report cannot be prepared.",
                         ui::Buttons::Ok, ui::Icon::None},
                        false};
    const std::optional<ReadPool> pool = readPlayers(request);
    if (!pool)
        return cancelled(request.kind);
    return outcome(request.kind, playerSelectionDetailLines(request.title, playersByFileName(*pool)));
}

MadeReport ReportMaker::makeResultsByPlayer(const Request& request)
{
    ScoringInput input;
    if (auto trouble = openProjection(request, "\"Projected Results by Player\" report cannot be prepared.", input))
        return *trouble;

    const ByFinal<FinalOutcome> outcomes = finalOutcomes(input.results, input.finalFour);
    Work work{m_platform.progress, request.kind.name, input.pool.players.size()};
    const auto rows = resultsByPlayerRows(input.pool, input.results, outcomes, input.payoffs, work);
    if (!rows)
        return failed(request.kind, rows.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, resultsByPlayerLines(request.title, input.finalFour, outcomes, *rows));
}

MadeReport ReportMaker::makeResultsByTeam(const Request& request)
{
    ScoringInput input;
    if (auto trouble = openProjection(request, "\"Projected Results by Team\" report cannot be prepared.", input))
        return *trouble;

    Work work{m_platform.progress, request.kind.name, input.finalFour.size() * input.pool.players.size()};
    const auto outcomes = resultsByTeamOutcomes(input.pool, input.results, input.finalFour, input.payoffs, work);
    if (!outcomes)
        return failed(request.kind, outcomes.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, resultsByTeamLines(request.title, *outcomes));
}

std::optional<NoReport> ReportMaker::openResults(const Request& request, const char* reportAsNamed, ScoringInput& input)
{
    if (request.files.empty())
        return failed(request.kind, std::string{kNoFiles} + reportAsNamed);
    if (!m_folder.exists(file_name::kResults))
        return failed(request.kind, kNoResults);
    ReadSelections(*m_folder.pathOf(file_name::kResults), m_platform.dialogs, input.results);
    return std::nullopt;
}

std::optional<NoReport> ReportMaker::openPool(const Request& request, ScoringInput& input)
{
    std::optional<ReadPool> pool = readPlayers(request);
    if (!pool)
        return cancelled(request.kind);
    const Result<Payoffs> payoffs = m_board.payoffs();
    if (!payoffs)
        return failed(request.kind, payoffs.failure().message);
    input.pool = std::move(*pool);
    input.payoffs = *payoffs;
    return std::nullopt;
}

std::optional<NoReport> ReportMaker::openProjection(const Request& request, const char* reportAsNamed,
                                                    ScoringInput& input)
{
    if (auto trouble = openResults(request, reportAsNamed, input))
        return trouble;
    if (auto trouble = finalFourTrouble(input.results, input.finalFour))
        return trouble;
    return openPool(request, input);
}

std::optional<ReadPool> ReportMaker::readPlayers(const Request& request)
{
    ReadPool pool;
    {
        Work work{m_platform.progress, "Reading the selections", request.files.size()};
        pool = readPool(request.files, work);
        if (work.cancelled())
            return std::nullopt;
    }
    for (const std::filesystem::path& file : pool.troubled)
        showReadingTrouble(file, m_platform.dialogs);
    return pool;
}

} // namespace tallyhoop
