// pool/entry_check.cpp - what is asked of an entry before it is saved.
#include "pool/entry_check.h"

#include "base/numbers.h"
#include "base/text.h"

namespace tallyhoop {

namespace {

constexpr double kFewestPoints = 50;
constexpr double kMostPoints = 250;

} // namespace

std::optional<EntryFault> entryFault(const Entry& entry, EntryKind kind)
{
    if (isBlankField(entry.initials))
        return EntryFault::Initials;
    if (isBlankField(entry.name))
        return EntryFault::Name;
    const double points = leadingNumber(entry.finalPoints);
    if (points > kMostPoints || (kind == EntryKind::Player && points < kFewestPoints))
        return EntryFault::FinalPoints;
    return std::nullopt;
}

} // namespace tallyhoop
