// tests/app/start_up_test.cpp - the board comes first, then the offer of the demonstration where no field was saved.
#include "app/start_up.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

class StartUp : public ::testing::Test
{
protected:
    ScratchFolder scratch;
    FakePlatform platform;
    FakeScreens screens;

    void start() { startUp(scratch.folder(), platform.services, screens); }
};

TEST_F(StartUp, ShowsTheBoardAndAsksNothingWhenAFieldWasSaved)
{
    scratch.put(file_name::kSetup, "*START*\r\n*END*\r\n");
    start();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(StartUp, NamesTheFolderThatAnotherTallyhoopHasOpen)
{
    sayThatItIsOpenAlready(scratch.folder(), platform.services);
    ASSERT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"TALLYHOOP IS OPEN ALREADY"});
    EXPECT_TRUE(platform.dialogs.shown[0].text.starts_with("Another Tallyhoop has this folder open:\r\n" +
                                                           scratch.path().string() + "\r\n"));
    EXPECT_FALSE(screens.ended) << "one may go on";
}

TEST_F(StartUp, OffersTheDemonstrationAfterTheBoardIsVisible)
{
    std::size_t loadsAtTheOffer = 0;
    platform.dialogs.whileShown = [&](const ui::Message&) { loadsAtTheOffer = screens.loads.size(); };
    platform.dialogs.answer(ui::Answer::Cancel);
    start();
    EXPECT_EQ(loadsAtTheOffer, 1u);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** DEMO MODE OPTION **");
    EXPECT_EQ(platform.dialogs.shown[0].buttons, ui::Buttons::OkCancel);
    EXPECT_EQ(platform.dialogs.shown[0].helpTopic, "demo");
    EXPECT_EQ(platform.dialogs.shown[0].text, "It looks like you are just starting to work \r\n"
                                              "with Tallyhoop..  A DEMO Mode is offered\r\n"
                                              "which will allow you to view and evaluate\r\n"
                                              "with information from the 2000 tournament...\r\n"
                                              " \r\n"
                                              "More information is available on DEMO Mode in HELP\r\n"
                                              " \r\n"
                                              "Do you want to initiate DEMO Mode?");
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
    EXPECT_TRUE(platform.programs.started.empty());
}

TEST_F(StartUp, InstallsTheSamplePoolAndReloadsTheBoardOnOk)
{
    scratch.put(file_name::kDemoInstaller, "");
    platform.programs.whenStarted = [&] { scratch.put(file_name::kSettings, "1\r\n"); };
    platform.dialogs.answer(ui::Answer::Ok);
    start();
    EXPECT_EQ(platform.programs.started, std::vector{scratch.path() / "DEMOSET.EXE"});
    EXPECT_EQ(platform.dialogs.captionsShown(),
              (std::vector<std::string>{"** DEMO MODE OPTION **", "STALLYHOOP DEMOSTRATION MODE"}));
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.loads, std::vector(2, ScreenKind::Board));
}

TEST_F(StartUp, LeavesTheBoardAsItIsWhenTheInstallerCannotBeStarted)
{
    platform.programs.checkTrouble = Failure{"no such file"};
    platform.dialogs.answer(ui::Answer::Ok);
    start();
    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_NE(platform.dialogs.shown[1].text.find("no such file"), std::string::npos);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Board});
}

TEST_F(StartUp, ShowsWhatIsThereWhenNoSamplePoolComes)
{
    platform.programs.end = Failure{"No space left on device"};
    platform.dialogs.answer(ui::Answer::Ok);
    start();
    EXPECT_EQ(platform.dialogs.shown.back().icon, ui::Icon::Critical);
    EXPECT_EQ(screens.loads, std::vector(2, ScreenKind::Board));
}

TEST_F(StartUp, RepeatsTheOfferForAsLongAsNoFieldWasSaved)
{
    platform.dialogs.answer(ui::Answer::Cancel).answer(ui::Answer::Cancel);
    start();
    start();
    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
}

} // namespace tallyhoop::test
