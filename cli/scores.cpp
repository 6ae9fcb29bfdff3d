// cli/scores.cpp - every selection in the order of the files, as the list of all scores has them once they are
// calculated.
#include "base/lines.h"
#include "cli/json.h"
#include "cli/local_time.h"
#include "cli/reading.h"
#include "cli/verbs.h"
#include "files/file_names.h"
#include "files/pool_files.h"
#include "files/selection_file.h"
#include "pool/results.h"
#include "reports/score_list.h"

#include <algorithm>
#include <chrono>

namespace tallyhoop::cli {

namespace {

std::chrono::year_month_day today()
{
    return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(localNow())};
}

/// @returns the results as the board has them: those of a new pool where there are none
Bracket readResults(Session& session, const Field& field)
{
    if (!session.folder().exists(file_name::kResults))
        return newResults(field).picks;
    const std::filesystem::path file = session.folder().pathTo(file_name::kResults);
    const Read<Entry> results = readSelectionFile(file, startingBracket(field));
    if (results.trouble)
        session.faultIn(file_name::kResults, results.trouble->message);
    return results.value.picks;
}

std::vector<PlayerScore> scoreAll(Session& session, const Bracket& results, const Payoffs& payoffs)
{
    std::vector<PlayerScore> scores;
    const std::vector<FolderFile> files = listSelections(session);
    scores.reserve(files.size());
    readSelections(files, results, [&](const FolderFile& file, const Read<Entry>& selection) {
        if (selection.trouble)
            session.faultIn(file.name, selection.trouble->message);
        const Result<PlayerScore> score = scoreEntry(selection.value, results, payoffs);
        if (score)
            scores.push_back(*score);
        else
            session.faultIn(file.name, score.failure().message);
        return true;
    });
    return scores;
}

std::vector<std::string> textsOf(const PlayerScore& score)
{
    std::vector<std::string> cells;
    cells.reserve(kScoreColumns.size());
    for (const ScoreColumn column : kScoreColumns)
        cells.push_back(cellOf(score, column));
    return cells;
}

std::string printed(const std::vector<PlayerScore>& scores)
{
    std::vector<std::string> headings;
    std::ranges::transform(kScoreColumns, std::back_inserter(headings), headingOf);
    std::vector<std::vector<std::string>> rows;
    rows.reserve(scores.size());
    std::ranges::transform(scores, std::back_inserter(rows), textsOf);
    return fileOf(scoreListLines(headings, rows, today()));
}

} // namespace

void scores(Session& session, const ScoresOptions& options)
{
    const Field field = readField(session);
    const Result<Payoffs>& payoffs = field.payoffs.points();
    if (!payoffs) {
        session.fault(payoffs.failure().message);
        return;
    }
    const std::vector<PlayerScore> all = scoreAll(session, readResults(session, field), *payoffs);
    if (all.empty())
        session.fault(kNoPlayers);
    else if (options.asJson)
        session.write(scoresJson(all));
    else
        session.writeText(printed(all));
}

} // namespace tallyhoop::cli
