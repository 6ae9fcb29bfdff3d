// screens/entries/entry_form_screen.cpp - the address, the file, and the message to everybody.
#include "screens/entries/entry_form_screen.h"

#include "base/text.h"
#include "intake/addresses.h"
#include "reports/entry_form/entry_form.h"
#include "screens/help_topics.h"
#include "screens/mailing.h"
#include "screens/saving_as.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Entry Form";

const ui::Message kNoAddress{kCaption,
                             "This is not an e-mail address that brackets can be sent to.\r\n"
                             "Enter one, such as ann@example.org, or leave the box empty:\r\n"
                             "then the players' mail programs ask whom to send to.",
                             ui::Buttons::Ok, ui::Icon::Exclamation, help_topic::kEntries};

/// What players read who have never heard of the page.
MailText invitation(const Field& field)
{
    return {{},
            "Your bracket: " + asOneLine(field.title),
            joinLines({"Hello,", "",
                       "the attached page is the entry form of our pool. Save it and open it in any browser, on a",
                       "telephone or a computer: it needs no account and no connection. Fill in your bracket, and",
                       "hand it in as the page says."})};
}

} // namespace

EntryFormScreen::EntryFormScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                                 const Shared& shared)
    : Screen{"frmEntryForm", kCaption}, m_folder{folder}, m_platform{platform}, m_screens{screens}, m_shared{shared}
{
    txtOrganiser.spokenName = "Your e-mail address";
    txtOrganiser.explanation = "Where brackets are mailed to; where it is empty, players enter an address.";
    cmdSave.explanation = "Writes the form, one file, to be put where players find it.";
    cmdMail.explanation = "Saves the form unless it is saved, and mails it to everybody in the player list.";
    cmdClose.explanation = "Back to where you were.";
    cmdSave.isDefault = true;
    focused = &txtOrganiser;
}

std::string EntryFormScreen::helpTopic() const { return help_topic::kEntries; }

void EntryFormScreen::load() { txtOrganiser.text = m_shared.organiser; }

void EntryFormScreen::closeRequested() { m_screens.unload(ScreenKind::EntryForm); }

/// @returns whether what is in the box can be used
bool EntryFormScreen::takeAddress()
{
    std::string address = withoutOuterBlanks(txtOrganiser.text);
    if (!address.empty() && !isAddressForEntries(address)) {
        focused = &txtOrganiser;
        m_platform.dialogs.show(kNoAddress);
        return false;
    }
    txtOrganiser.text = address;
    m_shared.organiser = std::move(address);
    return true;
}

/// @returns whether it is saved
bool EntryFormScreen::saveForm()
{
    say({});
    if (!takeAddress())
        return false;
    const auto file = saveAs(m_platform, m_folder,
                             {"Save Entry Form", "Web pages (*.HTML)", ".HTML", kEntryFormFile,
                              entryFormPage(m_shared.field, {m_shared.organiser})});
    if (!file) {
        say("Not saved.");
        return false;
    }
    m_saved = SavedForm{*file, m_shared.organiser};
    say("Saved " + shown(file->filename()) + ".");
    return true;
}

void EntryFormScreen::mailForm()
{
    if (!takeAddress())
        return;
    const bool isCurrent = m_saved && m_saved->organiser == m_shared.organiser;
    if (!isCurrent && !saveForm())
        return;
    // A message with reports that no mail program has taken comes back with the reports, not here.
    std::optional<MailText> ofReports = std::exchange(m_shared.draft.unsent, std::move(m_unsent));
    mailFiles(
        {m_platform, m_screens, m_shared.draft, *this}, std::span{&m_saved->file, 1},
        {.kind = MailKind::EntryForm, .title = kCaption, .toEverybody = true, .proposal = invitation(m_shared.field)});
    m_unsent = std::exchange(m_shared.draft.unsent, std::move(ofReports));
}

} // namespace tallyhoop
