// tests/intake/mail_readers.cpp - our own everywhere, that of gmime where it is used.
#include "intake/mail_readers.h"

#include "intake/mail_reading.h"

#ifndef _WIN32
#include "intake/linked_mail_library.h"
#include "intake/mail_parts.h"
#endif

namespace tallyhoop::test {

std::vector<MailReader> mailReaders()
{
    return {
        {"own", partsOfMail},
#ifndef _WIN32
        {"gmime", [](std::string_view bytes) { return mailParts(bytes, &linkedMailLibrary()); }},
#endif
    };
}

} // namespace tallyhoop::test
