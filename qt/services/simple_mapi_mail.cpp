// qt/services/simple_mapi_mail.cpp - sessions and messages of Simple MAPI.
#include "qt/services/simple_mapi_mail.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/whole_path.h"
#include "qt/services/mailboxes.h"
#include "qt/services/message_writing.h"
#include "qt/services/wide_mapi.h"

#include <string_view>
#include <utility>
#include <vector>

namespace tallyhoop::qt {

namespace {

constexpr const char* kNoClient = "No mail program is set up on this computer.";

/// @returns a function of the library, nullptr when it is not there
template <class Function>
Function* functionOf(void* library, const char* name)
{
    auto* const address = library == nullptr ? nullptr : GetProcAddress(static_cast<HMODULE>(library), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

WideMapiSendMail* sendMailOf(void* library) { return functionOf<WideMapiSendMail>(library, "MAPISendMailW"); }

/// @returns a text of ours in UTF-16: as many characters, so that places in it stay the same
std::wstring wide(std::string_view text)
{
    std::wstring characters;
    for (const char c : text)
        characters.push_back(static_cast<wchar_t>(unicodeOf(static_cast<unsigned char>(c))));
    return characters;
}

/// A text that MAPI does not change, though its structures do not say so.
wchar_t* pointerTo(const std::wstring& text) { return text.empty() ? nullptr : const_cast<wchar_t*>(text.c_str()); }

std::string troubleOf(ULONG code)
{
    switch (code) {
    case MAPI_E_LOGON_FAILURE:
        return "The mail program did not accept the log-on.";
    case MAPI_E_ATTACHMENT_NOT_FOUND:
    case MAPI_E_ATTACHMENT_OPEN_FAILURE:
    case MAPI_E_ATTACHMENT_WRITE_FAILURE:
        return "The mail program could not attach a file.";
    default:
        return "The mail program reported error " + std::to_string(code) + ".";
    }
}

/// A message in the client's form; its pointers refer to the texts that it holds.
class ClientMessage
{
public:
    explicit ClientMessage(const ui::MailMessage& message)
        : m_subject{wide(asOneLine(message.subject))}, m_body{wide(message.body)}
    {
        takeTexts(message);
        pointToRecipients();
        pointToFiles(message);
        m_message.lpszSubject = m_subject.data();
        m_message.lpszNoteText = m_body.data();
        m_message.nRecipCount = static_cast<ULONG>(m_recipients.size());
        m_message.lpRecips = m_recipients.empty() ? nullptr : m_recipients.data();
        m_message.nFileCount = static_cast<ULONG>(m_files.size());
        m_message.lpFiles = m_files.empty() ? nullptr : m_files.data();
    }
    ClientMessage(const ClientMessage&) = delete;
    ClientMessage& operator=(const ClientMessage&) = delete;

    WideMapiMessage* get() { return &m_message; }

private:
    struct Texts {
        std::wstring first, second; ///< name and address, or path and name
    };

    void takeTexts(const ui::MailMessage& message)
    {
        for (const std::string& recipient : message.recipients)
            for (const Mailbox& mailbox : mailboxesOf(asOneLine(recipient))) {
                // The client wants a name in any case, and looks up one that is alone.
                const std::string& name = mailbox.name.empty() ? mailbox.address : mailbox.name;
                m_mailboxes.push_back(
                    {wide(name), mailbox.address.empty() ? std::wstring{} : L"SMTP:" + wide(mailbox.address)});
            }
        std::error_code ignored;
        for (const ui::Attachment& attachment : message.attachments)
            m_paths.push_back({wholePath(attachment.file, ignored).native(), attachment.file.filename().native()});
    }

    void pointToRecipients()
    {
        for (const Texts& mailbox : m_mailboxes) {
            WideMapiRecipient recipient{};
            recipient.ulRecipClass = MAPI_TO;
            recipient.lpszName = pointerTo(mailbox.first);
            recipient.lpszAddress = pointerTo(mailbox.second);
            m_recipients.push_back(recipient);
        }
    }

    void pointToFiles(const ui::MailMessage& message)
    {
        for (std::size_t i = 0; i < m_paths.size(); ++i) {
            WideMapiFile file{};
            file.nPosition = static_cast<ULONG>(message.attachments[i].position);
            file.lpszPathName = pointerTo(m_paths[i].first);
            file.lpszFileName = pointerTo(m_paths[i].second);
            m_files.push_back(file);
        }
    }

    std::wstring m_subject, m_body;
    std::vector<Texts> m_mailboxes, m_paths;
    std::vector<WideMapiRecipient> m_recipients;
    std::vector<WideMapiFile> m_files;
    WideMapiMessage m_message{};
};

} // namespace

SimpleMapiMail::SimpleMapiMail(DataFolder folder, std::uintptr_t window, MailSystem system)
    : m_folder{std::move(folder)}, m_window{window}, m_system{std::move(system)}
{
}

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
        m_library = LoadLibraryExW(m_system.library.c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    auto* const logOn = functionOf<MAPILOGON>(m_library, "MAPILogon");
    m_trouble = kNoClient;
    if (logOn != nullptr && sendMailOf(m_library) != nullptr) {
        LHANDLE session = 0;
        // Without MAPI_FORCE_DOWNLOAD no mail is fetched.
        const ULONG code = logOn(m_window, nullptr, nullptr, MAPI_LOGON_UI, 0, &session);
        if (code == MAPI_USER_ABORT)
            return Failure{"The log-on to the mail program was cancelled."};
        if (code == SUCCESS_SUCCESS)
            m_session = static_cast<std::uintptr_t>(session);
        else
            m_trouble = troubleOf(code);
    }
    m_open = true;
    return Done{};
}

Result<ui::HandedOver> SimpleMapiMail::send(const ui::MailMessage& message)
{
    const OutgoingMail mail = outgoing(message);
    if (const std::optional<Failure> missing = missingFile(mail))
        return byHand(*missing, mail);
    if (!m_session)
        return inMessageFile(mail, m_trouble);
    const ULONG code = sendMailOf(m_library)(static_cast<LHANDLE>(*m_session), m_window, ClientMessage{message}.get(),
                                             MAPI_DIALOG | MAPI_LOGON_UI, 0);
    if (code == SUCCESS_SUCCESS)
        return ui::HandedOver{{}, {}, ui::MailProgress::Taken};
    if (code == MAPI_USER_ABORT)
        return ui::HandedOver{{}, {}, ui::MailProgress::GivenUp};
    return inMessageFile(mail, troubleOf(code));
}

/// @param trouble why the client has not got the message
Result<ui::HandedOver> SimpleMapiMail::inMessageFile(const OutgoingMail& mail, const std::string& trouble) const
{
    const std::string before = trouble + "\r\n";
    const Result<std::filesystem::path> file = writeMessageFile(mail, writtenMessage, m_folder);
    if (!file)
        return byHand({before + file.failure().message}, mail);
    if (const std::optional<Failure> unopened = m_system.openFile(*file))
        return ui::HandedOver{*file, before + unopened->message};
    return ui::HandedOver{*file, {}};
}

void SimpleMapiMail::signOff()
{
    if (m_session)
        if (auto* const logOff = functionOf<MAPILOGOFF>(m_library, "MAPILogoff"))
            logOff(static_cast<LHANDLE>(*m_session), m_window, 0, 0);
    m_session.reset();
    m_open = false;
}

} // namespace tallyhoop::qt
