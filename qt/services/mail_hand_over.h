// qt/services/mail_hand_over.h - hands a message to the person's mail client, which shows it in its own window.
#pragma once

#include "files/data_folder.h"
#include "qt/services/mail_programs.h"
#include "qt/services/outgoing_mail.h"
#include "ui/mail.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::qt {

/// The ways a message can reach a client, best first.
enum class MailRoute {
    Thunderbird, ///< its own compose command
    XdgEmail,    ///< the desktop's script for other clients
    MessageFile, ///< a file marked as unsent, opened by whatever reads such files
};

/// @param handler        the desktop file of the user's mail program, such as "thunderbird.desktop"; empty = none
/// @param hasThunderbird whether it can be started
/// @param hasXdgEmail    the same for xdg-email
/// @returns the ways to try, in this order. Only clients that are known to attach files get a message directly; for
///          every other handler, and for none, it is the message file
std::vector<MailRoute> mailRoutes(const std::string& handler, bool hasThunderbird, bool hasXdgEmail);

/// Attachments are always handed over, or a message shows where they are: ways that may drop them silently (a plain
/// mailto address, the desktop portal) are not used.
class MailHandOver : public ui::Mail
{
public:
    /// @param folder   where the message file is written, if that way is used
    /// @param patience how long a client is watched for a refusal; one that runs longer has the message
    explicit MailHandOver(DataFolder folder, std::chrono::milliseconds patience = std::chrono::seconds{3});

    bool isOpen() const override { return m_open; }
    Result<Done> signOn() override;
    Result<ui::HandedOver> send(const ui::MailMessage& message) override;
    void signOff() override;

private:
    std::optional<Failure> compose(MailRoute route, const OutgoingMail& mail);
    std::optional<Failure> open(const std::filesystem::path& file);

    DataFolder m_folder;
    MailPrograms m_programs;
    bool m_open = false;
};

} // namespace tallyhoop::qt
