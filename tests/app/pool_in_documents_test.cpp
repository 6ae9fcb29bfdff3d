// tests/app/pool_in_documents_test.cpp - a program that may not write beside itself finds a folder for the pool.
#include "app/pool_in_documents.h"

#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>

namespace tallyhoop::test {

namespace fs = std::filesystem;

class PoolInDocuments : public ::testing::Test
{
protected:
    ScratchFolder program;
    ScratchFolder documents;
    FakeDialogs dialogs;

    PoolInDocuments()
    {
        fs::create_directory(program.path() / "platforms");
        program.put("tallyhoop.exe", "the program");
        program.put("Qt6Core.dll", "a library");
        program.put("platforms/qwindows.dll", "a plug-in");
        program.put("TALLYHOOP.HLP", "the help");
        program.put("NCAALIST.THS", "the names");
        program.put("Uninstall.exe", "not ours to copy");
    }

    std::optional<fs::path> offer()
    {
        const auto versionOf = [this](const fs::path& file) { return versions[shown(file)]; };
        return offerFolderInDocuments(program.folder(), documents.path(), versionOf, dialogs);
    }

    /// A program is in the documents already.
    void putOlderPool(std::optional<std::uint64_t> versionThere)
    {
        fs::create_directory(documents.path() / "Tallyhoop");
        documents.put("Tallyhoop/tallyhoop.exe", "the program of last year");
        documents.put("Tallyhoop/ncaalist.ths", "my names");
        documents.put("Tallyhoop/POOLSTART.THS", "my field");
        versions[shown(program.path() / "tallyhoop.exe")] = 20;
        versions[shown(documents.path() / "Tallyhoop" / "tallyhoop.exe")] = versionThere;
    }

    std::map<std::string, std::optional<std::uint64_t>> versions;
};

TEST_F(PoolInDocuments, IsWantedWhereNoFileCanBeMade)
{
    EXPECT_FALSE(needsAnotherFolder(program.folder()));
    EXPECT_TRUE(needsAnotherFolder(DataFolder{program.path() / "gone"}));
}

TEST_F(PoolInDocuments, IsOfferedAndGetsAllOfTheProgram)
{
    dialogs.answer(ui::Answer::Ok);
    EXPECT_EQ(offer(), documents.path() / "Tallyhoop" / "tallyhoop.exe");
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(dialogs.shown[0].text,
              "Tallyhoop keeps a pool in its own folder, and may not write into it:\r\n" + shown(program.path()) +
                  "\r\n \r\nShall a folder be made for the pool, with a copy of Tallyhoop that starts there?\r\n" +
                  shown(documents.path() / "Tallyhoop"));
    EXPECT_EQ(documents.get("Tallyhoop/tallyhoop.exe"), "the program");
    EXPECT_EQ(documents.get("Tallyhoop/Qt6Core.dll"), "a library");
    EXPECT_EQ(documents.get("Tallyhoop/platforms/qwindows.dll"), "a plug-in");
    EXPECT_EQ(documents.get("Tallyhoop/TALLYHOOP.HLP"), "the help");
    EXPECT_EQ(documents.get("Tallyhoop/NCAALIST.THS"), "the names");
    EXPECT_FALSE(fs::exists(documents.path() / "Tallyhoop" / "Uninstall.exe"));
}

TEST_F(PoolInDocuments, IsNotMadeForThoseWhoWouldRatherGoOn)
{
    dialogs.answer(ui::Answer::Cancel);
    EXPECT_EQ(offer(), std::nullopt);
    EXPECT_FALSE(fs::exists(documents.path() / "Tallyhoop"));
}

TEST_F(PoolInDocuments, GetsANewerProgramUnaskedAndKeepsThePool)
{
    putOlderPool(19);
    EXPECT_EQ(offer(), documents.path() / "Tallyhoop" / "tallyhoop.exe");
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(documents.get("Tallyhoop/tallyhoop.exe"), "the program");
    EXPECT_EQ(documents.get("Tallyhoop/ncaalist.ths"), "my names");
    EXPECT_EQ(documents.get("Tallyhoop/POOLSTART.THS"), "my field");
    EXPECT_EQ(DataFolder{documents.path() / "Tallyhoop"}.spellingsOf(file_name::kTeamNames),
              std::vector<std::string>{"ncaalist.ths"});
}

TEST_F(PoolInDocuments, KeepsAProgramThatIsAsNew)
{
    for (const std::uint64_t there : {20u, 21u}) {
        putOlderPool(there);
        EXPECT_EQ(offer(), documents.path() / "Tallyhoop" / "tallyhoop.exe");
        EXPECT_EQ(documents.get("Tallyhoop/tallyhoop.exe"), "the program of last year") << there;
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(PoolInDocuments, IsNotStartedWhereNoFileCanBeMadeEither)
{
    for (const std::uint64_t there : {19u, 20u}) {
        putOlderPool(there);
        fs::remove(documents.path() / "Tallyhoop" / "POOLSTART.THS");
        fs::create_directories(documents.path() / "Tallyhoop" / ".tallyhoop-check" / "in the way");
        EXPECT_EQ(offer(), std::nullopt) << there;
        EXPECT_EQ(documents.get("Tallyhoop/tallyhoop.exe"), "the program of last year") << there;
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(PoolInDocuments, IsNotStartedWhenTheCopyIsNotWhole)
{
    documents.put("Tallyhoop", "a file where the folder would be");
    dialogs.answer(ui::Answer::Ok);
    EXPECT_EQ(offer(), std::nullopt);
    ASSERT_EQ(dialogs.shown.size(), 2u);
    EXPECT_TRUE(dialogs.shown[1].text.starts_with("The copy of Tallyhoop could not be made:\r\n" +
                                                  shown(documents.path() / "Tallyhoop")))
        << dialogs.shown[1].text;
}

TEST_F(PoolInDocuments, IsNotOfferedWhereThereAreNoDocuments)
{
    EXPECT_EQ(offerFolderInDocuments(
                  program.folder(), {}, [](const fs::path&) { return std::nullopt; }, dialogs),
              std::nullopt);
}

} // namespace tallyhoop::test
