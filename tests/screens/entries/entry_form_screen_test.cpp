// tests/screens/entries/entry_form_screen_test.cpp - the form on the disk, and in a message to everybody.
#include "screens/entries/entry_form_screen.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "reports/entry_form/entry_form.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

struct EntryFormDialog : testing::Test {
    EntryFormDialog()
    {
        field.title = "Office Pool";
        field.finalized = "1";
        open();
        sendFromTheDialog({.recipients = {"ann@x.org", "bob@x.org"}, .subject = "Your bracket", .message = "Hello"});
    }

    void open()
    {
        screen.emplace(folder, platform.services, screens, EntryFormScreen::Shared{field, draft, organiser});
        screen->load();
        screen->showState();
    }

    /// What the person does in the e-mail dialog.
    void sendFromTheDialog(const MailDraft& written)
    {
        screens.whenLoaded = [this, written](ScreenKind kind) {
            EXPECT_EQ(kind, ScreenKind::Email);
            requested = draft;
            draft.recipients = written.recipients;
            draft.subject = written.subject;
            draft.message = written.message;
            draft.cancelled = written.cancelled;
        };
    }

    void saveAs(const std::string& name)
    {
        platform.dialogs.pick(scratch.path() / name);
        screen->cmdSave.click();
    }

    const std::string& news() const { return screen->news().text; }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    Field field = defaultField();
    MailDraft draft;
    MailDraft requested; ///< what the e-mail dialog was handed
    std::string organiser;
    std::optional<EntryFormScreen> screen;
};

TEST_F(EntryFormDialog, SavesThePageOfTheField)
{
    saveAs("ENTRYFORM.HTML");
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "ENTRYFORM.HTML");
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).pattern, "*.HTML");
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).folder, scratch.path());
    EXPECT_EQ(scratch.get("ENTRYFORM.HTML"), entryFormPage(field, {}));
    EXPECT_EQ(news(), "Saved ENTRYFORM.HTML.");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(EntryFormDialog, PutsTheAddressIntoTheForm)
{
    screen->txtOrganiser.text = "  org@example.org ";
    saveAs("form");
    const std::string page = scratch.get("form.HTML");
    EXPECT_NE(page.find("\"organiser\":\"org@example.org\""), std::string::npos);
    EXPECT_EQ(screen->txtOrganiser.text, "org@example.org");
}

TEST_F(EntryFormDialog, TheAddressIsThereAgainTheNextTime)
{
    screen->txtOrganiser.text = "org@example.org";
    saveAs("form");
    open();
    EXPECT_EQ(screen->txtOrganiser.text, "org@example.org");
}

TEST_F(EntryFormDialog, RefusesWhatIsNoAddress)
{
    for (const std::string text :
         {"org", "@example.org", "org@", "a@b@c.org", "org @example.org", "Org <o@example.org>", "a@x.org, b@x.org",
          "a@x.org;b@x.org", "o\"@x.org", "z\xEB@example.org", "a\t@x.org", "mailto:o@x.org", "o@x.org."}) {
        screen->focused = &screen->cmdSave;
        screen->txtOrganiser.text = text;
        platform.dialogs.shown.clear();
        screen->cmdSave.click();
        screen->cmdMail.click();
        EXPECT_EQ(platform.dialogs.captionsShown(), (std::vector<std::string>{"Entry Form", "Entry Form"})) << text;
        EXPECT_EQ(platform.dialogs.shown.at(0).helpTopic, "entries");
        EXPECT_EQ(screen->focused, &screen->txtOrganiser);
        EXPECT_EQ(screen->txtOrganiser.text, text) << "to be corrected";
    }
    EXPECT_TRUE(platform.dialogs.fileChoices.empty());
    EXPECT_EQ(organiser, "");
}

TEST_F(EntryFormDialog, RefusesAnAddressThatNoMailServerTakes)
{
    const std::string longest = std::string(64, 'a') + "@" + std::string(189, 'b'); // 254 characters
    screen->txtOrganiser.text = longest + "b";
    screen->cmdSave.click();
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"Entry Form"});
    screen->txtOrganiser.text = longest;
    platform.dialogs.pick(std::nullopt);
    screen->cmdSave.click();
    EXPECT_EQ(organiser, longest);
}

TEST_F(EntryFormDialog, TakesUnusualAddresses)
{
    for (const std::string text : {"o'brien+pool@mail.example.org", "a@localhost", "x_y-z.1@x.org", "a!b@x"}) {
        screen->txtOrganiser.text = text;
        platform.dialogs.pick(std::nullopt);
        screen->cmdSave.click();
        EXPECT_EQ(organiser, text);
    }
}

TEST_F(EntryFormDialog, SaysWhenNothingIsSaved)
{
    platform.dialogs.pick(std::nullopt);
    screen->cmdSave.click();
    EXPECT_EQ(news(), "Not saved.");
    scratch.put("ENTRYFORM.HTML", "last year's");
    platform.dialogs.answer(ui::Answer::No);
    saveAs("ENTRYFORM.HTML");
    EXPECT_EQ(scratch.get("ENTRYFORM.HTML"), "last year's");
    EXPECT_EQ(news(), "Not saved.");
}

TEST_F(EntryFormDialog, MailsTheSavedFormToEverybody)
{
    saveAs("ENTRYFORM.HTML");
    screen->cmdMail.click();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Email});
    EXPECT_TRUE(requested.toEverybody);
    EXPECT_EQ(requested.kind, MailKind::EntryForm);
    EXPECT_EQ(requested.proposal.subject, "Your bracket: Office Pool");
    EXPECT_NE(requested.proposal.message.find("open it in any browser"), std::string::npos);
    ASSERT_EQ(platform.mail.sent.size(), 1U);
    const ui::MailMessage& message = platform.mail.sent[0];
    EXPECT_EQ(message.recipients, (std::vector<std::string>{"ann@x.org", "bob@x.org"}));
    EXPECT_EQ(message.subject, "Your bracket");
    EXPECT_EQ(message.body, "Hello          ");
    ASSERT_EQ(message.attachments.size(), 1U);
    EXPECT_EQ(message.attachments[0].file, scratch.path() / "ENTRYFORM.HTML");
    EXPECT_EQ(news(), "Your mail program has the message: send it there.");
    EXPECT_EQ(platform.mail.signOffs, 1);
}

TEST_F(EntryFormDialog, SavesTheFormFirstWhenItIsNotSavedYet)
{
    platform.dialogs.pick(scratch.path() / "mine.html");
    screen->cmdMail.click();
    ASSERT_EQ(platform.mail.sent.size(), 1U);
    EXPECT_EQ(platform.mail.sent[0].attachments.at(0).file, scratch.path() / "mine.html");
    EXPECT_EQ(scratch.get("mine.html"), entryFormPage(field, {}));

    screen->cmdMail.click(); // the same form once more: nothing to ask
    EXPECT_EQ(platform.mail.sent.size(), 2U);

    screen->txtOrganiser.text = "org@example.org"; // which is not in the file
    platform.dialogs.pick(std::nullopt);
    screen->cmdMail.click();
    EXPECT_EQ(platform.mail.sent.size(), 2U);
    EXPECT_EQ(news(), "Not saved.");
}

TEST_F(EntryFormDialog, ACancelledMessageLeavesTheFormSaved)
{
    MailDraft nothing;
    nothing.cancelled = true;
    sendFromTheDialog(nothing);
    saveAs("ENTRYFORM.HTML");
    screen->cmdMail.click();
    EXPECT_TRUE(platform.mail.sent.empty());
    EXPECT_FALSE(draft.cancelled);
    EXPECT_EQ(news(), "Saved ENTRYFORM.HTML.");
}

TEST_F(EntryFormDialog, WhatNoMailProgramHasTakenComesBack)
{
    draft.unsent = MailText{{"boss@x.org"}, "Standings", "of last week"};
    platform.mail.sendTrouble = Failure{"There is no mail program."};
    saveAs("ENTRYFORM.HTML");
    screen->cmdMail.click();
    EXPECT_FALSE(requested.unsent) << "a message with reports";
    EXPECT_EQ(news(), "Not sent. What you wrote comes back when you mail the entry form again.");
    EXPECT_EQ(platform.dialogs.shown.back().text, "There is no mail program.");
    screen->cmdMail.click();
    ASSERT_TRUE(requested.unsent);
    EXPECT_EQ(requested.unsent->message, "Hello");
    ASSERT_TRUE(draft.unsent);
    EXPECT_EQ(draft.unsent->subject, "Standings") << "for the next message with reports";
}

TEST_F(EntryFormDialog, LeadsToTheMessageFileWhereNoProgramTakesAttachments)
{
    platform.mail.handedOver.file = scratch.path() / "TALLYHOOP.EML";
    saveAs("ENTRYFORM.HTML");
    platform.dialogs.answer(ui::Answer::Yes);
    screen->cmdMail.click();
    const std::string& text = platform.dialogs.shown.at(0).text;
    EXPECT_NE(text.find("The message and its entry form are in the file TALLYHOOP.EML"), std::string::npos) << text;
    EXPECT_NE(text.find("The message is in the folder\r\n" + scratch.path().string()), std::string::npos) << text;
    EXPECT_EQ(text.find("report"), std::string::npos) << text;
    EXPECT_EQ(platform.programs.foldersOpened, std::vector{scratch.path()});
    EXPECT_EQ(news(), "The message is in the file TALLYHOOP.EML.");
}

TEST_F(EntryFormDialog, ClosesByItsButtonAndByEscape)
{
    screen->cmdClose.click();
    screen->closeRequested();
    EXPECT_EQ(screens.unloads, (std::vector{ScreenKind::EntryForm, ScreenKind::EntryForm}));
    EXPECT_EQ(screen->helpTopic(), "entries");
}

} // namespace
} // namespace tallyhoop::test
