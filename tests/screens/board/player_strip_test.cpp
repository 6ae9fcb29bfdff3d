// tests/screens/board/player_strip_test.cpp - the fields of a player: what they show, and when they can be edited.
#include "screens/board/player_strip.h"

#include "ui/screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct StripScreen : ui::Screen, PlayerStrip {
    StripScreen() : Screen{"screen", ""}, PlayerStrip{this, [this] { ++edits; }, [this] { ++unmarked; }} {}

    int edits = 0;
    int unmarked = 0;
};

struct PlayerStripTest : testing::Test {
    Field field = defaultField();
    StripScreen strip;

    void show(FieldLock lock, bool canUnmark = false) { strip.showStrip(field, lock, canUnmark, false); }
};

TEST_F(PlayerStripTest, ShowsAPlayersTextsExactly)
{
    strip.showPlayer({{}, "js", " Smith", "150 or so", "Smith_JS.THC"});
    EXPECT_EQ(strip.txtPlayerInitials.text, "js");
    EXPECT_EQ(strip.txtPlayerName.text, " Smith");
    EXPECT_EQ(strip.txtFinalPoints.text, "150 or so");
}

TEST_F(PlayerStripTest, KnowsWhoseTextsItHolds)
{
    const Entry entry{{}, "JS", "Smith", "150", {}};
    strip.showPlayer(entry);
    EXPECT_TRUE(strip.holdsPlayer(entry));
    for (ui::TextBox* box : {&strip.txtPlayerInitials, &strip.txtPlayerName, &strip.txtFinalPoints}) {
        const std::string before = std::exchange(box->text, "9");
        EXPECT_FALSE(strip.holdsPlayer(entry)) << box->name;
        box->text = before;
    }
    EXPECT_TRUE(strip.holdsPlayer(entry));
}

TEST_F(PlayerStripTest, SaysWhenAFieldWasEdited)
{
    strip.txtPlayerInitials.edited();
    strip.txtPlayerName.edited();
    strip.txtFinalPoints.edited();
    EXPECT_EQ(strip.edits, 3);
}

TEST_F(PlayerStripTest, LocksTheFieldsThatMayNotBeEditedNow)
{
    struct Case {
        FieldLock lock;
        bool playerLocked;
        bool pointsLocked;
    };
    for (const Case& wanted : {Case{FieldLock::All, true, true}, Case{FieldLock::Player, true, false},
                               Case{FieldLock::None, false, false}}) {
        show(wanted.lock);
        for (const ui::TextBox* box : {&strip.txtPlayerInitials, &strip.txtPlayerName}) {
            EXPECT_EQ(box->locked, wanted.playerLocked);
            EXPECT_EQ(box->tabStop, !wanted.playerLocked);
        }
        EXPECT_EQ(strip.txtFinalPoints.locked, wanted.pointsLocked);
        EXPECT_EQ(strip.txtFinalPoints.tabStop, !wanted.pointsLocked);
    }
}

TEST_F(PlayerStripTest, OffersDefaultColorsWhileThereAreMarksToTakeAway)
{
    show(FieldLock::All, true);
    EXPECT_TRUE(strip.cmdDefaultColors.visible);
    EXPECT_TRUE(strip.cmdDefaultColors.enabled);
    EXPECT_TRUE(strip.cmdDefaultColors.isDefault);
    strip.cmdDefaultColors.click();
    EXPECT_EQ(strip.unmarked, 1);
    show(FieldLock::None, false);
    EXPECT_FALSE(strip.cmdDefaultColors.visible);
    EXPECT_FALSE(strip.cmdDefaultColors.enabled);
    EXPECT_FALSE(strip.cmdDefaultColors.isDefault);
    strip.cmdDefaultColors.click();
    EXPECT_EQ(strip.unmarked, 1);
}

TEST_F(PlayerStripTest, ShowsTheOrganisersCommentsWhichNobodyEditsHere)
{
    field.comment1 = "first\r\nsecond";
    field.comment2 = "third";
    show(FieldLock::None);
    EXPECT_EQ(strip.txtComment1.text, "first\r\nsecond");
    EXPECT_EQ(strip.txtComment2.text, "third");
    for (const ui::TextBox* box : {&strip.txtComment1, &strip.txtComment2}) {
        EXPECT_TRUE(box->multiLine);
        EXPECT_TRUE(box->locked);
        EXPECT_FALSE(box->tabStop);
    }
    EXPECT_TRUE(strip.txtPointScore.locked);
    EXPECT_FALSE(strip.txtPointScore.tabStop);
}

TEST_F(PlayerStripTest, IsDisabledWhileTheListOfScoresIsOpen)
{
    strip.showStrip(field, FieldLock::None, false, true);
    for (const ui::Control* control : strip.controls())
        EXPECT_FALSE(control->enabled) << control->name;
    show(FieldLock::None, true);
    for (const ui::Control* control : strip.controls())
        EXPECT_TRUE(control->enabled) << control->name;
}

TEST_F(PlayerStripTest, LeavesTypedTextsAlone)
{
    strip.showPlayer({{}, "JS", "Smith", "150", {}});
    strip.txtPointScore.text = "Points: 1 / 2";
    show(FieldLock::All, true);
    EXPECT_EQ(strip.txtPlayerName.text, "Smith");
    EXPECT_EQ(strip.txtPointScore.text, "Points: 1 / 2");
}

TEST_F(PlayerStripTest, EnterLeadsRoundTheThreeFieldsAndFromNowhereElse)
{
    EXPECT_EQ(strip.afterEnter(strip.txtPlayerInitials), &strip.txtPlayerName);
    EXPECT_EQ(strip.afterEnter(strip.txtPlayerName), &strip.txtFinalPoints);
    EXPECT_EQ(strip.afterEnter(strip.txtFinalPoints), &strip.txtPlayerInitials);
    EXPECT_EQ(strip.afterEnter(strip.txtComment1), nullptr);
    EXPECT_EQ(strip.afterEnter(strip.txtPointScore), nullptr);
}

TEST_F(PlayerStripTest, HasTheFieldsAtTheirTabPositionsAndWordsForEach)
{
    EXPECT_EQ(strip.controlAtTab(140), &strip.txtPlayerInitials);
    EXPECT_EQ(strip.controlAtTab(141), &strip.txtPlayerName);
    EXPECT_EQ(strip.controlAtTab(143), &strip.txtFinalPoints);
    EXPECT_EQ(strip.lblPlayerInitials.text, "Initials");
    EXPECT_EQ(strip.lblPlayerName.text, "Name");
    EXPECT_EQ(strip.lblFinalPoints.text, "Predict total points in Championship game");
    for (const ui::TextBox* box : {&strip.txtComment1, &strip.txtComment2, &strip.txtPlayerInitials,
                                   &strip.txtPlayerName, &strip.txtFinalPoints, &strip.txtPointScore}) {
        EXPECT_FALSE(box->spokenName.empty()) << box->name;
        EXPECT_FALSE(box->explanation.empty()) << box->name;
    }
    EXPECT_EQ(strip.cmdDefaultColors.explanation, "Back to the normal colours, so that picks can be changed again.");
}

} // namespace
} // namespace tallyhoop::test
