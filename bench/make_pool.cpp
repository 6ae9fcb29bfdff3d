// bench/make_pool.cpp - makes a large pool for the scripts: folder, number of players.
#include "bench/large_pool.h"

#include <charconv>
#include <cstdio>
#include <string_view>

int main(int argc, char** argv)
{
    std::size_t players = 0;
    const std::string_view count{argc == 3 ? argv[2] : ""};
    if (count.empty() || std::from_chars(count.begin(), count.end(), players).ec != std::errc{}) {
        std::fputs("usage: tallyhoop_bench_pool FOLDER PLAYERS\n", stderr);
        return 2;
    }
    tallyhoop::bench::makeLargePool(argv[1], players);
    return 0;
}
