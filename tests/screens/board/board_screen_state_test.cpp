// tests/screens/board/board_screen_state_test.cpp - what the board shows follows from what it holds, and from that
// alone.
#include "screens/board/board_fixture.h"

#include <sstream>

namespace tallyhoop::test {
namespace {

std::string shownColour(const std::optional<ui::Colour>& colour)
{
    if (!colour)
        return "none";
    return std::to_string(colour->red) + " " + std::to_string(colour->green) + " " + std::to_string(colour->blue);
}

/// Everything that a person could see or hear of a control, as text.
std::string shownOf(const ui::Control& control)
{
    std::ostringstream text;
    text << control.name << '|' << control.enabled << control.visible << control.tabStop << '|' << control.toolTip
         << '|' << control.spokenName << '|' << control.explanation;
    if (const auto* label = dynamic_cast<const ui::Label*>(&control))
        text << '|' << label->text << '|' << shownColour(label->colour) << '|' << shownColour(label->background);
    if (const auto* box = dynamic_cast<const ui::TextBox*>(&control))
        text << '|' << box->text << '|' << box->locked << '|' << shownColour(box->background);
    if (const auto* command = dynamic_cast<const ui::Command*>(&control))
        text << '|' << command->caption << '|' << command->isDefault;
    return text.str();
}

} // namespace

class BoardScreenState : public BoardTest
{
protected:
    std::vector<std::string> everythingShown() const
    {
        std::vector<std::string> shown{
            board->document,     board->explanation, board->status, board->news().text, std::to_string(board->unsaved),
            board->focused->name};
        for (const ui::Control* control : board->controls())
            shown.push_back(shownOf(*control));
        return shown;
    }

    void expectThatShowingAgainChangesNothing()
    {
        const std::vector<std::string> once = everythingShown();
        const Bracket bracket = board->bracket();
        board->showState();
        EXPECT_EQ(everythingShown(), once);
        EXPECT_EQ(board->bracket(), bracket);
    }

    /// Changes all that is derived: texts, colours, marks, what is enabled.
    void scribble()
    {
        const auto spoil = [](ui::Label& label) {
            label.text = "scribble";
            label.colour = ui::Colour{1, 2, 3};
            label.background = ui::Colour{4, 5, 6};
            label.spokenName = "scribble";
            label.explanation = "scribble";
        };
        const auto spoilAll = [&spoil](auto& labels) {
            for (std::size_t i = 0; i < labels.size(); ++i) {
                spoil(labels[i]);
                labels[i].enabled = false;
            }
        };
        spoilAll(board->lblRegion);
        spoilAll(board->lblResult);
        for (std::size_t i = 0; i < board->lblInfo.size(); ++i)
            board->lblInfo[i].text = "scribble";
        for (std::size_t i = 0; i < board->lblInfoRight.size(); ++i)
            board->lblInfoRight[i].text = "scribble";
        for (std::size_t i = 0; i < board->lblRegionTitle.size(); ++i)
            board->lblRegionTitle[i].text = "scribble";
        for (std::size_t i = 0; i < board->txtSeed.size(); ++i)
            board->txtSeed[i].text = "77";
        board->lblTitle.text = board->txtComment1.text = board->txtComment2.text = "scribble";
        board->lblDemoMode.visible = !board->lblDemoMode.visible;
        for (ui::TextBox* box : {&board->txtPlayerInitials, &board->txtPlayerName, &board->txtFinalPoints})
            box->locked = box->tabStop = !box->locked;
        board->cmdDefaultColors.visible = !board->cmdDefaultColors.visible;
        for (ui::MenuEntry* entry : {&board->mnuSaveSelection, &board->mnuGameResults, &board->mnuScoreSelections,
                                     &board->mnuUndo, &board->mnuHighSeed, &board->mnuSetup, &board->mnuReports})
            entry->enabled = !entry->enabled;
        board->document = board->explanation = "scribble";
    }

    void expectThatScribblesAreGoneAfterwards()
    {
        const std::vector<std::string> before = everythingShown();
        const Bracket bracket = board->bracket();
        scribble();
        ASSERT_NE(everythingShown(), before);
        EXPECT_EQ(board->bracket(), bracket);
        board->showState();
        EXPECT_EQ(everythingShown(), before);
        EXPECT_EQ(board->bracket(), bracket);
    }

    void expectThatItFollowsFromWhatTheBoardHolds()
    {
        expectThatShowingAgainChangesNothing();
        expectThatScribblesAreGoneAfterwards();
    }
};

TEST_F(BoardScreenState, FollowsFromWhatTheBoardHoldsInEachState)
{
    putNoResultsYet();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    {
        SCOPED_TRACE("a fresh board");
        loadFinalized();
        expectThatItFollowsFromWhatTheBoardHolds();
    }
    {
        SCOPED_TRACE("an opened selection with changes and something undone");
        open(file);
        drag(0, 126);
        click(2);
        board->mnuUndo.click();
        fill("AB", "Adams", "99");
        expectThatItFollowsFromWhatTheBoardHolds();
    }
    {
        SCOPED_TRACE("a scored selection");
        score();
        expectThatItFollowsFromWhatTheBoardHolds();
    }
    {
        SCOPED_TRACE("the results");
        enterResults();
        click(0);
        expectThatItFollowsFromWhatTheBoardHolds();
    }
    {
        SCOPED_TRACE("the list of scores, and a player chosen in it");
        score();
        Verdicts verdicts;
        verdicts[Position{16}] = Verdict::Good;
        verdicts[Position{17}] = Verdict::Bad;
        showListedVerdicts(verdicts);
        expectThatItFollowsFromWhatTheBoardHolds();
    }
}

TEST_F(BoardScreenState, FollowsFromWhatTheBoardHoldsWithoutAFieldAndInDemoMode)
{
    load();
    expectThatItFollowsFromWhatTheBoardHolds();
    putDemoMode();
    loadFinalized();
    expectThatItFollowsFromWhatTheBoardHolds();
}

TEST_F(BoardScreenState, AScribbleOnALabelIsNeitherSavedNorScoredNorDrawn)
{
    Entry results = emptyBracket("A", "FinalResults", "");
    results.picks.put(Position{16}, "R1T0");
    putSelection(file_name::kResults, results);
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    loadFinalized();
    open(file);
    click(0);
    const auto scribbleOnLabels = [this] {
        for (const Position position : allPositions())
            board->lblRegion[position].text = "scribble";
        board->lblInfo[0].text = "100";
        board->lblResult[0].text = "X";
        board->lblRegion[16].colour = ui::Colour{255, 0, 0};
        board->txtSeed[1].text = "0";
    };

    scribbleOnLabels();
    saveAs(file);
    Entry expected = emptyBracket("JS", "Smith", "150");
    expected.picks.put(Position{16}, "R1T0");
    EXPECT_EQ(scratch.get("Smith_JS.THC"), selectionFile(expected));

    scribbleOnLabels();
    score();
    EXPECT_EQ(board->txtPointScore.text, "Points: 1 / 1") << "one right pick of one point";
    EXPECT_EQ(board->lblResult[0].text, "=");

    scribbleOnLabels();
    const ui::DrawingPrintout printout = board->printout();
    for (const ui::Caption& caption : printout.drawings.at(0).captions)
        EXPECT_NE(caption.text, "scribble");

    board->cmdDefaultColors.click();
    scribbleOnLabels();
    click(2);
    EXPECT_EQ(at(17), "R1T2");
    EXPECT_EQ(at(0), "R1T0");

    scribbleOnLabels();
    board->mnuHighSeed.click();
    EXPECT_EQ(at(16), "R1T0") << "the seeds are those of the field";
    board->mnuUndo.click();
    EXPECT_EQ(at(24), "");
    EXPECT_EQ(at(17), "R1T2");
}

TEST_F(BoardScreenState, TheListOfScoresDoesNotUnlockAScoredBoard)
{
    putNoResultsYet();
    loadFinalized();
    score();
    setScoreListOpen(true);
    setScoreListOpen(false);
    EXPECT_TRUE(marksShown());
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->mnuSaveSelection.enabled);
}

TEST_F(BoardScreenState, TheResultsDoNotLeaveTheFocusOnALockedBox)
{
    loadFinalized();
    ASSERT_EQ(board->focused, &board->txtPlayerInitials);
    enterResults();
    EXPECT_EQ(board->focused, &board->lblRegion[Position{0}]);
}

TEST_F(BoardScreenState, AFieldThatOtherScreensChangeIsShownAtOnce)
{
    loadFinalized();
    field.title = "Another title";
    field.finalized = "0";
    board->showState();
    EXPECT_EQ(board->lblTitle.text, "Another title");
    EXPECT_FALSE(board->mnuReports.enabled);
    EXPECT_EQ(board->explanation, "The field is not finalized yet: see Setup, Setup Pool Options.");
}

} // namespace tallyhoop::test
