// cli/mail_library.cpp - looks the functions up by their names.
#include "cli/mail_library.h"

#include "intake/mail_parts.h"

#include "intake/mail_library.h"

#include <dlfcn.h>
#include <optional>
#include <type_traits>

namespace tallyhoop::cli {

namespace {

/// The library stays for good: its types are registered for as long as the program runs.
std::optional<MailLibrary> loadMailLibrary()
{
    void* const file = dlopen("libgmime-3.0.so.0", RTLD_NOW | RTLD_NODELETE);
    if (file == nullptr)
        return std::nullopt;
    MailLibrary library;
    bool isComplete = true;
    const auto resolve = [&](auto& function, const char* name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(file, name));
        isComplete = isComplete && function != nullptr;
    };
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): only a macro makes a name and a text of one word
#define TALLYHOOP_RESOLVE(name) resolve(library.name, #name)
    TALLYHOOP_MAIL_FUNCTIONS(TALLYHOOP_RESOLVE);
#undef TALLYHOOP_RESOLVE
    if (!isComplete)
        return std::nullopt;
    library.g_mime_init();
    return library;
}

} // namespace

Result<std::vector<MailPart>> takeMailApart(std::string_view bytes)
{
    static const std::optional<MailLibrary> library = loadMailLibrary();
    return mailParts(bytes, library ? &*library : nullptr);
}

} // namespace tallyhoop::cli
