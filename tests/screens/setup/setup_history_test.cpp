// tests/screens/setup/setup_history_test.cpp - which changes are one step, and what undo and redo give back.
#include "screens/setup/setup_history.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

struct SetupHistoryTest : testing::Test {
    SetupHistoryTest() { history.begin(now); }

    void type(TeamRow row, const std::string& text)
    {
        now.teams[row] = text;
        history.note(now);
    }

    /// @returns the first two teams after undo or redo
    std::vector<std::string> teams(const std::optional<Field>& texts)
    {
        now = texts.value();
        return {now.teams[TeamRow{0}], now.teams[TeamRow{1}]};
    }

    using Teams = std::vector<std::string>;
    Field now = defaultField();
    SetupHistory history;
};

TEST_F(SetupHistoryTest, HasNoStepsUntilSomethingChanges)
{
    EXPECT_FALSE(history.note(now));
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(history.undo(), std::nullopt);
    EXPECT_EQ(history.redo(), std::nullopt);
}

TEST_F(SetupHistoryTest, TakesANameBackAsAWholeAndOneTextAfterTheOther)
{
    for (const char* typed : {"", "D", "Du", "Duke"})
        type(TeamRow{0}, typed);
    type(TeamRow{1}, "Iowa");
    EXPECT_EQ(teams(history.undo()), (Teams{"Duke", "TEAM2"}));
    EXPECT_EQ(teams(history.undo()), (Teams{"TEAM1", "TEAM2"}));
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(teams(history.redo()), (Teams{"Duke", "TEAM2"}));
    EXPECT_EQ(teams(history.redo()), (Teams{"Duke", "Iowa"}));
    EXPECT_FALSE(history.canRedo());
}

TEST_F(SetupHistoryTest, MakesOneStepOfSeveralTextsThatChangeTogether)
{
    type(TeamRow{0}, "Duke");
    now.teams.values.fill("");
    history.note(now);
    type(TeamRow{0}, "Iowa");
    EXPECT_EQ(teams(history.undo()), (Teams{"", ""}));
    EXPECT_EQ(teams(history.undo()), (Teams{"Duke", "TEAM2"}));
}

TEST_F(SetupHistoryTest, HasNoStepForATextThatIsTypedBackToWhatItWas)
{
    type(TeamRow{1}, "Iowa");
    type(TeamRow{0}, "D");
    type(TeamRow{0}, "TEAM1");
    type(TeamRow{0}, "Duke"); // a step of its own, not part of that before
    EXPECT_EQ(teams(history.undo()), (Teams{"TEAM1", "Iowa"}));
    EXPECT_EQ(teams(history.undo()), (Teams{"TEAM1", "TEAM2"}));
    EXPECT_FALSE(history.canUndo());
}

TEST_F(SetupHistoryTest, ForgetsWhatWasUndoneAtTheNextChange)
{
    type(TeamRow{0}, "Duke");
    now = *history.undo();
    EXPECT_TRUE(history.canRedo());
    type(TeamRow{0}, "Iowa"); // the same text, but after an undo
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(teams(history.undo()), (Teams{"TEAM1", "TEAM2"}));
}

TEST_F(SetupHistoryTest, KnowsTitlesPayoffsSeedsAndComments)
{
    const Field before = now;
    now.title = "Pool";
    history.note(now);
    now.regionTitles[3] = "South";
    history.note(now);
    now.payoffs = PayoffTexts{{"2", "2", "4", "8", "12", "16"}};
    history.note(now);
    now.seeds[0] = "2";
    history.note(now);
    now.comment1 = "one";
    history.note(now);
    now.comment2 = "two";
    history.note(now);
    std::optional<Field> texts;
    for (int step = 0; step < 6; ++step)
        texts = history.undo();
    EXPECT_EQ(texts, before);
    EXPECT_FALSE(history.canUndo());
}

TEST_F(SetupHistoryTest, KeepsFewerStepsOfTextsThatAreFarTooLong)
{
    const auto stepsKept = [this](int steps, std::size_t length) {
        Field field;
        field.teams[TeamRow{0}] = std::string(length, 'x');
        history.begin(field);
        for (int step = 0; step < steps; ++step) {
            field.teams[TeamRow{step % 2 + 1}] += 'a'; // now one text, now the other: each is a step
            history.note(field);
        }
        int undone = 0;
        while (history.undo())
            ++undone;
        return undone;
    };
    EXPECT_EQ(stepsKept(250, 10), 200);
    EXPECT_EQ(stepsKept(20, std::size_t{1} << 20), 15) << "16 MB hold 15 fields of a megabyte and a little";
    EXPECT_EQ(stepsKept(3, std::size_t{20} << 20), 1);
}

} // namespace
} // namespace tallyhoop
