// screens/file_changes.cpp - counts how often each file has a line.
#include "screens/file_changes.h"

#include "base/lines.h"

#include <algorithm>
#include <map>

namespace tallyhoop {

namespace {

/// @returns the line with one blank where it has several
std::string withoutPadding(std::string line)
{
    const auto isPadding = [](char left, char right) { return left == ' ' && right == ' '; };
    line.erase(std::unique(line.begin(), line.end(), isPadding), line.end());
    return line;
}

/// Appends the lines of one file that the other has not, or has less often.
void appendOnlyIn(std::vector<std::string>& found, const char* where, std::string_view file, std::string_view other)
{
    std::map<std::string, int> others;
    for (const std::string& line : linesOf(other))
        ++others[line];
    for (const std::string& line : linesOf(file))
        if (--others[line] < 0)
            found.push_back(where + withoutPadding(line));
}

} // namespace

std::vector<std::string> changedLines(std::string_view here, std::string_view theirs)
{
    std::vector<std::string> found;
    appendOnlyIn(found, "Only here: ", here, theirs);
    appendOnlyIn(found, "Only in the file: ", theirs, here);
    return found;
}

} // namespace tallyhoop
