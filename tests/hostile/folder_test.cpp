// tests/hostile/folder_test.cpp - no name, wherever it comes from, leads out of the program's folder.
#include "hostile/hostile_names.h"

#include "base/windows1252.h"
#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "files/selection_of_player.h"
#include "screens/board/selection_saving.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

/// As Windows sees it: the name of a device, whatever follows after a point.
bool isDevice(const std::string& name)
{
    const std::string stem = name.substr(0, name.find_first_of(". "));
    for (const char* device : {"CON", "PRN", "AUX", "NUL", "COM1", "LPT1", "COM\xB9", "COM\xB2", "COM\xB3", "LPT\xB9",
                               "LPT\xB2", "LPT\xB3", "CONIN$", "CONOUT$"})
        if (equalFolded(stem, device))
            return true;
    return false;
}

class HostileFileNames : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    static std::string inUtf8(const fs::path& path)
    {
        const std::u8string utf8 = path.generic_u8string();
        return {utf8.begin(), utf8.end()};
    }

    /// The folder, and everything around it, as paths relative to what is around it.
    std::vector<std::string> everything() const
    {
        std::vector<std::string> found;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator{scratch.path()})
            found.push_back(inUtf8(entry.path().lexically_relative(scratch.path())));
        std::ranges::sort(found);
        return found;
    }

    ScratchFolder scratch;
    DataFolder folder{[this] {
        fs::create_directory(scratch.path() / "pool");
        scratch.put("outside", "not of the pool");
        scratch.put("outside.THC", "not of the pool");
        return scratch.path() / "pool";
    }()};
};

TEST_P(HostileFileNames, StayInTheFolderOrAreRefused)
{
    for (const std::string& name :
         {hostileName(), hostileName() + ".THC", "x/" + hostileName(), hostileName() + std::string{"\0.THC", 5}}) {
        const std::optional<fs::path> path = folder.pathOf(name);
        if (!path)
            continue;
        EXPECT_EQ(path->parent_path(), folder.folder());
        std::error_code tooLong;
        const fs::path canonical = fs::weakly_canonical(*path, tooLong);
        EXPECT_TRUE(tooLong || canonical.parent_path() == fs::canonical(folder.folder())) << canonical;
    }
}

TEST_P(HostileFileNames, AreWrittenInTheFolderOrNotAtAll)
{
    const std::vector<std::string> before = everything();
    const bool written = static_cast<bool>(folder.write(hostileName(), "x"));
    std::vector<std::string> after = everything();
    if (written) {
        const std::string made = "pool/" + toUtf8(hostileName());
        EXPECT_EQ(std::erase(after, made), 1) << "not where it belongs";
        EXPECT_TRUE(folder.remove(hostileName()));
        EXPECT_EQ(everything(), before);
    }
    EXPECT_EQ(after, before);
}

TEST_P(HostileFileNames, AreProposedAsBareNames)
{
    for (const auto& [player, initials] :
         {std::pair{hostileName(), hostileName()}, {std::string{}, hostileName()}, {hostileName(), std::string{}}}) {
        FakeDialogs dialogs;
        dialogs.pick(std::nullopt);
        askWhereToSave(dialogs, folder, Entry{{}, initials, player, "150", {}}, {});
        ASSERT_EQ(dialogs.fileChoices.size(), 1u);
        const std::string& name = dialogs.fileChoices.front().proposedName;
        EXPECT_TRUE(isBareName(name)) << name;
        EXPECT_TRUE(endsWithFolded(name, ".THC")) << name;
        EXPECT_FALSE(isDevice(name)) << name;
        EXPECT_LE(toUtf8(name).size(), 255u);
        EXPECT_EQ(name.find_first_of("\\/:*?\"<>|\x07\x08\x0C\x1B\t\x7F"), std::string::npos) << name;
        EXPECT_TRUE(folder.write(name, "x")) << name;
        EXPECT_EQ(folder.files(".THC").size(), 1u);
        EXPECT_TRUE(folder.remove(name));
    }
}

TEST_P(HostileFileNames, InTheRecordOfAPlayerMeanNoFileOutside)
{
    for (const std::string& recorded :
         {hostileName(), hostileName() + ".THC", "../" + hostileName(), std::string{"../outside.THC"}})
        EXPECT_EQ(selectionFileOf(folder, recorded), std::nullopt) << recorded;
}

INSTANTIATE_TEST_SUITE_P(Each, HostileFileNames, testing::ValuesIn(hostileNames()),
                         [](const auto& values) { return values.param.kind; });

TEST(HostileNamesOnTheDisk, MarksThatTurnANameAroundAreShownAsWhatTheyAreNot)
{
    const ScratchFolder scratch;
    const fs::path turned = scratch.path() / u8"Smith\u202ECHT.exe_\u200F\u2066.THC";
    std::ofstream{turned} << "x";
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    ASSERT_EQ(files.size(), 1u);
    EXPECT_EQ(files.front().name, "Smith?CHT.exe_??.THC");
    EXPECT_EQ(files.front().path, turned);
    EXPECT_EQ(fromUtf8("\u202E\u200F\u2066"), "???");
}

} // namespace
} // namespace tallyhoop::test
