// reports/read_pool.cpp - reading and scoring all players, step by step.
#include "reports/read_pool.h"

#include "model/selection_file.h"

#include <utility>

namespace tallyhoop {

Work::Work(ui::Progress& progress, const std::string& what, std::size_t steps) : m_progress{progress}
{
    m_progress.begin(what, static_cast<int>(steps));
}

Work::~Work() { m_progress.end(); }

bool Work::step()
{
    m_cancelled = m_cancelled || !m_progress.advance(++m_done);
    return !m_cancelled;
}

ReadPool readPool(std::span<const FolderFile> files, Work& work)
{
    ReadPool pool;
    pool.players.reserve(files.size());
    for (const FolderFile& file : files) {
        Read<SelectionLines> read = readSelectionFile(file.path);
        if (read.trouble)
            pool.troubled.push_back(file.path);
        pool.players.push_back({file.name, std::move(read.value)});
        if (!work.step())
            break;
    }
    return pool;
}

Result<std::vector<ScoreLine>> scorePool(const ReadPool& pool, const SelectionLines& results, const Payoffs& payoffs,
                                         Work& work)
{
    std::vector<ScoreLine> scores;
    scores.reserve(pool.players.size());
    ScoredVerdict verdict;
    for (const PoolEntry& player : pool.players) {
        const Result<ScoreLine> score = scoreLine(player.fileName, player.lines, results, payoffs, verdict);
        if (!score)
            return Failure{player.fileName + ": " + score.failure().message};
        scores.push_back(*score);
        if (!work.step())
            break;
    }
    return scores;
}

} // namespace tallyhoop
