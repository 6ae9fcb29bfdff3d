// screens/setup/pasted_teams.cpp - spreads lines over boxes in the list's own spelling, and words the refused ones.
#include "screens/setup/pasted_teams.h"

#include "base/text.h"

#include <optional>

namespace tallyhoop {

namespace {

constexpr const char* kNotInList = "These lines are not in the list of team names and were not entered:";
constexpr const char* kNoBoxLeft = "These lines come after the last team box and were not entered:";

void addLines(std::vector<std::string>& message, const char* heading, const std::vector<std::string>& lines)
{
    if (lines.empty())
        return;
    if (!message.empty())
        message.emplace_back(" ");
    message.emplace_back(heading);
    const std::vector<std::string> shown = fewEnoughForAMessage(lines);
    message.insert(message.end(), shown.begin(), shown.end());
}

} // namespace

PastedTeams pastedTeams(std::span<const std::string> lines, TeamRow first, const TeamNameList* list)
{
    PastedTeams pasted;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty())
            continue;
        const std::string team = list == nullptr ? lines[i] : list->spellingOf(lines[i]);
        if (team.empty())
            pasted.notInList.push_back(lines[i]);
        else if (const std::optional<TeamRow> row = rowAfter(first, i))
            pasted.filled.emplace_back(*row, team);
        else
            pasted.noBoxLeft.push_back(lines[i]);
    }
    return pasted;
}

std::string refusedLines(const PastedTeams& pasted)
{
    std::vector<std::string> message;
    addLines(message, kNotInList, pasted.notInList);
    addLines(message, kNoBoxLeft, pasted.noBoxLeft);
    return joinLines(message);
}

} // namespace tallyhoop
