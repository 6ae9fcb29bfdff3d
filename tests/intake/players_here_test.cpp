// tests/intake/players_here_test.cpp - whom the player list knows.
#include "intake/players_here.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

PlayerRecord record(const std::string& name, const std::string& fileName, const std::string& email = {})
{
    return parseRecord(recordLine({name, fileName, email, {}}));
}

TEST(PlayersHere, AreFoundByTheirFilesInAnyCase)
{
    const PlayersHere players{{record("Smith,JS", "SMITH_JS.THC")}};
    ASSERT_NE(players.find({"Smith,JS", "Smith_js.thc", {}}), nullptr);
    EXPECT_NE(players.find({"another name", "Smith_JS.THC", {}}), nullptr) << "the file counts";
    EXPECT_EQ(players.find({"Smith,JS", "Smith_JSX.THC", {}}), nullptr);
}

TEST(PlayersHere, AreFoundWithoutTheExtensionToo)
{
    const PlayersHere players{{record("Smith,JS", "SMITH_JS")}};
    EXPECT_NE(players.find({"Smith,JS", "Smith_JS.THC", {}}), nullptr);
}

TEST(PlayersHere, AreToldApartByNameWhenTheirFilesWereCut)
{
    const std::string same = "Featherstonehaugh-Cholmondeley ju"; // the 33 characters that a record holds
    const PlayersHere players{{record("Feather,A", same)}};
    EXPECT_NE(players.find({"Feather,A", same + "nior_A.THC", {}}), nullptr);
    EXPECT_EQ(players.find({"Feather,B", same + "nior_B.THC", {}}), nullptr);
}

TEST(PlayersHere, AreAddedForEachSelectionWhenTheyLookTheSame)
{
    const std::string name = "Featherstonehaugh-Cholmondeley of Upper Slaughter "; // a record holds 25 of it, and 33
    const NewPlayer senior{name + "senior,F", name + "senior_F.THC", "s@example.org"};
    const NewPlayer junior{name + "junior,F", name + "junior_F.THC", "j@example.org"};
    const std::vector<NewPlayer> both{senior, junior};
    PlayersHere none{{}, both};
    EXPECT_TRUE(none.add(senior));
    EXPECT_TRUE(none.add(junior));
    EXPECT_FALSE(none.add(junior)) << "each selection has a record now";
    ASSERT_EQ(none.sorted().size(), 2u);
    EXPECT_EQ(none.sorted()[0].email, "j@example.org");

    EXPECT_EQ(none.addressesOf(senior), "s@example.org; j@example.org") << "any of them may be meant";
    PlayersHere onlyOne{{record(junior.name, junior.fileName)}, both};
    EXPECT_TRUE(onlyOne.add(senior));
    PlayersHere listedBefore{{record(senior.name, senior.fileName)}, {senior}};
    EXPECT_FALSE(listedBefore.add(senior));
    NewPlayer sameFile = senior;
    sameFile.fileName = name + "SENIOR_f.thc";
    PlayersHere twice{{record(senior.name, senior.fileName)}, {senior, sameFile}};
    EXPECT_FALSE(twice.add(senior)) << "the same name in another case is the same player's";
}

TEST(PlayersHere, AreAddedOnceAndSorted)
{
    PlayersHere players{{record("Zed,Z", "ZED_Z.THC"), record("adams,a", "ADAMS_A.THC")}};
    EXPECT_TRUE(players.add({"Miller,M", "Miller_M.THC", "m@example.org"}));
    EXPECT_FALSE(players.add({"Miller,M", "miller_m.thc", ""}));
    EXPECT_FALSE(players.add({"Zed,Z", "Zed_Z.THC", ""}));
    const std::vector<PlayerRecord> sorted = players.sorted();
    ASSERT_EQ(sorted.size(), 3u);
    EXPECT_EQ(sorted[0], record("adams,a", "ADAMS_A.THC"));
    EXPECT_EQ(sorted[1], (PlayerRecord{"Miller,M", "MILLER_M.THC", "m@example.org", ""}));
    EXPECT_EQ(sorted[2], record("Zed,Z", "ZED_Z.THC"));
}

TEST(RecordedAddress, IsWholeOrNone)
{
    const std::string longest = std::string(31, 'a') + "@example.org"; // 43 characters
    EXPECT_EQ(recordedAddress(longest), longest);
    EXPECT_EQ(recordedAddress("a" + longest), "") << "cut it would be another address";
    EXPECT_EQ(recordedAddress("Ann <ann@example.org>"), "");
    EXPECT_EQ(recordedAddress("a\"b@example.org"), "");
    EXPECT_EQ(recordedAddress(""), "");
}

} // namespace
} // namespace tallyhoop
