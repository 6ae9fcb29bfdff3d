// qt/services/handed_in_mail_windows.cpp - without a library that would have to be loaded.
#include "qt/services/handed_in_mail.h"

#include "intake/mail_reading.h"

namespace tallyhoop::qt {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes) { return partsOfMail(bytes); }

} // namespace tallyhoop::qt
