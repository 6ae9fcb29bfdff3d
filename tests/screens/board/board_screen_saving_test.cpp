// tests/screens/board/board_screen_saving_test.cpp - saving selections and results.
#include "screens/board/board_fixture.h"

namespace tallyhoop::test {

class BoardScreenSaving : public BoardTest
{
protected:
    const std::string kBlankCaption = "Required fields are BLANK or invalid";

    ui::Message lastMessage() const
    {
        EXPECT_FALSE(platform.dialogs.shown.empty());
        return platform.dialogs.shown.empty() ? ui::Message{} : platform.dialogs.shown.back();
    }
};

TEST_F(BoardScreenSaving, ASaveBeforeTheSetupIsFinalizedIsRefusedWhateverTheFieldsHold)
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

TEST_F(BoardScreenSaving, WithInitialsAndNameBlankOnlyTheInitialsAreMentioned)
{
    loadFinalized();
    fill("", "", "150");
    save();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(lastMessage().caption, kBlankCaption);
    EXPECT_EQ(lastMessage().text, "Player Initails field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtPlayerInitials);
}

TEST_F(BoardScreenSaving, ANameThatBeginsWithABlankCountsAsBlank)
{
    loadFinalized();
    fill("JS", " Smith", "150");
    save();
    EXPECT_EQ(lastMessage().text, "Player Name field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtPlayerName);
}

TEST_F(BoardScreenSaving, ATieBreakerOutOfRangeIsRefused)
{
    loadFinalized();
    fill("JS", "Smith", "49");
    save();
    EXPECT_EQ(lastMessage().caption, kBlankCaption);
    EXPECT_EQ(lastMessage().text, "Final Game - you must enter a valid prediction (between 50 & 250) for the "
                                  "total score of this game");
    EXPECT_EQ(board->focused, &board->txtFinalPoints);
}

TEST_F(BoardScreenSaving, ResultsMayLackATotalButNotExceedTheUpperBound)
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

TEST_F(BoardScreenSaving, SavesANewFileAndTurnsToThePlayerNames)
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

TEST_F(BoardScreenSaving, SavingAnOpenedFileUnderItsOwnNameAsksNothing)
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

TEST_F(BoardScreenSaving, SavingAnOpenedFileUnderAnotherNameIsConfirmed)
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

TEST_F(BoardScreenSaving, ReplacingAnExistingFileIsConfirmed)
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

TEST_F(BoardScreenSaving, AfterAFailedWriteNothingIsRemembered)
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

TEST_F(BoardScreenSaving, ASaveElsewhereSaysThatOnlyTheFolderIsScored)
{
    loadFinalized();
    ScratchFolder elsewhere;
    fill("JS", "Smith", "150");
    platform.dialogs.pick(elsewhere.path() / "Smith_JS.THC");
    save();
    EXPECT_TRUE(elsewhere.has("Smith_JS.THC"));
    EXPECT_NE(board->news().text.find("Only files in the program's folder are scored"), std::string::npos);
}

TEST_F(BoardScreenSaving, AFileThatSomebodyElseHasChangedSinceIsReplacedOnlyAfterAYes)
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

TEST_F(BoardScreenSaving, WhatSomebodyElseHasChangedCanBeSeenBeforeTheAnswer)
{
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    Entry theirs = emptyBracket("JS", "Smith", "99");
    theirs.picks.put(Position{17}, "R1T3");
    putSelection("Smith_JS.THC", theirs);
    click(0);
    board->txtPlayerInitials.text = "js"; // saved in capitals, as it is in the file
    platform.dialogs.answer(ui::Answer::More).answer(ui::Answer::No);
    saveAs(file);
    ASSERT_GE(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[platform.dialogs.shown.size() - 2].text,
              file.string() + "\r\n \r\n"
                              "Final points: here 150, in the file 99\r\n"
                              "West, winner of first round, game 1: here R1T0, in the file no team\r\n"
                              "West, winner of first round, game 2: here no team, in the file R1T3");
    EXPECT_EQ(saved("Smith_JS.THC"), theirs);
}

TEST_F(BoardScreenSaving, ADamagedFileOfSomebodyElseIsCalledThat)
{
    const Entry entry = emptyBracket("JS", "Smith", "150");
    const auto file = putSelection("Smith_JS.THC", entry);
    loadFinalized();
    open(file);
    std::string bytes = selectionFile(entry);
    bytes.resize(bytes.find("150")); // and nothing after it
    scratch.put("Smith_JS.THC", bytes);
    click(0);
    platform.dialogs.answer(ui::Answer::More).answer(ui::Answer::No);
    saveAs(file);
    ASSERT_GE(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[platform.dialogs.shown.size() - 2].text,
              file.string() + "\r\n \r\n"
                              "The file is damaged, and could not be read whole.\r\n"
                              "Final points: here 150, in the file nothing\r\n"
                              "West, winner of first round, game 1: here R1T0, in the file no team");
}

TEST_F(BoardScreenSaving, ResultsThatSomebodyElseHasEnteredSinceAreReplacedOnlyAfterAYes)
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

TEST_F(BoardScreenSaving, ARefusalLeavesTheFocusWhereItIsWhenTheFieldIsLocked)
{
    loadFinalized();
    enterResults();
    board->txtPlayerName.text = "";
    board->focused = &board->txtFinalPoints;
    save();
    EXPECT_EQ(lastMessage().text, "Player Name field is BLANK, this MUST be corrected!");
    EXPECT_EQ(board->focused, &board->txtFinalPoints);
}

TEST_F(BoardScreenSaving, ResultsAreSavedUnderTheirFixedNameWithoutAQuestion)
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
