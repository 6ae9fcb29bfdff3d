// cli/mail_library_windows.cpp - without a library that would have to be loaded.
#include "cli/mail_library.h"

#include "intake/mail_reading.h"

namespace tallyhoop::cli {

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes) { return partsOfMail(bytes); }

} // namespace tallyhoop::cli
