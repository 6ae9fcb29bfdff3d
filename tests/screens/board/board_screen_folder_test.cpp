// tests/screens/board/board_screen_folder_test.cpp - turning to other selections of the folder, and the folder itself.
#include "screens/board/board_fixture.h"
#include "screens/board/recent_selections.h"

#include <chrono>

namespace tallyhoop::test {

class BoardScreenFolder : public BoardTest
{
protected:
    void putThreePlayers()
    {
        for (const char* name : {"Adams_A", "Baker_B", "Clark_C"})
            putSelection(std::string{name} + ".THC", emptyBracket("X", name, "150"));
    }

    void next() { board->mnuNext.click(); }
    void previous() { board->mnuPrevious.click(); }

    std::vector<std::string> recent() const
    {
        std::vector<std::string> captions;
        for (std::size_t i = 0; i < board->mnuRecentFile.size(); ++i)
            if (board->mnuRecentFile[i].visible)
                captions.push_back(board->mnuRecentFile[i].caption);
        return captions;
    }
};

TEST_F(BoardScreenFolder, IsGoneThroughInTheOrderOfTheNames)
{
    putThreePlayers();
    loadFinalized();
    next();
    EXPECT_EQ(board->document, "Adams_A.THC");
    EXPECT_EQ(board->txtPlayerName.text, "Adams_A");
    next();
    next();
    EXPECT_EQ(board->document, "Clark_C.THC");
    next();
    EXPECT_EQ(board->document, "Clark_C.THC");
    EXPECT_EQ(board->news().text, "This is the last selection of the folder.");
    previous();
    previous();
    EXPECT_EQ(board->document, "Adams_A.THC");
    previous();
    EXPECT_EQ(board->document, "Adams_A.THC");
    EXPECT_EQ(board->news().text, "This is the first selection of the folder.");
}

TEST_F(BoardScreenFolder, IsGoneThroughBackwardsFromANewSelection)
{
    putThreePlayers();
    loadFinalized();
    previous();
    EXPECT_EQ(board->document, "Clark_C.THC");
}

TEST_F(BoardScreenFolder, WithoutSelectionsHasNoNext)
{
    loadFinalized();
    next();
    EXPECT_EQ(board->news().text, "There are no selections in the folder yet.");
}

TEST_F(BoardScreenFolder, ThatCannotBeListedIsNotOneWithoutSelections)
{
    loadFinalized();
    std::filesystem::remove_all(scratch.path());
    next();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown.back().text,
              "The selections in this folder cannot be listed, or not all of them:\r\n" + scratch.path().string() +
                  "\r\nNo such file or directory");
    EXPECT_EQ(board->news().text, "No other selection was opened.");
}

TEST_F(BoardScreenFolder, KnowsAFileByAnotherSpellingOfItsWay)
{
    putThreePlayers();
    loadFinalized();
    std::filesystem::create_directory(scratch.path() / "elsewhere");
    open(scratch.path() / "elsewhere" / ".." / "Adams_A.THC");
    EXPECT_EQ(recent().size(), 3u) << "not one of them twice";
    next();
    EXPECT_EQ(board->document, "Baker_B.THC");
}

TEST_F(BoardScreenFolder, ChangesThatAreNotSavedAreLeftOnlyAfterAQuestion)
{
    putThreePlayers();
    loadFinalized();
    next();
    click(0);
    platform.dialogs.answer(ui::Answer::Cancel);
    next();
    EXPECT_EQ(board->document, "Adams_A.THC");
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_TRUE(platform.dialogs.shown.back().refusalIsDefault) << "Enter loses nothing";
    platform.dialogs.answer(ui::Answer::Cancel);
    board->mnuRecentFile[1].click();
    EXPECT_EQ(at(16), "R1T0");
    platform.dialogs.answer(ui::Answer::Ok);
    next();
    EXPECT_EQ(board->document, "Baker_B.THC");
}

TEST_F(BoardScreenFolder, ChangesThatAreNotSavedComeBackFromTheResultsWithUndo)
{
    putNoResultsYet();
    loadFinalized();
    click(0);
    fill("A", "Adams", "150");
    board->mnuGameResults.click();
    EXPECT_TRUE(resultsMode());
    EXPECT_EQ(at(16), "");
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(board->news().text, "What was on the board is not saved: Edit, Undo brings it back.");
    board->mnuUndo.click();
    EXPECT_FALSE(resultsMode());
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->txtPlayerName.text, "Adams");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenFolder, ChangesThatAreNotSavedComeBackFromAScoredSelectionWithUndo)
{
    putNoResultsYet();
    putThreePlayers();
    loadFinalized();
    click(0);
    board->showScored(scratch.path() / "Baker_B.THC");
    board->showState();
    EXPECT_EQ(board->news().text, "What was on the board is not saved: Edit, Undo brings it back.");
    board->cmdDefaultColors.click();
    EXPECT_EQ(board->document, "Baker_B.THC");
    board->mnuUndo.click();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(board->document, "");
}

TEST_F(BoardScreenFolder, AScoredSelectionThatCouldNotBeReadIsSaidToBeSo)
{
    putNoResultsYet();
    loadFinalized();
    board->showScored(scratch.put("Half_H.THC", "TEAM1\r\n"));
    EXPECT_EQ(board->news().text, "Half_H.THC could not be read, or not whole.");
}

TEST_F(BoardScreenFolder, ResultsAreEnteredWithoutAQuestionWhenNothingIsLost)
{
    putNoResultsYet();
    loadFinalized();
    board->mnuGameResults.click();
    EXPECT_TRUE(resultsMode());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenFolder, FirstResultsAskWhenTheFieldIsNoLongerFinal)
{
    loadFinalized();
    click(0);
    putField(fieldOfTeams("0")); // by another program
    platform.dialogs.answer(ui::Answer::Cancel);
    board->mnuGameResults.click();
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"NO FINAL FIELD IN THE FOLDER"});
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(field.isFinalized());
    putNoResultsYet(); // then the field is not loaded again
    board->mnuGameResults.click();
    EXPECT_TRUE(resultsMode());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(BoardScreenFolder, OffersTheSelectionsSavedLastAtFirst)
{
    putThreePlayers();
    const auto now = std::filesystem::file_time_type::clock::now();
    const auto setAge = [&](const char* name, int hours) {
        std::filesystem::last_write_time(scratch.path() / name, now - std::chrono::hours{hours});
    };
    setAge("Adams_A.THC", 2);
    setAge("Baker_B.THC", 3);
    setAge("Clark_C.THC", 1);
    loadFinalized();
    EXPECT_EQ(recent(), (std::vector<std::string>{"&1 Clark_C.THC", "&2 Adams_A.THC", "&3 Baker_B.THC"}));
}

TEST_F(BoardScreenFolder, OffersWhatWasOpenedOrSavedLastFirst)
{
    putThreePlayers();
    loadFinalized();
    open(scratch.path() / "Baker_B.THC");
    EXPECT_EQ(recent().front(), "&1 Baker_B.THC");
    board->mnuNewSelection.click();
    fill("D", "Davis", "150");
    saveAs(scratch.path() / "Davis_D.THC");
    EXPECT_EQ(recent().size(), 4u);
    EXPECT_EQ(recent()[0], "&1 Davis_D.THC");
    EXPECT_EQ(recent()[1], "&2 Baker_B.THC");
    board->mnuRecentFile[1].click();
    EXPECT_EQ(board->document, "Baker_B.THC");
    EXPECT_EQ(recent()[0], "&1 Baker_B.THC");
}

TEST_F(BoardScreenFolder, DoesNotSayThatAFileIsOpenThatCouldNotBeRead)
{
    loadFinalized();
    open(scratch.path() / "Gone_G.THC");
    EXPECT_EQ(board->news().text, "Gone_G.THC could not be read, or not whole.");
    EXPECT_TRUE(recent().empty());
    open(scratch.put("Half_H.THC", "TEAM1\r\n"));
    EXPECT_EQ(board->news().text, "Half_H.THC could not be read, or not whole.");
    EXPECT_TRUE(recent().empty());
}

TEST_F(BoardScreenFolder, NoLongerOffersAFileThatHasVanished)
{
    putThreePlayers();
    loadFinalized();
    ASSERT_EQ(recent().size(), 3u);
    std::filesystem::remove(scratch.path() / "Baker_B.THC");
    open(scratch.path() / "Baker_B.THC");
    EXPECT_EQ(recent().size(), 2u);
}

TEST_F(BoardScreenFolder, OffersFiveSelectionsAtTheMost)
{
    for (int i = 0; i < 7; ++i)
        putSelection("Player" + std::to_string(i) + ".THC", emptyBracket("X", "Y", "150"));
    loadFinalized();
    EXPECT_EQ(recent().size(), 5u);
    open(scratch.path() / "Player3.THC");
    EXPECT_EQ(recent().size(), 5u);
    EXPECT_EQ(recent().front(), "&1 Player3.THC");
}

TEST(RecentSelections, AreTheLastFive)
{
    RecentSelections recent;
    for (const char* name : {"A.THC", "B.THC", "C.THC", "D.THC", "E.THC", "F.THC"})
        recent.note(std::filesystem::path{"pool"} / name);
    EXPECT_EQ(recent.names(), (std::vector<std::string>{"F.THC", "E.THC", "D.THC", "C.THC", "B.THC"}));
    EXPECT_FALSE(recent.at(5));
}

TEST_F(BoardScreenFolder, IsShownInTheFileManager)
{
    loadFinalized();
    board->mnuOpenFolder.click();
    EXPECT_EQ(platform.programs.foldersOpened, std::vector{scratch.path()});
    platform.programs.openFolderTrouble = Failure{"none"};
    board->mnuOpenFolder.click();
    EXPECT_EQ(board->news().text, "The folder cannot be shown here. It is " + scratch.path().string());
}

TEST_F(BoardScreenFolder, IsCopiedIntoADatedFolder)
{
    putThreePlayers();
    putNoResultsYet();
    scratch.put(file_name::kTeamNames, "names");
    scratch.put("RPTOPT1.TXT", "a report");
    loadFinalized(); // writes the setup and the player list: with the other five, seven files
    board->mnuBackUp.click();
    const std::string news = board->news().text;
    ASSERT_TRUE(news.starts_with("Copied 7 files into the folder Backup ")) << news;
    const std::string name = news.substr(news.find("Backup "));
    const std::string copy = name.substr(0, name.size() - 1); // without the full stop
    for (const char* file : {"POOLSTART.THS", "TALLYHOOP.THS", "NCAALIST.THS", "PLAYERNAMES.CSV", "Adams_A.THC",
                             "Baker_B.THC", "Clark_C.THC"})
        EXPECT_EQ(scratch.get(copy + "/" + file), scratch.get(file)) << file;
    EXPECT_FALSE(scratch.has(copy + "/RPTOPT1.TXT")) << "reports can be made again";
}

TEST_F(BoardScreenFolder, ACopyHoldsBothOfTwoFilesWhoseNamesLookAlike)
{
    loadFinalized();
    for (const char8_t* name : {u8"Ńowak_N.THC", u8"Łowak_N.THC"}) // "?owak_N.THC" in the program's character set
        std::filesystem::copy_file(putSelection("Template.TXT", emptyBracket("N", "Nowak", "150")),
                                   scratch.path() / name);
    board->mnuBackUp.click();
    EXPECT_TRUE(board->news().text.starts_with("Copied 4 files")) << board->news().text;
}

TEST_F(BoardScreenFolder, ACopyThatFailsIsSaid)
{
    loadFinalized();
    std::filesystem::remove(scratch.path() / "PLAYERNAMES.CSV");
    std::filesystem::create_directory(scratch.path() / "PLAYERNAMES.CSV"); // cannot be read as a file
    board->mnuBackUp.click();
    EXPECT_EQ(board->news().text, "The pool was not copied.");
    ASSERT_FALSE(platform.dialogs.shown.empty());
    EXPECT_TRUE(platform.dialogs.shown.back().text.starts_with("The pool could not be copied."));
}

} // namespace tallyhoop::test
