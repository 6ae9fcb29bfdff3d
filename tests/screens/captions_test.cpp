// tests/screens/captions_test.cpp - everything that is written on each screen, and its menus in their order.
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/board/board_screen.h"
#include "screens/entries/entry_form_screen.h"
#include "screens/import/import_screen.h"
#include "screens/money/money_screen.h"
#include "screens/players/email_screen.h"
#include "screens/players/players_screen.h"
#include "screens/reports/reports_screen.h"
#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

struct Captions : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    FakeBoard fakeBoard;
    Field field;
    MailDraft draft;
    std::optional<SavedPlayer> savedPlayer;
    std::optional<PlayerScore> marked;
    bool folderTroubleSaid = false;
    std::vector<std::filesystem::path> droppedFiles;
    SeedTexts seeds;
};

/// A caption as it is seen, without the mark of its mnemonic.
std::string seen(std::string caption)
{
    std::erase(caption, '&');
    return caption;
}

std::string captionOf(const ui::Control& control)
{
    if (const auto* label = dynamic_cast<const ui::Label*>(&control))
        return label->text;
    if (const auto* command = dynamic_cast<const ui::Command*>(&control))
        return seen(command->caption);
    if (const auto* box = dynamic_cast<const ui::CheckBox*>(&control))
        return seen(box->caption);
    if (const auto* option = dynamic_cast<const ui::OptionButton*>(&control))
        return seen(option->caption);
    return {};
}

/// What is written in the window's frame and on its controls: "control: caption".
std::vector<std::string> captionsOf(const ui::Screen& screen)
{
    std::vector<std::string> captions{screen.name + ": " + screen.caption};
    for (const ui::Control* control : screen.controls())
        if (const std::string caption = captionOf(*control); !caption.empty())
            captions.push_back(control->name + ": " + caption);
    return captions;
}

void addMenu(std::vector<std::string>& menus, const ui::MenuEntry& menu)
{
    std::string line = seen(menu.caption) + ":";
    for (const ui::MenuEntry* entry : menu.children)
        line += entry == nullptr ? " |" : " [" + seen(entry->caption) + "]";
    menus.push_back(line);
    for (const ui::MenuEntry* entry : menu.children)
        if (entry != nullptr && !entry->children.empty())
            addMenu(menus, *entry);
}

/// A line for each menu, with its entries in brackets and its separators.
std::vector<std::string> menusOf(const ui::Screen& screen)
{
    std::vector<std::string> menus;
    for (const ui::MenuEntry* menu : screen.menuBar)
        addMenu(menus, *menu);
    return menus;
}

TEST_F(Captions, OfTheBoard)
{
    const BoardScreen board{
        folder, platform.services, screens, {field, savedPlayer, marked, folderTroubleSaid, droppedFiles}};

    EXPECT_THAT(
        captionsOf(board),
        ElementsAre("frmPoolMain: Tallyhoop", "lblRoundName_0: 1st round:", "lblRoundName_1: 2nd round:",
                    "lblRoundName_2: Regional semi:", "lblRoundName_3: Regional final:", "lblRoundName_4: 1st round:",
                    "lblRoundName_5: 2nd round:", "lblRoundName_6: Regional semi:", "lblRoundName_7: Regional final:",
                    "lblRoundName_8: Semi-final:", "lblRoundName_9: Final game:", "lblChampion: CHAMPION",
                    "lblDemoMode: Demonstration Mode", "lblPlayerInitials: Initials", "lblPlayerName: Name",
                    "lblFinalPoints: Predict total points in Championship game", "cmdDefaultColors: Default Colors"));
    EXPECT_THAT(menusOf(board),
                ElementsAre("File: [New Selection] [Open Selection] [Open Recent] [Previous Selection] "
                            "[Next Selection] [Save Selection] | [Entry Form...] [Import Selections...] [Export "
                            "Selections as CSV...] | "
                            "[Print Preview] [Print Form] | "
                            "[Open Folder] [Back Up Pool] | [Exit]",
                            "Open Recent: [] [] [] [] []", "Edit: [Undo] [Redo]",
                            "Options: [Score Selections] [Enter Game Results] [Pool Outlook] | [Entry Assist] | "
                            "[Edit Names File] [Money...]",
                            "Entry Assist: [Select High Seeds]", "Setup: [Setup Pool Options]", "Reports:",
                            "DEMO Mode: [DEMO-Start] [DEMO-Reset]", "Help: [Help Display] [About Tallyhoop]"));
}

TEST_F(Captions, OfTheListOfScores)
{
    const Bracket results;
    const ScoresScreen scores{folder, platform.services, screens, field, results, marked};

    EXPECT_THAT(captionsOf(scores),
                ElementsAre("frmPoolMisc: Display Scores (Total, Possible)",
                            "cmdOk: Calculate Totals Based on Results Displayed", "cmdBestFirst: Best First",
                            "cmdPrint: Print", "cmdPreview: Preview", "cmdSavePdf: Save as PDF", "cmdCopy: Copy",
                            "cmdExit: Exit",
                            "lblInformation: Select a Heading Column and drag to another position to change sequence"));
}

TEST_F(Captions, OfTheSetup)
{
    const SetupScreen setup{folder, platform.services, screens, field};

    EXPECT_THAT(
        captionsOf(setup),
        ElementsAre("frmPoolEntry: Define Starting Field & Options", "lblDemoMode: Demonstration Mode",
                    "lblPoolTitle: Pool Title:", "lblChangeNames: Select Buttons to Change Names in the above List",
                    "cmdAddName: Add", "cmdChangeName: Change", "cmdDeleteName: Delete",
                    "cmdOverride: Override Selecting Team Names", "cmdClear: Clear All Team Names",
                    "lblComment1: Comment 1:", "lblComment2: Comment 2:", "lblPayoff: Payoff Per Round:",
                    "lblPayoffRounds:   1       2      3      4     5      6", "cmdFinalize: Finalize Tournament"));
    EXPECT_THAT(menusOf(setup),
                ElementsAre("File: [Save] | [Exit]", "Edit: [Undo] [Redo]", "Options: [Seeding Entry]",
                            "DEMO Mode: [DEMO-Start] [DEMO-Reset]", "Help: [Help Display] [About Tallyhoop]"));
    const std::vector<std::string> hints{
        "Points for each win in 1st round",     "Points for each win in 2nd round",
        "Points for each win in 3rd round",     "Points for each win in Regional Finals",
        "Points for each winner in Semifinals", "Points for selecting winner in FINAL GAME"};
    for (std::size_t round = 0; round < hints.size(); ++round)
        EXPECT_EQ(setup.txtInfo6[round].toolTip, hints[round]);
}

TEST_F(Captions, OfTheSeeds)
{
    const SeedsScreen seedsScreen{{}, seeds, platform.dialogs, screens};

    std::vector<std::string> expected{"frmPoolSeatings: Seed Positions Entry"};
    for (int row = 0; row < 16; ++row)
        expected.push_back("lblRegion_" + std::to_string(row) + ": Team" + std::to_string(row + 1));
    expected.insert(expected.end(), {"cmdComplete: Complete", "cmdCancel: Cancel"});
    EXPECT_EQ(captionsOf(seedsScreen), expected);
}

TEST_F(Captions, OfTheReports)
{
    const ReportsScreen reports{folder, platform.services, screens, field, draft, fakeBoard};

    EXPECT_THAT(
        captionsOf(reports),
        ElementsAre(
            "frmPoolReports: Tallyhoop Reports", "fraMultipleOutput: Multiple Output Options",
            "lblReportSelections: Report Selections", "chkOptions_0: Tournament Standings (RPTOPT1.TXT)",
            "chkOptions_1: Player Listing (RPTOPT2.TXT)", "chkOptions_2: Team Selection Summary (RPTOPT3.TXT)",
            "chkOptions_3: Team Selection Detail (RPTOPT4.TXT)", "chkOptions_4: Player Selection Detail (RPTOPT5.TXT)",
            "chkOptions_5: Projected Results by Player (RPTOPT6.TXT)",
            "chkOptions_6: Projected Results by Team (RPTOPT7.TXT)", "lblDestination: Destination",
            "optDestination_0: Printer", "optDestination_1: File", "optDestination_2: Email",
            "optDestination_3: Email All Participants", "chkWebPage: Attach the pool's web page",
            "lblReportTitle: Report Titles:", "cmdPrintSelections: Create Selected Reports",
            "cmdDefaultPrinter: Use default printer", "cmdPreview: Preview", "cmdSavePdf: Save as PDF",
            "cmdSaveCsv: Save as CSV...", "cmdWebPage: Save as Web Page...", "fraPrinterOnly: Printer Only Options",
            "optSelected_0: Scored Player Selections (Select File at right --->)",
            "optSelected_1: Tournament Results Sheet", "chkAllPlayers: All players",
            "cmdSelectedPrintouts: Create Selected Printout", "cmdPreviewBoard: Preview Board",
            "cmdSaveBoardPdf: Save Board as PDF", "fraCustomReports: Custom Reports Option",
            "cmdCustomReport: Goto Custom Reporting", "cmdOpenFolder: Open Folder", "cmdExit: Exit Reports"));
}

TEST_F(Captions, OfTheImport)
{
    FakeOpenSelection board;
    const ImportScreen import{folder, platform.services, screens, {field, board, droppedFiles}, nullptr};

    EXPECT_THAT(captionsOf(import),
                ElementsAre("frmImportSelections: Import Selections", "lblChampion: CHAMPION",
                            "cmdChooseFiles: Choose Files...", "cmdChooseFolder: Choose Folder...",
                            "lblPasted: Or paste texts or mails:", "cmdReadText: Read the Text",
                            "cmdTickAll: Tick All Complete", "cmdUntickAll: Untick All", "cmdEmptyList: Empty the List",
                            "cmdImport: Import", "lblSummary: What was imported", "cmdCopy: Copy Summary",
                            "cmdExit: Exit"));
}

TEST_F(Captions, OfThePlayers)
{
    const PlayersScreen players{folder, platform.services, screens, savedPlayer, field};

    EXPECT_THAT(captionsOf(players),
                ElementsAre("frmPoolNames: PlayerName Edit", "lblName: Name (Last, IN):", "lblFileName: FileName:",
                            "lblFileNameNote: The File Name cannot be changed",
                            "lblEmail: EMail Address:", "lblPhone: Phone No:", "cmdAdd: Add Record",
                            "cmdChange: Complete Changes", "cmdDelete: Delete Selection", "cmdEntryForm: Entry Form...",
                            "cmdCancel: Cancel", "cmdExit: Done"));
    EXPECT_EQ(players.cmdChange.toolTip, "Store the CHANGEs made");
    EXPECT_EQ(players.cmdDelete.toolTip, "Select to DELETE selected record");
}

TEST_F(Captions, OfTheEmailDialog)
{
    EmailScreen email{folder, platform.services, screens, draft};
    email.showState();

    EXPECT_THAT(captionsOf(email),
                ElementsAre("frmPoolEMail: Tallyhoop - EMail Selections", "lblEntry: Enter Email Addresses",
                            "cmdFreeEntry: Not In List Below", "cmdUseList: Match List Below", "lblTo: Send To: (0)",
                            "cmdDelete: Delete Email Selected", "cmdCopy: Copy Addresses", "lblSubject: Subject:",
                            "lblMessage: Enter Email Message:", "cmdSend: Send Email", "cmdExit: Exit/Cancel"));
}

TEST_F(Captions, OfFeesAndPrizes)
{
    MoneyScreen money{folder, OpenedPool{}, platform.services, screens};
    money.load();
    money.showState();

    EXPECT_THAT(
        captionsOf(money),
        ElementsAre(
            "frmMoney: Money", "lblEntryFee: Entry fee of each player:", "lblKeptBack: Kept back:",
            "lblPlace_0: Place 1:", "lblPlace_1: Place 2:", "lblPlace_2: Place 3:", "lblPlace_3: Place 4:",
            "lblPlace_4: Place 5:", "lblPlace_5: Place 6:", "lblPlace_6: Place 7:", "lblPlace_7: Place 8:",
            "lblPlace_8: Place 9:", "lblPlace_9: Place 10:", "lblTies: Equal points:", "optTies_0: Nearest prediction",
            "optTies_1: Nearest not over the total", "optTies_2: Places are shared",
            "lblTotal: The total of the final is entered with the results.",
            "lblPurse: Fees 0.00: kept back 0.00, prizes 0.00, left 0.00.", "cmdTickAll: Tick All",
            "cmdUntickAll: Untick All", "lblFees: There are no players yet.", "cmdFinalSheet: Save Final Sheet",
            "cmdPrint: Print Final Sheet", "cmdPreview: Preview Final Sheet", "cmdSave: Save", "cmdExit: Exit"));
}

TEST_F(Captions, OfTheEntryForm)
{
    std::string organiser;
    const EntryFormScreen form{folder, platform.services, screens, {field, draft, organiser}};

    EXPECT_THAT(captionsOf(form),
                ElementsAre("frmEntryForm: Entry Form", "lblOrganiser: Your e-mail address:", "cmdSave: Save Form...",
                            "cmdMail: Mail to All Players...", "cmdClose: Close"));
}

} // namespace
} // namespace tallyhoop::test
