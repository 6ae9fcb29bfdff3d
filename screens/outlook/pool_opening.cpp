// screens/outlook/pool_opening.cpp - sorts out the players of whom nothing is known, and counts them.
#include "screens/outlook/pool_opening.h"

#include "base/text.h"
#include "files/file_names.h"
#include "files/pool_files.h"
#include "screens/outlook/outlook_words.h"
#include "ui/work.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kFilesOfAPage = 12; ///< each takes a line or two, and its reason another

bool isNobody(const Entry& entry)
{
    return entry.initials.empty() && entry.name.empty() &&
           std::ranges::all_of(allPositions(), [&](Position position) { return entry.picks.isEmpty(position); });
}

/// @returns what is told of one page of files
std::string pageOf(std::span<const Failure> trouble, std::size_t first)
{
    const std::size_t end = std::min(first + kFilesOfAPage, trouble.size());
    std::vector<std::string> lines{trouble.size() == 1 ? "This cannot be read, or not whole:"
                                                       : "These cannot be read, or not whole:"};
    if (trouble.size() > kFilesOfAPage)
        lines = {fmt::format("These cannot be read, or not whole ({} to {} of {}):", first + 1, end, trouble.size())};
    lines.emplace_back(" ");
    for (const Failure& failure : trouble.subspan(first, end - first))
        lines.push_back(failure.message);
    return joinLines(lines);
}

} // namespace

OpenedPool openPool(const DataFolder& folder, const ui::Platform& platform, const BoardPrintouts& board)
{
    Work work{platform.progress, "Reading the selections", folder.files(file_name::kSelectionExtension).size()};
    ReadPool read = readPoolInSteps(folder, [&work] { return work.step(); });
    OpenedPool opened{.pool = std::move(read.pool),
                      .isCancelled = work.cancelled(),
                      .unsavedResults = board.holdsUnsavedResults(),
                      .isFieldDamaged = read.isFieldDamaged,
                      .areResultsDamaged = read.areResultsDamaged,
                      .isListDamaged = read.isListDamaged};
    std::vector<Entry>& entries = opened.pool.entries;
    // From the last one, so that the indices of those before stay.
    for (auto damaged = read.damagedEntries.rbegin(); damaged != read.damagedEntries.rend(); ++damaged)
        if (isNobody(entries[*damaged])) {
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(*damaged));
            ++opened.missing;
        }
    opened.inPart = read.damagedEntries.size() - opened.missing;
    return opened;
}

void showUnread(ui::Dialogs& dialogs, const OpenedPool& opened)
{
    const std::vector<Failure>& trouble = opened.pool.trouble;
    for (std::size_t first = 0; first < trouble.size(); first += kFilesOfAPage) {
        ui::Message message{"", pageOf(trouble, first), ui::Buttons::Ok, ui::Icon::Critical};
        if (const std::vector<std::string> words = unreadInWords(opened); !words.empty())
            message.text = joinLines({message.text, " ", sentencesOf(words)});
        if (first + kFilesOfAPage < trouble.size())
            message.moreButton = "&Next Files";
        if (dialogs.show(message) != ui::Answer::More)
            return;
    }
}

std::vector<std::string> unreadInWords(const OpenedPool& opened)
{
    std::vector<std::string> words;
    if (opened.areResultsDamaged)
        words.emplace_back("The results file is damaged: some winners may be missing");
    if (opened.isFieldDamaged)
        words.emplace_back("The setup file is damaged: some teams, seeds or payoffs may be missing");
    if (opened.isListDamaged)
        words.emplace_back("The folder cannot be read whole: some players may be missing");
    if (opened.missing > 0)
        words.push_back(opened.missing == 1
                            ? "1 player is missing: the selection cannot be read"
                            : fmt::format("{} players are missing: their selections cannot be read", opened.missing));
    if (opened.inPart > 0)
        words.push_back(opened.inPart == 1 ? "1 selection was read only in part"
                                           : fmt::format("{} selections were read only in part", opened.inPart));
    return words;
}

} // namespace tallyhoop
