// tests/windows/console/end_at_call_windows.cpp - puts a counter before the system's functions where the program and
// its runtime library import them.
#ifdef _WIN32

#include "windows/console/end_at_call.h"

#include <cstring>
#include <initializer_list>
#include <windows.h>

namespace tallyhoop::test {

namespace {

int callsLeft = 0;

[[noreturn]] void end()
{
    ::TerminateProcess(::GetCurrentProcess(), kEndedAtCall);
    for (;;) {
    }
}

bool isLast() { return --callsLeft == 0; }

/// The function of this number, with a counter before it.
template <int Number, class Result, class... Arguments>
struct Counted {
    static inline Result(WINAPI* real)(Arguments...) = nullptr;

    static Result WINAPI call(Arguments... arguments)
    {
        if (isLast())
            end();
        return real(arguments...);
    }
};

BOOL(WINAPI* realWriteFile)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) = nullptr;

BOOL WINAPI writeHalf(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED overlapped)
{
    if (!isLast())
        return realWriteFile(file, bytes, count, written, overlapped);
    realWriteFile(file, bytes, count / 2, written, overlapped);
    end();
}

/// Has the module call this function where it would call the one of that name.
void replaceImports(HMODULE module, const char* name, FARPROC function)
{
    auto* const base = reinterpret_cast<unsigned char*>(module);
    const auto at = [base](auto offset) { return base + offset; };
    const auto& dos = *reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto& headers = *reinterpret_cast<IMAGE_NT_HEADERS*>(at(dos.e_lfanew));
    const DWORD imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(at(imports)); library->FirstThunk != 0; ++library) {
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(at(library->OriginalFirstThunk));
        auto* places = reinterpret_cast<IMAGE_THUNK_DATA*>(at(library->FirstThunk));
        for (; names->u1.AddressOfData != 0; ++names, ++places) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto& import = *reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(at(names->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(import.Name), name) != 0)
                continue;
            DWORD protection = 0;
            ::VirtualProtect(&places->u1.Function, sizeof places->u1.Function, PAGE_READWRITE, &protection);
            places->u1.Function = reinterpret_cast<ULONGLONG>(function);
        }
    }
}

template <class Function>
void put(const char* name, Function*& real, Function* counted)
{
    const HMODULE system = ::GetModuleHandleW(L"kernel32.dll");
    real = reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(system, name)));
    for (const wchar_t* module : {static_cast<const wchar_t*>(nullptr), L"libstdc++-6.dll"})
        replaceImports(::GetModuleHandleW(module), name, reinterpret_cast<FARPROC>(reinterpret_cast<void*>(counted)));
}

template <int Number, class Result, class... Arguments>
void count(const char* name, Result(WINAPI* /*signature*/)(Arguments...))
{
    using Function = Counted<Number, Result, Arguments...>;
    put(name, Function::real, Function::call);
}

} // namespace

void endAtCall(int call)
{
    callsLeft = call;
    put("WriteFile", realWriteFile, writeHalf);
    count<0>("CreateFileW", ::CreateFileW);
    count<1>("SetEndOfFile", ::SetEndOfFile);
    count<2>("FlushFileBuffers", ::FlushFileBuffers);
    count<3>("SetFileInformationByHandle", ::SetFileInformationByHandle);
    count<4>("CloseHandle", ::CloseHandle);
    count<5>("MoveFileExW", ::MoveFileExW);
    count<6>("DeleteFileW", ::DeleteFileW);
    count<7>("CreateDirectoryW", ::CreateDirectoryW);
    count<8>("RemoveDirectoryW", ::RemoveDirectoryW);
}

} // namespace tallyhoop::test

#endif
