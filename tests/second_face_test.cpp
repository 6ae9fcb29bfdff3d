// tests/second_face_test.cpp - a second face of the program: prints the standings of a folder's pool, without a screen.
//
// second_face_test.cmake runs it on the sample pool. It links the domain, its files and its reports, and nothing else.
#include "files/pool_files.h"
#include "reports/standings.h"

#include <iostream>

int main(int, char** arguments)
{
    using namespace tallyhoop;
    const Pool pool = readPool(DataFolder{arguments[1]});
    const Bracket results = pool.results ? pool.results->picks : Bracket{};
    const auto scores = scoreEntries(pool.entries, results, *pool.field.payoffs.points());
    const auto standings = standingsLines(pool.field.title, *scores);
    for (const std::string& line : *standings)
        std::cout << line << '\n';
}
