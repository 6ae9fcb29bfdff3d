// qt/services/wide_mapi.h - Simple MAPI in UTF-16, as Windows has it since version 8; the cross compiler's <mapi.h>
// lacks it.
//
// The structures are those of <mapi.h> with wide texts, member for member.
#pragma once

#include <windows.h>
// The comment keeps the order of the includes: the next header needs the one above.
#include <mapi.h>

namespace tallyhoop::qt {

struct WideMapiFile {
    ULONG ulReserved;
    ULONG flFlags;
    ULONG nPosition;
    wchar_t* lpszPathName;
    wchar_t* lpszFileName;
    void* lpFileType;
};

struct WideMapiRecipient {
    ULONG ulReserved;
    ULONG ulRecipClass;
    wchar_t* lpszName;
    wchar_t* lpszAddress;
    ULONG ulEIDSize;
    void* lpEntryID;
};

struct WideMapiMessage {
    ULONG ulReserved;
    wchar_t* lpszSubject;
    wchar_t* lpszNoteText;
    wchar_t* lpszMessageType;
    wchar_t* lpszDateReceived;
    wchar_t* lpszConversationID;
    FLAGS flFlags;
    WideMapiRecipient* lpOriginator;
    ULONG nRecipCount;
    WideMapiRecipient* lpRecips;
    ULONG nFileCount;
    WideMapiFile* lpFiles;
};

/// MAPISendMailW
using WideMapiSendMail = ULONG WINAPI(LHANDLE session, ULONG_PTR window, WideMapiMessage* message, FLAGS flags,
                                      ULONG reserved);

} // namespace tallyhoop::qt
