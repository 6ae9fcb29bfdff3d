// screens/players/email_screen.cpp - from typed names to a list of addresses.
#include "screens/players/email_screen.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "screens/help_topics.h"
#include "screens/list_search.h"
#include "screens/players/addresses.h"
#include "screens/saving.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

// Texts are kept letter for letter, odd spellings included.
constexpr const char* kCaption = "Tallyhoop - EMail Selections";

const ui::Message kFaultyPlayerNames{kCaption,
                                     "Problems found with PLAYERNAMES.CSV file\r\n"
                                     "This condition must be corrected, See Help content",
                                     ui::Buttons::Ok, ui::Icon::Critical, help_topic::kRepair};
const ui::Message kSomebodyWithoutAddress{kCaption,
                                          "You have selected the \"EMail All\" option and there\r\n"
                                          "is at least one player name without an EMail address.\r\n"
                                          "\r\n"
                                          "Print a Player Listing to locate the missing EMail address.",
                                          ui::Buttons::Ok, ui::Icon::None};
const ui::Message kNoAddress{"Tallyhoop - frmPoolEMail, Form_KeyPress",
                             "EMail address does not exist for this player. You must either\r\n"
                             "enter the EMail manually or select the \"Edit Names File\" menu\r\n"
                             "option from the main form & add this EMail address.",
                             ui::Buttons::Ok, ui::Icon::Exclamation};
const ui::Message kSelectBeforeDelete{"Tallyhoop - PoolEmail, cmdDelete",
                                      "You must select one of the entries from the list \r\n"
                                      "of EMail address selections.\r\n"
                                      "\r\n"
                                      "Make a selection and then retry.",
                                      ui::Buttons::Ok, ui::Icon::Exclamation};
const ui::Message kNoRecipients{"Tallyhoop - PoolEMail, cmdSend_Click",
                                "No \"SendTo\" names were defined, You can cancel\r\n"
                                "and complete these entries or if you continue, your\r\n"
                                "mail system will prompt you with another opportunity to complete these.",
                                ui::Buttons::OkCancel, ui::Icon::Question};

std::string addressOf(const PlayerRecord& record) { return withoutOuterBlanks(record.email); }

std::string listRow(const PlayerRecord& record)
{
    return fitted(record.name, kNameWidth) + "  (" + addressOf(record) + ")";
}

} // namespace

EmailScreen::EmailScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, MailDraft& draft)
    : ui::Screen{"frmPoolEMail", kCaption},
      m_folder{folder},
      m_dialogs{platform.dialogs},
      m_clipboard{platform.clipboard},
      m_screens{screens},
      m_draft{draft}
{
    const bool isForm = m_draft.kind == MailKind::EntryForm;
    lstPlayerNames.fixedPitch = true;
    lstPlayerNames.spokenName = "Players";
    lstPlayerNames.doubleClicked = [this] { addSelectedPlayer(); };
    lstTo.spokenName = "Recipients";
    txtEntry.spokenName = lblEntry.text;
    txtSubject.spokenName = "Subject";
    txtMessage.spokenName = "EMail message";
    txtMessage.multiLine = true;
    cmdFreeEntry.toolTip = "Type addresses of people who are not players";
    cmdUseList.toolTip = "Find players by typing the beginning of their names";
    cmdFreeEntry.explanation = cmdFreeEntry.toolTip + ".";
    cmdUseList.explanation = cmdUseList.toolTip + ".";
    lstPlayerNames.explanation = "A double click, or Enter in the box above, adds the player's address.";
    lstTo.explanation = "Who gets the message.";
    lstPlayerNames.emptyNote = "No players to choose from.";
    lstTo.emptyNote = "No address yet: press Enter on a player, or type an address.";
    cmdDelete.explanation = "Takes the selected address out again.";
    cmdCopy.explanation = "Copies all addresses above, to be pasted into a message that you write elsewhere.";
    txtSubject.explanation = "The message's subject.";
    txtMessage.explanation = std::string{"What the message says; "} +
                             (isForm ? "the entry form is" : "the reports are") + " attached to it.";
    cmdSend.explanation = "Hands the message to your mail program, where you send it.";
    cmdExit.explanation = isForm ? "Sends nothing; the entry form stays where it was saved."
                                 : "Sends nothing; the report files stay in the program's folder.";

    int tab = 0;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&txtEntry, &cmdFreeEntry, &cmdUseList, &lstPlayerNames, &lstTo, &cmdDelete,
                                             &cmdCopy, &txtSubject, &txtMessage, &cmdSend, &cmdExit})
        control->tabIndex = tab++;
    focused = &txtEntry;
}

std::string EmailScreen::helpTopic() const { return m_playersFaulty ? help_topic::kRepair : help_topic::kEmail; }

void EmailScreen::load()
{
    m_draft.subject.clear();
    m_draft.message.clear();
    txtSubject.text = m_draft.proposal.subject;
    txtMessage.text = m_draft.proposal.message;
    if (m_draft.unsent) {
        txtSubject.text = m_draft.unsent->subject;
        txtMessage.text = m_draft.unsent->message;
        lstTo.rows = m_draft.unsent->recipients;
        say("This is the message that no mail program has taken. Change it as you like.");
    }
    m_playersFaulty = !playerListIsSound(m_dialogs, m_folder);
    if (m_playersFaulty) {
        m_dialogs.show(kFaultyPlayerNames);
        return;
    }
    const std::vector<PlayerRecord> records = readPlayerNames(m_folder);
    fillPlayers(records);
    if (m_draft.toEverybody)
        addressEverybody(records);
}

void EmailScreen::showState()
{
    lblTo.text = "Send To: (" + std::to_string(lstTo.rows.size()) + ")";
    cmdCopy.enabled = !lstTo.rows.empty();
    cmdFreeEntry.enabled = !m_freeEntry;
    cmdUseList.enabled = m_freeEntry;
    txtEntry.explanation = m_freeEntry
                               ? "Type an address, or several with semicolons between them, and press Enter."
                               : "Type the first letters of a player's name, and press Enter to add the address.";
}

void EmailScreen::fillPlayers(std::span<const PlayerRecord> records)
{
    // Each row keeps the address of its own record: a name may hold a parenthesis of its own.
    std::vector<std::pair<std::string, std::string>> players;
    players.reserve(records.size());
    for (const PlayerRecord& record : records)
        players.emplace_back(listRow(record), addressOf(record));
    std::ranges::stable_sort(players, FoldedLess{}, &std::pair<std::string, std::string>::first);
    for (auto& [row, address] : players) {
        lstPlayerNames.rows.push_back(std::move(row));
        m_addresses.push_back(std::move(address));
    }
}

void EmailScreen::addressEverybody(std::span<const PlayerRecord> records)
{
    bool somebodyWithout = false;
    lstTo.rows.clear();
    for (const PlayerRecord& record : records) {
        const std::vector<std::string> addresses = addressesIn(record.email);
        somebodyWithout = somebodyWithout || addresses.empty();
        lstTo.rows.insert(lstTo.rows.end(), addresses.begin(), addresses.end());
    }
    if (somebodyWithout)
        m_dialogs.show(kSomebodyWithoutAddress);
}

bool EmailScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    const bool inEntry = &control == &txtEntry;
    if (press.key == ui::Key::Enter && (inEntry || &control == &lstPlayerNames)) {
        enter();
        return true;
    }
    if (!inEntry || m_freeEntry)
        return false;
    say(nothingFound(txtEntry, lstPlayerNames, press));
    return typeAhead(txtEntry, lstPlayerNames, press);
}

/// Text that did not come through the search (pasted, or accented letters): the selected row must not be another
/// player's than the one the box names, because Enter would address it.
void EmailScreen::entryEdited()
{
    if (!m_freeEntry && !txtEntry.text.empty())
        lstPlayerNames.selected = findRow(lstPlayerNames.rows, txtEntry.text);
}

void EmailScreen::enter()
{
    if (!m_freeEntry) {
        if (addSelectedPlayer())
            txtEntry.text.clear();
        return;
    }
    addRecipients(txtEntry.text);
    txtEntry.text.clear();
}

/// @returns whether an address was added
bool EmailScreen::addSelectedPlayer()
{
    if (!lstPlayerNames.selected)
        return false;
    if (addRecipients(m_addresses.at(static_cast<std::size_t>(*lstPlayerNames.selected))))
        return true;
    m_dialogs.show(kNoAddress);
    return false;
}

/// @returns whether the text held an address
bool EmailScreen::addRecipients(const std::string& text)
{
    const std::vector<std::string> addresses = addressesIn(text);
    lstTo.rows.insert(lstTo.rows.end(), addresses.begin(), addresses.end());
    return !addresses.empty();
}

/// For those who write their mail in a browser.
void EmailScreen::copyAddresses()
{
    m_clipboard.put(joined(lstTo.rows, ", "));
    say(lstTo.rows.size() == 1 ? "One address is copied."
                               : std::to_string(lstTo.rows.size()) + " addresses are copied.");
}

/// What is left of a search must not become part of the address: a player's row goes, other text is replaced by typing.
void EmailScreen::typeAddresses()
{
    setFreeEntry(true);
    if (findRow(lstPlayerNames.rows, txtEntry.text))
        txtEntry.text.clear();
    txtEntry.selectionStart = 0;
    txtEntry.selectionLength = static_cast<int>(txtEntry.text.size());
}

void EmailScreen::setFreeEntry(bool on)
{
    m_freeEntry = on;
    focused = &txtEntry;
}

void EmailScreen::matchList()
{
    setFreeEntry(false);
    txtEntry.text.clear();
}

void EmailScreen::deleteRecipient()
{
    if (!lstTo.selected) {
        m_dialogs.show(kSelectBeforeDelete);
        return;
    }
    lstTo.rows.erase(lstTo.rows.begin() + *lstTo.selected);
    lstTo.selected.reset();
    focused = &txtEntry;
}

void EmailScreen::sendEmail()
{
    if (lstTo.rows.empty() && m_dialogs.show(kNoRecipients) == ui::Answer::Cancel)
        return;
    m_draft.recipients = lstTo.rows;
    m_draft.message = txtMessage.text;
    m_draft.subject = txtSubject.text;
    m_screens.unload(ScreenKind::Email);
}

void EmailScreen::cancel()
{
    m_draft.cancelled = true;
    m_screens.unload(ScreenKind::Email);
}

} // namespace tallyhoop
