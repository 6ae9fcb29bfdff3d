// tests/fuzz/fuzzed_pool.cpp - takes bytes apart into a pool.
#include "fuzz/fuzzed_pool.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/selection_file.h"
#include "pool/sample_brackets.h"

#include <algorithm>

namespace tallyhoop::fuzz {
namespace {

constexpr char kSection = '\x1E';

void decodeHead(FuzzedPool& pool, std::string_view section)
{
    std::vector<std::string> lines = linesOf(section);
    lines.resize(1 + pool.payoffs.size());
    pool.title = lines.front();
    std::array<std::string, 6> texts;
    std::copy(lines.begin() + 1, lines.end(), texts.begin());
    const Result<Payoffs> payoffs = payoffsOf(texts);
    if (payoffs && std::ranges::any_of(texts, [](const std::string& text) { return !text.empty(); }))
        pool.payoffs = *payoffs;
}

PoolEntry decodePlayer(std::string_view section)
{
    const std::size_t end = section.find('\n');
    PoolEntry player;
    player.fileName = section.substr(0, end);
    std::erase_if(player.fileName,
                  [](char c) { return c == '/' || c == '\0' || c == '\r'; }); // no file has such a name
    if (end != std::string_view::npos)
        player.lines = readSelection(section.substr(end + 1)).value;
    return player;
}

} // namespace

bool FuzzedPool::isFreeOf(char separator) const
{
    const auto holds = [&](const std::string& text) { return text.find(separator) != std::string::npos; };
    return std::ranges::none_of(pool.players, [&](const PoolEntry& player) {
        return holds(player.fileName) || std::ranges::any_of(player.lines, holds);
    });
}

void FuzzedPool::forEachPick(const std::function<void(const PoolEntry&, int, const std::string&)>& ask) const
{
    for (const PoolEntry& player : pool.players)
        for (int slot = 1; slot <= kPositions; ++slot) {
            const std::string& team = player.lines.at(static_cast<std::size_t>(slot));
            if (test::roundOfSlot(slot) > 0 && !team.empty())
                ask(player, test::roundOfSlot(slot), team);
        }
}

FuzzedPool decodePool(std::string_view bytes)
{
    const std::vector<std::string> sections = split(bytes, kSection);
    FuzzedPool pool;
    decodeHead(pool, sections.front());
    if (sections.size() > 1) {
        pool.results = readSelection(sections[1]).value;
        pool.playerList = linesOf(sections[1]);
    }
    for (std::size_t i = 2; i < sections.size(); ++i)
        pool.pool.players.push_back(decodePlayer(sections[i]));
    return pool;
}

} // namespace tallyhoop::fuzz
