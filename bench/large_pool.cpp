// bench/large_pool.cpp - random brackets, and the files of a pool of them.
#include "bench/large_pool.h"

#include "demo/sample_pool.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"

#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <random>
#include <string>

namespace tallyhoop::bench {

namespace {

void put(const std::filesystem::path& file, std::string_view bytes)
{
    std::ofstream stream{file, std::ios::binary};
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (stream.flush())
        return;
    std::fputs(fmt::format("cannot write {}\n", file.string()).c_str(), stderr);
    std::exit(1);
}

} // namespace

std::vector<Bracket> randomBrackets(std::size_t count)
{
    std::mt19937 random{2000};
    std::vector<Bracket> brackets(count, demo::sampleResults().picks);
    for (Bracket& bracket : brackets)
        for (const Position game : gamePositions())
            bracket.copy((*feeders(game))[random() % 2], game);
    return brackets;
}

void makeLargePool(const std::filesystem::path& folder, std::size_t players)
{
    std::filesystem::create_directories(folder);
    const std::vector<Bracket> brackets = randomBrackets(players);
    std::vector<PlayerRecord> records;
    for (std::size_t i = 0; i < players; ++i) {
        // Scattered, so that there is something to sort.
        const std::string name = fmt::format("Player{:05}", i * 7919 % 100'003);
        const std::string fileName = name + "_PX.THC";
        put(folder / fileName, selectionFile({brackets[i], "PX", name, fmt::format("{}", 100 + i % 100), fileName}));
        records.push_back({name, fileName, name + "@example.org", "555-0100"});
    }
    put(folder / file_name::kSetup, setupFile(demo::sampleField()));
    put(folder / file_name::kResults, selectionFile(demo::sampleResults()));
    put(folder / file_name::kPlayerNames, playerNamesFile(records));
}

} // namespace tallyhoop::bench
