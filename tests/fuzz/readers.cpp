// tests/fuzz/readers.cpp - what must hold of every reader, whatever the bytes.
#include "fuzz/targets.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/naive_reader.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/selection_reader.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

/// A field that was read must survive the helpers that every screen applies to it.
Complaint field(const std::string& text)
{
    if (fromUtf8(toUtf8(text)) != text)
        return "a field does not survive the way to UTF-8 and back";
    if (encodeLineBreaks(decodeLineBreaks(text)) != text)
        return "a comment does not survive the way to the screen and back";
    static_cast<void>(wholeNumber(text));
    return std::nullopt;
}

template <class Texts>
Complaint fields(const Texts& texts)
{
    for (const std::string& text : texts)
        if (Complaint complaint = field(text))
            return complaint;
    return std::nullopt;
}

/// @returns whether a setup file of these lines replaces the default field
bool isTaken(const std::vector<std::string>& lines)
{
    return lines.size() >= 2 && lines.size() <= 102 && lines.front() == "*START*" && lines.back() == "*END*";
}

} // namespace

Complaint setup(std::string_view bytes)
{
    const Read<Field> read = readSetup(bytes);
    if (!isTaken(linesOf(bytes)) && read.value != defaultField())
        return "a file that was not taken left something of itself";
    if (isTaken(linesOf(bytes)) && (read.trouble || read.value.teams[TeamRow{0}] != linesOf(bytes)[1]))
        return "a sound file was not taken";
    const Read<Field> again = readSetup(setupFile(read.value));
    if (again.trouble)
        return "our own setup file is not accepted";
    if (again.value != read.value)
        return "a setup changed on its way through a file";
    if (Complaint complaint = fields(read.value.teams.values))
        return complaint;
    if (Complaint complaint = fields(read.value.seeds))
        return complaint;
    const Field& rest = read.value;
    return fields(std::vector<std::string>{rest.title, encodeLineBreaks(rest.comment1), encodeLineBreaks(rest.comment2),
                                           rest.finalized});
}

Complaint selection(std::string_view bytes)
{
    const Entry entry = readSelection(bytes).value;
    const Read<Entry> again = readSelection(selectionFile(entry), entry.picks);
    if (again.trouble)
        return "our own selection file is not accepted";
    if (again.value != entry)
        return "a selection changed on its way through a file";
    const Read<Entry> expected = test::readNaively(bytes);
    for (const Bracket& like : {Bracket{}, entry.picks, test::everyUpperTeamWins()}) {
        const Read<Entry> read = SelectionReader{like}.read(bytes);
        if (read.value != expected.value || read.trouble.has_value() != expected.trouble.has_value())
            return "a selection depends on the one that is expected";
    }
    for (const Position position : allPositions())
        if (Complaint complaint = field(entry.picks.at(position)))
            return complaint;
    return fields(std::vector<std::string>{entry.initials, entry.name, entry.finalPoints});
}

Complaint players(std::string_view bytes)
{
    const std::vector<std::string> lines = linesOf(bytes);
    const std::optional<std::vector<std::string>> copy = annotatedCopy(lines);
    if (copy && (copy->size() <= lines.size() || copy->size() > 2 * lines.size()))
        return "the annotated copy has lost or invented records";
    for (const std::string& line : lines) {
        const PlayerRecord record = parseRecord(line);
        const std::string written = recordLine(record);
        if (faultOf(written) != RecordFault::None)
            return "a record of ours is faulty";
        if (recordLine(parseRecord(written)) != written)
            return "a record changed on its way through a file";
        if (recordLine(parsePlayerRow(playerRow(record))) != written)
            return "a record changed on its way through a list";
        if (Complaint complaint = field(record.name))
            return complaint;
    }
    return std::nullopt;
}

Complaint teams(std::string_view bytes)
{
    const Result<std::vector<std::string>> names = readTeamNameList(bytes);
    if (!names)
        return std::nullopt;
    const std::string written = teamNameListFile(*names);
    const Result<std::vector<std::string>> again = readTeamNameList(written);
    if (!again)
        return "our own list is not accepted";
    if (teamNameListFile(*again) != written)
        return "a list changed on its way through a file";
    return fields(*names);
}

Complaint settings(std::string_view bytes)
{
    const bool begins = bytes.starts_with('1');
    const bool ends = bytes.size() < 2 || bytes[1] == '\r' || bytes[1] == '\n';
    return settingsSayDemo(bytes) == (begins && ends) ? std::nullopt : Complaint{"the first line was misread"};
}

} // namespace tallyhoop::fuzz
