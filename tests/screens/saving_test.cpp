// tests/screens/saving_test.cpp - the questions and messages when files are saved and read.
#include "screens/saving.h"

#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/player_names_file.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using Messages = std::vector<ui::Message>;

struct Saving : testing::Test {
    test::ScratchFolder scratch;
    test::FakePlatform platform;
    test::FakeDialogs& dialogs = platform.dialogs;
    KnownFiles known;
    fs::path file = scratch.path() / "A.THC";
    const ui::Message trouble{"** ERROR IN WRITING FILE **",
                              "There is a problem writing file: A.THC of the pool\r\n Check your selection and retry.",
                              ui::Buttons::Ok, ui::Icon::Critical};
    const ui::Message question{"** FILE HAS BEEN CHANGED **",
                               "Another program has changed the file: " + file.string() +
                                   "\r\nsince it was opened or last saved here.\r\n"
                                   " \r\n"
                                   "If you continue, the changes of the other program will be lost..\r\n"
                                   " \r\n"
                                   "Do you want to replace the file?",
                               ui::Buttons::YesNo,
                               ui::Icon::Question,
                               {},
                               true,
                               "&Show Changes"};

    bool save(std::string_view bytes)
    {
        return saveFile(platform.services, known, file, bytes, "A.THC of the pool", " Check your selection and retry.");
    }
};

TEST_F(Saving, AsksNothingAboutAFileThatIsAsItWas)
{
    scratch.put("A.THC", "old");
    known.note(file);
    EXPECT_TRUE(save("new"));
    EXPECT_EQ(scratch.get("A.THC"), "new");
    EXPECT_EQ(dialogs.shown, Messages{});
}

TEST_F(Saving, AsksBeforeTheChangesOfSomebodyElseAreReplaced)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::Yes);
    EXPECT_TRUE(save("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "ours");
    EXPECT_EQ(dialogs.shown, Messages{question});
    EXPECT_TRUE(save("ours once more")) << "after a Yes the file is ours again";
}

TEST_F(Saving, LeavesTheFileAloneOnNoAndAsksAgainNextTime)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::No).answer(ui::Answer::No);
    EXPECT_FALSE(save("ours"));
    EXPECT_FALSE(save("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "theirs");
    EXPECT_EQ(dialogs.shown, (Messages{question, question}));
}

TEST_F(Saving, ShowsTheChangesOfSomebodyElseAndAsksAgain)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "Duke\r\ntheirs\r\n");
    dialogs.answer(ui::Answer::More).answer(ui::Answer::More).answer(ui::Answer::No);
    EXPECT_FALSE(save("Duke\r\nours\r\n"));
    const ui::Message changes{"CHANGES IN THE FILE",
                              file.string() + "\r\n \r\nOnly here: ours\r\nOnly in the file: theirs", ui::Buttons::Ok,
                              ui::Icon::Information};
    EXPECT_EQ(dialogs.shown, (Messages{question, changes, question, changes, question}));
    EXPECT_EQ(scratch.get("A.THC"), "Duke\r\ntheirs\r\n");
}

TEST_F(Saving, ShowsTheChangesInTheWordsOfTheScreen)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::More).answer(ui::Answer::Yes);
    const auto inWords = [](std::string_view theirs) { return std::vector{"what is " + std::string{theirs}}; };
    EXPECT_TRUE(saveFile(platform.services, known, file, "ours", "", "", inWords));
    ASSERT_EQ(dialogs.shown.size(), 3u);
    EXPECT_EQ(dialogs.shown[1].text, file.string() + "\r\n \r\nwhat is theirs");
    EXPECT_EQ(scratch.get("A.THC"), "ours");
}

TEST_F(Saving, CountsTheChangesThatABoxHasNoRoomFor)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::More).answer(ui::Answer::No);
    const auto many = [](std::string_view) { return std::vector<std::string>(63, "a game"); };
    EXPECT_FALSE(saveFile(platform.services, known, file, "ours", "", "", many));
    ASSERT_EQ(dialogs.shown.size(), 3u);
    std::string twenty;
    for (int line = 0; line < 20; ++line)
        twenty += "a game\r\n";
    EXPECT_EQ(dialogs.shown[1].text, file.string() + "\r\n \r\n" + twenty + "and 43 more");
}

TEST_F(Saving, ShowsWhatTheFileHoldsAtThatMoment)
{
    scratch.put("A.THC", "old");
    known.note(file);
    scratch.put("A.THC", "theirs");
    std::vector<std::string> texts;
    dialogs.whileShown = [&](const ui::Message& message) {
        texts.push_back(message.text);
        if (texts.size() == 1)
            fs::resize_file(file, std::uintmax_t{200} << 20); // no reader takes so large a file
        else if (texts.size() == 3)
            fs::remove(file);
    };
    dialogs.answer(ui::Answer::More).answer(ui::Answer::More).answer(ui::Answer::No);
    EXPECT_FALSE(save("ours"));
    ASSERT_EQ(texts.size(), 5u);
    EXPECT_EQ(texts[1], file.string() + "\r\n \r\nThe file cannot be read:\r\nThe file is larger than 64 MB.");
    EXPECT_EQ(texts[3], file.string() + "\r\n \r\nThe file is not there any more.");
}

TEST_F(Saving, AsksAboutAFileThatSomebodyElseHasCreatedMeanwhile)
{
    known.note(file);
    scratch.put("A.THC", "theirs");
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(save("ours"));
    EXPECT_EQ(scratch.get("A.THC"), "theirs");
}

TEST_F(Saving, AsksNothingAboutAFileThatHasVanishedOrWasNeverNoted)
{
    EXPECT_TRUE(save("first"));
    fs::remove(file);
    EXPECT_TRUE(save("second"));
    EXPECT_EQ(scratch.get("A.THC"), "second");
    scratch.put("B.THC", "somebody's");
    EXPECT_TRUE(saveFile(platform.services, known, scratch.path() / "B.THC", "ours", "", ""));
    EXPECT_EQ(dialogs.shown, Messages{});
}

TEST_F(Saving, SaysTheSameAboutAFolderInTheWay)
{
    fs::create_directory(file);
    EXPECT_FALSE(save("new"));
    EXPECT_EQ(dialogs.shown, Messages{trouble});
    EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(Saving, ReplacesADataFileUnderTheNameItHas)
{
    scratch.put("NcaaList.ths", std::string(5000, 'x'));
    EXPECT_TRUE(saveDataFile(platform.services, known, scratch.folder(), "NCAALIST.THS", "new"));
    EXPECT_EQ(scratch.get("NcaaList.ths"), "new");
    EXPECT_FALSE(scratch.has("NCAALIST.THS"));
    EXPECT_EQ(dialogs.shown, Messages{});
}

TEST_F(Saving, NamesADataFileByItsFullPathAndTheApplicationDirectory)
{
    const DataFolder gone{scratch.path() / "gone"};
    EXPECT_FALSE(saveDataFile(platform.services, known, gone, "POOLSTART.THS", "new"));
    EXPECT_EQ(dialogs.shown, (Messages{{"** ERROR IN WRITING FILE **",
                                        "There is a problem writing file: " + gone.shownPathOf("POOLSTART.THS") +
                                            "\r\n Check for adequate space in the Application Directory",
                                        ui::Buttons::Ok, ui::Icon::Critical}}));
}

TEST_F(Saving, AsksAboutADataFileByItsPathToo)
{
    scratch.put("POOLSTART.THS", "old");
    known.note(scratch.path() / "POOLSTART.THS");
    scratch.put("POOLSTART.THS", "theirs");
    dialogs.answer(ui::Answer::No);
    EXPECT_FALSE(saveDataFile(platform.services, known, scratch.folder(), "POOLSTART.THS", "ours"));
    EXPECT_EQ(dialogs.captionsShown(), std::vector<std::string>{"** FILE HAS BEEN CHANGED **"});
    EXPECT_NE(dialogs.shown.front().text.find(scratch.shownPrefix() + "POOLSTART.THS\r\n"), std::string::npos);
    EXPECT_EQ(scratch.get("POOLSTART.THS"), "theirs");
}

TEST_F(Saving, SaysThatASelectionCouldNotBeReadWhole)
{
    showReadingTrouble(dialogs, file);
    EXPECT_EQ(dialogs.shown, (Messages{{"** ERROR IN OPENING FILE - ReadSelections Routine **",
                                        "There is a problem opening: " + file.string() +
                                            "\r\n\r\n The program will attempt to continue ......",
                                        ui::Buttons::Ok, ui::Icon::Critical}}));
}

TEST_F(Saving, ListsTheSelectionsAndSaysWhenTheFolderCannotBeListed)
{
    scratch.put("A.THC", "");
    EXPECT_EQ(listSelections(dialogs, scratch.folder()).size(), 1u);
    EXPECT_EQ(dialogs.shown, Messages{});
    const fs::path gone = scratch.path() / "gone";
    EXPECT_TRUE(listSelections(dialogs, DataFolder{gone}).empty());
    EXPECT_EQ(dialogs.shown, (Messages{{"",
                                        "The selections in this folder cannot be listed, or not all of them:\r\n" +
                                            gone.string() + "\r\nNo such file or directory",
                                        ui::Buttons::Ok, ui::Icon::Critical}}));
}

TEST_F(Saving, ShowsAFailureInItsOwnWords)
{
    showTrouble(dialogs, Failure{"Problem with file, will use default values"});
    EXPECT_EQ(dialogs.shown,
              (Messages{{"", "Problem with file, will use default values", ui::Buttons::Ok, ui::Icon::Critical}}));
}

TEST_F(Saving, FindsNothingWrongWithASoundPlayerList)
{
    scratch.put("PLAYERNAMES.CSV", playerNamesFile({}));
    EXPECT_TRUE(playerListIsSound(dialogs, scratch.folder()));
    EXPECT_EQ(dialogs.shown, Messages{});
}

TEST_F(Saving, SaysWhatIsWrongWithTheListAndWhereTheMarkedCopyIs)
{
    scratch.put("PLAYERNAMES.CSV", "bad\r\n");
    EXPECT_FALSE(playerListIsSound(dialogs, scratch.folder()));
    EXPECT_EQ(scratch.get("PLAYERNAMES.TXT"), "** Following record too short**\r\nbad\r\n");
    const std::string text = "There is a problem found with the file containing your player names.\r\n"
                             "Possibly someone has edited this file with another program.\r\n"
                             "\r\n"
                             "The file: " +
                             scratch.shownPrefix() +
                             "PLAYERNAMES.TXT\r\n"
                             " is a copy of the original file with the error records identified.\r\n"
                             "\r\n"
                             "You can either go back to a backup copy of this file or attempt\r\n"
                             "to correct the error(s) in this copy and then rename it to\r\n"
                             "PLAYERNAMES.CSV.\r\n"
                             "\r\n"
                             "See the help file for additional instructions";
    EXPECT_EQ(dialogs.shown, (Messages{{"** ERROR Found in PLAYERNAMES.CSV file **", text, ui::Buttons::Ok,
                                        ui::Icon::Critical, "repair"}}));
}

} // namespace
} // namespace tallyhoop
