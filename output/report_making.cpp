// output/report_making.cpp - what each report checks and reads before it is laid out.
// Texts are kept letter for letter, odd spellings included.
#include "output/report_making.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_files.h"
#include "files/selection_file.h"
#include "pool/projection.h"
#include "pool/scoring.h"
#include "reports/csv_tables.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"
#include "reports/team_selection_detail.h"

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

using Weight = ReportRefusal::Weight;

ReportRefusal failed(const ReportKind& kind, const std::string& reason) { return reportRefusal(kind, reason); }

ReportRefusal cancelled(const ReportKind& kind)
{
    return {kind.failureTitle, kCancelled, Weight::News, WithoutReport::EndRun};
}

/// @returns nothing when the projections are possible
std::optional<ReportRefusal> finalFourTrouble(const Bracket& results)
{
    const FinalFourState state = finalFourState(results);
    if (state == FinalFourState::Known)
        return std::nullopt;
    const char* text = state == FinalFourState::Incomplete ? kFinalFourIncomplete : kChampionKnown;
    return ReportRefusal{kFinalFourTitle, text, Weight::Warning};
}

ReportMaking::Made outcome(const ReportKind& kind, const Result<ReportLines>& lines)
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

ReportRefusal faultyPlayerNames(const ReportKind& kind)
{
    ReportRefusal refusal = failed(kind, kFaultyPlayerNames);
    refusal.isAboutPlayerList = true;
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

ReportRefusal reportRefusal(const ReportKind& kind, const std::string& reason)
{
    return {kind.failureTitle, reason.empty() ? "General Error Condition" : reason};
}

ReportMaking::Made ReportMaking::make(const ReportKind& kind, const std::string& title,
                                      std::span<const FolderFile> files)
{
    Made made = makeLines({kind, title, files});
    if (auto* lines = std::get_if<ReportLines>(&made))
        keepOnOneLineEach(*lines);
    return made;
}

ReportMaking::MadeCsv ReportMaking::makeCsv(const ReportKind& kind, std::span<const FolderFile> files)
{
    const Request request{kind, {}, files};
    MadeCsv made = failed(kind, {});
    std::optional<ReportRefusal> refusal;
    if (kind.id == ReportId::TournamentStandings)
        refusal = scoreAll(request, [&](const auto& scores) { made = standingsCsv(scores); });
    else if (kind.id == ReportId::TeamSelectionSummary)
        refusal = countPicks(request, [&](const auto& players) { made = picksCsv(players); });
    else if (kind.id == ReportId::TeamSelectionDetail)
        refusal = countPicks(request, [&](const auto& players) { made = picksByPlayerCsv(players); });
    return refusal ? *std::move(refusal) : std::move(made);
}

ReportMaking::MadeScores ReportMaking::makeScores(std::span<const FolderFile> files)
{
    MadeScores made;
    std::optional<ReportRefusal> refusal = scoreAll({reportKind(ReportId::TournamentStandings), {}, files},
                                                    [&](const std::vector<PlayerScore>& scores) { made = scores; });
    return refusal ? *std::move(refusal) : std::move(made);
}

std::optional<ReportRefusal> ReportMaking::watched(const Request& request, std::size_t steps,
                                                   const std::function<void(const Step&)>& work)
{
    if (m_watcher.watch(request.kind.name, steps, work))
        return std::nullopt;
    return cancelled(request.kind);
}

ReportMaking::Made ReportMaking::makeLines(const Request& request)
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

ReportMaking::Made ReportMaking::makeStandings(const Request& request)
{
    Made made;
    std::optional<ReportRefusal> refusal = scoreAll(request, [&](const std::vector<PlayerScore>& scores) {
        made = outcome(request.kind, standingsLines(request.title, scores));
    });
    return refusal ? *std::move(refusal) : std::move(made);
}

std::optional<ReportRefusal> ReportMaking::scoreAll(const Request& request, const TakeScores& take)
{
    ScoringInput input;
    if (auto trouble = readResults(request, "\"Tournament Standings Report\" cannot be prepared.", input))
        return trouble;
    if (auto trouble = readEntriesAndPayoffs(request, input))
        return trouble;
    std::optional<ReportRefusal> failure;
    std::optional<ReportRefusal> stopped = watched(request, input.entries.size(), [&](const Step& step) {
        if (const auto scores = scoreEntries(input.entries, input.results, input.payoffs, step))
            take(*scores);
        else
            failure = failed(request.kind, scores.failure().message);
    });
    return stopped ? stopped : failure;
}

ReportMaking::Made ReportMaking::makePlayerListing(const Request& request)
{
    if (const Result<Done> checked = checkPlayerNames(m_folder); !checked) {
        m_watcher.listIsFaulty(checked.failure());
        return faultyPlayerNames(request.kind);
    }
    const Result<std::string> bytes = m_folder.read(file_name::kPlayerNames);
    if (!bytes)
        return failed(request.kind, bytes.failure().message);
    const std::vector<PlayerListingRow> rows = listingRows(*bytes);
    if (std::ranges::all_of(rows, isBlank)) // not even the headings
        return faultyPlayerNames(request.kind);
    return playerListingLines(request.title, rows);
}

ReportMaking::Made ReportMaking::makeTeamSelection(const Request& request)
{
    const bool isSummary = request.kind.id == ReportId::TeamSelectionSummary;
    Made made;
    std::optional<ReportRefusal> refusal = countPicks(request, [&](const std::vector<Entry>& players) {
        const std::vector<std::string> picks = pickEntries(players);
        made = outcome(request.kind, isSummary ? teamSelectionSummaryLines(request.title, picks)
                                               : teamSelectionDetailLines(request.title, picks));
    });
    return refusal ? *std::move(refusal) : std::move(made);
}

std::optional<ReportRefusal> ReportMaking::countPicks(const Request& request, const TakeEntries& take)
{
    const bool isSummary = request.kind.id == ReportId::TeamSelectionSummary;
    if (request.files.empty())
        return ReportRefusal{"Tallyhoop - TeamSelSetup",
                             std::string{kNoFiles} + "Team Selection Reports cannot be prepared.", Weight::Warning,
                             isSummary ? WithoutReport::Untick : WithoutReport::KeepTick};
    const std::optional<std::vector<Entry>> players = readPlayers(request, startingBracket(m_field));
    if (!players)
        return cancelled(request.kind);
    return watched(request, 1, [&](const Step&) { take(*players); }); // sorting them takes a moment
}

ReportMaking::Made ReportMaking::makePlayerSelectionDetail(const Request& request)
{
    if (request.files.empty())
        return ReportRefusal{request.kind.failureTitle,
                             std::string{kNoFiles} + "\"Player Selection Detail\" report cannot be prepared.",
                             Weight::Plain, WithoutReport::KeepTick};
    const std::optional<std::vector<Entry>> players = readPlayers(request, startingBracket(m_field));
    if (!players)
        return cancelled(request.kind);
    return outcome(request.kind, playerSelectionDetailLines(request.title, playersByFileName(*players)));
}

ReportMaking::Made ReportMaking::makeResultsByPlayer(const Request& request)
{
    ScoringInput input;
    if (auto trouble = readForProjection(request, "\"Projected Results by Player\" report cannot be prepared.", input))
        return *trouble;

    const ByFinal<FinalOutcome> outcomes = finalOutcomes(input.results);
    Made made;
    std::optional<ReportRefusal> stopped = watched(request, input.entries.size(), [&](const Step& step) {
        const auto rows = resultsByPlayerRows(input.entries, input.results, outcomes, input.payoffs, step);
        made = rows ? outcome(request.kind,
                              resultsByPlayerLines(request.title, finalFourOf(input.results), outcomes, *rows))
                    : failed(request.kind, rows.failure().message);
    });
    return stopped ? *std::move(stopped) : std::move(made);
}

ReportMaking::Made ReportMaking::makeResultsByTeam(const Request& request)
{
    ScoringInput input;
    if (auto trouble = readForProjection(request, "\"Projected Results by Team\" report cannot be prepared.", input))
        return *trouble;

    // Every player is scored now, and once for each team that can still win.
    Made made;
    std::optional<ReportRefusal> stopped =
        watched(request, (1 + kRegions) * input.entries.size(), [&](const Step& step) {
            const auto outcomes = resultsByTeamOutcomes(input.entries, input.results, input.payoffs, step);
            made = outcomes ? outcome(request.kind, resultsByTeamLines(request.title, *outcomes))
                            : failed(request.kind, outcomes.failure().message);
        });
    return stopped ? *std::move(stopped) : std::move(made);
}

std::optional<ReportRefusal> ReportMaking::readResults(const Request& request, const char* reportAsNamed,
                                                       ScoringInput& input)
{
    if (request.files.empty())
        return failed(request.kind, std::string{kNoFiles} + reportAsNamed);
    if (!m_folder.exists(file_name::kResults))
        return failed(request.kind, kNoResults);
    const std::filesystem::path file = m_folder.pathTo(file_name::kResults);
    const Read<Entry> results = readSelectionFile(file, startingBracket(m_field));
    if (results.trouble)
        m_watcher.fileIsDamaged(file, *results.trouble);
    input.results = results.value.picks;
    return std::nullopt;
}

std::optional<ReportRefusal> ReportMaking::readEntriesAndPayoffs(const Request& request, ScoringInput& input)
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

std::optional<ReportRefusal> ReportMaking::readForProjection(const Request& request, const char* reportAsNamed,
                                                             ScoringInput& input)
{
    if (auto trouble = readResults(request, reportAsNamed, input))
        return trouble;
    if (auto trouble = finalFourTrouble(input.results))
        return trouble;
    return readEntriesAndPayoffs(request, input);
}

std::optional<std::vector<Entry>> ReportMaking::readPlayers(const Request& request, const Bracket& like)
{
    ReadEntries read;
    const bool isWhole = m_watcher.watch("Reading the selections", request.files.size(),
                                         [&](const Step& step) { read = readEntries(request.files, like, step); });
    if (!isWhole)
        return std::nullopt;
    for (const FileTrouble& trouble : read.troubles)
        m_watcher.fileIsDamaged(trouble.file, trouble.failure);
    return std::move(read.entries);
}

} // namespace tallyhoop
