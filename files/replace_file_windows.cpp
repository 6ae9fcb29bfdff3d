// files/replace_file_windows.cpp - writing, flushing and renaming, and reading, on Windows.
#ifdef _WIN32

#include "files/replace_file_steps.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <thread>
#include <utility>
#include <vector>
#include <windows.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

using Deadline = std::chrono::steady_clock::time_point;

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::error_code lastError()
{
    const DWORD code = ::GetLastError();
    if (code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION)
        return std::make_error_code(std::errc::text_file_busy);
    return {static_cast<int>(code), std::system_category()};
}

/// An open file or folder, closed at the end of its life.
class Handle
{
public:
    explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : m_handle{handle} {}
    ~Handle()
    {
        if (isOpen())
            ::CloseHandle(m_handle);
    }
    Handle(Handle&& other) noexcept : m_handle{std::exchange(other.m_handle, INVALID_HANDLE_VALUE)} {}
    Handle& operator=(Handle&&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// Calls a function of the system again, until the deadline, as long as somebody else has the file open. That is often
/// no program of ours: virus scanners and the search look into every new file.
/// @param inUse what the system calls it
/// @param call  returns whether it succeeded
bool inTime(Deadline deadline, DWORD inUse, const std::function<bool()>& call)
{
    using namespace std::chrono_literals;
    for (;;) {
        if (call())
            return true;
        if (::GetLastError() != inUse || std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(2ms);
    }
}

/// Opens what is at the path itself, not what a link there leads to.
/// @returns a closed one and the system's last error when it cannot be had; "sharing violation" when others keep it
///          until the deadline
Handle openInTime(const fs::path& path, DWORD access, DWORD share, DWORD disposition, Deadline deadline)
{
    HANDLE handle = INVALID_HANDLE_VALUE;
    inTime(deadline, ERROR_SHARING_VIOLATION, [&] {
        handle =
            ::CreateFileW(path.c_str(), access, share, nullptr, disposition,
                          FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
    return Handle{handle};
}

/// To be renamed and deleted it is opened for that, too. Whoever reads it meanwhile is not in the way, who writes is.
Handle openTemporary(const fs::path& temporary, DWORD disposition, Deadline deadline)
{
    return openInTime(temporary, GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE, disposition, deadline);
}

/// @returns whether it is a file of one name, and no link
bool isPlainFile(const Handle& file)
{
    BY_HANDLE_FILE_INFORMATION about{};
    constexpr DWORD kOther = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return ::GetFileInformationByHandle(file.get(), &about) && (about.dwFileAttributes & kOther) == 0 &&
           about.nNumberOfLinks == 1;
}

/// A turn at saving, until its handle is closed.
struct Turn {
    Handle handle;           ///< closed: nothing could be held
    bool isShared = false;   ///< the handle is that of the shared temporary, to be written into
    std::error_code error{}; ///< others have their turn until the deadline
};

Turn turnAt(Handle file)
{
    const bool isShared = isPlainFile(file);
    return {std::move(file), isShared, {}};
}

/// Something that is not ours may be in the shared temporary's place: a folder, a link, a file that may not be written.
/// It stays, and we go round it, but hold it as far as we may: somebody else who goes round it may be saving too.
Turn takeTurn(const fs::path& shared, Deadline deadline)
{
    constexpr int kMostAttempts = 3;
    for (int attempt = 1;; ++attempt) {
        Handle file = openTemporary(shared, OPEN_ALWAYS, deadline);
        if (file.isOpen())
            return turnAt(std::move(file));
        if (::GetLastError() == ERROR_SHARING_VIOLATION)
            return {Handle{}, false, std::make_error_code(std::errc::operation_would_block)};
        if (Handle held = openInTime(shared, GENERIC_READ, 0, OPEN_EXISTING, deadline);
            held.isOpen() || attempt == kMostAttempts)
            return {std::move(held), false, {}};
        // What was in the way has just been put in place, or is about to vanish.
    }
}

std::error_code writeAll(const Handle& file, std::string_view bytes)
{
    constexpr std::size_t kMostAtOnce = 1u << 20;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (!::WriteFile(file.get(), bytes.data(), part, &written, nullptr))
            return lastError();
        bytes.remove_prefix(written);
    }
    return {};
}

std::error_code fill(const Handle& file, std::string_view bytes)
{
    if (!::SetEndOfFile(file.get())) // at its beginning: nothing is left of what a crash left
        return lastError();
    if (const std::error_code error = writeAll(file, bytes); error)
        return error;
    return ::FlushFileBuffers(file.get()) ? std::error_code{} : lastError();
}

/// A rename would replace what is hidden by what is not. One that is write-protected stays, as the protection has its
/// reason.
std::error_code keepAttributesOf(const fs::path& target, const Handle& file)
{
    const DWORD old = ::GetFileAttributesW(target.c_str());
    if (old == INVALID_FILE_ATTRIBUTES)
        return {};
    if ((old & FILE_ATTRIBUTE_READONLY) != 0)
        return std::make_error_code(std::errc::permission_denied);
    constexpr DWORD kKept =
        FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_SYSTEM;
    FILE_BASIC_INFO basic{}; // a time of 0 stays as it is
    basic.FileAttributes = (old & kKept) != 0 ? old & kKept : FILE_ATTRIBUTE_NORMAL;
    // A file system that knows no attributes has none to keep.
    ::SetFileInformationByHandle(file.get(), FileBasicInfo, &basic, sizeof basic);
    return {};
}

/// @returns whether another program has opened the file so that it may not be replaced: the system only denies access
bool isOpenElsewhere(const fs::path& file)
{
    const Handle handle{
        ::CreateFileW(file.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr)};
    return !handle.isOpen() && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

/// In one step, while the file is ours alone. ReplaceFileW would want it closed, and is two renames: the end of the
/// program between them would leave no file at all.
std::error_code putInPlace(const Handle& file, const fs::path& target, Deadline deadline)
{
    const std::wstring& name = target.native();
    std::vector<std::byte> memory(sizeof(FILE_RENAME_INFO) + name.size() * sizeof(wchar_t));
    auto* const rename = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
    rename->ReplaceIfExists = TRUE;
    rename->FileNameLength = static_cast<DWORD>(name.size() * sizeof(wchar_t));
    std::memcpy(rename->FileName, name.data(), rename->FileNameLength); // a zero follows
    const bool done = inTime(deadline, ERROR_ACCESS_DENIED, [&] {
        return ::SetFileInformationByHandle(file.get(), FileRenameInfo, rename, static_cast<DWORD>(memory.size())) != 0;
    });
    if (done)
        return {};
    const std::error_code error = lastError();
    return isOpenElsewhere(target) ? std::make_error_code(std::errc::text_file_busy) : error;
}

void remove(const Handle& file)
{
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = TRUE;
    ::SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition, sizeof disposition);
}

Deadline halfASecondFromNow() { return std::chrono::steady_clock::now() + std::chrono::milliseconds{500}; }

} // namespace

std::error_code replaceThrough(const Temporaries& temporaries, const fs::path& target, std::string_view bytes,
                               const std::function<bool()>& mayReplace)
{
    const Turn turn = takeTurn(temporaries.shared, halfASecondFromNow());
    if (turn.error)
        return turn.error;
    const Handle own = turn.isShared ? Handle{} : openTemporary(temporaries.own, CREATE_NEW, halfASecondFromNow());
    if (!turn.isShared && !own.isOpen())
        return lastError();
    const Handle& temporary = turn.isShared ? turn.handle : own;

    std::error_code error = keepAttributesOf(target, temporary);
    if (!error)
        error = fill(temporary, bytes);
    if (!error && mayReplace && !mayReplace())
        error = std::make_error_code(std::errc::operation_canceled);
    if (!error)
        error = putInPlace(temporary, target, halfASecondFromNow());
    if (error)
        remove(temporary);
    else
        ::FlushFileBuffers(temporary.get()); // its new name, too
    return error;
}

// Windows has no call for a folder; what is renamed there is flushed with the file.
void flushFolder(const fs::path& /*folder*/) {}

std::error_code readAll(const fs::path& file, std::size_t mostBytes, std::string& bytes)
{
    // A folder is opened as well, so that it is told from a file that may not be read.
    const Handle handle{::CreateFileW(file.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_SEQUENTIAL_SCAN, nullptr)};
    if (!handle.isOpen())
        return lastError();
    if (::GetFileType(handle.get()) != FILE_TYPE_DISK)
        return std::make_error_code(std::errc::invalid_argument);
    BY_HANDLE_FILE_INFORMATION about{};
    if (!::GetFileInformationByHandle(handle.get(), &about))
        return lastError();
    if ((about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return std::make_error_code(std::errc::is_a_directory);

    constexpr DWORD kMostAtOnce = 1u << 20;
    const std::uint64_t expected = (std::uint64_t{about.nFileSizeHigh} << 32) | about.nFileSizeLow;
    bytes.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(expected, mostBytes)) + 1);
    for (;;) {
        const std::size_t size = bytes.size();
        const auto part = static_cast<DWORD>(std::clamp<std::size_t>(bytes.capacity() - size, 1, kMostAtOnce));
        bytes.resize(size + part);
        DWORD got = 0;
        if (!::ReadFile(handle.get(), bytes.data() + size, part, &got, nullptr))
            return lastError();
        bytes.resize(size + got);
        if (bytes.size() > mostBytes)
            return std::make_error_code(std::errc::file_too_large);
        if (got == 0)
            return {};
    }
}

void outliveFileSizeLimits() {} // no such limit there

} // namespace tallyhoop

#endif
