// files/read_pool.cpp - reading and scoring all players, step by step.
#include "files/read_pool.h"

#include "files/selection_file.h"

#include <utility>

namespace tallyhoop {

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
    const Scoring scoring{results, payoffs};
    ScoredVerdict verdict;
    for (const PoolEntry& player : pool.players) {
        const Result<ScoreLine> score = scoring.line(player.fileName, player.lines, verdict);
        if (!score)
            return score.failure();
        scores.push_back(*score);
        if (!work.step())
            break;
    }
    return scores;
}

} // namespace tallyhoop
