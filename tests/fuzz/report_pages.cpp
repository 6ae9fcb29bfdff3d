// tests/fuzz/report_pages.cpp - takes a report apart again.
#include "fuzz/report_pages.h"

#include "base/lines.h"

#include <algorithm>

namespace tallyhoop::fuzz {

Complaint readsBack(const ReportLines& lines)
{
    if (linesOf(fileOf(lines)) != lines)
        return "a line of the report breaks in two";
    return std::nullopt;
}

std::vector<ReportLines> pagesOf(const ReportLines& lines)
{
    std::vector<ReportLines> pages(1);
    for (const std::string& line : lines)
        if (line == kFormFeedLine)
            pages.emplace_back();
        else
            pages.back().push_back(line);
    if (pages.back().empty())
        pages.pop_back();
    return pages;
}

ReportLines bodyOf(const ReportLines& lines, std::size_t firstHeader, std::size_t otherHeaders)
{
    ReportLines body;
    std::size_t header = firstHeader;
    for (const ReportLines& page : pagesOf(lines)) {
        body.insert(body.end(), page.begin() + static_cast<std::ptrdiff_t>(std::min(header, page.size())), page.end());
        header = otherHeaders;
    }
    return body;
}

Complaint noLongerThan(std::size_t width, const ReportLines& lines)
{
    for (const std::string& line : lines)
        if (line.size() > width)
            return "this line is too long: " + line;
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
