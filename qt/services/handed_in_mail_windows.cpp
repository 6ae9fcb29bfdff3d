// qt/services/handed_in_mail_windows.cpp - there is no library to be loaded.
#include "qt/services/handed_in_mail.h"

#include "intake/mail_parts.h"

namespace tallyhoop::qt {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes) { return mailParts(bytes, nullptr); }

} // namespace tallyhoop::qt
