// cli/csv.cpp - the tables that the screens save.
#include "cli/reading.h"
#include "cli/verbs.h"
#include "output/outlook_making.h"
#include "reports/csv_tables.h"

namespace tallyhoop::cli {

namespace {

ReportId reportOf(CsvOptions::Table table)
{
    switch (table) {
    case CsvOptions::Table::Picks:
        return ReportId::TeamSelectionSummary;
    case CsvOptions::Table::PicksByPlayer:
        return ReportId::TeamSelectionDetail;
    case CsvOptions::Table::Standings:
    case CsvOptions::Table::Outlook:
        break;
    }
    return ReportId::TournamentStandings;
}

void csvOfOutlook(Session& session, ChanceKind weights)
{
    const std::optional<OpenedPool> opened = openPool(session);
    if (!opened)
        return;
    const Result<MadeOutlook> made = makeOutlook(*opened, weights);
    if (made)
        session.write(outlookCsv(made->rows));
    else
        session.fault(made.failure().message);
}

} // namespace

void csv(Session& session, const CsvOptions& options)
{
    if (options.table == CsvOptions::Table::Outlook) {
        csvOfOutlook(session, options.weights);
        return;
    }
    const Field field = readField(session);
    ReportingWatcher watcher{session};
    const ReportMaking::MadeCsv made = ReportMaking{session.folder(), field, watcher}.makeCsv(
        reportKind(reportOf(options.table)), listSelections(session));
    if (const auto* table = std::get_if<std::string>(&made))
        session.write(*table);
    else
        session.fault(std::get<ReportRefusal>(made).reason);
}

} // namespace tallyhoop::cli
