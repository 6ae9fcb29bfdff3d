// qt/services/handed_in_mail.cpp - loads the library for mails with the first one.
#include "qt/services/handed_in_mail.h"

#include "intake/mail_parts.h"
#include "qt/services/mail_library.h"

namespace tallyhoop::qt {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes)
{
    return mailParts(bytes, mailLibrary());
}

} // namespace tallyhoop::qt
