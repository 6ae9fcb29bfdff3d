// cli/mail_library_windows.cpp - there is no library to be loaded.
#include "cli/mail_library.h"

#include "intake/mail_parts.h"

namespace tallyhoop::cli {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes) { return mailParts(bytes, nullptr); }

} // namespace tallyhoop::cli
