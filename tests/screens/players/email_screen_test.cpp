// tests/screens/players/email_screen_test.cpp - choosing recipients, and what the dialog leaves.
#include "screens/players/email_screen.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/players/player_file.h"

#include <gtest/gtest.h>
#include <memory>
#include <string_view>

namespace tallyhoop::test {
namespace {

constexpr const char* kCaption = "Tallyhoop - EMail Selections";

const ui::Message kNoAddress{"Tallyhoop - frmPoolEMail, Form_KeyPress",
                             "EMail address does not exist for this player. You must either\r\n"
                             "enter the EMail manually or select the \"Edit Names File\" menu\r\n"
                             "option from the main form & add this EMail address.",
                             ui::Buttons::Ok, ui::Icon::Exclamation};
const ui::Message kSomebodyWithoutAddress{kCaption,
                                          "You have selected the \"EMail All\" option and there\r\n"
                                          "is at least one player name without an EMail address.\r\n\r\n"
                                          "Print a Player Listing to locate the missing EMail address.",
                                          ui::Buttons::Ok, ui::Icon::None};
const ui::Message kNoRecipients{"Tallyhoop - PoolEMail, cmdSend_Click",
                                "No \"SendTo\" names were defined, You can cancel\r\n"
                                "and complete these entries or if you continue, your\r\n"
                                "mail system will prompt you with another opportunity to complete these.",
                                ui::Buttons::OkCancel, ui::Icon::Question};

class EmailScreenTest : public testing::Test
{
protected:
    EmailScreenTest()
    {
        scratch.put("PLAYERNAMES.CSV",
                    playerFile({csv("Smith,JS", "SMITH_JS.THC", "js@example.org"),
                                csv("Adams (Bob)", "ADAMS_B.THC", "bob@example.org"), csv("baker,C", "BAKER_C.THC")}));
    }

    EmailScreen& open()
    {
        screen = std::make_unique<EmailScreen>(folder, platform.services, screens, draft);
        screen->load();
        screen->showState();
        return *screen;
    }

    /// Presses a key in the entry box; one that the screen leaves alone does what a box does with it.
    void press(char character)
    {
        ui::TextBox& box = screen->txtEntry;
        if (screen->keyPressed(box, {ui::Key::Character, character}))
            return;
        box.text.replace(static_cast<std::size_t>(box.selectionStart), static_cast<std::size_t>(box.selectionLength), 1,
                         character);
        ++box.selectionStart;
        box.selectionLength = 0;
        box.edited();
    }

    void type(std::string_view text)
    {
        for (const char character : text)
            press(character);
    }

    bool enterIn(ui::Control& control) { return screen->keyPressed(control, {ui::Key::Enter}); }
    bool closed() const { return screens.unloads == std::vector<ScreenKind>{ScreenKind::Email}; }

    ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    FakePlatform platform;
    FakeScreens screens;
    MailDraft draft;
    std::unique_ptr<EmailScreen> screen;
};

TEST_F(EmailScreenTest, OpensWithTheFocusInTheEntryBox)
{
    EmailScreen& mail = open();
    EXPECT_TRUE(mail.lstPlayerNames.fixedPitch);
    EXPECT_TRUE(mail.txtMessage.multiLine);
    EXPECT_EQ(mail.focused, &mail.txtEntry);
    EXPECT_TRUE(mail.cmdFreeEntry.enabled);
    EXPECT_FALSE(mail.cmdUseList.enabled);
}

TEST_F(EmailScreenTest, AKeyThatFindsNobodySaysSoUntilOneFinds)
{
    EmailScreen& mail = open();
    type("q");
    EXPECT_EQ(mail.news().text, "No name of the list begins with \"q\".");
    type(std::string_view{mail.lstPlayerNames.rows.at(0)}.substr(0, 1));
    EXPECT_EQ(mail.news().text, "");
}

TEST_F(EmailScreenTest, ListsPlayersAlphabeticallyWithTheirAddresses)
{
    EXPECT_EQ(open().lstPlayerNames.rows,
              (std::vector<std::string>{"Adams (Bob)                (bob@example.org)", "baker,C                    ()",
                                        "Smith,JS                   (js@example.org)"}));
    EXPECT_TRUE(screen->lstTo.rows.empty());
}

TEST_F(EmailScreenTest, OpeningEmptiesTheTextsOfTheDraftAndNothingElse)
{
    draft = {.recipients = {"old@example.org"}, .subject = "old subject", .message = "old message"};
    open();
    EXPECT_EQ(draft.subject, "");
    EXPECT_EQ(draft.message, "");
    EXPECT_EQ(draft.recipients, std::vector<std::string>{"old@example.org"});
}

TEST_F(EmailScreenTest, AFaultyPlayerListLeavesTheListsEmpty)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("Smith,JS", "", "js@example.org")}) + "short\r\n");
    draft.toEverybody = true;
    EmailScreen& mail = open();
    ASSERT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR Found in PLAYERNAMES.CSV file **");
    EXPECT_EQ(platform.dialogs.shown[1], (ui::Message{kCaption,
                                                      "Problems found with PLAYERNAMES.CSV file\r\n"
                                                      "This condition must be corrected, See Help content",
                                                      ui::Buttons::Ok, ui::Icon::Critical, "repair"}));
    EXPECT_TRUE(mail.lstPlayerNames.rows.empty());
    EXPECT_TRUE(mail.lstTo.rows.empty());
}

// E-mail to all.

TEST_F(EmailScreenTest, EmailAllAddressesEverybodyWithAnAddressAndWarnsOnce)
{
    draft.toEverybody = true;
    EmailScreen& mail = open();
    EXPECT_EQ(mail.lstTo.rows, (std::vector<std::string>{"js@example.org", "bob@example.org"}));
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSomebodyWithoutAddress});
}

TEST_F(EmailScreenTest, EmailAllWarnsOnceHoweverManyHaveNoAddress)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("A", "A.THC"), csv("B", "B.THC"), csv("C", "C.THC", "c@x.org")}));
    draft.toEverybody = true;
    EXPECT_EQ(open().lstTo.rows, std::vector<std::string>{"c@x.org"});
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kSomebodyWithoutAddress});
}

TEST_F(EmailScreenTest, EmailAllIsSilentWhenNobodyLacksAnAddress)
{
    scratch.put("PLAYERNAMES.CSV", playerFile({csv("A", "A.THC", "a@x.org"), csv("B", "B.THC", "a@x.org")}));
    draft.toEverybody = true;
    EXPECT_EQ(open().lstTo.rows, (std::vector<std::string>{"a@x.org", "a@x.org"}));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

// Choosing from the list.

TEST_F(EmailScreenTest, TypingFindsThePlayerAndEnterAddsTheAddress)
{
    EmailScreen& mail = open();
    type("sm");
    EXPECT_EQ(mail.lstPlayerNames.selected, 2);
    EXPECT_EQ(mail.txtEntry.text, "Smith,JS                   (js@example.org)");
    EXPECT_EQ(mail.txtEntry.selectionStart, 2);
    EXPECT_TRUE(enterIn(mail.txtEntry));
    EXPECT_EQ(mail.lstTo.rows, std::vector<std::string>{"js@example.org"});
    EXPECT_EQ(mail.txtEntry.text, "");
}

TEST_F(EmailScreenTest, ACharacterThatFindsNobodyIsIgnored)
{
    EmailScreen& mail = open();
    type("sx");
    EXPECT_EQ(mail.txtEntry.text, "Smith,JS                   (js@example.org)");
    EXPECT_EQ(mail.txtEntry.selectionStart, 1);
}

TEST_F(EmailScreenTest, AShortcutIsNotTakenForText)
{
    EmailScreen& mail = open();
    EXPECT_FALSE(mail.keyPressed(mail.txtEntry, {.key = ui::Key::Character, .character = 's', .control = true}));
    EXPECT_FALSE(mail.lstPlayerNames.selected);
}

TEST_F(EmailScreenTest, AParenthesisInANameDoesNoHarm)
{
    EmailScreen& mail = open();
    mail.lstPlayerNames.selected = 0;
    EXPECT_TRUE(enterIn(mail.lstPlayerNames));
    EXPECT_EQ(mail.lstTo.rows, std::vector<std::string>{"bob@example.org"});
}

TEST_F(EmailScreenTest, EnterOnAPlayerWithoutAddressExplainsItselfAndAddsNothing)
{
    EmailScreen& mail = open();
    type("b");
    EXPECT_TRUE(enterIn(mail.txtEntry));
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoAddress});
    EXPECT_TRUE(mail.lstTo.rows.empty());
}

TEST_F(EmailScreenTest, ADoubleClickAddsTheAddressOrExplainsItself)
{
    EmailScreen& mail = open();
    mail.lstPlayerNames.selected = 2;
    mail.lstPlayerNames.doubleClicked();
    EXPECT_EQ(mail.lstTo.rows, std::vector<std::string>{"js@example.org"});
    mail.lstPlayerNames.selected = 1;
    mail.lstPlayerNames.doubleClicked();
    EXPECT_EQ(mail.lstTo.rows.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoAddress});
}

TEST_F(EmailScreenTest, EnterWithNoPlayerSelectedAddsNothing)
{
    EmailScreen& mail = open();
    enterIn(mail.txtEntry);
    EXPECT_TRUE(mail.lstTo.rows.empty());
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(EmailScreenTest, PastedTextOfNobodyIsNotTakenForThePlayerFoundBefore)
{
    EmailScreen& mail = open();
    type("sm");
    mail.txtEntry.text = "stranger@example.org";
    mail.txtEntry.edited();
    enterIn(mail.txtEntry);
    EXPECT_TRUE(mail.lstTo.rows.empty());
}

TEST_F(EmailScreenTest, EnterIsALineBreakInTheMessageAndNothingInTheSubject)
{
    EmailScreen& mail = open();
    mail.lstPlayerNames.selected = 0;
    EXPECT_FALSE(enterIn(mail.txtMessage));
    EXPECT_FALSE(enterIn(mail.txtSubject));
    EXPECT_TRUE(mail.lstTo.rows.empty());
}

// Free entry.

TEST_F(EmailScreenTest, FreeEntryAddsWhatIsTypedWithoutOuterBlanksAndEmptiesTheBox)
{
    EmailScreen& mail = open();
    mail.focused = &mail.cmdFreeEntry;
    mail.cmdFreeEntry.click();
    EXPECT_EQ(mail.focused, &mail.txtEntry);
    EXPECT_FALSE(mail.cmdFreeEntry.enabled);
    EXPECT_TRUE(mail.cmdUseList.enabled);
    type(" smith@example.org ");
    EXPECT_EQ(mail.txtEntry.text, " smith@example.org ") << "the list was searched";
    EXPECT_TRUE(enterIn(mail.txtEntry));
    EXPECT_EQ(mail.lstTo.rows, std::vector<std::string>{"smith@example.org"});
    EXPECT_EQ(mail.txtEntry.text, "");
}

TEST_F(EmailScreenTest, FreeEntryIgnoresBlanks)
{
    EmailScreen& mail = open();
    mail.cmdFreeEntry.click();
    enterIn(mail.txtEntry);
    type("   ");
    enterIn(mail.txtEntry);
    EXPECT_TRUE(mail.lstTo.rows.empty());
}

TEST_F(EmailScreenTest, MatchListTurnsFreeEntryOffAndEmptiesTheBox)
{
    EmailScreen& mail = open();
    mail.cmdFreeEntry.click();
    type("half an addr");
    mail.focused = &mail.cmdUseList;
    mail.cmdUseList.click();
    EXPECT_EQ(mail.txtEntry.text, "");
    EXPECT_EQ(mail.focused, &mail.txtEntry);
    EXPECT_TRUE(mail.cmdFreeEntry.enabled);
    EXPECT_FALSE(mail.cmdUseList.enabled);
    type("a");
    EXPECT_EQ(mail.lstPlayerNames.selected, 0);
}

// Recipients away again.

TEST_F(EmailScreenTest, DeleteRemovesTheSelectedRecipient)
{
    EmailScreen& mail = open();
    mail.lstTo.rows = {"a@x.org", "b@x.org", "c@x.org"};
    mail.lstTo.selected = 1;
    mail.focused = &mail.cmdDelete;
    mail.cmdDelete.click();
    EXPECT_EQ(mail.lstTo.rows, (std::vector<std::string>{"a@x.org", "c@x.org"}));
    EXPECT_FALSE(mail.lstTo.selected);
    EXPECT_EQ(mail.focused, &mail.txtEntry);
}

TEST_F(EmailScreenTest, DeleteWithoutASelectionExplainsItself)
{
    EmailScreen& mail = open();
    mail.lstTo.rows = {"a@x.org"};
    mail.cmdDelete.click();
    EXPECT_EQ(platform.dialogs.shown, (std::vector<ui::Message>{{"Tallyhoop - PoolEmail, cmdDelete",
                                                                 "You must select one of the entries from the list \r\n"
                                                                 "of EMail address selections.\r\n\r\n"
                                                                 "Make a selection and then retry.",
                                                                 ui::Buttons::Ok, ui::Icon::Exclamation}}));
    EXPECT_EQ(mail.lstTo.rows.size(), 1u);
}

// The end of the dialog.

TEST_F(EmailScreenTest, SendLeavesTheDraftInOrder)
{
    EmailScreen& mail = open();
    mail.lstTo.rows = {"z@x.org", "a@x.org"};
    mail.txtSubject.text = "Standings";
    mail.txtMessage.text = "Hello\r\nall";
    mail.cmdSend.click();
    EXPECT_EQ(draft.recipients, (std::vector<std::string>{"z@x.org", "a@x.org"}));
    EXPECT_EQ(draft.subject, "Standings");
    EXPECT_EQ(draft.message, "Hello\r\nall");
    EXPECT_FALSE(draft.cancelled);
    EXPECT_TRUE(closed());
}

TEST_F(EmailScreenTest, SendWithNobodyAndOkLeavesNoRecipients)
{
    draft.recipients = {"old@example.org"};
    platform.dialogs.answer(ui::Answer::Ok);
    open().cmdSend.click();
    EXPECT_EQ(platform.dialogs.shown, std::vector<ui::Message>{kNoRecipients});
    EXPECT_TRUE(draft.recipients.empty());
    EXPECT_TRUE(closed());
}

TEST_F(EmailScreenTest, SendWithNobodyAndCancelReturnsToTheDialog)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    EmailScreen& mail = open();
    mail.txtSubject.text = "Standings";
    mail.cmdSend.click();
    EXPECT_TRUE(screens.unloads.empty());
    EXPECT_EQ(draft.subject, "");
}

TEST_F(EmailScreenTest, ExitSetsTheFlagAndLeavesTheResultAlone)
{
    EmailScreen& mail = open();
    mail.lstTo.rows = {"a@x.org"};
    mail.txtSubject.text = "Standings";
    mail.cmdExit.click();
    EXPECT_TRUE(draft.cancelled);
    EXPECT_TRUE(draft.recipients.empty());
    EXPECT_EQ(draft.subject, "");
    EXPECT_TRUE(closed());
}

TEST_F(EmailScreenTest, TheCloseButtonAndEscapeAreExit)
{
    open().closeRequested();
    EXPECT_TRUE(draft.cancelled);
    EXPECT_TRUE(closed());
}

} // namespace
} // namespace tallyhoop::test
