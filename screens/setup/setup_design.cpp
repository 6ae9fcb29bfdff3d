// screens/setup/setup_design.cpp - arranges the controls once, when the screen is made.
#include "screens/setup/setup_design.h"

#include <array>
#include <initializer_list>
#include <string>

namespace tallyhoop {

namespace {

constexpr std::array<const char*, kRounds> kPayoffHints = {
    "Points for each win in 1st round",     "Points for each win in 2nd round",
    "Points for each win in 3rd round",     "Points for each win in Regional Finals",
    "Points for each winner in Semifinals", "Points for selecting winner in FINAL GAME",
};
constexpr int kLongestComment = 4000; ///< several times what the board has room for; wrapping far more takes seconds
constexpr ui::Colour kLightGreen{0x80, 0xFF, 0x80};

void arrangeTabs(SetupScreen& setup)
{
    int tab = 0;
    const auto follow = [&tab](ui::Control& control) { control.tabIndex = tab++; };
    for (const TeamRow row : allTeamRows())
        follow(setup.txtRegion[row]);
    for (const std::size_t title : {1U, 2U, 3U, 4U, 0U})
        follow(setup.TxtInfo[title]);
    follow(setup.txtComment1);
    follow(setup.txtComment2);
    for (std::size_t round = 0; round < setup.txtInfo6.size(); ++round)
        follow(setup.txtInfo6[round]);
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &setup.cmdFinalize, &setup.lstTeamNames, &setup.cmdAddName, &setup.cmdChangeName, &setup.cmdDeleteName,
             &setup.cmdOverride, &setup.cmdClear})
        follow(*control);
}

void arrangeMenus(SetupScreen& setup)
{
    setup.mnuFile.children = {&setup.mnuSaveStartingField, nullptr, &setup.mnuEnd};
    setup.mnuEdit.children = {&setup.mnuUndo, &setup.mnuRedo};
    setup.mnuOptions.children = {&setup.mnuSeating};
    setup.mnuDemo.children = {&setup.mnuDemoSet, &setup.mnuDemoReset};
    setup.mnuHelp.children = {&setup.mnuHelpDisplay, &setup.mnuHelpAbout};
    setup.menuBar = {&setup.mnuFile, &setup.mnuEdit, &setup.mnuOptions, &setup.mnuDemo, &setup.mnuHelp};

    setup.mnuSaveStartingField.icon = ui::MenuIcon::Save;
    setup.mnuEnd.icon = ui::MenuIcon::Exit;
    setup.mnuUndo.icon = ui::MenuIcon::Undo;
    setup.mnuRedo.icon = ui::MenuIcon::Redo;
    setup.mnuSeating.icon = ui::MenuIcon::Seeds;
    setup.mnuDemoSet.icon = ui::MenuIcon::Demo;
    setup.mnuDemoReset.icon = ui::MenuIcon::Reset;
    setup.mnuHelpDisplay.icon = ui::MenuIcon::Help;
    setup.mnuHelpAbout.icon = ui::MenuIcon::About;

    setup.mnuSaveStartingField.explanation = "Saves everything on this screen but the list of team names.";
    setup.mnuEnd.explanation = "Goes back to the board; what was not saved is dropped.";
    setup.mnuUndo.explanation = "Takes the last change on this screen back; the list of team names is not part of it.";
    setup.mnuRedo.explanation = "Makes the change again that was taken back last.";
    setup.mnuSeating.explanation = "Opens the seed numbers of the sixteen rows of a region.";
    setup.mnuDemoSet.explanation = "Shows a sample pool, to try everything out.";
    setup.mnuDemoReset.explanation = "Takes the sample pool away again.";
    setup.mnuHelpDisplay.explanation = "Shows the help on what is on the screen.";
    setup.mnuHelpAbout.explanation = "About Tallyhoop: version and licence.";
}

void designBoxes(SetupScreen& setup)
{
    for (std::size_t i = 0; i < setup.TxtInfo.size(); ++i) {
        setup.TxtInfo[i].spokenName = i == 0 ? "Pool title" : "Title of region " + std::to_string(i);
        setup.TxtInfo[i].explanation =
            i == 0 ? "The title of the board and of every report." : "The title of the region on the board.";
    }
    for (std::size_t i = 0; i < setup.txtInfo6.size(); ++i) {
        ui::TextBox& payoff = setup.txtInfo6[i];
        payoff.toolTip = kPayoffHints.at(i);
        payoff.spokenName = payoff.toolTip;
        payoff.explanation = payoff.toolTip + ", 1 to 99.";
    }
    setup.txtComment1.spokenName = "Comment 1";
    setup.txtComment2.spokenName = "Comment 2";
    for (ui::TextBox* comment : {&setup.txtComment1, &setup.txtComment2}) {
        comment->multiLine = true;
        comment->maxLength = kLongestComment;
        comment->explanation = "Shown below the bracket: the fee, the deadline, the prizes.";
    }
}

void designList(SetupScreen& setup)
{
    setup.lstTeamNames.background = kLightGreen;
    setup.lstTeamNames.spokenName = "Team names";
    setup.lstTeamNames.emptyNote = "There is no list of team names.";
    setup.lstTeamNames.explanation = "Enter or a double click puts the selected name into the green box.";
    setup.cmdAddName.explanation = "Adds a team to the list of names.";
    setup.cmdChangeName.explanation = "Changes the selected name of the list.";
    setup.cmdDeleteName.explanation = "Takes the selected name out of the list.";
    setup.cmdClear.explanation = "Empties all 64 team boxes.";
    setup.cmdClear.mnemonic = 'l';
}

} // namespace

void design(SetupScreen& setup)
{
    arrangeTabs(setup);
    arrangeMenus(setup);
    designBoxes(setup);
    designList(setup);
    setup.cmdFinalize.explanation = "Declares the field complete; once that is saved it cannot be changed any more.";
    setup.cmdFinalize.mnemonic = 'n';
}

const char* explanationOfTeamBox(bool isOverridden)
{
    return isOverridden ? "Type any team's name; Enter takes it and goes on to the next box."
                        : "Type the first letters: the name is completed from the list. Enter goes on.";
}

const char* explanationOfOverride(bool isOverridden)
{
    return isOverridden ? "Back to picking names from the list."
                        : "Lets you type names of teams that are not in the list.";
}

} // namespace tallyhoop
