// tests/screens/reports/reports_screen_mail_test.cpp - reports by e-mail.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

struct ReportsMail : ReportsScreenTest {
    ReportsMail()
    {
        putFourPlayers(folder);
        screen.load();
        sendFromTheDialog(
            {.recipients = {"a@example.org", "b@example.org"}, .subject = "Standings", .message = "Hello all"});
    }

    std::vector<std::string> attachedNames() const
    {
        std::vector<std::string> names;
        for (const ui::Attachment& attachment : platform.mail.sent.at(0).attachments)
            names.push_back(attachment.file.filename().string());
        return names;
    }
};

TEST_F(ReportsMail, SendsOneMessageWithAllReports)
{
    tick({kStandings, kTeamSummary, kByTeam});

    create(kEmail);

    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Email});
    ASSERT_EQ(platform.mail.sent.size(), 1u);
    const ui::MailMessage& message = platform.mail.sent[0];
    EXPECT_EQ(message.recipients, (std::vector<std::string>{"a@example.org", "b@example.org"}));
    EXPECT_EQ(message.subject, "Standings");
    EXPECT_EQ(message.body, "Hello all          ");
    EXPECT_EQ(message.placeholders, 10u);
    EXPECT_EQ(attachedNames(), (std::vector<std::string>{"RPTOPT1.TXT", "RPTOPT3.TXT", "RPTOPT7.TXT"}));
    EXPECT_EQ(message.attachments[0].position, 11u); // 19 - 8
    EXPECT_EQ(message.attachments[1].position, 12u);
    EXPECT_EQ(message.attachments[2].position, 13u);
    EXPECT_EQ(message.attachments[0].file, folder.path() / "RPTOPT1.TXT");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsMail, HasTheReportFilesReadyBeforeTheDialogOpens)
{
    tick({kStandings, kByTeam});
    screens.whenLoaded = [this](ScreenKind) {
        EXPECT_TRUE(folder.has("RPTOPT1.TXT"));
        EXPECT_TRUE(folder.has("RPTOPT7.TXT"));
        EXPECT_EQ(platform.progress.begun, platform.progress.ended);
        draft.cancelled = true;
    };

    create(kEmail);

    EXPECT_TRUE(platform.mail.sent.empty());
}

TEST_F(ReportsMail, PassesOnToTheDialogWhetherEverybodyIsToBeAddressed)
{
    tick({kStandings});

    create(kEmail);
    EXPECT_FALSE(requested.toEverybody);

    create(kEmailAll);
    EXPECT_TRUE(requested.toEverybody);
    EXPECT_TRUE(requested.recipients.empty());
}

TEST_F(ReportsMail, LeavesOutAReportThatFailed)
{
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    folder.put("RPTOPT1.TXT", "last week's");
    tick({kStandings, kTeamSummary});

    create(kEmail);

    EXPECT_FALSE(isTicked(kStandings));
    EXPECT_EQ(attachedNames(), std::vector<std::string>{"RPTOPT3.TXT"});
}

TEST_F(ReportsMail, SendsNothingWhenThePersonCancelledAReport)
{
    tick({kStandings, kPlayerDetail});
    platform.progress.cancelFromWork = 3; // each of the two reads the selections and then scores them

    create(kEmail);

    EXPECT_TRUE(folder.has("RPTOPT1.TXT"));
    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(platform.mail.sent.empty());
}

TEST_F(ReportsMail, NeverAttachesTheOlderFileOfAReportThatFailedButStaysTicked)
{
    for (const Entry& player : fourPlayers())
        std::filesystem::remove(folder.path() / player.fileName);
    folder.put("RPTOPT5.TXT", "last week's");
    tick({kListing, kPlayerDetail});

    create(kEmail);

    EXPECT_TRUE(isTicked(kPlayerDetail));
    EXPECT_EQ(attachedNames(), std::vector<std::string>{"RPTOPT2.TXT"});
}

TEST_F(ReportsMail, AttachesOnlyWhatThisPressHasMade)
{
    tick({kListing, kPlayerDetail});
    create(kEmail);
    for (const Entry& player : fourPlayers())
        std::filesystem::remove(folder.path() / player.fileName);
    platform.mail.sent.clear();

    create(kEmail);

    EXPECT_TRUE(folder.has("RPTOPT5.TXT")) << "of the first press";
    EXPECT_EQ(attachedNames(), std::vector<std::string>{"RPTOPT2.TXT"});
}

TEST_F(ReportsMail, ShowsNoDialogWhenEveryReportFailed)
{
    std::filesystem::remove(folder.path() / "TALLYHOOP.THS");
    tick({kStandings, kByTeam});

    create(kEmailAll);

    EXPECT_TRUE(screens.loads.empty());
    EXPECT_TRUE(platform.mail.sent.empty());
    EXPECT_EQ(platform.dialogs.shown.size(), 2u);
}

TEST_F(ReportsMail, EndsSilentlyWhenTheDialogIsCancelled)
{
    MailDraft nothing;
    nothing.cancelled = true;
    sendFromTheDialog(nothing);
    tick({kStandings});

    create(kEmail);

    EXPECT_FALSE(draft.cancelled);
    EXPECT_EQ(platform.mail.signOns, 0);
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsMail, SignsOnAndOffAroundTheMessage)
{
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(platform.mail.signOns, 1);
    EXPECT_EQ(platform.mail.signOffs, 1);
    EXPECT_FALSE(platform.mail.open);
}

TEST_F(ReportsMail, UsesASessionThatIsStillOpen)
{
    platform.mail.open = true;
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(platform.mail.signOns, 0);
    EXPECT_EQ(platform.mail.signOffs, 1);
}

TEST_F(ReportsMail, EmptiesTheRecipientsAfterwards)
{
    tick({kStandings});

    create(kEmail);

    EXPECT_TRUE(draft.recipients.empty());
}

TEST_F(ReportsMail, SaysSoWhenThereIsNoMailSystem)
{
    platform.mail.signOnTrouble = Failure{"No mail client was found."};
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{exclamation("Tallyhoop - frmPoolReports, MailReports", "No mail client was found.")});
    EXPECT_TRUE(platform.mail.sent.empty());
    EXPECT_TRUE(folder.has("RPTOPT1.TXT"));
}

TEST_F(ReportsMail, SaysSoWhenTheMessageCouldNotBeHandedOverAndSignsOff)
{
    platform.mail.sendTrouble = Failure{"The mail client did not start."};
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(platform.dialogs.shown,
              std::vector{exclamation("Tallyhoop - frmPoolReports, MailReports", "The mail client did not start.")});
    EXPECT_EQ(platform.mail.signOffs, 1);
    EXPECT_TRUE(folder.has("RPTOPT1.TXT"));
}

TEST_F(ReportsMail, SaysThatTheMailProgramHasTheMessage)
{
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(screen.news().text, "Your mail program has the message: send it there.");
    EXPECT_FALSE(draft.unsent);
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

/// A client that waits for its person has closed its window by now.
TEST_F(ReportsMail, SaysThatTheMailProgramHasTakenTheMessage)
{
    platform.mail.handedOver.progress = ui::MailProgress::Taken;
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(screen.news().text, "Your mail program has taken the message.");
    EXPECT_FALSE(draft.unsent);
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsMail, KeepsWhatWasWrittenWhenTheMailProgramsWindowWasClosedWithoutSending)
{
    platform.mail.handedOver.progress = ui::MailProgress::GivenUp;
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(screen.news().text, "Not sent. What you wrote comes back when you mail reports again.");
    ASSERT_TRUE(draft.unsent);
    EXPECT_EQ(draft.unsent->message, "Hello all");
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "the person knows: it was their own doing";
}

TEST_F(ReportsMail, KeepsWhatWasWrittenUntilAMailProgramHasIt)
{
    platform.mail.sendTrouble = Failure{"The mail client did not start."};
    tick({kStandings});

    create(kEmail);

    ASSERT_TRUE(draft.unsent);
    EXPECT_EQ(draft.unsent->recipients, (std::vector<std::string>{"a@example.org", "b@example.org"}));
    EXPECT_EQ(draft.unsent->subject, "Standings");
    EXPECT_EQ(draft.unsent->message, "Hello all");
    EXPECT_EQ(screen.news().text, "Not sent. What you wrote comes back when you mail reports again.");

    platform.mail.sendTrouble.reset();
    create(kEmail);

    ASSERT_TRUE(requested.unsent) << "the dialog could not show it again";
    EXPECT_EQ(requested.unsent->message, "Hello all");
    EXPECT_FALSE(draft.unsent);
}

TEST_F(ReportsMail, NamesTheMessageFileAndOffersItsFolder)
{
    platform.mail.handedOver = {folder.path() / "TALLYHOOP.EML", ""};
    platform.dialogs.answer(ui::Answer::Yes);
    tick({kStandings});

    create(kEmail);

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(
        platform.dialogs.shown[0],
        (ui::Message{"Tallyhoop - frmPoolReports, MailReports",
                     "The message and its reports are in the file TALLYHOOP.EML, which the desktop has been asked "
                     "to open.\r\n"
                     "Send the message from the window that opens.\r\n\r\n"
                     "If none does, open the file with your mail program, or attach the reports to a message of "
                     "your own. All files are in the folder\r\n" +
                         folder.path().string() + "\r\n\r\nDo you want to see this folder?",
                     ui::Buttons::YesNo, ui::Icon::Information, "email"}));
    EXPECT_EQ(platform.programs.foldersOpened, std::vector{folder.path()});
    EXPECT_FALSE(draft.unsent) << "the file was opened";
    EXPECT_EQ(screen.news().text, "The message is in the file TALLYHOOP.EML.");
}

TEST_F(ReportsMail, SaysWhyNoProgramHasOpenedTheMessageFile)
{
    platform.mail.handedOver = {folder.path() / "TALLYHOOP.EML", "gio ended with the error 2."};
    platform.dialogs.answer(ui::Answer::No);
    tick({kStandings});

    create(kEmail);

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text,
              "The message could not be handed to a mail program.\r\n"
              "gio ended with the error 2.\r\n\r\n"
              "It is in the file TALLYHOOP.EML, with its reports. Open this file with your mail program, or attach the "
              "reports to a message of your own. All files are in the folder\r\n" +
                  folder.path().string() + "\r\n\r\nDo you want to see this folder?");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Exclamation);
    EXPECT_TRUE(platform.programs.foldersOpened.empty());
    EXPECT_TRUE(draft.unsent);
}

TEST_F(ReportsMail, SaysSoWhenTheFolderCannotBeShown)
{
    platform.mail.handedOver = {folder.path() / "TALLYHOOP.EML", ""};
    platform.programs.openFolderTrouble = Failure{"No program was found that shows folders."};
    platform.dialogs.answer(ui::Answer::Yes);
    tick({kStandings});

    create(kEmail);

    EXPECT_EQ(platform.dialogs.shown.back(),
              exclamation("Tallyhoop - frmPoolReports, MailReports", "No program was found that shows folders."));
}

TEST_F(ReportsMail, ShowsABusyPointerWhileTheMailProgramStarts)
{
    tick({kStandings});
    int begunBefore = 0;
    screens.whenLoaded = [&](ScreenKind) { begunBefore = platform.progress.begun; };

    create(kEmail);

    EXPECT_EQ(platform.progress.begun, begunBefore + 1);
    EXPECT_EQ(platform.progress.ended, platform.progress.begun);
}

TEST_F(ReportsMail, CarriesAllSevenReports)
{
    tickAll();

    create(kEmailAll);

    EXPECT_EQ(attachedNames(), (std::vector<std::string>{"RPTOPT1.TXT", "RPTOPT2.TXT", "RPTOPT3.TXT", "RPTOPT4.TXT",
                                                         "RPTOPT5.TXT", "RPTOPT6.TXT", "RPTOPT7.TXT"}));
}

} // namespace
} // namespace tallyhoop::test
