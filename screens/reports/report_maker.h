// screens/reports/report_maker.h - makes any of the seven reports: checks what it needs, reads, scores, lays out.
#pragma once

#include "files/data_folder.h"
#include "pool/entry.h"
#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "ui/platform.h"

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tallyhoop {

/// What becomes of a report's tick, and of the reports after it, when there is no report.
enum class WithoutReport {
    Untick,
    KeepTick,
    EndRun, ///< the person has cancelled: every tick stays, and no further report is made
};

/// Why there is no report.
struct NoReport {
    ui::Message message;
    WithoutReport consequence = WithoutReport::Untick;
};

/// A report's lines, or why there are none.
using MadeReport = std::variant<ReportLines, NoReport>;

/// @returns the message that ends a report which cannot be made
/// @param reason empty = not known
ui::Message reportFailure(const ReportKind& kind, const std::string& reason);

class ReportMaker
{
public:
    ReportMaker(const DataFolder& folder, const ui::Platform& platform, const Field& field);

    /// Makes a report. Damaged files are named by messages of their own while it is made; a failure of the report
    /// itself is left to the caller to show. Writes nothing.
    /// @param title as it is on the screen
    /// @param files every player's file, in list order
    MadeReport make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files);

private:
    struct Request {
        const ReportKind& kind;
        const std::string& title;
        std::span<const FolderFile> files;
    };

    MadeReport makeLines(const Request& request);
    MadeReport makeStandings(const Request& request);
    MadeReport makePlayerListing(const Request& request);
    MadeReport makeTeamSelection(const Request& request);
    MadeReport makePlayerSelectionDetail(const Request& request);
    MadeReport makeResultsByPlayer(const Request& request);
    MadeReport makeResultsByTeam(const Request& request);

    /// What every report that scores is made of.
    struct ScoringInput {
        Bracket results;
        std::vector<Entry> entries;
        Payoffs payoffs{};
    };

    /// The readers of that input say why there can be no report, or nothing and fill what they are given.
    /// @param reportAsNamed the end of the sentence for a pool without players
    std::optional<NoReport> readResults(const Request& request, const char* reportAsNamed, ScoringInput& input);
    std::optional<NoReport> readEntriesAndPayoffs(const Request& request, ScoringInput& input);
    std::optional<NoReport> readForProjection(const Request& request, const char* reportAsNamed, ScoringInput& input);

    /// @param like the bracket in which most of the picked teams are expected
    /// @returns nothing when the person cancelled
    std::optional<std::vector<Entry>> readPlayers(const Request& request, const Bracket& like);

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    const Field& m_field;
};

} // namespace tallyhoop
