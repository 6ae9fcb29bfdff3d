// intake/mail_reading.h - takes mails apart by itself.
#pragma once

#include "intake/mail.h"

namespace tallyhoop {

/// Takes a mail apart: text in any character set that the system knows, base64 and quoted-printable, attachments,
/// messages attached to it or forwarded in it. Pictures and the like without a name are left out; for parts deeper than
/// kDeepestPartOfMail there is one that says so.
/// @returns a failure for an empty mail and for one with more than kMostPartsOfMail parts
Result<std::vector<MailPart>> partsOfMail(std::string_view bytes);

} // namespace tallyhoop
