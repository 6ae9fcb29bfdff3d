// qt/services/handed_in_mail.h - mails that players have sent, taken apart with the library that is loaded for it.
#pragma once

#include "intake/mail.h"

namespace tallyhoop::qt {

/// As TakeMailApart says; a failure also where the library is not installed.
Result<std::vector<MailPart>> takeMailApart(std::string_view bytes);

} // namespace tallyhoop::qt
