// demo/sample_pool.cpp - puts the sample pool together and into a folder.
#include "demo/sample_pool.h"

#include "base/lines.h"
#include "base/windows1252.h"
#include "demo/sample_brackets.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"

#include <algorithm>
#include <span>

namespace tallyhoop::demo {

namespace {

SamplePlayer player(const char* fileName, const Winners& picks, const std::string& initials, const std::string& name,
                    const std::string& finalPoints, const std::string& email, const std::string& phone)
{
    return {{bracketOf(picks), initials, name, finalPoints, fileName},
            {name + "," + initials, upperCase(fileName), email, phone}};
}

std::string playerList()
{
    std::vector<PlayerRecord> records;
    for (const SamplePlayer& samplePlayer : samplePlayers())
        records.push_back(samplePlayer.record);
    return playerNamesFile(records);
}

/// A fresh start of the program leaves a player list without players; that is nothing to lose.
bool isEmptyPlayerList(const DataFolder& folder, const std::string& name)
{
    if (name != file_name::kPlayerNames)
        return false;
    const Result<std::string> bytes = folder.read(name);
    return bytes && *bytes == playerNamesFile({});
}

/// Another installer may be at work in this folder, when two programs have accepted the demo: what it has written is
/// what we write.
bool isOursAlready(const DataFolder& folder, const SampleFile& file)
{
    const Result<std::string> bytes = folder.read(file.name);
    return bytes && *bytes == file.bytes;
}

Result<Done> checkNoPool(const DataFolder& folder, std::span<const SampleFile> files)
{
    for (const SampleFile& file : files)
        if (folder.exists(file.name) && !isEmptyPlayerList(folder, file.name) && !isOursAlready(folder, file))
            return Failure{"This folder already has a pool: " + folder.shownPathOf(file.name)};
    return Done{};
}

/// What was not there before is taken away again.
void takeBack(const DataFolder& folder, std::span<const std::string> written)
{
    for (const std::string& name : written)
        (void)folder.remove(name); // the failure that led here is the one to report
}

} // namespace

Field sampleField()
{
    Field field = defaultField();
    for (const TeamRow row : allTeamRows())
        field.teams[row] = kSampleField[row];
    field.title = "2000 NCAA Tournament";
    field.comment1 = "A sample pool: the tournament of 2000.";
    field.comment2 = "Its last three games are still to be entered.";
    field.finalized = "1";
    return field;
}

Entry sampleResults() { return {bracketOf(kSampleResults), "A", "FinalResults", "", ""}; }

std::array<SamplePlayer, 4> samplePlayers()
{
    // The files' names are what the program proposes: the player's name, "_" and the initials.
    const auto& [favorite, halfway, longshot, prophet] = kSelectionFiles;
    return {player(favorite, favouritesBracket(), "DF", "Demo Favorite", "152", "favorite@example.org", "555-0101"),
            player(halfway, incompleteBracket(), "DH", "Demo Halfway", "145", "halfway@example.org", "555-0102"),
            player(longshot, upsetLoversBracket(), "DL", "Demo Longshot", "131", "longshot@example.org", "555-0103"),
            player(prophet, rightChampionsBracket(), "DP", "Demo Prophet", "160", "prophet@example.org", "555-0104")};
}

std::vector<SampleFile> sampleFiles()
{
    std::vector<SampleFile> files{{file_name::kResults, selectionFile(sampleResults())},
                                  {file_name::kPlayerNames, playerList()}};
    for (const SamplePlayer& samplePlayer : samplePlayers())
        files.push_back({samplePlayer.entry.fileName, selectionFile(samplePlayer.entry)});
    // Should this be interrupted, the next start finds no field, and offers the demo again.
    files.push_back({file_name::kSetup, setupFile(sampleField())});
    files.push_back({file_name::kSettings, "1\r\n"});
    return files;
}

bool isSampleFile(std::string_view name, std::string_view bytes)
{
    static const std::vector<SampleFile> kFiles = sampleFiles();
    return std::ranges::any_of(
        kFiles, [&](const SampleFile& file) { return equalFolded(file.name, name) && file.bytes == bytes; });
}

Result<Done> installSamplePool(const DataFolder& folder)
{
    const std::vector<SampleFile> files = sampleFiles();
    if (const Result<Done> free = checkNoPool(folder, files); !free)
        return free;
    std::vector<std::string> writtenHere;
    for (const SampleFile& file : files) {
        if (isOursAlready(folder, file))
            continue; // another installer's
        const Result<Done> written = folder.write(file.name, file.bytes);
        if (!written) {
            takeBack(folder, writtenHere);
            return Failure{"The sample pool could not be written: " + folder.shownPathOf(file.name) + "\r\n" +
                           written.failure().message};
        }
        writtenHere.push_back(file.name);
    }
    return Done{};
}

} // namespace tallyhoop::demo
