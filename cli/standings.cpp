// cli/standings.cpp - report 1, or its figures.
#include "base/windows1252.h"
#include "cli/json.h"
#include "cli/reading.h"
#include "cli/verbs.h"

#include <algorithm>
#include <utility>

namespace tallyhoop::cli {

namespace {

/// Whether nothing of the player could be read: no name, and not even a team that is where the field has it.
bool isNobody(const PlayerScore& score)
{
    return score.playerName == ", " && score.winningPick.empty() &&
           std::ranges::all_of(allPositions(), [&](Position position) {
               return score.verdicts[position] == Verdict::None || score.verdicts[position] == Verdict::Bad;
           });
}

std::vector<PlayerScore> withoutUnread(std::vector<PlayerScore> scores, const ReportingWatcher& watcher)
{
    std::erase_if(scores,
                  [&](const PlayerScore& score) { return watcher.hasReported(score.fileName) && isNobody(score); });
    return scores;
}

} // namespace

void standings(Session& session, const StandingsOptions& options)
{
    if (!options.asJson) {
        report(session, {1, options.title});
        return;
    }
    const Field field = readField(session);
    ReportingWatcher watcher{session};
    const ReportMaking::MadeScores made =
        ReportMaking{session.folder(), field, watcher}.makeScores(listSelections(session));
    if (const auto* scores = std::get_if<std::vector<PlayerScore>>(&made))
        session.write(standingsJson(options.title.empty() ? field.title : fromUtf8(options.title),
                                    withoutUnread(*scores, watcher)));
    else
        session.fault(std::get<ReportRefusal>(made).reason);
}

} // namespace tallyhoop::cli
