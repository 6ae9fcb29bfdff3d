// ui/mail.h - handing a message to the person's own mail client.
#pragma once

#include "base/result.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop::ui {

/// A file that travels with a message.
struct Attachment {
    std::filesystem::path file;
    std::size_t position = 0; ///< the character of the body that it replaces, counted from 0
};

/// All texts are Windows-1252 bytes; the client's side converts.
struct MailMessage {
    std::vector<std::string> recipients; ///< addresses in the order chosen; empty = the client asks
    std::string subject;
    std::string body;             ///< lines separated by CR LF; ends in `placeholders` blanks
    std::size_t placeholders = 0; ///< trailing blanks of the body that attachments may replace
    std::vector<Attachment> attachments;
};

/// How far a mail client has come with a message when it has been handed over.
enum class MailProgress {
    InItsWindow, ///< the person sends it there
    Taken,       ///< its window has been closed after sending, as far as the client says
    GivenUp,     ///< its window has been closed without sending
};

/// Where a message is that was handed over.
struct HandedOver {
    std::filesystem::path file; ///< the message file that was written instead; empty = none, a mail client has it
    std::string trouble;        ///< why no program has opened that file; empty = one has been asked to
    MailProgress progress = MailProgress::InItsWindow; ///< of the client that has it
};

/// A session with a mail client: sign on, send through the client's own window, sign off.
class Mail
{
public:
    virtual ~Mail() = default;

    virtual bool isOpen() const = 0;

    /// Opens a session, the client's own log-on dialog allowed; no mail is fetched.
    virtual Result<Done> signOn() = 0;

    /// Opens the client's compose window with everything filled in; the person confirms or edits there. Where no client
    /// can be relied on to attach the files, writes a message file for the person to open.
    /// @returns a failure when neither was possible, which names the files to attach by hand
    virtual Result<HandedOver> send(const MailMessage& message) = 0;

    /// Closes the session; nothing happens when none is open.
    virtual void signOff() = 0;
};

} // namespace tallyhoop::ui
