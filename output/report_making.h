// output/report_making.h - makes any of the seven reports of a folder: checks what it needs, reads, scores, lays out.
#pragma once

#include "base/step.h"
#include "files/data_folder.h"
#include "pool/entry.h"
#include "pool/scoring.h"
#include "reports/report_layout.h"
#include "reports/report_table.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tallyhoop {

/// Whoever has reports made: is told of faulty files and of how far the work is, and can stop it.
class ReportWatcher
{
public:
    ReportWatcher() = default;
    virtual ~ReportWatcher() = default;
    ReportWatcher(const ReportWatcher&) = delete;
    ReportWatcher& operator=(const ReportWatcher&) = delete;

    /// A selection or the results could not be read, or not whole: the report is made of what could be.
    virtual void fileIsDamaged(const std::filesystem::path& file, const Failure& trouble) = 0;

    /// The player list cannot be used: there will be no report.
    virtual void listIsFaulty(const Failure& fault) = 0;

    /// Has a part of the work done.
    /// @param what  what is being done, for people
    /// @param steps how many times the work calls the step that it is given
    /// @returns false when the work was stopped
    virtual bool watch(const std::string& what, std::size_t steps, const std::function<void(const Step&)>& work) = 0;
};

/// What becomes of a report's tick, and of the reports after it, when there is no report.
enum class WithoutReport {
    Untick,
    KeepTick,
    EndRun, ///< the person has cancelled: every tick stays, and no further report is made
};

/// Why there is no report.
struct ReportRefusal {
    enum class Weight { Plain, News, Warning, Fault };

    std::string caption;
    std::string reason; ///< lines separated by CR LF
    Weight weight = Weight::Fault;
    WithoutReport consequence = WithoutReport::Untick;
    bool isAboutPlayerList = false; ///< which has to be repaired
};

/// @param reason empty = not known
ReportRefusal reportRefusal(const ReportKind& kind, const std::string& reason);

class ReportMaking
{
public:
    /// A report's lines, its table for spreadsheets or the scores that it is made of; or why there are none.
    using Made = std::variant<ReportLines, ReportRefusal>;
    using MadeCsv = std::variant<std::string, ReportRefusal>;
    using MadeScores = std::variant<std::vector<PlayerScore>, ReportRefusal>;

    /// All outlive it.
    ReportMaking(const DataFolder& folder, const Field& field, ReportWatcher& watcher)
        : m_folder{folder}, m_field{field}, m_watcher{watcher}
    {
    }

    /// Makes a report. Writes nothing but what checkPlayerNames() does.
    /// @param files every player's file, in list order
    Made make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files);

    /// Makes a report's table, under the same conditions.
    /// @pre csvFileOf(kind.id) has a name
    MadeCsv makeCsv(const ReportKind& kind, std::span<const FolderFile> files);

    /// Scores everybody for the standings, in the order of the files.
    MadeScores makeScores(std::span<const FolderFile> files);

private:
    struct Request {
        const ReportKind& kind;
        std::string title;
        std::span<const FolderFile> files;
    };

    Made makeLines(const Request& request);
    Made makeStandings(const Request& request);
    Made makePlayerListing(const Request& request);
    Made makeTeamSelection(const Request& request);
    Made makePlayerSelectionDetail(const Request& request);
    Made makeResultsByPlayer(const Request& request);
    Made makeResultsByTeam(const Request& request);

    using TakeScores = std::function<void(const std::vector<PlayerScore>& scores)>;
    using TakeEntries = std::function<void(const std::vector<Entry>& players)>;

    /// These have a part of the work done, and say why there can be no report, or nothing.
    std::optional<ReportRefusal> watched(const Request& request, std::size_t steps,
                                         const std::function<void(const Step&)>& work);
    std::optional<ReportRefusal> scoreAll(const Request& request, const TakeScores& take);
    std::optional<ReportRefusal> countPicks(const Request& request, const TakeEntries& take);

    /// What every report that scores is made of.
    struct ScoringInput {
        Bracket results;
        std::vector<Entry> entries;
        Payoffs payoffs{};
    };

    /// The readers of that input say why there can be no report, or nothing and fill what they are given.
    /// @param reportAsNamed the end of the sentence for a pool without players
    std::optional<ReportRefusal> readResults(const Request& request, const char* reportAsNamed, ScoringInput& input);
    std::optional<ReportRefusal> readEntriesAndPayoffs(const Request& request, ScoringInput& input);
    std::optional<ReportRefusal> readForProjection(const Request& request, const char* reportAsNamed,
                                                   ScoringInput& input);

    /// @param like the bracket in which most of the picked teams are expected
    /// @returns nothing when the work was stopped
    std::optional<std::vector<Entry>> readPlayers(const Request& request, const Bracket& like);

    const DataFolder& m_folder;
    const Field& m_field;
    ReportWatcher& m_watcher;
};

} // namespace tallyhoop
