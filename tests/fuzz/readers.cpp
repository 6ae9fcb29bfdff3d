// tests/fuzz/readers.cpp - what must hold of every reader, whatever the bytes.
#include "fuzz/targets.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/settings_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"

#include <algorithm>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

/// What the helpers must stand that every screen applies to a field that was read.
Complaint field(const std::string& text)
{
    if (fromUtf8(toUtf8(text)) != text)
        return "a field does not survive the way to UTF-8 and back";
    if (encodeLineBreaks(decodeLineBreaks(text)) != text)
        return "a comment does not survive the way to the screen and back";
    static_cast<void>(wholeNumber(text));
    return std::nullopt;
}

template <class Lines>
Complaint fields(const Lines& lines)
{
    for (const std::string& line : lines)
        if (Complaint complaint = field(line))
            return complaint;
    return std::nullopt;
}

} // namespace

Complaint setup(std::string_view bytes)
{
    SetupLines lines{};
    const SetupReading reading = readSetup(bytes, lines);
    if (reading != SetupReading::Taken && lines != defaultSetupLines())
        return "a file that was not taken left something behind";
    SetupLines again{};
    if (readSetup(setupFile(lines), again) != SetupReading::Taken)
        return "our own setup file is not accepted";
    if (!std::equal(lines.begin(), lines.begin() + setup_line::kEnd, again.begin()))
        return "a setup changed on its way through a file";
    return fields(lines);
}

Complaint selection(std::string_view bytes)
{
    const Read<SelectionLines> read = readSelection(bytes);
    if (!read.value[0].empty())
        return "entry 0 is not empty";
    const Read<SelectionLines> again = readSelection(selectionFile(read.value));
    if (again.trouble)
        return "our own selection file is not accepted";
    if (!std::equal(read.value.begin(), read.value.begin() + selection_line::kEnd, again.value.begin()))
        return "a selection changed on its way through a file";
    return fields(read.value);
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
