// tests/fuzz/handed_in.cpp - arbitrary bytes as text, table and page that somebody hands in.
#include "fuzz/targets.h"

#include "base/csv_cells.h"
#include "files/selection_file.h"
#include "intake/entry_readers.h"
#include "intake/entry_refusals.h"
#include "intake/entry_table.h"
#include "intake/entry_text.h"
#include "intake/field_2000.h"
#include "intake/html_text.h"
#include "intake/plain_text.h"
#include "intake/review.h"

#include <algorithm>

namespace tallyhoop::fuzz {
namespace {

const KnownTeams& knownTeams()
{
    static const KnownTeams known{test::field2000()};
    return known;
}

/// What is not refused can be saved, and is then what was handed in.
Complaint checkAccepted(const std::vector<HandedIn>& entries)
{
    static const Field field = test::field2000();
    for (const HandedIn& handedIn : entries) {
        if (!refusalsOf(handedIn, field).empty())
            continue;
        const Read<Entry> read = readSelection(bytesToWrite(handedIn), startingBracket(field));
        if (read.trouble || read.value.picks != handedIn.entry.picks || read.value.name != handedIn.entry.name)
            return "an entry that was accepted makes another file";
        const std::string name = proposedFileName(handedIn.entry.name, handedIn.entry.initials);
        if (name.find_first_of("/\\:") != std::string::npos)
            return "an entry that was accepted leads out of the folder";
    }
    return std::nullopt;
}

/// Equal but for where they came from: quotation takes the sender away.
bool isSame(const HandedIn& left, const HandedIn& right)
{
    return left.entry == right.entry && left.refusals == right.refusals;
}

/// A cell would be taken for nothing at all by the reader of tables.
bool isBlank(const Entry& entry)
{
    const auto isBlankText = [](const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; };
    return isBlankText(entry.name) && isBlankText(entry.initials) && isBlankText(entry.finalPoints) &&
           std::ranges::all_of(gamePositions(), [&](Position game) { return isBlankText(entry.picks.at(game)); });
}

} // namespace

Complaint entry_text(std::string_view bytes)
{
    const std::string text = utf8Of(bytes);
    const std::vector<HandedIn> read = readEntryTexts(text, knownTeams(), {});
    if (Complaint complaint = checkAccepted(read))
        return complaint;
    const std::vector<HandedIn> quoted = readEntryTexts(test::withEachLine("> ", text), knownTeams(), {});
    if (!std::ranges::equal(read, quoted, isSame))
        return "quotation changes an entry";
    if (text.find('>') != std::string::npos)
        return std::nullopt; // what is quotation depends on the lines
    const std::vector<HandedIn> wrapped = readEntryTexts(test::replaced(text, " ", "\r\n"), knownTeams(), {});
    if (!std::ranges::equal(read, wrapped, isSame))
        return "wrapping changes an entry";
    return std::nullopt;
}

Complaint entry_table(std::string_view bytes)
{
    if (const Result<std::vector<CsvRow>> rows = csvRows(bytes)) {
        const Result<std::vector<CsvRow>> again = csvRows(csvText(*rows));
        if (!again || *again != *rows)
            return "cells changed on their way through a table";
        for (const CsvRow& row : *rows)
            for (const std::string& cell : row) {
                if (unguarded(guarded(cell)) != cell)
                    return "a cell changed on its way through its guard";
                if (const std::string safe = guarded(cell);
                    !safe.empty() && std::string_view{"=+-@\t\r"}.find(safe.front()) != std::string_view::npos)
                    return "a cell is a formula";
            }
    }
    const std::vector<HandedIn> read = readEntryTable(bytes, knownTeams(), {});
    if (read.empty())
        return "a table without entry and without refusal";
    if (Complaint complaint = checkAccepted(read))
        return complaint;
    std::vector<Entry> entries;
    for (const HandedIn& handedIn : read)
        if (handedIn.refusals.empty() && !isBlank(handedIn.entry))
            entries.push_back(handedIn.entry);
    if (entries.empty())
        return std::nullopt;
    const std::vector<HandedIn> again = readEntryTable(entryTable(entries, test::field2000()), knownTeams(), {});
    const bool isExact =
        std::ranges::equal(again, entries, {}, [](const HandedIn& handedIn) { return handedIn.entry; });
    return isExact ? std::nullopt : Complaint{"an entry changed on its way through a table"};
}

Complaint html_text(std::string_view bytes)
{
    const std::string text = textOfHtml(bytes);
    if (text.size() > bytes.size())
        return "a page has grown";
    if (bytes.find_first_of("<&") != std::string_view::npos)
        return std::nullopt;
    return withPlainBlanks(text) == withPlainBlanks(bytes) ? std::nullopt : Complaint{"text without tags changed"};
}

} // namespace tallyhoop::fuzz
