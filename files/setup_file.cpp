// files/setup_file.cpp - POOLSTART.THS: a line for each text of the field, between two markers.
#include "files/setup_file.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"
#include "files/replace_file.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kFieldLines = 94; ///< between the markers
constexpr std::size_t kMostLines = 101; ///< after the start marker; more is no setup file

using Lines = std::vector<std::string>;

Lines linesOfField(const Field& field)
{
    Lines lines{field.teams.values.begin(), field.teams.values.end()};
    lines.push_back(field.title);
    lines.insert(lines.end(), field.regionTitles.begin(), field.regionTitles.end());
    lines.insert(lines.end(), field.payoffs.texts().begin(), field.payoffs.texts().end());
    lines.insert(lines.end(), field.seeds.begin(), field.seeds.end());
    lines.insert(lines.end(), {encodeLineBreaks(field.comment1), encodeLineBreaks(field.comment2), field.finalized});
    return lines;
}

Field fieldOfLines(const Lines& lines)
{
    auto line = lines.begin();
    const auto take = [&line](auto& texts) {
        for (std::string& text : texts)
            text = *line++;
    };
    Field field;
    take(field.teams.values);
    field.title = *line++;
    take(field.regionTitles);
    std::array<std::string, kRounds> payoffs;
    take(payoffs);
    field.payoffs = PayoffTexts{payoffs};
    take(field.seeds);
    field.comment1 = decodeLineBreaks(*line++);
    field.comment2 = decodeLineBreaks(*line++);
    field.finalized = *line++;
    return field;
}

constexpr std::size_t kComment1 = 91;
constexpr std::size_t kComment2 = 92;

/// @returns whether they were short enough
bool shortenComments(Lines& lines)
{
    const bool areShort =
        lines[kComment1].size() <= kLongestCommentRead && lines[kComment2].size() <= kLongestCommentRead;
    lines[kComment1].resize(std::min(lines[kComment1].size(), kLongestCommentRead));
    lines[kComment2].resize(std::min(lines[kComment2].size(), kLongestCommentRead));
    return areShort;
}

ReadField nothingYet() { return {{defaultField(), {}}, true}; }

ReadField damagedInSilence() { return {{defaultField(), {}}, false}; }

ReadField damaged() { return {{defaultField(), Failure{"Problem with file, will use default values"}}, false}; }

} // namespace

ReadField readSetup(std::string_view bytes, const Field& before)
{
    const Lines fileLines = linesOf(bytes);
    if (fileLines.empty())
        return nothingYet();
    if (fileLines.front() != kStartMarker)
        return damaged();
    const std::size_t afterMarker = fileLines.size() - 1;
    if (afterMarker == 0)
        return nothingYet();
    if (afterMarker > kMostLines)
        return damagedInSilence();
    if (fileLines.back() != kEndMarker)
        return damaged();
    Lines lines = linesOfField(before);
    std::copy_n(fileLines.begin() + 1, std::min(afterMarker, kFieldLines), lines.begin());
    const bool isWhole = shortenComments(lines);
    return {{fieldOfLines(lines), {}}, isWhole};
}

ReadField readField(const DataFolder& folder, const Field& before)
{
    const Result<std::string> bytes = folder.read(file_name::kSetup, kMostBytesOfSetup);
    if (bytes)
        return readSetup(*bytes, before);
    return folder.exists(file_name::kSetup) ? damagedInSilence() : nothingYet();
}

std::string setupFile(const Field& field)
{
    Lines lines = linesOfField(field);
    lines.insert(lines.begin(), kStartMarker);
    lines.emplace_back(kEndMarker);
    return fileOf(lines);
}

} // namespace tallyhoop
