// tests/windows/mapi/client.cpp - a stand-in for MAPI32.DLL that shows nothing and writes down how it is called.
//
// Environment variables of the process say what it does, so that it serves tests in the same process and whole
// programs:
//
//   MAPI_RECORD   the file that gets the calls; none = they are not written down
//   MAPI_LOGON    what MAPILogon returns, in decimal; not set = 0
//   MAPI_SEND     what MAPISendMailW returns
//
// Texts are in quotation marks; each unit of UTF-16 but the printable ones of ASCII, and "\" itself, is "\" and four
// hexadecimal digits. A pointer without a text is "none".
#include "qt/services/wide_mapi.h"

#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

using tallyhoop::qt::WideMapiFile;
using tallyhoop::qt::WideMapiMessage;
using tallyhoop::qt::WideMapiRecipient;

// Our structures are those of the system's header, but for the texts' characters.
static_assert(sizeof(WideMapiFile) == sizeof(MapiFileDesc));
static_assert(offsetof(WideMapiFile, nPosition) == offsetof(MapiFileDesc, nPosition));
static_assert(offsetof(WideMapiFile, lpszPathName) == offsetof(MapiFileDesc, lpszPathName));
static_assert(offsetof(WideMapiFile, lpszFileName) == offsetof(MapiFileDesc, lpszFileName));
static_assert(sizeof(WideMapiRecipient) == sizeof(MapiRecipDesc));
static_assert(offsetof(WideMapiRecipient, ulRecipClass) == offsetof(MapiRecipDesc, ulRecipClass));
static_assert(offsetof(WideMapiRecipient, lpszName) == offsetof(MapiRecipDesc, lpszName));
static_assert(offsetof(WideMapiRecipient, lpszAddress) == offsetof(MapiRecipDesc, lpszAddress));
static_assert(sizeof(WideMapiMessage) == sizeof(MapiMessage));
static_assert(offsetof(WideMapiMessage, lpszSubject) == offsetof(MapiMessage, lpszSubject));
static_assert(offsetof(WideMapiMessage, lpszNoteText) == offsetof(MapiMessage, lpszNoteText));
static_assert(offsetof(WideMapiMessage, flFlags) == offsetof(MapiMessage, flFlags));
static_assert(offsetof(WideMapiMessage, nRecipCount) == offsetof(MapiMessage, nRecipCount));
static_assert(offsetof(WideMapiMessage, lpRecips) == offsetof(MapiMessage, lpRecips));
static_assert(offsetof(WideMapiMessage, nFileCount) == offsetof(MapiMessage, nFileCount));
static_assert(offsetof(WideMapiMessage, lpFiles) == offsetof(MapiMessage, lpFiles));

namespace {

constexpr LHANDLE kSession = 4711;

std::wstring variable(const wchar_t* name)
{
    std::wstring value(32768, L'\0'); // the longest there is
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return value;
}

ULONG answer(const wchar_t* name) { return static_cast<ULONG>(std::wcstoul(variable(name).c_str(), nullptr, 10)); }

void record(const std::string& line)
{
    const std::wstring file = variable(L"MAPI_RECORD");
    if (file.empty())
        return;
    const HANDLE handle = CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(handle, (line + "\n").data(), static_cast<DWORD>(line.size() + 1), &written, nullptr);
    CloseHandle(handle);
}

std::string number(unsigned long long value) { return std::to_string(value); }

/// @returns the units of a text, narrow or wide
template <class Character>
std::string quoted(const Character* text)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    if (text == nullptr)
        return "none";
    std::string line = "\"";
    for (; *text != 0; ++text) {
        const auto unit = static_cast<unsigned>(*text) & 0xFFFFU;
        if (unit >= ' ' && unit <= '~' && unit != '\\')
            line.push_back(static_cast<char>(unit));
        else
            line += {'\\', kHex[unit >> 12U], kHex[unit >> 8U & 15U], kHex[unit >> 4U & 15U], kHex[unit & 15U]};
    }
    return line + '"';
}

void recordMessage(const WideMapiMessage& message)
{
    record("subject " + quoted(message.lpszSubject));
    record("text " + quoted(message.lpszNoteText));
    record("type " + quoted(message.lpszMessageType) + " received " + quoted(message.lpszDateReceived) +
           " conversation " + quoted(message.lpszConversationID) + " flags " + number(message.flFlags) + " reserved " +
           number(message.ulReserved) + (message.lpOriginator == nullptr ? "" : " originator"));
    for (ULONG i = 0; i < message.nRecipCount; ++i) {
        const WideMapiRecipient& recipient = message.lpRecips[i];
        record("recipient class " + number(recipient.ulRecipClass) + " name " + quoted(recipient.lpszName) +
               " address " + quoted(recipient.lpszAddress) + " id " + number(recipient.ulEIDSize) + " reserved " +
               number(recipient.ulReserved));
    }
    for (ULONG i = 0; i < message.nFileCount; ++i) {
        const WideMapiFile& file = message.lpFiles[i];
        const bool isThere = GetFileAttributesW(file.lpszPathName) != INVALID_FILE_ATTRIBUTES;
        record("file position " + number(file.nPosition) + " path " + quoted(file.lpszPathName) + " name " +
               quoted(file.lpszFileName) + " flags " + number(file.flFlags) + " reserved " + number(file.ulReserved) +
               (file.lpFileType == nullptr ? "" : " typed") + (isThere ? "" : " missing"));
    }
}

} // namespace

extern "C" {

ULONG WINAPI MAPILogon(ULONG_PTR window, LPSTR profile, LPSTR password, FLAGS flags, ULONG reserved, LPLHANDLE session)
{
    record("MAPILogon window " + number(window) + " profile " + quoted(profile) + " password " + quoted(password) +
           " flags " + number(flags) + " reserved " + number(reserved));
    *session = kSession;
    return answer(L"MAPI_LOGON");
}

ULONG WINAPI MAPISendMailW(LHANDLE session, ULONG_PTR window, WideMapiMessage* message, FLAGS flags, ULONG reserved)
{
    record("MAPISendMailW session " + number(session) + " window " + number(window) + " flags " + number(flags) +
           " reserved " + number(reserved));
    recordMessage(*message);
    return answer(L"MAPI_SEND");
}

ULONG WINAPI MAPILogoff(LHANDLE session, ULONG_PTR window, FLAGS flags, ULONG reserved)
{
    record("MAPILogoff session " + number(session) + " window " + number(window) + " flags " + number(flags) +
           " reserved " + number(reserved));
    return SUCCESS_SUCCESS;
}
}
