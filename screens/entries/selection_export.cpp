// screens/entries/selection_export.cpp - reads what is to be exported, says what is left out, and writes the table.
#include "screens/entries/selection_export.h"

#include "base/text.h"
#include "files/file_names.h"
#include "files/pool_files.h"
#include "intake/entry_table.h"
#include "screens/saving.h"
#include "screens/saving_as.h"
#include "ui/work.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

constexpr const char* kNotExported = "Nothing was exported.";

/// The selections that can be exported, and the names of the files of others.
struct Exported {
    std::vector<Entry> entries;
    std::vector<std::string> leftOut;    ///< could not be read, or not whole
    std::vector<std::string> otherField; ///< with teams in the first round that are not the field's
};

bool hasRowsOf(const Bracket& picks, const Bracket& field)
{
    return std::ranges::all_of(allTeamRows(),
                               [&](TeamRow row) { return picks.at(positionOf(row)) == field.at(positionOf(row)); });
}

/// @returns nothing when the person has cancelled
std::optional<Exported> readAll(std::span<const FolderFile> files, const Field& field, const ui::Platform& platform)
{
    const Bracket start = startingBracket(field);
    Exported exported;
    Work work{platform.progress, "Reading the selections", files.size()};
    readSelections(files, start, [&](const FolderFile& file, Read<Entry>& selection) {
        if (selection.trouble) {
            exported.leftOut.push_back(file.name);
        } else {
            if (!hasRowsOf(selection.value.picks, start))
                exported.otherField.push_back(file.name);
            exported.entries.push_back(std::move(selection.value));
        }
        return work.step();
    });
    return work.cancelled() ? std::nullopt : std::optional{std::move(exported)};
}

void nameFiles(ui::Dialogs& dialogs, const std::string& what, const std::vector<std::string>& files)
{
    if (files.empty())
        return;
    std::vector<std::string> lines = fewEnoughForAMessage(files);
    lines.insert(lines.begin(), {what, " "});
    dialogs.show({"", joinLines(lines), ui::Buttons::Ok, ui::Icon::Exclamation});
}

} // namespace

std::string exportSelections(const DataFolder& folder, const ui::Platform& platform, const Field& field)
{
    const std::optional<Exported> read = readAll(listSelections(platform.dialogs, folder), field, platform);
    if (!read)
        return kNotExported;
    nameFiles(platform.dialogs, "These selections could not be read, or not whole, and are left out:", read->leftOut);
    nameFiles(platform.dialogs,
              "These selections have other teams in the first round than the field.\r\n"
              "The table has their winners only: imported again, they get the field's teams.",
              read->otherField);
    if (read->entries.empty())
        return kNotExported;
    const auto file = saveAs(platform, folder,
                             {"Export Selections as CSV", "Tables for spreadsheets (*.CSV)", ".CSV", kSelectionTable,
                              entryTable(read->entries, field)});
    if (!file)
        return kNotExported;
    const std::size_t count = read->entries.size();
    return "Exported " + std::to_string(count) + (count == 1 ? " selection" : " selections") + " to " +
           shown(file->filename()) + ".";
}

} // namespace tallyhoop
