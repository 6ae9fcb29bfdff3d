// cli/report.cpp - the seven text reports.
#include "base/lines.h"
#include "base/windows1252.h"
#include "cli/reading.h"
#include "cli/verbs.h"

namespace tallyhoop::cli {

void report(Session& session, const ReportOptions& options)
{
    const Field field = readField(session);
    const std::string title = options.title.empty() ? field.title : fromUtf8(options.title);
    ReportingWatcher watcher{session};
    const ReportKind& kind = reportTable().at(static_cast<std::size_t>(options.number - 1));
    const ReportMaking::Made made =
        ReportMaking{session.folder(), field, watcher}.make(kind, title, listSelections(session));
    if (const auto* lines = std::get_if<ReportLines>(&made))
        session.writeText(fileOf(*lines));
    else
        session.fault(std::get<ReportRefusal>(made).reason);
}

} // namespace tallyhoop::cli
