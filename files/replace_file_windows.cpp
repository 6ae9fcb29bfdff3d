// files/replace_file_windows.cpp - writing, flushing and renaming, and reading, on Windows.
#ifdef _WIN32

#include "files/replace_file_steps.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

std::error_code lastError() { return {static_cast<int>(::GetLastError()), std::system_category()}; }

std::error_code writeAll(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t kMostAtOnce = 1u << 20;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (!::WriteFile(file, bytes.data(), part, &written, nullptr))
            return lastError();
        bytes.remove_prefix(written);
    }
    return ::FlushFileBuffers(file) ? std::error_code{} : lastError();
}

std::error_code writeTemporary(const fs::path& temporary, std::string_view bytes)
{
    const HANDLE file =
        ::CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return lastError();
    std::error_code error = writeAll(file, bytes);
    if (!::CloseHandle(file) && !error)
        error = lastError();
    return error;
}

std::error_code putInPlace(const fs::path& temporary, const fs::path& target)
{
    // ReplaceFileW keeps the old file's attributes, but wants one to be there.
    const bool isThere = ::GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
    const BOOL done = isThere ? ::ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, 0, nullptr, nullptr)
                              : ::MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH);
    return done ? std::error_code{} : lastError();
}

} // namespace

std::error_code replaceThrough(const Temporaries& temporaries, const fs::path& target, std::string_view bytes,
                               const std::function<bool()>& mayReplace)
{
    const fs::path* temporary = &temporaries.shared;
    std::error_code error = writeTemporary(*temporary, bytes);
    if (error) {
        temporary = &temporaries.own;
        error = writeTemporary(*temporary, bytes);
    }
    if (!error && mayReplace && !mayReplace())
        error = std::make_error_code(std::errc::operation_canceled);
    if (!error)
        error = putInPlace(*temporary, target);
    if (error)
        ::DeleteFileW(temporary->c_str());
    return error;
}

// Windows writes names through by itself and has no call for a folder.
void flushFolder(const fs::path& /*folder*/) {}

std::error_code readAll(const fs::path& file, std::size_t mostBytes, std::string& bytes)
{
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status))
        return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
    if (!fs::is_regular_file(status))
        return std::make_error_code(fs::is_directory(status) ? std::errc::is_a_directory : std::errc::invalid_argument);
    errno = 0;
    std::ifstream stream{file, std::ios::binary};
    if (!stream)
        return {errno != 0 ? errno : EIO, std::generic_category()};
    std::array<char, 1 << 16> chunk;
    do {
        stream.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        bytes.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
        if (bytes.size() > mostBytes)
            return std::make_error_code(std::errc::file_too_large);
    } while (stream);
    return stream.bad() ? std::make_error_code(std::errc::io_error) : std::error_code{};
}

void outliveFileSizeLimits() {} // no such limit there

} // namespace tallyhoop

#endif
