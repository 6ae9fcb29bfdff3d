// screens/mailing.h - files by e-mail: the dialog, the mail program, and what is said about it.
#pragma once

#include "screens/hand_overs.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <filesystem>
#include <span>
#include <string>

namespace tallyhoop {

/// What a screen needs for it.
struct Mailing {
    const ui::Platform& platform;
    Screens& screens;
    MailDraft& draft;   ///< that the e-mail dialog is handed
    ui::Screen& screen; ///< that says what has become of it
};

struct MailRequest {
    MailKind kind = MailKind::Reports;
    std::string title; ///< of the messages about it
    bool toEverybody = false;
    MailText proposal{}; ///< subject and message to begin with
};

/// Opens the e-mail dialog and hands one message with all files to the mail program. The files stay where they are, and
/// what was written for the message comes back with the next one, so nothing is lost when that fails.
/// @param files at most eight, in order
void mailFiles(const Mailing& mailing, std::span<const std::filesystem::path> files, const MailRequest& request);

} // namespace tallyhoop
