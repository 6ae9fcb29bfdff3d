// tests/intake/linked_mail_library.h - gmime for tests that link it.
#pragma once

#include "intake/mail_library.h"

namespace tallyhoop::test {

/// @returns the library's functions, started at the first call
const MailLibrary& linkedMailLibrary();

} // namespace tallyhoop::test
