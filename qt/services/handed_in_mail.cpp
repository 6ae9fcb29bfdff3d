// qt/services/handed_in_mail.cpp - loads the library for mails with the first one.
#include "qt/services/handed_in_mail.h"

#include "intake/mail_parts.h"

#ifndef _WIN32
#include "qt/services/mail_library.h"
#endif

namespace tallyhoop::qt {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes)
{
#ifdef _WIN32
    return mailParts(bytes, nullptr);
#else
    return mailParts(bytes, mailLibrary());
#endif
}

} // namespace tallyhoop::qt
