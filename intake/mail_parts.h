// intake/mail_parts.h - takes mails apart with gmime.
#pragma once

#include "intake/mail.h"

namespace tallyhoop {

struct MailLibrary;

/// Takes a mail apart: text in any character set and transfer encoding, attachments, messages attached to it or
/// forwarded in it. Pictures and the like without a name are left out; for parts deeper than kDeepestPartOfMail there
/// is one that says so.
/// @param gmime nullptr = not installed
/// @returns a failure also without the library, and for a mail with more than kMostPartsOfMail parts
Result<std::vector<MailPart>> mailParts(std::string_view bytes, const MailLibrary* gmime);

} // namespace tallyhoop
