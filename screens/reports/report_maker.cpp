// screens/reports/report_maker.cpp - what each report checks and reads before it is laid out.
// Texts are kept letter for letter, odd spellings included.
#include "screens/reports/report_maker.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_files.h"
#include "files/selection_file.h"
#include "pool/projection.h"
#include "pool/scoring.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"
#include "reports/team_selection_detail.h"
#include "screens/help_topics.h"
#include "screens/saving.h"
#include "ui/work.h"

#include <algorithm>
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
    return {{kind.failureTitle, kCancelled, ui::Buttons::Ok, ui::Icon::Information}, WithoutReport::EndRun};
}

/// @returns nothing when the projections are possible
std::optional<NoReport> finalFourTrouble(const Bracket& results)
{
    const FinalFourState state = finalFourState(results);
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

/// The name of a file can hold line breaks: they would make lines of their own, which say what nobody has said.
void keepOnOneLineEach(ReportLines& lines)
{
    for (std::string& line : lines)
        if (line != kFormFeedLine)
            line = asOneLine(std::move(line));
}

NoReport faultyPlayerNames(const ReportKind& kind)
{
    NoReport refusal = failed(kind, kFaultyPlayerNames);
    refusal.message.helpTopic = help_topic::kRepair;
    return refusal;
}

bool isBlank(const PlayerListingRow& row) { return lastNonBlank(row.name + row.fileName + row.email + row.phone) == 0; }

/// @returns the headings and the players of PLAYERNAMES.CSV, as its records hold them
std::vector<PlayerListingRow> listingRows(std::string_view playerNames)
{
    std::vector<PlayerListingRow> rows;
    for (const std::string& line : linesOf(playerNames)) {
        const PlayerRecord record = parseRecord(line);
        rows.push_back({record.name, record.fileName, record.email, record.phone});
    }
    return rows;
}

} // namespace

ui::Message reportFailure(const ReportKind& kind, const std::string& reason)
{
    return {kind.failureTitle, reason.empty() ? "General Error Condition" : reason, ui::Buttons::Ok,
            ui::Icon::Critical};
}

ReportMaker::ReportMaker(const DataFolder& folder, const ui::Platform& platform, const Field& field)
    : m_folder{folder}, m_platform{platform}, m_field{field}
{
}

MadeReport ReportMaker::make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files)
{
    MadeReport made = makeLines({kind, title, files});
    if (auto* lines = std::get_if<ReportLines>(&made))
        keepOnOneLineEach(*lines);
    return made;
}

MadeReport ReportMaker::makeLines(const Request& request)
{
    switch (request.kind.id) {
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
    return failed(request.kind, {});
}

MadeReport ReportMaker::makeStandings(const Request& request)
{
    ScoringInput input;
    if (auto trouble = readResults(request, "\"Tournament Standings Report\" cannot be prepared.", input))
        return *trouble;
    if (auto trouble = readEntriesAndPayoffs(request, input))
        return *trouble;

    Work work{m_platform.progress, request.kind.name, input.entries.size()};
    const auto scores = scoreEntries(input.entries, input.results, input.payoffs, [&work] { return work.step(); });
    if (!scores)
        return failed(request.kind, scores.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, standingsLines(request.title, *scores));
}

MadeReport ReportMaker::makePlayerListing(const Request& request)
{
    if (!playerListIsSound(m_platform.dialogs, m_folder))
        return faultyPlayerNames(request.kind);
    const Result<std::string> bytes = m_folder.read(file_name::kPlayerNames);
    if (!bytes)
        return failed(request.kind, bytes.failure().message);
    const std::vector<PlayerListingRow> rows = listingRows(*bytes);
    if (std::ranges::all_of(rows, isBlank)) // not even the headings
        return faultyPlayerNames(request.kind);
    return playerListingLines(request.title, rows);
}

MadeReport ReportMaker::makeTeamSelection(const Request& request)
{
    const bool isSummary = request.kind.id == ReportId::TeamSelectionSummary;
    if (request.files.empty())
        return NoReport{{"Tallyhoop - TeamSelSetup",
                         std::string{kNoFiles} + "Team Selection Reports cannot be prepared.", ui::Buttons::Ok,
                         ui::Icon::Exclamation},
                        isSummary ? WithoutReport::Untick : WithoutReport::KeepTick};
    const std::optional<std::vector<Entry>> players = readPlayers(request, startingBracket(m_field));
    if (!players)
        return cancelled(request.kind);
    const Work work{m_platform.progress, request.kind.name, 1}; // sorting all picks takes a moment
    const std::vector<std::string> picks = pickEntries(*players);
    return outcome(request.kind, isSummary ? teamSelectionSummaryLines(request.title, picks)
                                           : teamSelectionDetailLines(request.title, picks));
}

MadeReport ReportMaker::makePlayerSelectionDetail(const Request& request)
{
    if (request.files.empty())
        return NoReport{{request.kind.failureTitle,
                         std::string{kNoFiles} + "\"Player Selection Detail\" report cannot be prepared.",
                         ui::Buttons::Ok, ui::Icon::None},
                        WithoutReport::KeepTick};
    const std::optional<std::vector<Entry>> players = readPlayers(request, startingBracket(m_field));
    if (!players)
        return cancelled(request.kind);
    return outcome(request.kind, playerSelectionDetailLines(request.title, playersByFileName(*players)));
}

MadeReport ReportMaker::makeResultsByPlayer(const Request& request)
{
    ScoringInput input;
    if (auto trouble = readForProjection(request, "\"Projected Results by Player\" report cannot be prepared.", input))
        return *trouble;

    const ByFinal<FinalOutcome> outcomes = finalOutcomes(input.results);
    Work work{m_platform.progress, request.kind.name, input.entries.size()};
    const auto rows =
        resultsByPlayerRows(input.entries, input.results, outcomes, input.payoffs, [&work] { return work.step(); });
    if (!rows)
        return failed(request.kind, rows.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, resultsByPlayerLines(request.title, finalFourOf(input.results), outcomes, *rows));
}

MadeReport ReportMaker::makeResultsByTeam(const Request& request)
{
    ScoringInput input;
    if (auto trouble = readForProjection(request, "\"Projected Results by Team\" report cannot be prepared.", input))
        return *trouble;

    // Every player is scored now, and once for each team that can still win.
    Work work{m_platform.progress, request.kind.name, (1 + kRegions) * input.entries.size()};
    const auto outcomes =
        resultsByTeamOutcomes(input.entries, input.results, input.payoffs, [&work] { return work.step(); });
    if (!outcomes)
        return failed(request.kind, outcomes.failure().message);
    if (work.cancelled())
        return cancelled(request.kind);
    return outcome(request.kind, resultsByTeamLines(request.title, *outcomes));
}

std::optional<NoReport> ReportMaker::readResults(const Request& request, const char* reportAsNamed, ScoringInput& input)
{
    if (request.files.empty())
        return failed(request.kind, std::string{kNoFiles} + reportAsNamed);
    if (!m_folder.exists(file_name::kResults))
        return failed(request.kind, kNoResults);
    const std::filesystem::path file = m_folder.pathTo(file_name::kResults);
    const Read<Entry> results = readSelectionFile(file, startingBracket(m_field));
    if (results.trouble)
        showReadingTrouble(m_platform.dialogs, file);
    input.results = results.value.picks;
    return std::nullopt;
}

std::optional<NoReport> ReportMaker::readEntriesAndPayoffs(const Request& request, ScoringInput& input)
{
    std::optional<std::vector<Entry>> entries = readPlayers(request, input.results);
    if (!entries)
        return cancelled(request.kind);
    const Result<Payoffs>& payoffs = m_field.payoffs.points();
    if (!payoffs)
        return failed(request.kind, payoffs.failure().message);
    input.entries = std::move(*entries);
    input.payoffs = *payoffs;
    return std::nullopt;
}

std::optional<NoReport> ReportMaker::readForProjection(const Request& request, const char* reportAsNamed,
                                                       ScoringInput& input)
{
    if (auto trouble = readResults(request, reportAsNamed, input))
        return trouble;
    if (auto trouble = finalFourTrouble(input.results))
        return trouble;
    return readEntriesAndPayoffs(request, input);
}

std::optional<std::vector<Entry>> ReportMaker::readPlayers(const Request& request, const Bracket& like)
{
    ReadEntries read;
    {
        Work work{m_platform.progress, "Reading the selections", request.files.size()};
        read = readEntries(request.files, like, [&work] { return work.step(); });
        if (work.cancelled())
            return std::nullopt;
    }
    for (const FileTrouble& trouble : read.troubles)
        showReadingTrouble(m_platform.dialogs, trouble.file);
    return std::move(read.entries);
}

} // namespace tallyhoop
