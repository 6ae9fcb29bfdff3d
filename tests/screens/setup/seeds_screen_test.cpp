// tests/screens/setup/seeds_screen_test.cpp - entering the seeds of the first-round rows.
#include "screens/setup/seeds_screen.h"

#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

class SeedsScreenTest : public SetupFixture
{
protected:
    std::unique_ptr<SeedsScreen> seeds;

    SeedsScreen& opened()
    {
        loaded();
        seeds = std::make_unique<SeedsScreen>(made->teamsOfFirstRegion(), made->seeds(), dialogs(), screens);
        seeds->load();
        return *seeds;
    }

    /// Presses Complete; the setup screen comes back from the command that opened this one.
    void complete()
    {
        seeds->cmdComplete.click();
        settle();
    }

    std::vector<std::string> seedsBeside(std::size_t region) const
    {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < 16; ++row)
            texts.push_back(made->lblSeed[16 * region + row].text);
        return texts;
    }
};

const std::vector<std::string> kDefaults = {" 1", "16", " 8", " 9", " 5", "12", " 4", "13",
                                            " 6", "11", " 3", "14", " 7", "10", " 2", "15"};
const std::vector<std::string> kPlainDefaults = {"1", "16", "8", "9",  "5", "12", "4", "13",
                                                 "6", "11", "3", "14", "7", "10", "2", "15"};

TEST_F(SeedsScreenTest, ShowsTheSeedsAndTheFirstRegionsTeams)
{
    loaded().txtRegion[3].text = "Duke"; // as on the screen, saved or not
    SeedsScreen screen{made->teamsOfFirstRegion(), made->seeds(), dialogs(), screens};
    screen.load();
    EXPECT_EQ(screen.txtSeed[0].text, " 1");
    EXPECT_EQ(screen.txtSeed[15].text, "15");
    EXPECT_EQ(screen.lblRegion[0].text, "TEAM1");
    EXPECT_EQ(screen.lblRegion[3].text, "Duke");
    EXPECT_EQ(screen.txtSeed[0].maxLength, 4);
}

TEST_F(SeedsScreenTest, TheDefaultsPassAndLoseTheirLeadingBlanks)
{
    opened();
    complete();
    EXPECT_TRUE(dialogs().shown.empty());
    for (const std::size_t region : {0U, 1U, 2U, 3U})
        EXPECT_EQ(seedsBeside(region), kPlainDefaults);
    for (std::size_t row = 0; row < 16; ++row)
        EXPECT_EQ(made->seeds().at(row), kPlainDefaults[row]);
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Seeds});
    EXPECT_TRUE(made->status.starts_with("There are changes that are not saved yet.")) << made->status;
}

TEST_F(SeedsScreenTest, NewSeedsAreWrittenOnlyWhenTheSetupIsSaved)
{
    opened();
    for (std::size_t row = 0; row < 16; ++row)
        seeds->txtSeed[row].text = std::to_string(16 - row);
    seeds->txtSeed[9].text = " 07 "; // row 9 holds 16 - 9
    complete();
    EXPECT_FALSE(files.has("POOLSTART.THS"));
    made->mnuSaveStartingField.click();
    EXPECT_NE(files.get("POOLSTART.THS")
                  .find("\r\n16\r\n15\r\n14\r\n13\r\n12\r\n11\r\n10\r\n9\r\n8\r\n7\r\n6\r\n5\r\n4\r\n3\r\n2\r\n1\r\n"),
              std::string::npos);
}

TEST_F(SeedsScreenTest, RefusesInvalidSeedsAndStaysOpenAsTyped)
{
    opened();
    seeds->txtSeed[7].text = "5"; // row 4 holds it
    complete();
    EXPECT_EQ(dialogs().shown, (std::vector<ui::Message>{{"SEED Entry ERROR",
                                                          "You have entered invalid entries for the SEED postions.\r\n"
                                                          "Numbers must be between 1 & 16 without duplicating",
                                                          ui::Buttons::Ok, ui::Icon::None}}));
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_EQ(seeds->txtSeed[7].text, "5");
    EXPECT_EQ(seedsBeside(0), kDefaults);
    EXPECT_EQ(made->seeds()[7], "13");
}

TEST_F(SeedsScreenTest, CancelAndTheCloseButtonChangeNothing)
{
    for (const bool byButton : {true, false}) {
        opened();
        screens.unloads.clear();
        seeds->txtSeed[0].text = "2";
        seeds->txtSeed[14].text = "1";
        if (byButton)
            seeds->cmdCancel.click();
        else
            seeds->closeRequested();
        settle();
        EXPECT_EQ(seedsBeside(0), kDefaults);
        EXPECT_EQ(seedsBeside(3), kDefaults);
        EXPECT_EQ(made->seeds()[0], " 1");
        EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Seeds});
    }
}

} // namespace
} // namespace tallyhoop::test
