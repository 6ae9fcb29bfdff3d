// screens/outlook/pool_opening.cpp - reading under a progress window, and a message with pages.
#include "screens/outlook/pool_opening.h"

#include "base/text.h"
#include "files/file_names.h"
#include "screens/outlook/outlook_words.h"
#include "ui/work.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>
#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kFilesOfAPage = 12; ///< each takes a line or two, and its reason another

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
    OpenedPool opened = openedPool(readPoolInSteps(folder, [&work] { return work.step(); }));
    opened.isCancelled = work.cancelled();
    opened.unsavedResults = board.holdsUnsavedResults();
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

} // namespace tallyhoop
