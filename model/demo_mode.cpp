// model/demo_mode.cpp - entering and leaving demo mode.
#include "model/demo_mode.h"

#include "model/file_names.h"
#include "model/settings_file.h"
#include "model/text.h"

#include <chrono>
#include <optional>
#include <string>
#include <thread>
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

/// Says which file or folder is in the way before the system's reason.
Failure failureAt(const std::string& path, const Failure& failure) { return Failure{path + "\r\n" + failure.message}; }

ui::Message trouble(const std::string& what, const Failure& failure)
{
    return {kCaption, what + "\r\n \r\n" + failure.message, ui::Buttons::Ok, ui::Icon::Critical};
}

std::vector<const char*> demoDataFiles()
{
    std::vector<const char*> names{file_name::kSettings, file_name::kSetup, file_name::kResults,
                                   file_name::kPlayerNames};
    names.insert(names.end(), kDemoSelectionFiles.begin(), kDemoSelectionFiles.end());
    return names;
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
/// pool: the settings file is written last. An installer that fails is given up after a while.
void waitForSamplePool(const DataFolder& folder)
{
    using namespace std::chrono_literals;
    constexpr auto kStep = 10ms;
    constexpr auto kLongest = 10s;
    for (auto waited = 0ms; waited < kLongest && !demoModeIsOn(folder); waited += kStep)
        std::this_thread::sleep_for(kStep);
}

} // namespace

Result<Done> clearDemoDataFiles(const DataFolder& folder)
{
    Result<Done> outcome = Done{};
    for (const char* name : demoDataFiles())
        if (const Result<Done> removed = folder.remove(name); !removed && outcome)
            outcome = failureAt(folder.shownPathOf(name), removed.failure());
    return outcome;
}

bool startDemo(const DataFolder& folder, const ui::Platform& platform)
{
    const std::filesystem::path installer =
        folder.pathOf(file_name::kDemoInstaller).value_or(folder.folder() / file_name::kDemoInstaller);
    if (const std::optional<Failure> failure = obstacle(installer, folder, platform)) {
        platform.dialogs.show(trouble("Demonstration mode cannot be started. Nothing was changed.", *failure));
        return false;
    }
    if (const Result<Done> cleared = clearDemoDataFiles(folder); !cleared) {
        platform.dialogs.show(
            trouble("Demonstration mode cannot be started: a file could not be deleted.", cleared.failure()));
        return false;
    }
    if (const Result<Done> started = platform.programs.start(installer); !started) {
        platform.dialogs.show(
            trouble("Demonstration mode could not be started.", failureAt(shown(installer), started.failure())));
        return false;
    }
    platform.dialogs.show(kContinueInDemo);
    waitForSamplePool(folder);
    return true;
}

bool enterDemo(const DataFolder& folder, const ui::Platform& platform)
{
    if (platform.dialogs.show(askBeforeEntering()) == ui::Answer::Cancel)
        return false;
    return startDemo(folder, platform);
}

void leaveDemo(const DataFolder& folder, const ui::Platform& platform)
{
    if (const Result<Done> cleared = clearDemoDataFiles(folder); !cleared)
        platform.dialogs.show(trouble("A file of the demonstration could not be deleted.", cleared.failure()));
    platform.dialogs.show(kContinueNormally);
}

} // namespace tallyhoop
