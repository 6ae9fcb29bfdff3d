// tests/screens/saving_as_test.cpp - a file under a name that the person chooses.
#include "screens/saving_as.h"

#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

struct SavingAs : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;

    std::optional<fs::path> save(const std::string& extension = ".CSV")
    {
        return saveAs(platform.services, folder,
                      {"Save the Table", "Tables (*" + extension + ")", extension, "TABLE" + extension, "new"});
    }
};

TEST_F(SavingAs, ProposesANameInTheFolderOfThePool)
{
    platform.dialogs.pick(std::nullopt);
    EXPECT_EQ(save(), std::nullopt);
    const ui::FileChoice& choice = platform.dialogs.fileChoices.at(0);
    EXPECT_EQ(choice.caption, "Save the Table");
    EXPECT_EQ(choice.filterName, "Tables (*.CSV)");
    EXPECT_EQ(choice.pattern, "*.CSV");
    EXPECT_EQ(choice.folder, scratch.path());
    EXPECT_EQ(choice.proposedName, "TABLE.CSV");
    EXPECT_FALSE(scratch.has("TABLE.CSV"));
}

TEST_F(SavingAs, WritesUnderTheNameWithItsExtension)
{
    platform.dialogs.pick(scratch.path() / "players").pick(scratch.path() / "Old.csv");
    EXPECT_EQ(save(), scratch.path() / "players.CSV");
    EXPECT_EQ(save(), scratch.path() / "Old.csv") << "in any case of letters";
    EXPECT_EQ(scratch.get("players.CSV"), "new");
    EXPECT_EQ(scratch.get("Old.csv"), "new");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(SavingAs, AsksBeforeAFileIsReplaced)
{
    const fs::path file = scratch.put("TABLE.CSV", "old");
    platform.dialogs.pick(scratch.path() / "TABLE").answer(ui::Answer::No);
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(scratch.get("TABLE.CSV"), "old");
    EXPECT_EQ(platform.dialogs.shown.at(0).text, "Do you want to replace the existing file ?\r\n" + file.string());
    platform.dialogs.pick(file).answer(ui::Answer::Yes);
    EXPECT_EQ(save(), file);
    EXPECT_EQ(scratch.get("TABLE.CSV"), "new");
    EXPECT_EQ(platform.dialogs.shown.size(), 2U) << "one question each time";
}

TEST_F(SavingAs, KeepsThePlayerList)
{
    scratch.put("PLAYERNAMES.CSV", "players");
    platform.dialogs.pick(scratch.path() / "PlayerNames.csv").pick(scratch.path() / "PLAYERNAMES");
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"), "players");
    EXPECT_FALSE(scratch.has("PlayerNames.csv"));
    EXPECT_EQ(platform.dialogs.shown.at(0).text, "This is the list of players, which the pool needs:\r\n" +
                                                     (scratch.path() / "PlayerNames.csv").string() +
                                                     "\r\n \r\nChoose another name.");
    EXPECT_EQ(platform.dialogs.shown.size(), 2U);
}

TEST_F(SavingAs, KeepsThePrizes)
{
    scratch.put("PRIZES.CSV", "prizes");
    platform.dialogs.pick(scratch.path() / "Prizes.csv");
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(scratch.get("PRIZES.CSV"), "prizes");
    EXPECT_EQ(platform.dialogs.shown.at(0).text, "These are the fees and the prizes, which the pool needs:\r\n" +
                                                     (scratch.path() / "Prizes.csv").string() +
                                                     "\r\n \r\nChoose another name.");
}

TEST_F(SavingAs, AFileOfThatNameElsewhereIsAnyFile)
{
    fs::create_directory(scratch.path() / "elsewhere");
    platform.dialogs.pick(scratch.path() / "elsewhere" / "PLAYERNAMES.CSV");
    EXPECT_TRUE(save());
    EXPECT_EQ(scratch.get("elsewhere/PLAYERNAMES.CSV"), "new");
}

TEST_F(SavingAs, SaysWhatCannotBeWritten)
{
    const fs::path file = scratch.path() / "missing" / "TABLE.CSV";
    platform.dialogs.pick(file);
    EXPECT_EQ(save(), std::nullopt);
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR IN WRITING FILE **"});
    EXPECT_EQ(platform.dialogs.shown.at(0).text,
              "There is a problem writing file: " + file.string() + "\r\n Check for adequate space in its folder");
}

} // namespace
} // namespace tallyhoop::test
