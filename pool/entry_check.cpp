// pool/entry_check.cpp - what is asked of an entry before it is saved.
#include "pool/entry_check.h"

#include "base/numbers.h"
#include "base/text.h"

namespace tallyhoop {

namespace {

constexpr double kFewestPoints = 50;
constexpr double kMostPoints = 250;

} // namespace

std::vector<EntryFault> entryFaults(const Entry& entry, EntryKind kind)
{
    std::vector<EntryFault> faults;
    if (isBlankField(entry.initials))
        faults.push_back(EntryFault::Initials);
    if (isBlankField(entry.name))
        faults.push_back(EntryFault::Name);
    const double points = leadingNumber(entry.finalPoints);
    if (points > kMostPoints || (kind == EntryKind::Player && points < kFewestPoints))
        faults.push_back(EntryFault::FinalPoints);
    return faults;
}

std::optional<EntryFault> entryFault(const Entry& entry, EntryKind kind)
{
    const std::vector<EntryFault> faults = entryFaults(entry, kind);
    return faults.empty() ? std::nullopt : std::optional{faults.front()};
}

} // namespace tallyhoop
