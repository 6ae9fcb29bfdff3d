// screens/reports/report_maker.h - makes any of the seven reports: checks what it needs, reads, scores, lays out.
#pragma once

#include "files/data_folder.h"
#include "files/read_pool.h"
#include "files/selection_file.h"
#include "pool/projection.h"
#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "screens/screens.h"
#include "ui/dialogs.h"
#include "ui/platform.h"

#include <optional>
#include <span>
#include <string>
#include <variant>

namespace tallyhoop {

/// Why there is no report.
struct NoReport {
    ui::Message message;
    bool untick = true;     ///< the report's box loses its tick
    bool cancelled = false; ///< the person ended the work
};

/// A report's lines, or why there are none.
using MadeReport = std::variant<ReportLines, NoReport>;

class ReportMaker
{
public:
    /// @param board shows the payoffs that count
    ReportMaker(const DataFolder& folder, const ui::Platform& platform, const BracketBoard& board);

    /// Makes a report. Damaged files are named by their readers' messages while it is made; a failure of the report
    /// itself is left to the caller to show. Writes nothing.
    /// @param title as it stands on the screen
    /// @param files every player's file, in list order
    MadeReport make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files);

private:
    struct Request {
        const ReportKind& kind;
        const std::string& title;
        std::span<const FolderFile> files;
    };

    MadeReport makeStandings(const Request& request);
    MadeReport makePlayerListing(const Request& request);
    MadeReport makeTeamSelection(const Request& request);
    MadeReport makePlayerSelectionDetail(const Request& request);
    MadeReport makeResultsByPlayer(const Request& request);
    MadeReport makeResultsByTeam(const Request& request);

    /// What every report that scores reads first.
    struct ScoringInput {
        SelectionLines results;
        FinalFour finalFour; ///< known for projections only
        ReadPool pool;
        Payoffs payoffs{};
    };

    /// The readers of that input say why there can be no report, or nothing and fill what they are given.
    std::optional<NoReport> openResults(const Request& request, const char* reportAsNamed, ScoringInput& input);
    std::optional<NoReport> openPool(const Request& request, ScoringInput& input);
    std::optional<NoReport> openProjection(const Request& request, const char* reportAsNamed, ScoringInput& input);

    std::optional<ReadPool> readPlayers(const Request& request);

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    const BracketBoard& m_board;
};

} // namespace tallyhoop
