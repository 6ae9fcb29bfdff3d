// tests/screens/players/email_again_test.cpp - several addresses at once, copied ones, and a message that comes back.
#include "screens/players/email_screen.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/players/player_file.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using Rows = std::vector<std::string>;

struct EmailAgain : testing::Test {
    EmailAgain()
    {
        scratch.put("PLAYERNAMES.CSV", playerFile({csv("Adams,B", "ADAMS_B.THC", "bob@x.org; ann@x.org"),
                                                   csv("Baker,C", "BAKER_C.THC", "c@x.org")}));
    }

    void open()
    {
        screen.load();
        screen.showState();
    }

    void enter(const std::string& text)
    {
        screen.txtEntry.text = text;
        screen.keyPressed(screen.txtEntry, {.key = ui::Key::Enter});
        screen.showState();
    }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    MailDraft draft;
    EmailScreen screen{folder, platform.services, screens, draft};
};

TEST_F(EmailAgain, BeginsWithTheTextThatIsProposed)
{
    draft.kind = MailKind::EntryForm;
    draft.proposal = {{}, "Your bracket", "Hello,"};
    EmailScreen forForm{folder, platform.services, screens, draft};
    forForm.load();
    EXPECT_EQ(forForm.txtSubject.text, "Your bracket");
    EXPECT_EQ(forForm.txtMessage.text, "Hello,");
    EXPECT_EQ(forForm.txtMessage.explanation, "What the message says; the entry form is attached to it.");
    EXPECT_EQ(forForm.cmdExit.explanation, "Sends nothing; the entry form stays where it was saved.");
    EXPECT_EQ(screen.txtMessage.explanation, "What the message says; the reports are attached to it.");
    draft.unsent = MailText{{"a@x.org"}, "Mine", "as I wrote it"};
    forForm.load();
    EXPECT_EQ(forForm.txtSubject.text, "Mine");
    EXPECT_EQ(forForm.txtMessage.text, "as I wrote it");
}

TEST_F(EmailAgain, TypedAddressesWithASemicolonBetweenThemAreTwo)
{
    open();
    screen.cmdFreeEntry.click();
    enter("a@x.org; b@x.org");
    EXPECT_EQ(screen.lstTo.rows, (Rows{"a@x.org", "b@x.org"}));
}

TEST_F(EmailAgain, APlayersTwoAddressesAreTwoRecipients)
{
    open();
    screen.lstPlayerNames.selected = 0;
    screen.lstPlayerNames.doubleClicked();
    EXPECT_EQ(screen.lstTo.rows, (Rows{"bob@x.org", "ann@x.org"}));
}

TEST_F(EmailAgain, EverybodyIncludesASecondAddressAndMissesNobodyForIt)
{
    scratch.put("PLAYERNAMES.CSV",
                playerFile({csv("Adams,B", "ADAMS_B.THC", "bob@x.org; ann@x.org"), csv("Baker,C", "BAKER_C.THC")}));
    draft.toEverybody = true;
    open();
    EXPECT_EQ(screen.lstTo.rows, (Rows{"bob@x.org", "ann@x.org"}));
    EXPECT_EQ(platform.dialogs.shown.size(), 1u) << "the second address hid that Baker has none";
}

TEST_F(EmailAgain, CopiesAllAddressesAndSaysHowMany)
{
    open();
    EXPECT_FALSE(screen.cmdCopy.enabled) << "there is nothing to copy";
    screen.cmdFreeEntry.click();
    enter("a@x.org; b@x.org");
    EXPECT_TRUE(screen.cmdCopy.enabled);
    screen.cmdCopy.click();
    EXPECT_EQ(platform.clipboard.text, "a@x.org, b@x.org");
    EXPECT_EQ(screen.news().text, "2 addresses are copied.");
}

TEST_F(EmailAgain, NotInListEmptiesTheBoxOfAPlayerLookedUp)
{
    open();
    screen.keyPressed(screen.txtEntry, {ui::Key::Character, 'b'});
    ASSERT_NE(screen.txtEntry.text, "") << "the search completes the name";
    screen.cmdFreeEntry.click();
    EXPECT_EQ(screen.txtEntry.text, "");
}

TEST_F(EmailAgain, NotInListLetsTypingReplaceOtherText)
{
    open();
    screen.txtEntry.text = "stranger@x.org";
    screen.cmdFreeEntry.click();
    EXPECT_EQ(screen.txtEntry.text, "stranger@x.org");
    EXPECT_EQ(screen.txtEntry.selectionStart, 0);
    EXPECT_EQ(screen.txtEntry.selectionLength, 14);
}

TEST_F(EmailAgain, ShowsWhatNoMailProgramHasTaken)
{
    draft.unsent = MailText{{"z@x.org", "a@x.org"}, "Standings", "Hello\r\nall"};
    open();
    EXPECT_EQ(screen.lstTo.rows, (Rows{"z@x.org", "a@x.org"}));
    EXPECT_EQ(screen.txtSubject.text, "Standings");
    EXPECT_EQ(screen.txtMessage.text, "Hello\r\nall");
    EXPECT_NE(screen.news().text, "");
    EXPECT_EQ(draft.subject, "") << "the result is empty until Send Email";
}

TEST_F(EmailAgain, KeepsTheRecipientsWhenThePlayerListCannotBeUsed)
{
    scratch.put("PLAYERNAMES.CSV", "damaged\r\n");
    draft.unsent = MailText{{"z@x.org", "a@x.org"}, "Standings", "Hello"};
    open();
    EXPECT_EQ(screen.lstTo.rows, (Rows{"z@x.org", "a@x.org"}));
    EXPECT_TRUE(screen.lstPlayerNames.rows.empty());
}

TEST_F(EmailAgain, AddressesEverybodyAnewWhenThatIsAsked)
{
    draft.unsent = MailText{{"z@x.org"}, "Standings", "Hello"};
    draft.toEverybody = true;
    open();
    EXPECT_EQ(screen.lstTo.rows, (Rows{"bob@x.org", "ann@x.org", "c@x.org"}));
    EXPECT_EQ(screen.txtSubject.text, "Standings");
}

TEST_F(EmailAgain, KeepsTheMessageWhenItIsCancelled)
{
    draft.unsent = MailText{{"z@x.org"}, "Standings", "Hello"};
    open();
    screen.cmdExit.click();
    ASSERT_TRUE(draft.unsent);
    EXPECT_EQ(draft.unsent->message, "Hello");
}

} // namespace
} // namespace tallyhoop::test
