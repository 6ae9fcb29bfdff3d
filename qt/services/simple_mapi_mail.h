// qt/services/simple_mapi_mail.h - the mail client of a Windows computer, reached through Simple MAPI.
//
// Only MAPISendMailW is called. Every Windows that the program runs on has it, and converts the texts for clients that
// are older than it; converting them here for MAPISendMail would be a second way that loses what the computer's code
// page lacks. Where the function is missing, no client is set up, or the client reports an error, the message is
// written into a file that a mail program opens: nothing that was written is lost.
//
// Nothing of Qt is in here, so that it compiles (and is tested) with a bare cross compiler.
#pragma once

#include "files/data_folder.h"
#include "qt/services/opened_file_windows.h"
#include "qt/services/outgoing_mail.h"
#include "ui/mail.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace tallyhoop::qt {

/// What of the computer takes a message.
struct MailSystem {
    std::filesystem::path library = L"mapi32.dll"; ///< a name without a folder is one of the system's
    std::function<std::optional<Failure>(const std::filesystem::path&)> openFile = openByItsProgram;
};

/// Loads MAPI32.DLL when the first session is opened. A session is open without a client, too: its messages go into
/// files.
class SimpleMapiMail : public ui::Mail
{
public:
    /// @param folder where the message file is written, if that way is used
    /// @param window the handle of the window that the client's windows belong to; 0 = none
    explicit SimpleMapiMail(DataFolder folder, std::uintptr_t window = 0, MailSystem system = {});
    ~SimpleMapiMail() override;
    SimpleMapiMail(const SimpleMapiMail&) = delete;
    SimpleMapiMail& operator=(const SimpleMapiMail&) = delete;

    bool isOpen() const override { return m_open; }

    /// Fails only when the person has cancelled the client's log-on.
    Result<Done> signOn() override;

    /// Waits until the client's window is closed. Closing it without sending is no failure.
    Result<ui::HandedOver> send(const ui::MailMessage& message) override;
    void signOff() override;

private:
    Result<ui::HandedOver> inMessageFile(const OutgoingMail& mail, const std::string& trouble) const;

    DataFolder m_folder;
    std::uintptr_t m_window;
    MailSystem m_system;
    void* m_library = nullptr; ///< MAPI32.DLL
    bool m_open = false;
    std::optional<std::uintptr_t> m_session; ///< of the client that takes the messages
    std::string m_trouble;                   ///< why there is none, in an open session
};

} // namespace tallyhoop::qt
