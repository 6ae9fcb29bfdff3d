// tests/intake/linked_mail_library.cpp - the functions as the linker finds them.
#include "intake/linked_mail_library.h"

namespace tallyhoop::test {

const MailLibrary& linkedMailLibrary()
{
    static const MailLibrary library = [] {
        MailLibrary linked;
#define TALLYHOOP_LINK(name) linked.name = &::name
        TALLYHOOP_MAIL_FUNCTIONS(TALLYHOOP_LINK);
#undef TALLYHOOP_LINK
        linked.g_mime_init();
        return linked;
    }();
    return library;
}

} // namespace tallyhoop::test
