// intake/mail_parts_windows.cpp - says that mails are not read on Windows, where there is no gmime.
#include "intake/mail_parts.h"

namespace tallyhoop {

Result<std::vector<MailPart>> mailParts(std::string_view /*bytes*/, const MailLibrary* /*gmime*/)
{
    return Failure{"Mails cannot be read on Windows. Save the entry that came with it as a file, and import that."};
}

} // namespace tallyhoop
