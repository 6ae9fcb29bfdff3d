// tests/fuzz/fuzzed_pool.cpp - takes the sections of the bytes apart.
#include "fuzz/fuzzed_pool.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/selection_file.h"
#include "pool/sample_brackets.h"

#include <algorithm>

namespace tallyhoop::fuzz {
namespace {

constexpr char kSection = '\x1E';

void decodeOptions(FuzzedPool& pool, std::string_view section)
{
    std::vector<std::string> lines = linesOf(section);
    lines.resize(1 + pool.payoffs.size());
    pool.title = lines.front();
    std::array<std::string, kRounds> texts;
    std::copy(lines.begin() + 1, lines.end(), texts.begin());
    const PayoffTexts payoffs{texts};
    if (payoffs.points() && std::ranges::any_of(texts, [](const std::string& text) { return !text.empty(); }))
        pool.payoffs = *payoffs.points();
}

Entry decodeEntry(std::string_view section, const Bracket& results)
{
    const std::size_t end = section.find('\n');
    Entry entry;
    if (end != std::string_view::npos)
        entry = readSelection(section.substr(end + 1), results).value;
    entry.fileName = section.substr(0, end);
    std::erase_if(entry.fileName, [](char c) { return c == '/' || c == '\0' || c == '\r'; }); // no file has such a name
    return entry;
}

} // namespace

bool FuzzedPool::isFreeOf(char separator) const
{
    const auto isFree = [&](const std::string& text) { return text.find(separator) == std::string::npos; };
    return std::ranges::all_of(entries, [&](const Entry& entry) {
        return isFree(entry.fileName) && isFree(entry.initials) && isFree(entry.name) && isFree(entry.finalPoints) &&
               std::ranges::all_of(allPositions(), [&](Position position) { return isFree(entry.picks.at(position)); });
    });
}

void FuzzedPool::forEachPick(const std::function<void(int, const std::string&)>& ask) const
{
    for (const Entry& entry : entries)
        for (const Position position : allPositions())
            if (test::roundAt(position) > 0 && !entry.picks.isEmpty(position))
                ask(test::roundAt(position), entry.picks.at(position));
}

FuzzedPool decodePool(std::string_view bytes)
{
    const std::vector<std::string> sections = split(bytes, kSection);
    FuzzedPool pool;
    decodeOptions(pool, sections.front());
    if (sections.size() > 1) {
        pool.results = readSelection(sections[1]).value.picks;
        pool.playerList = linesOf(sections[1]);
    }
    for (std::size_t i = 2; i < sections.size(); ++i)
        pool.entries.push_back(decodeEntry(sections[i], pool.results));
    return pool;
}

} // namespace tallyhoop::fuzz
