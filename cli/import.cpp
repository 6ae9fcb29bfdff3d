// cli/import.cpp - writes what the review would have ticked at first, and reports every entry that it would not.
#include "base/text.h"
#include "cli/local_time.h"
#include "cli/mail_library.h"
#include "cli/reading.h"
#include "cli/verbs.h"
#include "files/folder_lock.h"
#include "intake/gathering.h"
#include "intake/importing.h"

namespace tallyhoop::cli {

namespace {

constexpr const char* kOpen =
    "Tallyhoop has this folder open: close it there, and import once more. Nothing was written.";

/// @returns who is meant by a row, as "Row 3 (Ann Smith, ann.eml)"
std::string headingOf(const ReviewRow& row, std::size_t index)
{
    std::vector<std::string> names{withoutOuterBlanks(row.handedIn.entry.name), row.handedIn.origin.file};
    std::erase(names, std::string{});
    const std::string number = "Row " + std::to_string(index + 1);
    return names.empty() ? number : number + " (" + joined(names, ", ") + ")";
}

/// @returns whether somebody has to decide on a row: it is neither ticked nor there already, and no later entry for the
///          same file is
bool needsADecision(const Review& review, const ReviewRow& row)
{
    const auto isTaken = [](const ReviewRow& taken) {
        return taken.isTicked || (taken.effect == Effect::Identical && !taken.isDoubtful);
    };
    if (isTaken(row))
        return false;
    return row.effect == Effect::Refused || !row.later || !isTaken(review.rows[*row.later]);
}

} // namespace

void import(Session& session, const ImportOptions& options)
{
    const FolderLock lock{session.folder().folder()};
    if (lock.isHeldElsewhere()) {
        session.fault(kOpen);
        return;
    }
    const Field field = readField(session);
    const EntryReaders readers{field, takeMailApart};
    const Review review = reviewOf(gatherEntries(options.files, readers), session.folder(), field);
    for (std::size_t i = 0; i < review.rows.size(); ++i)
        if (needsADecision(review, review.rows[i]))
            session.fault(headingOf(review.rows[i], i) + " is not imported: " + review.rows[i].words);
    const ImportOutcome outcome = importTicked(review, session.folder(), localNow());
    for (const NotWritten& row : outcome.notWritten)
        session.fault(headingOf(review.rows[row.row], row.row) + " is not imported: " + row.reason);
    if (!outcome.playerListTrouble.empty())
        session.fault("No player was added to the player list. " + outcome.playerListTrouble);
    session.writeText(outcome.summary + std::string{kLineBreak});
}

} // namespace tallyhoop::cli
