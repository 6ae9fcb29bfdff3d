// files/selection_file.cpp - one player's bracket, or the results, as a file of 131 lines.
#include "files/selection_file.h"

#include "base/lines.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/replace_file.h"
#include "screens/file_messages.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyhoop {
namespace {

constexpr std::size_t kFileLines = 131;

std::optional<Failure> troubleWith(const SelectionLines& lines, std::size_t count)
{
    if (count > kFileLines)
        return Failure{"The file has more than 131 lines."};
    if (count < kFileLines)
        return Failure{"The file has fewer than 131 lines."};
    if (lines[selection_line::kEnd] != kEndMarker)
        return Failure{"Line 131 of the file is not the end marker."};
    return std::nullopt;
}

} // namespace

Read<SelectionLines> readSelection(std::string_view bytes)
{
    Read<SelectionLines> read;
    std::size_t count = 0;
    while (!bytes.empty() && count < kFileLines)
        read.value[++count] = takeLine(bytes);
    read.trouble = troubleWith(read.value, bytes.empty() ? count : kFileLines + 1);
    return read;
}

Read<SelectionLines> readSelectionFile(const std::filesystem::path& file)
{
    const Result<std::string> bytes = readFile(file);
    if (!bytes)
        return {{}, bytes.failure()};
    return readSelection(*bytes);
}

std::string selectionFile(const SelectionLines& lines)
{
    std::vector<std::string> fileLines{lines.begin() + 1, lines.begin() + selection_line::kEnd};
    fileLines.emplace_back(kEndMarker);
    return fileOf(fileLines);
}

void ReadSelections(const std::filesystem::path& file, ui::Dialogs& dialogs, SelectionLines& lines)
{
    Read<SelectionLines> read = readSelectionFile(file);
    lines = std::move(read.value);
    if (read.trouble)
        showReadingTrouble(file, dialogs);
}

void showReadingTrouble(const std::filesystem::path& file, ui::Dialogs& dialogs)
{
    dialogs.show({"** ERROR IN OPENING FILE - ReadSelections Routine **",
                  "There is a problem opening: " + shown(file) + "\r\n\r\n The program will attempt to continue ......",
                  ui::Buttons::Ok, ui::Icon::Critical});
}

bool SaveSelections(const std::filesystem::path& file, ui::Dialogs& dialogs, KnownFiles& known,
                    const SelectionLines& lines)
{
    return known.replace(file, selectionFile(lines), dialogs,
                         writingTrouble(shown(file), " Check your selection and retry."));
}

std::string proposedFileName(std::string_view playerName, std::string_view initials)
{
    constexpr std::size_t kMostBytes = 255; // longest name that file systems take
    const std::string_view ending = file_name::kSelectionEnding;
    std::string name{playerName.substr(0, kMostBytes)};
    name += "_";
    name += initials.substr(0, kMostBytes);
    name = withoutUnsafeCharacters(name);
    while (toUtf8(name).size() + ending.size() > kMostBytes)
        name.pop_back();
    if (!endsWithFolded(name, ending))
        name += ending;
    return name;
}

} // namespace tallyhoop
