// screens/mailing.cpp - a session with the mail program around each message, and the offer to go to a message file.
#include "screens/mailing.h"

#include "files/data_folder.h"
#include "screens/help_topics.h"
#include "screens/reports/report_output.h"
#include "ui/work.h"

#include <utility>

namespace tallyhoop {

namespace {

/// What the sentences call the attachments.
struct Words {
    const char* things = ""; ///< as in "attach the reports", "the message and its reports"
    const char* again = "";  ///< as in "when you mail reports again"
    const char* where = "";  ///< what is beside the message file
};

Words wordsOf(MailKind kind)
{
    if (kind == MailKind::Reports)
        return {"reports", "reports", "All files are in the folder"};
    return {"entry form", "the entry form", "The message is in the folder"};
}

/// Signs on unless a session is open; signs off after the message.
Result<ui::HandedOver> handOver(const Mailing& mailing, std::span<const std::filesystem::path> files)
{
    ui::Mail& mail = mailing.platform.mail;
    const Work busy{mailing.platform.progress, "Opening the mail program", 1};
    if (!mail.isOpen())
        if (Result<Done> signedOn = mail.signOn(); !signedOn)
            return signedOn.failure();
    Result<ui::HandedOver> sent = mail.send(reportMessage(mailing.draft, files));
    mail.signOff();
    return sent;
}

bool isUnsent(const Result<ui::HandedOver>& sent)
{
    return !sent || !sent->trouble.empty() || sent->progress == ui::MailProgress::GivenUp;
}

/// What the screen says of a message that was handed over.
std::string newsOf(const ui::HandedOver& sent)
{
    if (!sent.file.empty())
        return "The message is in the file " + shown(sent.file.filename()) + ".";
    if (sent.progress == ui::MailProgress::Taken)
        return "Your mail program has taken the message.";
    return "Your mail program has the message: send it there.";
}

/// Where the message is that no mail program has got directly, and the offer to go there.
ui::Message inMessageFile(const ui::HandedOver& sent, const std::string& title, const Words& words)
{
    const std::string things = words.things;
    const std::string file = shown(sent.file.filename());
    const std::string rest = " with your mail program, or attach the " + things + " to a message of your own. " +
                             words.where + "\r\n" + shown(sent.file.parent_path()) +
                             "\r\n\r\nDo you want to see this folder?";
    if (sent.trouble.empty())
        return {title,
                "The message and its " + things + " are in the file " + file +
                    ", which the desktop has been asked to open.\r\nSend the message from the window that "
                    "opens.\r\n\r\nIf none does, open the file" +
                    rest,
                ui::Buttons::YesNo, ui::Icon::Information, help_topic::kEmail};
    return {title,
            "The message could not be handed to a mail program.\r\n" + sent.trouble + "\r\n\r\nIt is in the file " +
                file + ", with its " + things + ". Open this file" + rest,
            ui::Buttons::YesNo, ui::Icon::Exclamation, help_topic::kEmail};
}

void offerMessageFile(const ui::Platform& platform, const ui::HandedOver& sent, const std::string& title,
                      const Words& words)
{
    if (platform.dialogs.show(inMessageFile(sent, title, words)) != ui::Answer::Yes)
        return;
    if (const Result<Done> opened = platform.programs.openFolder(sent.file.parent_path()); !opened)
        platform.dialogs.show({title, opened.failure().message, ui::Buttons::Ok, ui::Icon::Exclamation});
}

} // namespace

void mailFiles(const Mailing& mailing, std::span<const std::filesystem::path> files, const MailRequest& request)
{
    MailDraft& draft = mailing.draft;
    MailDraft asked;
    asked.kind = request.kind;
    asked.toEverybody = request.toEverybody;
    asked.proposal = request.proposal;
    asked.unsent = std::move(draft.unsent);
    draft = std::move(asked);
    mailing.screens.load(ScreenKind::Email);
    if (draft.cancelled) {
        draft.cancelled = false;
        return;
    }
    const Words words = wordsOf(request.kind);
    const Result<ui::HandedOver> sent = handOver(mailing, files);
    draft.unsent.reset();
    if (isUnsent(sent))
        draft.unsent = MailText{draft.recipients, draft.subject, draft.message};
    draft.recipients.clear();
    if (draft.unsent)
        mailing.screen.say(std::string{"Not sent. What you wrote comes back when you mail "} + words.again + " again.");
    else
        mailing.screen.say(newsOf(*sent));
    if (!sent)
        mailing.platform.dialogs.show({request.title, sent.failure().message, ui::Buttons::Ok, ui::Icon::Exclamation});
    else if (!sent->file.empty())
        offerMessageFile(mailing.platform, *sent, request.title, words);
}

} // namespace tallyhoop
