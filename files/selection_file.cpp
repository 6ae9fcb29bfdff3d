// files/selection_file.cpp - one player's bracket, or the results, as a file of 131 lines.
#include "files/selection_file.h"

#include "base/lines.h"
#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/file_names.h"
#include "files/replace_file.h"

#include <array>
#include <optional>

namespace tallyhoop {

namespace {

constexpr std::size_t kFileLines = 131;

/// The lines of a file, counted from 0, as pieces of its bytes; those that it lacks are empty.
struct FileLines {
    std::array<std::string_view, kFileLines> lines{};
    std::size_t count = 0; ///< one more than there is room for when the file goes on
};

FileLines takeLines(std::string_view bytes)
{
    FileLines file;
    while (!bytes.empty() && file.count < kFileLines)
        file.lines.at(file.count++) = takeLine(bytes);
    if (!bytes.empty())
        ++file.count;
    return file;
}

std::optional<Failure> troubleWith(const FileLines& file)
{
    if (file.count > kFileLines)
        return Failure{"The file has more than 131 lines."};
    if (file.count < kFileLines)
        return Failure{"The file has fewer than 131 lines."};
    if (file.lines.back() != kEndMarker)
        return Failure{"Line 131 of the file is not the end marker."};
    return std::nullopt;
}

} // namespace

Read<Entry> readSelection(std::string_view bytes, const Bracket& like)
{
    const FileLines file = takeLines(bytes);
    auto line = file.lines.begin();
    ByPosition<std::string_view> teams;
    for (const Position position : allPositions())
        teams[position] = *line++;
    Read<Entry> read;
    read.value.picks = Bracket::of(teams, like);
    read.value.initials = *line++;
    read.value.name = *line++;
    read.value.finalPoints = *line++;
    read.trouble = troubleWith(file);
    return read;
}

Read<Entry> readSelectionFile(const std::filesystem::path& file, const Bracket& like)
{
    const Result<std::string> bytes = readFile(file);
    Read<Entry> read = bytes ? readSelection(*bytes, like) : Read<Entry>{{}, bytes.failure()};
    read.value.fileName = shown(file.filename());
    return read;
}

std::string selectionFile(const Entry& entry)
{
    std::vector<std::string> lines;
    lines.reserve(kFileLines);
    for (const Position position : allPositions())
        lines.push_back(entry.picks.at(position));
    lines.insert(lines.end(), {entry.initials, entry.name, entry.finalPoints, kEndMarker});
    return fileOf(lines);
}

std::string proposedFileName(std::string_view playerName, std::string_view initials)
{
    constexpr std::size_t kMostBytes = 255; // longest name that file systems take
    const std::string_view extension = file_name::kSelectionExtension;
    std::string name{playerName.substr(0, kMostBytes)};
    name += "_";
    name += initials.substr(0, kMostBytes);
    name = withoutUnsafeCharacters(name);
    while (toUtf8(name).size() + extension.size() > kMostBytes)
        name.pop_back();
    if (!endsWithFolded(name, extension))
        name += extension;
    return name;
}

} // namespace tallyhoop
