// cli/verbs.h - the verbs, one file each: what a person can ask for beside the folder and the output.
//
// Each one writes what it has made and reports the faults it has met; what is faulty is left out, or makes the verb
// impossible, exactly as in the windows.
#pragma once

#include "cli/session.h"
#include "pool/outlook/chances.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop::cli {

struct StandingsOptions {
    std::string title; ///< UTF-8; empty = the field's
    bool asJson = false;
};
/// The tournament standings: the text of report 1, or its rows.
void standings(Session& session, const StandingsOptions& options);

struct ReportOptions {
    int number = 0;    ///< 1..7, as in RPTOPT1.TXT
    std::string title; ///< UTF-8; empty = the field's
};
/// One of the seven reports.
void report(Session& session, const ReportOptions& options);

struct ScoresOptions {
    bool asJson = false;
};
/// The list of all scores as it is printed.
void scores(Session& session, const ScoresOptions& options);

struct OutlookOptions {
    ChanceKind weights = ChanceKind::Alike;
    bool asJson = false;
};
/// The outlook by the results as entered.
void outlook(Session& session, const OutlookOptions& options);

struct CsvOptions {
    enum class Table { Standings, Picks, PicksByPlayer, Outlook };
    Table table = Table::Standings;
    ChanceKind weights = ChanceKind::Alike; ///< of the outlook
};
/// A table for spreadsheets.
void csv(Session& session, const CsvOptions& options);

struct PageOptions {
    ChanceKind weights = ChanceKind::Alike; ///< of the outlook
};
/// The page that shows the pool in a browser.
void page(Session& session, const PageOptions& options);

struct FinalOptions {
    bool asJson = false;
};
/// The sheet that ends the season.
void finalSheet(Session& session, const FinalOptions& options);

struct FormOptions {
    std::string organiser; ///< the address that brackets are sent to; empty = none
};
/// The entry form.
void form(Session& session, const FormOptions& options);

struct ImportOptions {
    std::vector<std::filesystem::path> files; ///< and folders
};
/// Takes in what players have handed in, as far as nobody has to decide anything.
void import(Session& session, const ImportOptions& options);

/// Reads every file of the pool and reports every fault.
void check(Session& session);

} // namespace tallyhoop::cli
