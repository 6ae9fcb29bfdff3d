// tests/intake/mail_readers.h - the ways to take a mail apart that there are on this system.
#pragma once

#include "intake/mail.h"

#include <ostream>
#include <vector>

namespace tallyhoop::test {

struct MailReader {
    const char* name;
    TakeMailApart takeApart;
};

inline void PrintTo(const MailReader& reader, std::ostream* out) { *out << reader.name; }

/// @returns our own first; that of the library, where there is one
std::vector<MailReader> mailReaders();

} // namespace tallyhoop::test
