// files/player_names_file.cpp - the players' records: checking, taking apart, putting together.
#include "files/player_names_file.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tallyhoop {
namespace {

/// Columns of a record, counted from 0.
constexpr std::array<std::size_t, 8> kQuotes = {0, 26, 28, 62, 64, 108, 110, 125};
constexpr std::array<std::size_t, 3> kCommas = {27, 63, 109};
constexpr std::size_t kNameColumn = 1;
constexpr std::size_t kFileNameColumn = 29;
constexpr std::size_t kEmailColumn = 65;
constexpr std::size_t kPhoneColumn = 111;

std::string piece(std::string_view line, std::size_t column, std::size_t width)
{
    return column < line.size() ? std::string{line.substr(column, width)} : std::string{};
}

const char* annotationOf(RecordFault fault)
{
    switch (fault) {
    case RecordFault::TooLong:
        return "**Following Record was too long**";
    case RecordFault::TooShort:
        return "** Following record too short**";
    case RecordFault::BadFormat:
        return "**Formatting of following record incorrect**";
    case RecordFault::None:
        break;
    }
    return "";
}

/// A field holds neither quotes, which frame it, nor line breaks, which end its record.
std::string fieldText(std::string_view text, std::size_t width)
{
    std::string field;
    for (std::size_t place = 0; place < text.size() && field.size() < width; ++place) {
        const char character = text[place];
        if (character == '\r' && text.substr(place + 1, 1) == "\n")
            continue; // the pair is one line break
        field.push_back(character == '"' ? '\'' : character == '\r' || character == '\n' ? ' ' : character);
    }
    return fitted(field, width);
}

Failure faultyPlayerNames(const std::string& shownCopy)
{
    return Failure{
        joinLines({"There is a problem found with the file containing your player names.",
                   "Possibly someone has edited this file with another program.", "", "The file: " + shownCopy,
                   " is a copy of the original file with the error records identified.", "",
                   "You can either go back to a backup copy of this file or attempt",
                   "to correct the error(s) in this copy and then rename it to", "PLAYERNAMES.CSV.", "",
                   "See the help file for additional instructions"})};
}

} // namespace

RecordFault faultOf(std::string_view line)
{
    if (line.size() != kRecordLength)
        return line.size() > kRecordLength ? RecordFault::TooLong : RecordFault::TooShort;
    const auto isQuote = [line](std::size_t column) { return line[column] == '"'; };
    const auto isComma = [line](std::size_t column) { return line[column] == ','; };
    const bool wellFormed =
        std::all_of(kQuotes.begin(), kQuotes.end(), isQuote) && std::all_of(kCommas.begin(), kCommas.end(), isComma);
    return wellFormed ? RecordFault::None : RecordFault::BadFormat;
}

PlayerRecord parseRecord(std::string_view line)
{
    return {piece(line, kNameColumn, kNameWidth), piece(line, kFileNameColumn, kFileNameWidth),
            piece(line, kEmailColumn, kEmailWidth), piece(line, kPhoneColumn, kPhoneWidth)};
}

std::optional<std::vector<std::string>> annotatedCopy(std::span<const std::string> lines)
{
    std::vector<std::string> copy;
    for (const std::string& line : lines) {
        if (const RecordFault fault = faultOf(line); fault != RecordFault::None)
            copy.emplace_back(annotationOf(fault));
        copy.push_back(line);
    }
    return copy.size() > lines.size() ? std::optional{std::move(copy)} : std::nullopt;
}

std::string recordLine(const PlayerRecord& record)
{
    return '"' + fieldText(record.name, kNameWidth) + "\",\"" + fieldText(record.fileName, kFileNameWidth) + "\",\"" +
           fieldText(record.email, kEmailWidth) + "\",\"" + fieldText(record.phone, kPhoneWidth) + '"';
}

std::string headerLine() { return recordLine({"Name", "FileName", "Email", "Phone"}); }

std::string playerNamesFile(std::span<const PlayerRecord> records)
{
    std::vector<std::string> lines{headerLine()};
    std::transform(records.begin(), records.end(), std::back_inserter(lines), recordLine);
    return fileOf(lines);
}

std::string playerRow(const PlayerRecord& record)
{
    return fitted(record.name, kNameWidth) + ' ' + fitted(record.fileName, kFileNameWidth) + ' ' +
           fitted(record.email, kEmailWidth) + ' ' + fitted(record.phone, kPhoneWidth);
}

PlayerRecord parsePlayerRow(std::string_view row)
{
    constexpr std::size_t kFileNameStart = kNameWidth + 1;
    constexpr std::size_t kEmailStart = kFileNameStart + kFileNameWidth + 1;
    constexpr std::size_t kPhoneStart = kEmailStart + kEmailWidth + 1;
    return {piece(row, 0, kNameWidth), piece(row, kFileNameStart, kFileNameWidth), piece(row, kEmailStart, kEmailWidth),
            piece(row, kPhoneStart, kPhoneWidth)};
}

Result<Done> checkPlayerNames(const DataFolder& folder)
{
    const Result<std::string> bytes = folder.read(file_name::kPlayerNames);
    if (bytes) {
        const std::optional<std::vector<std::string>> copy = annotatedCopy(linesOf(*bytes));
        if (!copy) {
            // Left over from a file that has been put right since; one that cannot be deleted does no harm.
            static_cast<void>(folder.remove(file_name::kPlayerNamesErrors));
            return Done{};
        }
        // Without the copy the message is still true of the file itself.
        static_cast<void>(folder.write(file_name::kPlayerNamesErrors, fileOf(*copy)));
    }
    return faultyPlayerNames(folder.shownPathOf(file_name::kPlayerNamesErrors));
}

std::vector<PlayerRecord> readPlayerNames(const DataFolder& folder)
{
    std::vector<PlayerRecord> records;
    const Result<std::string> bytes = folder.read(file_name::kPlayerNames);
    if (!bytes)
        return records;
    const std::vector<std::string> lines = linesOf(*bytes);
    for (std::size_t line = 1; line < lines.size(); ++line) // the first is the header
        records.push_back(parseRecord(lines[line]));
    return records;
}

} // namespace tallyhoop
