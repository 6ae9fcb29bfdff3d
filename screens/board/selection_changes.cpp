// screens/board/selection_changes.cpp - compares texts and picks, and names each place in words.
#include "screens/board/selection_changes.h"

#include "screens/board/board_words.h"

#include <string_view>

namespace tallyhoop {

namespace {

std::string difference(const std::string& what, const std::string& here, const std::string& theirs,
                       const std::string& nothing)
{
    const auto said = [&](const std::string& text) { return text.empty() ? nothing : text; };
    return what + ": here " + said(here) + ", in the file " + said(theirs);
}

} // namespace

std::vector<std::string> selectionChanges(const Field& field, const Entry& here, const Entry& theirs)
{
    std::vector<std::string> lines;
    const auto compare = [&](const char* what, const std::string& text, const std::string& other) {
        if (text != other)
            lines.push_back(difference(what, text, other, "nothing"));
    };
    compare("Initials", here.initials, theirs.initials);
    compare("Name", here.name, theirs.name);
    compare("Final points", here.finalPoints, theirs.finalPoints);
    for (const Position position : allPositions())
        if (here.picks.at(position) != theirs.picks.at(position))
            lines.push_back(difference(nameOfPlace(field, position), here.picks.at(position), theirs.picks.at(position),
                                       "no team"));
    return lines;
}

} // namespace tallyhoop
