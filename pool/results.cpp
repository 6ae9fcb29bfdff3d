// pool/results.cpp - what results begin with, and what is filled in when a file lacks it.
#include "pool/results.h"

#include "base/text.h"

#include <utility>

namespace tallyhoop {

Entry newResults(const Field& field) { return {startingBracket(field), "A", "FinalResults", {}, {}}; }

Entry completedResults(Entry results, const Field& field)
{
    Entry fresh = newResults(field);
    if (isBlankField(results.initials))
        results.initials = std::move(fresh.initials);
    if (isBlankField(results.name))
        results.name = std::move(fresh.name);
    for (const TeamRow row : allTeamRows())
        if (results.picks.isEmpty(positionOf(row)))
            results.picks.put(positionOf(row), field.teams[row]);
    return results;
}

} // namespace tallyhoop
