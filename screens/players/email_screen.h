// screens/players/email_screen.h - the dialog that gathers recipients, subject and message of an e-mail.
#pragma once

#include "files/data_folder.h"
#include "files/player_names_file.h"
#include "screens/hand_overs.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

/// Modal. The request is read from the mail draft, and the result is left there: recipients, subject and message on
/// Send Email, the cancelled flag alone on Exit/Cancel. Nothing is sent from here.
class EmailScreen : public ui::Screen
{
public:
    EmailScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, MailDraft& draft);

    ui::Label lblEntry{this, "lblEntry", "Enter Email Addresses"};
    ui::TextBox txtEntry{this, "txtEntry", [this] { entryEdited(); }};
    ui::Command cmdFreeEntry{this, "cmdFreeEntry", "&Not In List Below", [this] { typeAddresses(); }};
    ui::Command cmdUseList{this, "cmdUseList", "Match &List Below", [this] { matchList(); }};
    ui::ListBox lstPlayerNames{this, "lstPlayerNames"}; ///< alphabetical; row i is the player of address i
    ui::Label lblTo{this, "lblTo"};
    ui::ListBox lstTo{this, "lstTo"}; ///< addresses in the order added
    ui::Command cmdDelete{this, "cmdDelete", "&Delete Email Selected", [this] { deleteRecipient(); }};
    ui::Command cmdCopy{this, "cmdCopy", "Copy &Addresses", [this] { copyAddresses(); }};
    ui::Label lblSubject{this, "lblSubject", "Subject:"};
    ui::TextBox txtSubject{this, "txtSubject"};
    ui::Label lblMessage{this, "lblMessage", "Enter Email Message:"};
    ui::TextBox txtMessage{this, "txtMessage"};
    ui::Command cmdSend{this, "cmdSend", "&Send Email", [this] { sendEmail(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit/Cancel", [this] { cancel(); }};

    std::string helpTopic() const override;
    void load() override;
    void showState() override;
    void closeRequested() override { cancel(); }
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;

private:
    void fillPlayers(std::span<const PlayerRecord> records);
    void addressEverybody(std::span<const PlayerRecord> records);
    void entryEdited();
    void enter();
    bool addSelectedPlayer();
    bool addRecipients(const std::string& text);
    void copyAddresses();
    void typeAddresses();
    void setFreeEntry(bool on);
    void matchList();
    void deleteRecipient();
    void sendEmail();
    void cancel();

    const DataFolder& m_folder;
    ui::Dialogs& m_dialogs;
    ui::Clipboard& m_clipboard;
    Screens& m_screens;
    MailDraft& m_draft;

    std::vector<std::string> m_addresses; ///< by row of lstPlayerNames, without trailing blanks; empty = none
    bool m_playersFaulty = false;         ///< PLAYERNAMES.CSV has to be repaired
    bool m_freeEntry = false;             ///< addresses are typed, not looked up
};

} // namespace tallyhoop
