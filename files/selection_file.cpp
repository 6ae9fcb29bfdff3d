// files/selection_file.cpp - one player's bracket, or the results, as a file of 131 lines.
#include "files/selection_file.h"

#include "base/lines.h"
#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/file_names.h"
#include "files/replace_file.h"
#include "files/selection_reader.h"

#include <vector>

namespace tallyhoop {

namespace {

constexpr std::size_t kFileLines = 131;

} // namespace

Read<Entry> readSelection(std::string_view bytes, const Bracket& like) { return SelectionReader{like}.read(bytes); }

Read<Entry> readSelectionFile(const std::filesystem::path& file, const Bracket& like)
{
    const Result<std::string> bytes = readFile(file, kMostBytesOfSelection);
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
