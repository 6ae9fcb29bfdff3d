// qt/services/mail_library.cpp - looks the functions up by their names.
#include "qt/services/mail_library.h"

#include <QLibrary>
#include <type_traits>

namespace tallyhoop::qt {

std::optional<MailLibrary> loadMailLibrary(const QString& name)
{
    constexpr int kVersion = 0; // of the interface that is compiled in: "libgmime-3.0.so.0"
    QLibrary file{name, kVersion};
    file.setLoadHints(QLibrary::PreventUnloadHint); // its types are registered for as long as the program runs
    MailLibrary library;
    bool complete = true;
    const auto resolve = [&](auto& function, const char* functionName) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(file.resolve(functionName));
        complete = complete && function;
    };
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): only a macro makes a name and a text of one word
#define TALLYHOOP_RESOLVE(name) resolve(library.name, #name)
    TALLYHOOP_MAIL_FUNCTIONS(TALLYHOOP_RESOLVE);
#undef TALLYHOOP_RESOLVE
    return complete ? std::optional{library} : std::nullopt;
}

const MailLibrary* mailLibrary()
{
    static const std::optional<MailLibrary> library = [] {
        std::optional<MailLibrary> gmime = loadMailLibrary(QStringLiteral("gmime-3.0"));
        if (gmime)
            gmime->g_mime_init();
        return gmime;
    }();
    return library ? &*library : nullptr;
}

} // namespace tallyhoop::qt
