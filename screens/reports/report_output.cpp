// screens/reports/report_output.cpp - the margin of a printed report, and the places of attachments in a message.
#include "screens/reports/report_output.h"

#include "base/numbers.h"
#include "base/text.h"
#include "files/data_folder.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr int kTwipsPerCharacter = 120;
constexpr int kTwipsKeptFree = 720;
constexpr std::size_t kPlaceholders = 10;
constexpr std::size_t kFirstAttachmentFromEnd = 8;

} // namespace

ui::Orientation orientationOf(PageOrientation orientation)
{
    return orientation == PageOrientation::Landscape ? ui::Orientation::Landscape : ui::Orientation::Portrait;
}

std::size_t longestLine(std::span<const std::string> lines)
{
    std::size_t longest = 0;
    for (const std::string& line : lines)
        longest = std::max(longest, lastNonBlank(line));
    return longest;
}

int originTwips(int pageWidthTwips, std::size_t longestLine)
{
    const double free = pageWidthTwips - kTwipsKeptFree - kTwipsPerCharacter * static_cast<double>(longestLine);
    return static_cast<int>(std::max(roundHalfEven(free / 2), 0LL));
}

ui::TextPrintout textPrintout(const std::string& title, const ReportLines& lines, const PrinterSetup& setup,
                              ui::Printer& printer)
{
    return {title, lines, setup.font, setup.orientation,
            originTwips(printer.pageWidthTwips(setup.orientation), longestLine(lines))};
}

std::string writtenSentence(std::span<const std::filesystem::path> files)
{
    std::vector<std::string> names;
    for (const std::filesystem::path& file : files)
        names.push_back(shown(file.filename()));
    return "Written to the program's folder: " + joined(names, ", ") + ".";
}

ui::MailMessage reportMessage(const MailDraft& draft, std::span<const std::filesystem::path> files)
{
    ui::MailMessage message;
    message.recipients = draft.recipients;
    message.subject = draft.subject;
    message.body = draft.message + blanks(kPlaceholders);
    message.placeholders = kPlaceholders;
    std::size_t position = message.body.size() - kFirstAttachmentFromEnd;
    for (const std::filesystem::path& file : files)
        message.attachments.push_back({file, position++});
    return message;
}

} // namespace tallyhoop
