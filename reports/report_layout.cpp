// reports/report_layout.cpp - the arithmetic and the few lines that all text reports share.
#include "reports/report_layout.h"

#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

long long centredOnce(std::size_t lineWidth, std::size_t textLength)
{
    return roundHalfEven((static_cast<double>(lineWidth) - static_cast<double>(textLength)) / 2);
}

long long centredTwice(std::size_t lineWidth, std::size_t textLength)
{
    const long long halfText = roundHalfEven(static_cast<double>(textLength) / 2);
    return roundHalfEven(static_cast<double>(lineWidth) / 2 - static_cast<double>(halfText));
}

Result<std::string> indented(long long count, std::string_view text)
{
    if (count < 0)
        return Failure{"This text is too wide for the report:" + std::string{kLineBreak} + std::string{text}};
    return indentedOrFlush(count, text);
}

std::string indentedOrFlush(long long count, std::string_view text)
{
    return blanks(static_cast<std::size_t>(std::max(count, 0LL))) + std::string{text};
}

std::string dashes(std::size_t count) { return repeated('-', count); }

void addPageHeader(ReportLines& lines, std::string titleLine, std::string nameLine)
{
    lines.emplace_back(kBlankLine);
    lines.push_back(std::move(titleLine));
    lines.push_back(std::move(nameLine));
    lines.emplace_back(kBlankLine);
}

Result<Done> addCentredPageHeader(ReportLines& lines, long long (*centre)(std::size_t, std::size_t), std::size_t width,
                                  std::string_view title, std::string_view name)
{
    Result<std::string> titleLine = indented(centre(width, title.size()), title);
    Result<std::string> nameLine = indented(centre(width, name.size()), name);
    if (!titleLine)
        return titleLine.failure();
    if (!nameLine)
        return nameLine.failure();
    addPageHeader(lines, *titleLine, *nameLine);
    return Done{};
}

void sortWorkRows(std::vector<std::string>& rows)
{
    // Rows of players often come in order: their files are listed by name.
    if (!std::is_sorted(rows.begin(), rows.end(), FoldedLess{}))
        std::stable_sort(rows.begin(), rows.end(), FoldedLess{});
}

std::vector<std::string> workRowFields(std::string_view row, char separator, std::size_t count)
{
    std::vector<std::string> fields = split(row, separator);
    fields.resize(count);
    return fields;
}

} // namespace tallyhoop
