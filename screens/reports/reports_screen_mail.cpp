// screens/reports/reports_screen_mail.cpp - the e-mail step: one message with the files of the reports just made.
#include "screens/reports/report_output.h"
#include "screens/reports/reports_screen.h"

namespace tallyhoop {

void ReportsScreen::MailReports()
{
    m_state.mailDraft = {};
    m_state.mailDraft.emailAll = mblnSelectEMailAll;
    m_screens.load(ScreenKind::EMail);
    MailDraft& draft = m_state.mailDraft;
    if (draft.cancelled) {
        draft.cancelled = false;
        return;
    }

    ui::Mail& mail = m_platform.mail;
    if (!mail.isOpen())
        if (const Result<Done> signedOn = mail.signOn(); !signedOn) {
            showMailTrouble(signedOn.failure());
            return;
        }

    std::vector<std::filesystem::path> files;
    for (std::size_t index = 0; index < kReports; ++index)
        if (chkOptions[index].ticked && m_made[index])
            files.push_back(*m_folder.pathOf(reportTable()[index].file));
    const ui::MailMessage message = reportMessage(draft, files);
    draft.recipients.clear();
    const Result<Done> sent = mail.send(message);
    mail.signOff();
    if (!sent)
        showMailTrouble(sent.failure());
}

/// The report files stay where they are, so nothing is lost.
void ReportsScreen::showMailTrouble(const Failure& failure)
{
    m_platform.dialogs.show(
        {"Tallyhoop - frmPoolReports, MailReports", failure.message, ui::Buttons::Ok, ui::Icon::Exclamation});
}

} // namespace tallyhoop
