// qt/services/simple_mapi_mail.h - the mail client of a Windows computer, reached through Simple MAPI.
//
// Nothing of Qt is in here, so that it compiles (and is checked) with a bare cross compiler.
#pragma once

#include "ui/mail.h"

#include <cstdint>

namespace tallyhoop::qt {

/// Loads MAPI32.DLL when a session is opened; a computer without a mail client is a failure, not an error at start.
class SimpleMapiMail : public ui::Mail
{
public:
    SimpleMapiMail() = default;
    ~SimpleMapiMail() override;
    SimpleMapiMail(const SimpleMapiMail&) = delete;
    SimpleMapiMail& operator=(const SimpleMapiMail&) = delete;

    bool isOpen() const override { return m_session != 0; }
    Result<Done> signOn() override;

    /// Waits until the client's window is closed. Closing it without sending is no failure.
    Result<ui::HandedOver> send(const ui::MailMessage& message) override;
    void signOff() override;

private:
    void* m_library = nullptr;    ///< MAPI32.DLL
    std::uintptr_t m_session = 0; ///< 0 = none
};

} // namespace tallyhoop::qt
