// screens/entries/entry_form_screen.h - the small modal screen that writes the entry form and mails it to the players.
#pragma once

#include "files/data_folder.h"
#include "pool/field.h"
#include "screens/hand_overs.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tallyhoop {

/// The form is a page on which players fill in their brackets without the program. It is saved where the person wants
/// it, and mailed as it was saved.
class EntryFormScreen : public ui::Screen
{
public:
    /// What outlives it.
    struct Shared {
        const Field& field;     ///< finalized
        MailDraft& draft;       ///< for the e-mail dialog
        std::string& organiser; ///< the address that was entered last
    };

    EntryFormScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Shared& shared);

    ui::Label lblOrganiser{this, "lblOrganiser", "Your e-mail address:"};
    ui::TextBox txtOrganiser{this, "txtOrganiser"};
    ui::Command cmdSave{this, "cmdSave", "&Save Form...", [this] { saveForm(); }};
    ui::Command cmdMail{this, "cmdMail", "&Mail to All Players...", [this] { mailForm(); }};
    ui::Command cmdClose{this, "cmdClose", "&Close", [this] { closeRequested(); }};

    std::string helpTopic() const override;
    void load() override;
    void closeRequested() override;

private:
    /// A form that was saved here.
    struct SavedForm {
        std::filesystem::path file;
        std::string organiser; ///< that is in it
    };

    bool saveForm();
    bool takeAddress();
    void mailForm();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
    Shared m_shared;

    std::optional<SavedForm> m_saved; ///< last; nothing = not yet
    std::optional<MailText> m_unsent; ///< the message with the form that no mail program has taken
};

} // namespace tallyhoop
