// bench/import_once.cpp - invented entries handed in as selection files, texts and mails: made, reviewed and imported
// once. Arguments: an empty folder, the number of entries.
//
// Prints the seconds that the review took, reading included, and those of the import; FOLDER/pool then has a selection
// of each, of which every second one was there before with other picks.
#include "bench/large_pool.h"
#include "demo/sample_pool.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "intake/field_2000.h"
#include "intake/gathering.h"
#include "intake/importing.h"
#include "intake/linked_mail_library.h"
#include "intake/mail_parts.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <fmt/format.h>
#include <fstream>
#include <string>

namespace {

using namespace tallyhoop;

void put(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream stream{file, std::ios::binary};
    stream << bytes;
}

void makeFiles(const std::filesystem::path& folder, std::size_t count)
{
    std::filesystem::create_directories(folder / "in");
    std::filesystem::create_directories(folder / "pool");
    put(folder / "pool/POOLSTART.THS", setupFile(demo::sampleField()));
    const std::vector<Bracket> brackets = bench::randomBrackets(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = fmt::format("Player{:05}", i);
        const Entry entry{brackets[i], "PX", name, "142", {}};
        const std::string file = (folder / "in" / name).string();
        if (i % 3 == 0)
            put(file + ".THC", selectionFile(entry));
        else if (i % 3 == 1)
            put(file + ".TXT", test::formText(entry));
        else
            put(file + ".EML", "From: player@example.org\nContent-Type: text/plain\n\n" + test::formText(entry));
        if (i % 2 == 0)
            put(folder / "pool" / (name + "_PX.THC"),
                selectionFile({demo::sampleResults().picks, "PX", name, "99", {}}));
    }
}

double secondsSince(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>{std::chrono::steady_clock::now() - begin}.count();
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t count = 0;
    const std::string_view digits{argc == 3 ? argv[2] : ""};
    if (digits.empty() || std::from_chars(digits.begin(), digits.end(), count).ec != std::errc{}) {
        std::fputs("usage: tallyhoop_bench_import FOLDER ENTRIES\n", stderr);
        return 2;
    }
    const std::filesystem::path folder{argv[1]};
    makeFiles(folder, count);
    const DataFolder pool{folder / "pool"};
    const Field field = readField(pool).value;

    auto begin = std::chrono::steady_clock::now();
    const EntryReaders readers{field,
                               [](std::string_view mail) { return mailParts(mail, &test::linkedMailLibrary()); }};
    const std::vector<std::filesystem::path> chosen{folder / "in"};
    const Review review = reviewOf(gatherEntries(chosen, readers), pool, field);
    const double reviewed = secondsSince(begin);

    begin = std::chrono::steady_clock::now();
    const ImportOutcome outcome = importTicked(review, pool);
    std::printf("%.6f %.6f\n", reviewed, secondsSince(begin));
    if (outcome.created + outcome.replaced == count && outcome.playersAdded == count)
        return 0;
    std::fputs(outcome.summary.c_str(), stderr);
    return 1;
}
