// tests/fakes/held_file_windows.cpp - by having it open for writing.
#ifdef _WIN32

#include "fakes/held_file.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tallyhoop::test {

namespace {

HANDLE openToWrite(const std::filesystem::path& file)
{
    return ::CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                         FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

} // namespace

HeldFile::HeldFile(const std::filesystem::path& file) : m_file{reinterpret_cast<std::intptr_t>(openToWrite(file))}
{
    EXPECT_NE(reinterpret_cast<HANDLE>(m_file), INVALID_HANDLE_VALUE);
}

HeldFile::~HeldFile() { ::CloseHandle(reinterpret_cast<HANDLE>(m_file)); }

bool isHeld(const std::filesystem::path& path)
{
    const HANDLE other = openToWrite(path);
    const bool held = other == INVALID_HANDLE_VALUE && ::GetLastError() == ERROR_SHARING_VIOLATION;
    if (other != INVALID_HANDLE_VALUE)
        ::CloseHandle(other);
    return held;
}

} // namespace tallyhoop::test

#endif
