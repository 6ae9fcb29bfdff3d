// tests/files/selection_of_player_test.cpp - which selection file a record of the player list means.
#include "files/selection_of_player.h"

#include "base/windows1252.h"
#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct SelectionOfPlayer : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    const std::string full = "Montgomery-Featherstonehaugh_Wilh"; // 33 characters: it may have been cut

    std::filesystem::path in(const std::string& name) const { return scratch.path() / name; }
};

TEST_F(SelectionOfPlayer, IsTheFileOfTheRecordedNameInAnyCase)
{
    const auto file = scratch.put("Adams_B.THC", "a bracket");
    EXPECT_EQ(selectionFileOf(folder, "ADAMS_B.THC          "), file);
    EXPECT_EQ(selectionFileOf(folder, "ADAMS_C.THC"), std::nullopt);
}

TEST_F(SelectionOfPlayer, IsTheOneFileThatBeginsWithAFullName)
{
    const auto file = scratch.put(full + "elmina.THC", "a bracket");
    EXPECT_EQ(selectionFileOf(folder, full), file);
    EXPECT_TRUE(recordMeans(folder, full, full + "ELMINA.THC"));

    scratch.put(full + "elm.THC", "another");
    EXPECT_EQ(selectionFileOf(folder, full), std::nullopt) << "rather none than another player's";
    EXPECT_FALSE(recordMeans(folder, full, full + "ELMINA.THC"));
}

TEST_F(SelectionOfPlayer, IsFoundWhenTheNameWasCutAtABlank)
{
    const auto file = scratch.put("Featherstonehaugh-Warburton Beau Jr_FB.THC", ""); // its 33rd character is a blank
    EXPECT_EQ(selectionFileOf(folder, "FEATHERSTONEHAUGH-WARBURTON BEAU"), file);
    EXPECT_TRUE(recordMeans(folder, "FEATHERSTONEHAUGH-WARBURTON BEAU", "FEATHERSTONEHAUGH-WARBURTON BEAU JR_FB.THC"));
}

TEST_F(SelectionOfPlayer, TellsACutNameFromAWholeOne)
{
    EXPECT_FALSE(isCutName("ADAMS_B.THC     ", in("Adams_B.thc")));
    EXPECT_TRUE(isCutName(full, in(full + "elmina.THC")));
    EXPECT_TRUE(isSameRecordedName("ADAMS_B.THC    ", "Adams_B.thc"));
    EXPECT_FALSE(isSameRecordedName("ADAMS_B.THC", "ADAMS_C.THC"));
}

TEST_F(SelectionOfPlayer, IsNoFileThatOnlyBeginsWithAShortName)
{
    scratch.put("Smithson_J.THC", "a bracket");
    EXPECT_EQ(selectionFileOf(folder, "SMITH"), std::nullopt);
}

TEST_F(SelectionOfPlayer, IsNothingButASelectionFileOfTheFolder)
{
    std::filesystem::create_directory(in("sub"));
    std::filesystem::create_directory(in("FOLDER.THC"));
    scratch.put("sub/OTHER.THC", "not ours");
    scratch.put("TALLYHOOP.THS", "results");
    for (const char* name : {"sub/OTHER.THC", "SUB\\OTHER.THC", "TALLYHOOP.THS", "..", ".", "FOLDER.THC", ""})
        EXPECT_EQ(selectionFileOf(folder, name), std::nullopt) << name;
}

TEST_F(SelectionOfPlayer, IsComparedWithoutItsLastExtensionOnly)
{
    // "MATTHCOX" holds the letters of the extension; cut there it would be everybody whose name begins with MAT.
    EXPECT_FALSE(recordMeans(folder, "MATTHC_A.THC", "MATTHCOX.THC"));
    EXPECT_TRUE(recordMeans(folder, "matthcox   ", "MATTHCOX.THC"));
    EXPECT_FALSE(recordMeans(folder, "   ", ".THC"));
}

TEST_F(SelectionOfPlayer, IsRecordedInCapitalsFromTheFolderOn)
{
    const ScratchFolder elsewhere;
    EXPECT_EQ(recordedFileName(folder, in("Adams_B.thc")), "ADAMS_B.THC");
    EXPECT_EQ(recordedFileName(folder, in("sub") / "Adams_B.thc"),
              shown(std::filesystem::path{"SUB/ADAMS_B.THC"}.make_preferred()));
    EXPECT_EQ(recordedFileName(folder, elsewhere.path() / "Adams_B.thc"),
              upperCase(elsewhere.shownPrefix() + "ADAMS_B.THC"));
}

} // namespace
} // namespace tallyhoop::test
