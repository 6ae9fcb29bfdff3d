// base/lines.cpp - text files as lines.
#include "base/lines.h"

#include <algorithm>

namespace tallyhoop {

std::string_view takeLine(std::string_view& bytes)
{
    // A plain walk: lines are short, and a search for one of two characters has more to prepare than to do.
    std::size_t end = 0;
    while (end < bytes.size() && bytes[end] != '\r' && bytes[end] != '\n')
        ++end;
    const std::string_view line = bytes.substr(0, end);
    const bool isPair = bytes.substr(end, 2) == "\r\n";
    bytes.remove_prefix(std::min(bytes.size(), end + (isPair ? 2 : 1)));
    return line;
}

std::vector<std::string> linesOf(std::string_view bytes)
{
    std::vector<std::string> lines;
    while (!bytes.empty())
        lines.emplace_back(takeLine(bytes));
    return lines;
}

std::string fileOf(std::span<const std::string> lines)
{
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace tallyhoop
