// tests/screens/board/board_screen_files_test.cpp - saving, opening and beginning a selection.
#include "screens/board/board_fixture.h"

#include <fstream>
#include <functional>
#include <vector>

namespace tallyhoop::test {

class BoardScreenFiles : public BoardTest
{
protected:
    const std::string kBlankCaption = "Required fields are BLANK or invalid";

    ui::Message lastMessage() const
    {
        EXPECT_FALSE(platform.dialogs.shown.empty());
        return platform.dialogs.shown.empty() ? ui::Message{} : platform.dialogs.shown.back();
    }
};

TEST_F(BoardScreenFiles, ASaveBeforeTheSetupIsFinalizedIsRefusedWhateverTheFieldsHold)
{
    loadFinalized();
    for (const char* text : {"", "150"}) {
        field.finalized = "1";
        board->showState();
        field.finalized = "0"; // meanwhile the field is no longer final, and the entry can still be chosen
        fill(text, text, text);
        save();
        EXPECT_EQ(lastMessage(),
                  (ui::Message{"INVALID REQUEST TO SAVE FILE",
                               "The SETUP OPTION must be completed and FINALIZED before a Pool Selection can be saved!",
                               ui::Buttons::Ok, ui::Icon::Exclamation}));
    }
    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
    save();
    EXPECT_EQ(platform.dialogs.shown.size(), 2u) << "now the entry is disabled";
}

TEST_F(BoardScreenFiles, WithInitialsAndNameBlankOnlyTheInitialsAreMentioned)
{
    loadFinalized();
    fill("", "", "150");
    save();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(lastMessage().caption, kBlankCaption);
    EXPECT_EQ(lastMessage().text, "Player Initails field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtPlayerInitials);
}

TEST_F(BoardScreenFiles, ANameThatBeginsWithABlankCountsAsBlank)
{
    loadFinalized();
    fill("JS", " Smith", "150");
    save();
    EXPECT_EQ(lastMessage().text, "Player Name field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtPlayerName);
}

TEST_F(BoardScreenFiles, TheTieBreakerLiesBetween50And250)
{
    loadFinalized();
    for (const char* points : {"49", "251", "", "abc", "49.9"}) {
        fill("JS", "Smith", points);
        save();
        EXPECT_EQ(lastMessage().caption, kBlankCaption) << points;
        EXPECT_EQ(lastMessage().text, "Final Game - you must enter a valid prediction (between 50 & 250) for the "
                                      "total score of this game");
        EXPECT_EQ(board->focused, &board->txtFinalPoints);
    }
    for (const char* points : {"50", "250", " 60 or so"}) {
        fill("JS", "Smith", points);
        platform.dialogs.pick(std::nullopt);
        save();
    }
    EXPECT_EQ(platform.dialogs.shown.size(), 5u);
}

TEST_F(BoardScreenFiles, ResultsMayLackATotalButNotExceedTheUpperBound)
{
    loadFinalized();
    enterResults();
    for (const char* points : {"", "0"}) {
        board->txtFinalPoints.text = points;
        save();
        EXPECT_EQ(saved("TALLYHOOP.THS").finalPoints, points);
    }
    board->txtFinalPoints.text = "251";
    save();
    EXPECT_EQ(lastMessage().caption, kBlankCaption);
    EXPECT_EQ(saved("TALLYHOOP.THS").finalPoints, "0");
}

TEST_F(BoardScreenFiles, ProposesNameUnderscoreInitials)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    platform.dialogs.pick(std::nullopt);
    save();
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_EQ(platform.dialogs.fileChoices[0].proposedName, "Smith_JS.THC");
    EXPECT_EQ(platform.dialogs.fileChoices[0].folder, folder.folder());
    EXPECT_EQ(platform.dialogs.fileChoices[0].pattern, "*.THC");
}

TEST_F(BoardScreenFiles, SavesANewFileAndTurnsToThePlayerNames)
{
    loadFinalized();
    fill("js", "Smith", "150");
    drag(0, 126);
    platform.dialogs.pick(scratch.path() / "Smith_js.THC");
    save();
    const Entry entry = saved("Smith_js.THC");
    EXPECT_EQ(savedAt(entry, 126), "R1T0");
    EXPECT_EQ(entry.initials, "JS") << "initials are stored in upper case";
    EXPECT_EQ(entry.name, "Smith");
    EXPECT_EQ(entry.finalPoints, "150");
    EXPECT_TRUE(scratch.get("Smith_js.THC").ends_with("\r\nR1T0\r\nJS\r\nSmith\r\n150\r\n*END*\r\n"));
    ASSERT_TRUE(savedPlayer);
    EXPECT_EQ(savedPlayer->name, "Smith,js");
    EXPECT_EQ(savedPlayer->file, scratch.path() / "Smith_js.THC");
    EXPECT_EQ(savedPlayer->kind, SaveKind::NewFile);
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Players});
    EXPECT_EQ(board->txtPlayerInitials.text, "js") << "what was typed stays as it is";
    EXPECT_FALSE(board->unsaved);
    EXPECT_EQ(board->document, "Smith_js.THC");
}

TEST_F(BoardScreenFiles, SavingAnOpenedFileUnderItsOwnNameAsksNothing)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    click(0);
    platform.dialogs.pick(scratch.path() / "SMITH_js.thc");
    save();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(savedAt(saved("Smith_JS.THC"), 16), "R1T0");
    EXPECT_FALSE(scratch.has("SMITH_js.thc"));
    ASSERT_TRUE(savedPlayer);
    EXPECT_EQ(savedPlayer->kind, SaveKind::SameName);
    EXPECT_TRUE(screens.loads.empty()) << "the player is in the list already";
}

TEST_F(BoardScreenFiles, SavingAnOpenedFileUnderAnotherNameIsConfirmed)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    const auto other = scratch.path() / "Jones_KJ.THC";
    platform.dialogs.pick(other).pick(other).answer(ui::Answer::No).answer(ui::Answer::Yes);
    save();
    EXPECT_FALSE(scratch.has("Jones_KJ.THC"));
    EXPECT_EQ(lastMessage().text, "You opened the file:    " + file.string() +
                                      "\r\nNow you are attempting to save this \r\n  file under the name:    " +
                                      other.string() + "\r\n\r\nIS THIS CORRECT?");
    EXPECT_EQ(lastMessage().buttons, ui::Buttons::YesNo);
    EXPECT_EQ(board->document, "Smith_JS.THC");
    save();
    EXPECT_TRUE(scratch.has("Jones_KJ.THC"));
    EXPECT_EQ(board->document, "Jones_KJ.THC");
    ASSERT_TRUE(savedPlayer);
    EXPECT_EQ(savedPlayer->kind, SaveKind::NewFile);
    EXPECT_TRUE(screens.loads.empty());
}

TEST_F(BoardScreenFiles, ReplacingAnExistingFileIsConfirmed)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    const std::string before = scratch.get("Smith_JS.THC");
    loadFinalized();
    fill("JS", "Smith", "99");
    platform.dialogs.pick(scratch.path() / "Smith_JS").pick(file).answer(ui::Answer::No).answer(ui::Answer::Yes);
    save();
    EXPECT_EQ(lastMessage().text, "Do you want to replace the existing file ?\r\n" + file.string());
    EXPECT_EQ(lastMessage().buttons, ui::Buttons::YesNo);
    EXPECT_EQ(scratch.get("Smith_JS.THC"), before);
    save();
    EXPECT_EQ(saved("Smith_JS.THC").finalPoints, "99");
    ASSERT_TRUE(savedPlayer);
    EXPECT_EQ(savedPlayer->kind, SaveKind::Replaced);
    EXPECT_EQ(screens.loads.size(), 1u);
}

TEST_F(BoardScreenFiles, AnExistingFileIsFoundWhateverTheCaseOfItsLetters)
{
    putSelection("SMITH_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    fill("JS", "Smith", "99");
    platform.dialogs.pick(scratch.path() / "Smith_JS.THC").answer(ui::Answer::Yes);
    save();
    EXPECT_EQ(saved("SMITH_JS.THC").finalPoints, "99");
    EXPECT_FALSE(scratch.has("Smith_JS.THC"));
}

TEST_F(BoardScreenFiles, TheExtensionIsAppendedUnlessItIsThere)
{
    loadFinalized();
    fill("JS", "Smith Jr.", "99");
    platform.dialogs.pick(scratch.path() / "Smith Jr._JS");
    save();
    EXPECT_TRUE(scratch.has("Smith Jr._JS.THC"));
}

TEST_F(BoardScreenFiles, ANameWithLettersThatOurCodePageLacksIsSavedUnderItself)
{
    const std::filesystem::path chosen = scratch.path() / u8"Łukasz_L.THC";
    std::ofstream{scratch.path() / u8"Ńukasz_L.THC"} << "somebody else's";
    loadFinalized();
    fill("L", "Lukasz", "99");
    platform.dialogs.pick(chosen);
    save();
    EXPECT_TRUE(std::filesystem::exists(chosen));
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "asked whether to replace another file";
}

TEST_F(BoardScreenFiles, DemoModeRefusesNewFilesAndNewNames)
{
    putDemoMode();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    fill("JS", "Smith", "150");
    platform.dialogs.pick(scratch.path() / "New.THC");
    save();
    EXPECT_EQ(lastMessage().text, "You are not allowed to save a New File \r\nwhen executing under DEMO Mode");
    open(file);
    platform.dialogs.pick(scratch.path() / "New.THC");
    save();
    EXPECT_EQ(lastMessage().text, "You are not allowed to save a New File \r\nName when executing under DEMO Mode");
    EXPECT_FALSE(scratch.has("New.THC"));
    click(0);
    platform.dialogs.pick(file);
    save();
    EXPECT_EQ(savedAt(saved("Smith_JS.THC"), 16), "R1T0") << "an opened file may be saved under its own name";
}

TEST_F(BoardScreenFiles, AfterAFailedWriteNothingIsRemembered)
{
    loadFinalized();
    fill("JS", "Smith", "150");
    click(0);
    platform.dialogs.pick(scratch.path() / "missing folder" / "Smith_JS.THC");
    save();
    EXPECT_EQ(lastMessage().caption, "** ERROR IN WRITING FILE **");
    EXPECT_EQ(board->document, "");
    EXPECT_FALSE(savedPlayer);
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenFiles, ASaveElsewhereSaysThatOnlyTheFolderIsScored)
{
    loadFinalized();
    ScratchFolder elsewhere;
    fill("JS", "Smith", "150");
    platform.dialogs.pick(elsewhere.path() / "Smith_JS.THC");
    save();
    EXPECT_TRUE(elsewhere.has("Smith_JS.THC"));
    EXPECT_NE(board->news().text.find("Only files in the program's folder are scored"), std::string::npos);
}

TEST_F(BoardScreenFiles, OpenShowsTheFileAndUnlocksTheFields)
{
    Entry entry = emptyBracket("JS", "Smith", "150");
    entry.picks.put(Position{16}, "R1T1");
    const auto file = putSelection("Smith_JS.THC", entry);
    putNoResultsYet();
    loadFinalized();
    enterResults();
    open(file);
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
    EXPECT_FALSE(board->txtPlayerName.locked);
    EXPECT_TRUE(board->txtPlayerName.tabStop);
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(board->document, "Smith_JS.THC");
    EXPECT_EQ(board->news().text, "Opened Smith_JS.THC.");
}

TEST_F(BoardScreenFiles, CancellingTheOpenDialogChangesNothing)
{
    loadFinalized();
    click(0);
    platform.dialogs.pick(std::nullopt);
    board->mnuOpenSelection.click();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(BoardScreenFiles, ADamagedFileIsReportedAndShownAsFarAsItGoes)
{
    const auto file = scratch.put("Short_S.THC", crlf({"Alpha", "Beta"}));
    loadFinalized();
    open(file);
    EXPECT_EQ(lastMessage().caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_EQ(lastMessage().text,
              "There is a problem opening: " + file.string() + "\r\n\r\n The program will attempt to continue ......");
    EXPECT_EQ(at(0), "Alpha");
    EXPECT_EQ(at(1), "Beta");
    EXPECT_EQ(at(2), "");
}

TEST_F(BoardScreenFiles, NewSelectionClearsTheBoardAndEndsResultsMode)
{
    putNoResultsYet();
    loadFinalized();
    enterResults();
    drag(0, 126);
    board->txtFinalPoints.text = "170";
    board->mnuNewSelection.click();
    for (const Position position : gamePositions())
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(board->txtPlayerInitials.text + board->txtPlayerName.text + board->txtFinalPoints.text, "");
    EXPECT_FALSE(board->txtPlayerInitials.locked);
    EXPECT_FALSE(resultsMode());
    EXPECT_TRUE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_EQ(board->document, "");
}

TEST_F(BoardScreenFiles, NewSelectionOpenResultsAndUnloadingDropAnUnusedHandOver)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    for (const auto& command :
         std::vector<std::function<void()>>{[&] { board->mnuNewSelection.click(); }, [&] { open(file); },
                                            [&] { enterResults(); }, [&] { board->unloading(); }}) {
        savedPlayer = SavedPlayer{"Smith,JS", file, SaveKind::SameName};
        command();
        EXPECT_FALSE(savedPlayer);
    }
}

TEST_F(BoardScreenFiles, LoadingTheBoardDropsAnUnusedHandOver)
{
    savedPlayer = SavedPlayer{"Smith,JS", scratch.path() / "Smith_JS.THC", SaveKind::SameName};
    load();
    EXPECT_FALSE(savedPlayer);
}

TEST_F(BoardScreenFiles, AFileThatSomebodyElseHasChangedSinceIsReplacedOnlyAfterAYes)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "99"));
    click(0);
    platform.dialogs.answer(ui::Answer::No);
    saveAs(file);
    EXPECT_EQ(lastMessage().caption, "** FILE HAS BEEN CHANGED **");
    EXPECT_EQ(saved("Smith_JS.THC").finalPoints, "99");
    EXPECT_TRUE(board->unsaved);
    EXPECT_FALSE(savedPlayer);
    platform.dialogs.answer(ui::Answer::Yes);
    saveAs(file);
    EXPECT_EQ(saved("Smith_JS.THC").finalPoints, "150");
    EXPECT_FALSE(board->unsaved);
}

TEST_F(BoardScreenFiles, ResultsThatSomebodyElseHasEnteredSinceAreReplacedOnlyAfterAYes)
{
    loadFinalized();
    enterResults(); // there is no file yet
    putNoResultsYet();
    click(0);
    platform.dialogs.answer(ui::Answer::No);
    save();
    EXPECT_EQ(lastMessage().caption, "** FILE HAS BEEN CHANGED **");
    EXPECT_EQ(savedAt(saved("TALLYHOOP.THS"), 16), "");
    EXPECT_TRUE(board->unsaved);
}

TEST_F(BoardScreenFiles, ARefusalLeavesTheFocusWhereItIsWhenTheFieldIsLocked)
{
    loadFinalized();
    enterResults();
    board->txtPlayerName.text = "";
    board->focused = &board->txtFinalPoints;
    save();
    EXPECT_EQ(lastMessage().text, "Player Name field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtFinalPoints);
}

TEST_F(BoardScreenFiles, ResultsAreSavedUnderTheirFixedNameWithoutAQuestion)
{
    loadFinalized();
    enterResults();
    click(0);
    EXPECT_TRUE(board->unsaved);
    save();
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_TRUE(platform.dialogs.fileChoices.empty());
    EXPECT_EQ(savedAt(saved("TALLYHOOP.THS"), 16), "R1T0");
    EXPECT_EQ(saved("TALLYHOOP.THS").initials, "A");
    EXPECT_FALSE(board->unsaved);
    EXPECT_FALSE(savedPlayer);
    EXPECT_EQ(board->news().text, "The results are saved.");
}

} // namespace tallyhoop::test
