// bench/import_once.cpp - invented entries handed in as selection files, texts and mails: made, reviewed and imported
// once. Arguments: an empty folder, the number of entries.
//
// Prints the seconds that the review took, reading included, those of ticking all entries, and those of the import;
// FOLDER/pool then has a selection of each, of which every second one was there before with other picks.
#include "bench/large_pool.h"
#include "demo/sample_pool.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "intake/field_2000.h"
#include "intake/gathering.h"
#include "intake/importing.h"
#include "intake/linked_mail_library.h"
#include "intake/mail_parts.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fmt/format.h>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace tallyhoop;

constexpr std::size_t kMostInAFolder = 1000; // so many fit into what is read at once

std::filesystem::path inbox(const std::filesystem::path& folder, std::size_t entry)
{
    return folder / "in" / std::to_string(entry / kMostInAFolder);
}

void put(const std::filesystem::path& file, const std::string& bytes)
{
    std::ofstream stream{file, std::ios::binary};
    stream << bytes;
}

void makeFiles(const std::filesystem::path& folder, std::size_t count)
{
    std::filesystem::create_directories(folder / "pool");
    put(folder / "pool/POOLSTART.THS", setupFile(demo::sampleField()));
    const std::vector<Bracket> brackets = bench::randomBrackets(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = fmt::format("Player{:05}", i);
        const Entry entry{brackets[i], "PX", name, "142", {}};
        std::filesystem::create_directories(inbox(folder, i));
        const std::string file = (inbox(folder, i) / name).string();
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

std::vector<HandedIn> allEntries(const std::filesystem::path& folder, std::size_t count, const EntryReaders& readers)
{
    std::vector<HandedIn> all;
    all.reserve(count);
    for (std::size_t i = 0; i < count; i += kMostInAFolder)
        std::ranges::move(gatherEntries(std::vector{inbox(folder, i)}, readers), std::back_inserter(all));
    return all;
}

double secondsSince(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>{std::chrono::steady_clock::now() - begin}.count();
}

double secondsToTickAll(Review& review)
{
    for (std::size_t row = 0; row < review.rows.size(); ++row)
        setTicked(review, row, false);
    const auto begin = std::chrono::steady_clock::now();
    tickAllComplete(review);
    return secondsSince(begin);
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
    Review review = reviewOf(allEntries(folder, count, readers), pool, field);
    const double reviewed = secondsSince(begin);
    const double ticked = secondsToTickAll(review);

    begin = std::chrono::steady_clock::now();
    const ImportOutcome outcome = importTicked(review, pool, {});
    std::printf("%.6f %.6f %.6f\n", reviewed, ticked, secondsSince(begin));
    if (outcome.created + outcome.replaced == count && outcome.playersAdded == count)
        return 0;
    std::fputs(outcome.summary.c_str(), stderr);
    return 1;
}
