// screens/demo_mode.cpp - entering and leaving demo mode.
#include "screens/demo_mode.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "demo/sample_pool.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_backup.h"
#include "files/replace_file.h"
#include "files/settings_file.h"
#include "ui/work.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {
namespace {

constexpr const char* kCaption = "STALLYHOOP DEMOSTRATION MODE"; // sic

const ui::Message kContinueInDemo = {kCaption, "Select the OK Key to Continue in Demonstration Mode", ui::Buttons::Ok,
                                     ui::Icon::Information};
const ui::Message kContinueNormally = {kCaption, "Select the OK Key to Continue Normal Operation of Program",
                                       ui::Buttons::Ok, ui::Icon::Information};

ui::Message askBeforeEntering()
{
    return {
        "** DEMO MODE SET **",
        joinLines({"You have selected to enter DEMO MODE", " ", "If you continue, any setup activity INCLUDING the ",
                   "files defining the starting tournament teams and", "the special comments will be deleted..", " ",
                   "Do you want to enter DEMO Mode?"}),
        ui::Buttons::OkCancel, ui::Icon::Question};
}

ui::Message ownPoolIsIn(const std::filesystem::path& backup)
{
    return {kCaption,
            joinLines({"The files of the pool that was here are kept.", "They have been moved to the folder:", " ",
                       shown(backup)}),
            ui::Buttons::Ok, ui::Icon::Information};
}

ui::Message ownChangesAreIn(const std::filesystem::path& backup)
{
    return {kCaption,
            joinLines({"The files that you changed in demo mode are kept.", "They have been moved to the folder:", " ",
                       shown(backup)}),
            ui::Buttons::Ok, ui::Icon::Information};
}

ui::Message copiesOfOwnChangesAreIn(const std::filesystem::path& backup)
{
    return {kCaption,
            joinLines({"Files that you changed in demo mode have been deleted.",
                       "Copies of them are in the folder:", " ", shown(backup)}),
            ui::Buttons::Ok, ui::Icon::Information};
}

/// Says which file or folder is in the way before the system's reason.
Failure failureAt(const std::string& path, const Failure& failure) { return Failure{path + "\r\n" + failure.message}; }

ui::Message trouble(const std::string& what, const Failure& failure)
{
    return {kCaption, what + "\r\n \r\n" + failure.message, ui::Buttons::Ok, ui::Icon::Critical};
}

/// @returns the names as the folder has them: each in every case of its letters, for one that stays would be taken for
///          the file of a pool. The settings come last: a clearing that was cut short leaves demo mode on, and can be
///          asked for again; and before them the setup, for a board without a field is of no use meanwhile.
std::vector<std::string> demoDataFiles(const DataFolder& folder)
{
    std::vector<const char*> names{file_name::kResults, file_name::kPlayerNames, file_name::kPrizes};
    names.insert(names.end(), demo::kSelectionFiles.begin(), demo::kSelectionFiles.end());
    names.push_back(file_name::kSetup);
    names.push_back(file_name::kSettings);

    std::vector<std::string> spelled;
    for (const char* name : names) {
        const std::vector<std::string> spellings = folder.spellingsOf(name);
        spelled.insert(spelled.end(), spellings.begin(), spellings.end());
        if (spellings.empty())
            spelled.emplace_back(name);
    }
    return spelled;
}

/// A file that cannot be read counts as the person's own. What is no file cannot be kept; the clearing names it.
bool isOwnFile(const DataFolder& folder, std::string_view name)
{
    std::error_code ignored;
    const std::optional<std::filesystem::path> file = folder.pathOf(name);
    if (!file || !std::filesystem::is_regular_file(*file, ignored))
        return false;
    const Result<std::string> bytes = readFile(*file);
    if (!bytes)
        return true;
    if (equalFolded(name, file_name::kSettings))
        return !settingsSayDemo(*bytes);
    if (equalFolded(name, file_name::kPlayerNames) && *bytes == playerNamesFile({}))
        return false;
    return !demo::isSampleFile(name, *bytes);
}

/// @returns what has become of the pool that was there, for the end of a message about the failed installation
std::string putOwnPoolBack(const DataFolder& folder, const std::optional<std::filesystem::path>& backup)
{
    if (!backup)
        return {};
    const Result<Done> done = putBack(folder, *backup);
    std::string words = done ? "The files of your own pool have been put back. Copies of them are in the folder:"
                             : "Your own pool could not be put back:\r\n" + done.failure().message +
                                   "\r\n \r\nIts files are in the folder:";
    return "\r\n \r\n" + words + "\r\n" + shown(*backup);
}

/// Deletes what an installer that was stopped has left. It is no pool, but its field would be taken for the final one
/// of a person's own, which neither the setup nor demo mode touches. All these names were free before it was started.
void removeHalfASamplePool(const DataFolder& folder)
{
    for (const std::string& name : demoDataFiles(folder)) // one that cannot be deleted keeps none of the others
        static_cast<void>(folder.remove(name));
}

/// @returns why the sample pool could not be installed now, if so: to be asked before anything is deleted
std::optional<Failure> obstacle(const std::filesystem::path& installer, const DataFolder& folder,
                                const ui::Platform& platform)
{
    if (const Result<Done> checked = platform.programs.check(installer); !checked)
        return failureAt(shown(installer), checked.failure());
    if (const Result<Done> checked = folder.checkWritable(); !checked)
        return failureAt(shown(folder.folder()), checked.failure());
    return std::nullopt;
}

/// The person's OK mostly comes long after the installer has finished. One that comes at once must not find half a
/// pool: the settings file is written last.
/// @returns why there is no sample pool, if so
std::optional<Failure> waitForSamplePool(const DataFolder& folder, const ui::Platform& platform)
{
    using namespace std::chrono_literals;
    constexpr auto kStep = 10ms;
    constexpr int kMostSteps = 1000;
    Work work{platform.progress, "Installing the sample pool", kMostSteps};
    do {
        const std::optional<Result<Done>> end = platform.programs.waitForEnd(kStep);
        if (demoModeIsOn(folder)) // asked after the end: the last file may have come just before it
            return std::nullopt;
        if (end)
            return *end ? Failure{"It has ended without writing a sample pool."} : end->failure();
    } while (work.step() && work.done() < kMostSteps);
    return Failure{"It has not finished."};
}

/// Clears the data files, starts the installer, waits for the person's OK and for the sample pool.
/// @returns what went wrong, if anything
std::optional<ui::Message> install(const DataFolder& folder, const std::filesystem::path& installer,
                                   const ui::Platform& platform)
{
    if (const Result<Done> cleared = clearDemoDataFiles(folder); !cleared)
        return trouble("Demonstration mode cannot be started: a file could not be deleted.", cleared.failure());
    if (const Result<Done> started = platform.programs.start(installer); !started)
        return trouble("Demonstration mode could not be started.", failureAt(shown(installer), started.failure()));
    platform.dialogs.show(kContinueInDemo);
    if (const std::optional<Failure> noPool = waitForSamplePool(folder, platform)) {
        platform.programs.stop(); // it must not write among the files that are put back
        removeHalfASamplePool(folder);
        return trouble("The sample pool could not be installed.", failureAt(shown(installer), *noPool));
    }
    return std::nullopt;
}

/// @returns whether each file that a backup has is in its place as well: then nothing is lost without the backup
bool isSpare(const DataFolder& folder, const std::filesystem::path& backup)
{
    std::error_code error;
    std::filesystem::directory_iterator entry{backup, error};
    for (; !error && entry != std::filesystem::directory_iterator{}; entry.increment(error))
        if (std::error_code none; !std::filesystem::is_regular_file(folder.folder() / entry->path().filename(), none))
            return false;
    return !error;
}

} // namespace

Result<std::optional<std::filesystem::path>> keepOwnFiles(const DataFolder& folder, const ui::Clock& clock)
{
    std::vector<std::string> own;
    std::vector<std::string> all;
    std::error_code ignored;
    for (const std::string& name : demoDataFiles(folder)) {
        if (isOwnFile(folder, name))
            own.emplace_back(name);
        if (const auto file = folder.pathOf(name); file && std::filesystem::is_regular_file(*file, ignored))
            all.emplace_back(name);
    }
    // A pool of one's own stays together, even where one of its files is like the demo's.
    if (!own.empty() && !demoModeIsOn(folder))
        own = all;
    if (own.empty())
        return std::optional<std::filesystem::path>{};
    const Result<std::filesystem::path> backup = backUp(folder, own, clock.now());
    if (!backup)
        return backup.failure();
    return std::optional{*backup};
}

Result<Done> clearDemoDataFiles(const DataFolder& folder)
{
    for (const std::string& name : demoDataFiles(folder))
        if (const Result<Done> removed = folder.remove(name); !removed)
            return failureAt(folder.shownPathOf(name), removed.failure());
    return Done{};
}

bool startDemo(const DataFolder& folder, const ui::Platform& platform)
{
    const std::filesystem::path installer =
        folder.pathOf(file_name::kDemoInstaller).value_or(folder.folder() / file_name::kDemoInstaller);
    if (const std::optional<Failure> failure = obstacle(installer, folder, platform)) {
        platform.dialogs.show(trouble("Demonstration mode cannot be started. Nothing was changed.", *failure));
        return false;
    }
    const Result<std::optional<std::filesystem::path>> backup = keepOwnFiles(folder, platform.clock);
    if (!backup) {
        platform.dialogs.show(trouble("Demonstration mode cannot be started. Nothing was changed.", backup.failure()));
        return false;
    }
    std::optional<ui::Message> failure = install(folder, installer, platform);
    if (failure) {
        failure->text += putOwnPoolBack(folder, *backup);
        platform.dialogs.show(*failure);
    } else if (*backup) {
        platform.dialogs.show(ownPoolIsIn(**backup));
    }
    return true;
}

bool enterDemo(const DataFolder& folder, const ui::Platform& platform)
{
    if (platform.dialogs.show(askBeforeEntering()) == ui::Answer::Cancel)
        return false;
    return startDemo(folder, platform);
}

std::optional<std::string> leaveDemo(const DataFolder& folder, const ui::Platform& platform)
{
    const Result<std::optional<std::filesystem::path>> kept = keepOwnFiles(folder, platform.clock);
    if (!kept) {
        platform.dialogs.show(trouble("Demonstration mode cannot be left. Nothing was changed.", kept.failure()));
        return std::nullopt;
    }
    const Result<Done> cleared = clearDemoDataFiles(folder);
    const bool stays = demoModeIsOn(folder);
    std::optional<std::filesystem::path> backup = *kept;
    if (!cleared && backup && isSpare(folder, *backup)) { // each further try would make another one
        std::error_code ignored;
        std::filesystem::remove_all(*backup, ignored);
        backup.reset();
    }
    if (!cleared)
        platform.dialogs.show(trouble(stays ? "Demonstration mode cannot be left: a file could not be deleted."
                                            : "A file of the demonstration could not be deleted.",
                                      cleared.failure()));
    if (!stays)
        platform.dialogs.show(kContinueNormally);
    if (backup)
        platform.dialogs.show(cleared ? ownChangesAreIn(*backup) : copiesOfOwnChangesAreIn(*backup));
    if (stays)
        return std::nullopt;
    if (!backup)
        return std::string{};
    return "Files that you changed in demo mode are kept in the folder " + shown(backup->filename()) + ".";
}

} // namespace tallyhoop
