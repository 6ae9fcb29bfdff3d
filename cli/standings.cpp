// cli/standings.cpp - report 1, or its figures.
#include "base/windows1252.h"
#include "cli/json.h"
#include "cli/reading.h"
#include "cli/verbs.h"

namespace tallyhoop::cli {

void standings(Session& session, const StandingsOptions& options)
{
    if (!options.asJson) {
        report(session, {1, options.title});
        return;
    }
    const Field field = readField(session);
    TellingWatcher watcher{session};
    const ReportMaking::MadeScores made =
        ReportMaking{session.folder(), field, watcher}.makeScores(listSelections(session));
    if (const auto* scores = std::get_if<std::vector<PlayerScore>>(&made))
        session.write(standingsJson(options.title.empty() ? field.title : fromUtf8(options.title), *scores));
    else
        tell(session, std::get<ReportRefusal>(made));
}

} // namespace tallyhoop::cli
