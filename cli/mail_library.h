// cli/mail_library.h - loads gmime when the first mail is read.
#pragma once

#include "intake/mail.h"

namespace tallyhoop::cli {

/// Takes a mail apart. @returns a failure also where gmime is not installed
Result<std::vector<MailPart>> takeMailApart(std::string_view bytes);

} // namespace tallyhoop::cli
