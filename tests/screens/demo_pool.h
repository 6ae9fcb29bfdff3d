// tests/screens/demo_pool.h - folders with a demo and with a pool of one's own, and what demo mode says of them.
#pragma once

#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/settings_file.h"
#include "screens/demo_mode.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop::test {

inline constexpr const char* kCaption = "STALLYHOOP DEMOSTRATION MODE"; // sic
inline const ui::Message kContinueInDemo{kCaption, "Select the OK Key to Continue in Demonstration Mode",
                                         ui::Buttons::Ok, ui::Icon::Information};
inline const ui::Message kContinueNormally{kCaption, "Select the OK Key to Continue Normal Operation of Program",
                                           ui::Buttons::Ok, ui::Icon::Information};

inline constexpr const char* kBackup = "Backup 2001-03-05 101530"; // the fake clock's moment

inline ui::Message ownPoolIsIn(const std::filesystem::path& backup)
{
    return {kCaption,
            "The files of the pool that was here are kept.\r\nThey have been moved to the folder:\r\n \r\n" +
                backup.string(),
            ui::Buttons::Ok, ui::Icon::Information};
}

inline ui::Message ownChangesAreIn(const std::filesystem::path& backup)
{
    return {kCaption,
            "The files that you changed in demo mode are kept.\r\nThey have been moved to the folder:\r\n \r\n" +
                backup.string(),
            ui::Buttons::Ok, ui::Icon::Information};
}

inline constexpr const char* kOwnChangesAreKept =
    "Files that you changed in demo mode are kept in the folder Backup 2001-03-05 101530.";

/// @returns the names of a folder's files and subfolders, sorted
inline std::vector<std::string> entriesOf(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator{folder})
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// A folder with the demo as an installer leaves it.
struct InstalledDemo {
    ScratchFolder scratch;
    FakePlatform platform;

    InstalledDemo()
    {
        for (const demo::SampleFile& file : demo::sampleFiles())
            scratch.put(file.name, file.bytes);
    }
};

/// A folder with a pool of one's own: what demo mode replaces, and what it must not touch.
struct OwnPool {
    ScratchFolder scratch;
    FakePlatform platform;

    static constexpr std::array kNames{"NCAALIST.THS", "Own_O.THC", "PLAYERNAMES.CSV", "POOLSTART.THS",
                                       "TALLYHOOP.THS"};

    OwnPool()
    {
        for (const char* name : kNames)
            scratch.put(name, std::string{"own "} + name);
    }

    /// @param except is not compared: a file that the test itself has changed
    void expectUntouched(std::string_view except = {}) const
    {
        EXPECT_EQ(entriesOf(scratch.path()), std::vector<std::string>(kNames.begin(), kNames.end()));
        for (const char* name : kNames)
            if (name != except) {
                EXPECT_EQ(scratch.get(name), std::string{"own "} + name);
            }
    }
    /// The pool is there as before, and a backup of it.
    void expectPutBack() const
    {
        std::vector<std::string> names{kNames.begin(), kNames.end()};
        names.insert(names.begin(), kBackup);
        EXPECT_EQ(entriesOf(scratch.path()), names);
        for (const char* name : kNames)
            EXPECT_EQ(scratch.get(name), std::string{"own "} + name);
    }

    bool isCleared() const
    {
        return !scratch.has("POOLSTART.THS") && !scratch.has("TALLYHOOP.THS") && !scratch.has("PLAYERNAMES.CSV");
    }
};

} // namespace tallyhoop::test
