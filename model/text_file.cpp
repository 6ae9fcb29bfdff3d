// model/text_file.cpp - text files as lines.
#include "model/text_file.h"

namespace tallyhoop {

std::vector<std::string> linesOf(std::string_view bytes)
{
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        lines.emplace_back(bytes.substr(0, end));
        if (end == std::string_view::npos)
            break;
        const bool isPair = bytes.substr(end, 2) == "\r\n";
        bytes.remove_prefix(end + (isPair ? 2 : 1));
    }
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
