// qt/services/simple_mapi_mail.cpp - sessions and messages of Simple MAPI.
#include "qt/services/simple_mapi_mail.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>
#include <windows.h>
// The comment keeps the order of the includes: the next header needs the one above.
#include <mapi.h>

namespace tallyhoop::qt {

namespace {

constexpr UINT kOurCodePage = 1252;

/// @returns a function of the library, nullptr when it is not there
template <class Function>
Function* functionOf(void* library, const char* name)
{
    auto* const address = library == nullptr ? nullptr : GetProcAddress(static_cast<HMODULE>(library), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

/// @returns a wide text in the code page that the client reads
std::string forClient(const std::wstring& wide)
{
    const int size =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), text.data(), size, nullptr, nullptr);
    return text;
}

/// The same for a text of ours, one byte per character.
std::string forClient(const std::string& text)
{
    std::wstring wide(text.size(), L'\0');
    MultiByteToWideChar(kOurCodePage, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                        static_cast<int>(wide.size()));
    return forClient(wide);
}

Failure failureOf(ULONG code)
{
    switch (code) {
    case MAPI_USER_ABORT:
        return {"The log-on to the mail program was cancelled."};
    case MAPI_E_LOGON_FAILURE:
        return {"The mail program did not accept the log-on."};
    case MAPI_E_ATTACHMENT_NOT_FOUND:
    case MAPI_E_ATTACHMENT_OPEN_FAILURE:
        return {"A report file could not be attached; the report files are in the program's folder."};
    default:
        return {"The mail program reported error " + std::to_string(code) +
                "; the report files are in the program's folder."};
    }
}

/// A message in the client's form; its pointers refer to the texts that it holds.
struct ClientMessage {
    std::vector<std::string> names, addresses, paths, fileNames;
    std::string subject, body;
    std::vector<MapiRecipDesc> recipients;
    std::vector<MapiFileDesc> files;
    MapiMessage message{};
};

void addRecipients(const ui::MailMessage& message, ClientMessage& client)
{
    for (const std::string& recipient : message.recipients) {
        client.names.push_back(forClient(recipient));
        client.addresses.push_back("SMTP:" + client.names.back());
    }
    for (std::size_t i = 0; i < client.names.size(); ++i) {
        MapiRecipDesc recipient{};
        recipient.ulRecipClass = MAPI_TO;
        recipient.lpszName = client.names[i].data();
        // What is not an address is a name, which the client looks up.
        if (client.names[i].find('@') != std::string::npos)
            recipient.lpszAddress = client.addresses[i].data();
        client.recipients.push_back(recipient);
    }
}

void addFiles(const ui::MailMessage& message, ClientMessage& client)
{
    for (const ui::Attachment& attachment : message.attachments) {
        client.paths.push_back(forClient(std::filesystem::absolute(attachment.file).wstring()));
        client.fileNames.push_back(forClient(attachment.file.filename().wstring()));
    }
    for (std::size_t i = 0; i < client.paths.size(); ++i) {
        MapiFileDesc file{};
        file.nPosition = static_cast<ULONG>(message.attachments[i].position);
        file.lpszPathName = client.paths[i].data();
        file.lpszFileName = client.fileNames[i].data();
        client.files.push_back(file);
    }
}

void compose(const ui::MailMessage& message, ClientMessage& client)
{
    client.subject = forClient(message.subject);
    client.body = forClient(message.body);
    addRecipients(message, client);
    addFiles(message, client);
    client.message.lpszSubject = client.subject.data();
    client.message.lpszNoteText = client.body.data();
    client.message.nRecipCount = static_cast<ULONG>(client.recipients.size());
    client.message.lpRecips = client.recipients.empty() ? nullptr : client.recipients.data();
    client.message.nFileCount = static_cast<ULONG>(client.files.size());
    client.message.lpFiles = client.files.empty() ? nullptr : client.files.data();
}

} // namespace

SimpleMapiMail::~SimpleMapiMail()
{
    SimpleMapiMail::signOff();
    if (m_library != nullptr)
        FreeLibrary(static_cast<HMODULE>(m_library));
}

Result<Done> SimpleMapiMail::signOn()
{
    if (isOpen())
        return Done{};
    if (m_library == nullptr)
        m_library = LoadLibraryExW(L"mapi32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    auto* const logOn = functionOf<MAPILOGON>(m_library, "MAPILogon");
    if (logOn == nullptr)
        return Failure{"No mail program is set up on this computer."};
    LHANDLE session = 0;
    // Without MAPI_FORCE_DOWNLOAD no mail is fetched.
    const ULONG code = logOn(0, nullptr, nullptr, MAPI_LOGON_UI, 0, &session);
    if (code != SUCCESS_SUCCESS)
        return failureOf(code);
    m_session = static_cast<std::uintptr_t>(session);
    return Done{};
}

Result<ui::HandedOver> SimpleMapiMail::send(const ui::MailMessage& message)
{
    auto* const sendMail = functionOf<MAPISENDMAIL>(m_library, "MAPISendMail");
    if (sendMail == nullptr)
        return Failure{"No mail program is set up on this computer."};
    ClientMessage client;
    compose(message, client);
    const ULONG code = sendMail(static_cast<LHANDLE>(m_session), 0, &client.message, MAPI_DIALOG | MAPI_LOGON_UI, 0);
    if (code == SUCCESS_SUCCESS || code == MAPI_USER_ABORT)
        return ui::HandedOver{};
    return failureOf(code);
}

void SimpleMapiMail::signOff()
{
    if (!isOpen())
        return;
    if (auto* const logOff = functionOf<MAPILOGOFF>(m_library, "MAPILogoff"))
        logOff(static_cast<LHANDLE>(m_session), 0, 0, 0);
    m_session = 0;
}

} // namespace tallyhoop::qt
