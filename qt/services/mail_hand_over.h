// qt/services/mail_hand_over.h - hands a message to the person's mail client, which shows it in its own window.
#pragma once

#include "files/data_folder.h"
#include "qt/services/outgoing_mail.h"
#include "ui/mail.h"

#include <QString>
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
/// @returns the ways to try, in this order. With a web browser as handler xdg-email would open a page and drop the
///          attachments, so only the message file is tried
std::vector<MailRoute> mailRoutes(const std::string& handler, bool hasThunderbird, bool hasXdgEmail);

/// Attachments are always handed over, or a message shows where they are: ways that may drop them silently (a plain
/// mailto address, the desktop portal) are not used.
class MailHandOver : public ui::Mail
{
public:
    /// @param folder where the message file is written, if that way is used
    explicit MailHandOver(DataFolder folder);

    bool isOpen() const override { return m_open; }
    Result<Done> signOn() override;

    /// Starts the client and returns at once. @returns a failure that names the files to attach by hand
    Result<Done> send(const ui::MailMessage& message) override;
    void signOff() override;

private:
    std::optional<Failure> handOver(MailRoute route, const OutgoingMail& mail) const;
    std::optional<Failure> openMessageFile(const OutgoingMail& mail) const;

    DataFolder m_folder;
    bool m_open = false;
};

/// The bare name of the message file.
inline constexpr const char* kMessageFile = "TALLYHOOP.EML";

} // namespace tallyhoop::qt
