// intake/entry_readers.cpp - a reader for each extension; mails are taken apart, and their parts read likewise.
#include "intake/entry_readers.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "intake/entry_table.h"
#include "intake/entry_text.h"
#include "intake/html_text.h"
#include "intake/limits.h"
#include "intake/plain_text.h"
#include "intake/storable.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::string_view kMailExtension = ".EML";
constexpr std::string_view kTextExtension = ".TXT";
constexpr std::string_view kTableExtension = ".CSV";
constexpr std::array<std::string_view, 4> kExtensions = {file_name::kSelectionExtension, kMailExtension, kTextExtension,
                                                         kTableExtension};
constexpr std::size_t kLinesOfSelection = 131;

/// A mail filter may have renamed a selection file, and somebody who has no other program may have done so.
bool isSelection(std::string_view bytes)
{
    const std::vector<std::string> lines = linesOf(bytes);
    return lines.size() == kLinesOfSelection && lines.back() == kEndMarker;
}

void append(std::vector<HandedIn>& entries, std::vector<HandedIn> more)
{
    std::ranges::move(more, std::back_inserter(entries));
}

/// @returns whether the reader has nothing to say against one of them
bool hasGood(const std::vector<HandedIn>& entries)
{
    return std::ranges::any_of(entries, [](const HandedIn& entry) { return entry.refusals.empty(); });
}

/// Takes out the entries that came before in the same mail: as text and as a file, as text and as a page.
std::vector<HandedIn> withoutRepeated(std::vector<HandedIn> entries)
{
    const auto isSame = [](const HandedIn& left, const HandedIn& right) {
        return left.refusals.empty() && right.refusals.empty() && left.entry.name == right.entry.name &&
               left.entry.picks == right.entry.picks && left.entry.finalPoints == right.entry.finalPoints &&
               equalFolded(left.entry.initials, right.entry.initials);
    };
    std::vector<HandedIn> different;
    for (HandedIn& entry : entries)
        if (std::ranges::none_of(different, [&](const HandedIn& known) { return isSame(known, entry); }))
            different.push_back(std::move(entry));
    return different;
}

/// What one message of a mail holds.
struct MessageParts {
    std::vector<const MailPart*> texts;
    std::vector<const MailPart*> pages;
    std::vector<const MailPart*> files;
};

std::vector<MessageParts> messagesOf(const std::vector<MailPart>& parts)
{
    std::vector<MessageParts> messages;
    for (const MailPart& part : parts) {
        if (part.kind == MailPart::Kind::TooDeep)
            continue;
        const auto number = static_cast<std::size_t>(part.message);
        messages.resize(std::max(messages.size(), number + 1));
        MessageParts& message = messages[number];
        (part.kind == MailPart::Kind::Text   ? message.texts
         : part.kind == MailPart::Kind::Html ? message.pages
                                             : message.files)
            .push_back(&part);
    }
    return messages;
}

Origin originOf(const MailPart& part, Origin origin)
{
    origin.sender = part.sender;
    if (part.date)
        origin.date = part.date;
    return origin;
}

std::string nothingFound(const std::vector<MailPart>& parts)
{
    std::vector<std::string> names;
    for (const MailPart& part : parts)
        if (part.kind == MailPart::Kind::File)
            names.push_back(part.name.empty() ? "a file without a name" : quotedText(part.name));
    const std::string attached =
        names.empty() ? std::string{} : " Attached: " + joined(fewEnoughForAMessage(names), ", ") + ".";
    return "There is no entry in this mail." + attached;
}

} // namespace

EntryReaders::EntryReaders(const Field& field, TakeMailApart takeMailApart)
    : m_start{startingBracket(field)}, m_teams{field}, m_takeMailApart{std::move(takeMailApart)}
{
}

bool EntryReaders::isRead(std::string_view fileName)
{
    return std::ranges::any_of(kExtensions,
                               [&](std::string_view extension) { return endsWithFolded(fileName, extension); });
}

std::vector<HandedIn> EntryReaders::read(const HandedFile& file) const
{
    Origin origin;
    origin.file = asOneLine(file.name);
    origin.date = file.date;
    if (!isRead(file.name))
        return {refusedWhole(origin, "Files of this kind are not read: only *.THC, *.EML, *.TXT and *.CSV.")};
    std::vector<HandedIn> entries = readFile(file.bytes, origin, 0);
    if (entries.empty())
        entries.push_back(refusedWhole(origin, "There is no entry in this file."));
    return entries;
}

std::vector<HandedIn> EntryReaders::readPasted(std::string_view text) const
{
    if (text.size() > kMostBytesHandedIn)
        return {refusedWhole({}, "The text is larger than 1 MB.")};
    std::vector<HandedIn> entries = readText(text, {});
    if (entries.empty())
        entries.push_back(refusedWhole({}, "There is no entry in this text."));
    return entries;
}

/// @returns none for a file of another kind
std::vector<HandedIn> EntryReaders::readFile(std::string_view bytes, const Origin& origin, int depth) const
{
    if (!isRead(origin.file))
        return {};
    if (bytes.size() > kMostBytesHandedIn)
        return {refusedWhole(origin, "The file is larger than 1 MB.")};
    if (endsWithFolded(origin.file, file_name::kSelectionExtension))
        return {hasByteOrderMark(bytes) ? readSelectionText(utf8Of(bytes), origin) : readSelectionFile(bytes, origin)};
    if (endsWithFolded(origin.file, kMailExtension))
        return readMail(bytes, origin, depth);
    if (endsWithFolded(origin.file, kTableExtension))
        return readEntryTable(bytes, m_teams, origin);
    return readText(bytes, origin);
}

std::vector<HandedIn> EntryReaders::readText(std::string_view bytes, const Origin& origin) const
{
    const std::string utf8 = utf8Of(bytes);
    if (isSelection(utf8))
        return {readSelectionText(utf8, origin)};
    std::vector<HandedIn> entries = readEntryTexts(utf8, m_teams, origin);
    if (!entries.empty())
        return entries;
    return isEntryTable(utf8) ? readEntryTable(utf8, m_teams, origin) : entries;
}

std::vector<HandedIn> EntryReaders::readMail(std::string_view bytes, const Origin& origin, int depth) const
{
    if (depth >= kDeepestMailFile)
        return {refusedWhole(origin, "Mails are attached to mails too many times over.")};
    const Result<std::vector<MailPart>> parts = m_takeMailApart(bytes);
    if (!parts)
        return {refusedWhole(origin, parts.failure().message)};
    std::vector<HandedIn> entries;
    for (const MessageParts& message : messagesOf(*parts)) {
        append(entries, readTexts(message.texts, message.pages, origin));
        for (const MailPart* file : message.files)
            append(entries, readAttached(*file, origin, depth));
    }
    for (const MailPart& part : *parts)
        if (part.kind == MailPart::Kind::TooDeep)
            entries.push_back(refusedWhole(originOf(part, origin),
                                           "Parts of the mail are inside one another more than " +
                                               std::to_string(kDeepestPartOfMail) + " times over: they are not read."));
    if (entries.empty())
        return {refusedWhole(parts->empty() ? origin : originOf(parts->front(), origin), nothingFound(*parts))};
    return withoutRepeated(std::move(entries));
}

std::vector<HandedIn> EntryReaders::readTexts(const Parts& texts, const Parts& pages, const Origin& origin) const
{
    std::vector<HandedIn> found;
    for (const MailPart* text : texts)
        append(found, readText(text->content, originOf(*text, origin)));
    if (hasGood(found))
        return found;
    // The page is the same text once more, in most mails; sometimes it is the one that was not mangled.
    std::vector<HandedIn> onPages;
    for (const MailPart* page : pages)
        append(onPages, readEntryTexts(textOfHtml(page->content), m_teams, originOf(*page, origin)));
    return found.empty() || hasGood(onPages) ? onPages : found;
}

std::vector<HandedIn> EntryReaders::readAttached(const MailPart& file, const Origin& origin, int depth) const
{
    Origin attached = originOf(file, origin);
    attached.file = asOneLine(file.name);
    std::vector<HandedIn> entries =
        file.name.empty() ? readText(file.content, attached) : readFile(file.content, attached, depth + 1);
    for (HandedIn& entry : entries) {
        entry.origin.file = origin.file;
        if (entry.email.empty())
            entry.email = entry.origin.sender;
    }
    return entries;
}

HandedIn EntryReaders::readSelectionFile(std::string_view bytes, const Origin& origin) const
{
    Read<Entry> read = readSelection(bytes, m_start);
    HandedIn entry;
    entry.entry = std::move(read.value);
    entry.origin = origin;
    if (read.trouble) {
        entry.refusals.push_back(read.trouble->message);
        entry.isLegible = linesOf(bytes).size() + 1 >= kLinesOfSelection; // only the end marker is missing
    }
    return entry;
}

/// A selection that came as text, pasted or saved by another program.
HandedIn EntryReaders::readSelectionText(std::string_view utf8, const Origin& origin) const
{
    HandedIn entry = readSelectionFile(fromUtf8(utf8), origin);
    int number = 1;
    for (const std::string& line : linesOf(utf8))
        storable(line, "Line " + std::to_string(number++) + " of the file", entry.refusals);
    return entry;
}

} // namespace tallyhoop
