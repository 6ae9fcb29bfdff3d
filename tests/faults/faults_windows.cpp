// tests/faults/faults_windows.cpp - a small disk that whoever starts the tests has made, and what another program does
// to files.
#ifdef _WIN32

#include "faults/faults.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

std::string arrangeNothing(const fs::path& /*folder*/) { return {}; }

/// @returns the empty text where the folder is on a disk that is to be filled
std::string findSmallDisk(const fs::path& folder)
{
    constexpr std::uintmax_t kSmall = 1u << 20;
    std::error_code unknown;
    return fs::space(folder, unknown).capacity <= kSmall && !unknown ? std::string{} : "no small disk here";
}

void fillDiskWhole(const fs::path& folder, const fs::path& /*target*/) { fillDisk(folder, 0); }

void emptyDisk(const fs::path& folder, const fs::path& /*target*/) { fs::remove(folder / kFiller); }

fs::path elsewhere(const fs::path& folder)
{
    fs::path name = folder;
    name += ".elsewhere";
    return name;
}

void setAttributes(const fs::path& target, DWORD attributes)
{
    EXPECT_TRUE(::SetFileAttributesW(target.c_str(), attributes)) << target;
}

HANDLE& openElsewhere()
{
    static HANDLE file = INVALID_HANDLE_VALUE;
    return file;
}

/// As spreadsheets do: others may read the file meanwhile.
void openInAnotherProgram(const fs::path& /*folder*/, const fs::path& target)
{
    openElsewhere() = ::CreateFileW(target.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(openElsewhere(), INVALID_HANDLE_VALUE) << target;
}

} // namespace

std::string mountSmallDisk(const fs::path& folder) { return findSmallDisk(folder); }

void fillDisk(const fs::path& folder, std::size_t bytesFree)
{
    const HANDLE file = ::CreateFileW((folder / kFiller).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    const std::string chunk(4096, 'x');
    LARGE_INTEGER size{};
    for (DWORD count = 0; ::WriteFile(file, chunk.data(), static_cast<DWORD>(chunk.size()), &count, nullptr);)
        size.QuadPart += count;
    EXPECT_EQ(::GetLastError(), ERROR_DISK_FULL);
    if (bytesFree > 0) {
        size.QuadPart -= static_cast<LONGLONG>(bytesFree);
        EXPECT_TRUE(::SetFilePointerEx(file, size, nullptr, FILE_BEGIN));
        EXPECT_TRUE(::SetEndOfFile(file));
    }
    ::CloseHandle(file);
}

const std::vector<Fault>& allFaults()
{
    static const std::vector<Fault> faults{
        {"FullDisk", "No space left on device", findSmallDisk, fillDiskWhole, emptyDisk, false, false, true},
        {"VanishedFolder", "No such file or directory", arrangeNothing,
         [](const fs::path& folder, const fs::path&) { fs::rename(folder, elsewhere(folder)); },
         [](const fs::path& folder, const fs::path&) { fs::rename(elsewhere(folder), folder); }, false, true},
        {"FileHeldReadOnly", "Permission denied", arrangeNothing,
         [](const fs::path&, const fs::path& target) { setAttributes(target, FILE_ATTRIBUTE_READONLY); },
         [](const fs::path&, const fs::path& target) { setAttributes(target, FILE_ATTRIBUTE_NORMAL); }, true},
        {"FileOpenElsewhere", "Another program has the file open.", arrangeNothing, openInAnotherProgram,
         [](const fs::path&, const fs::path&) { ::CloseHandle(openElsewhere()); }, true},
    };
    return faults;
}

std::vector<Fault> faultsOfTheFolder()
{
    std::vector<Fault> faults = allFaults();
    std::erase_if(faults, [](const Fault& fault) { return fault.wantsTarget; });
    return faults;
}

const Fault& unlistedFolder()
{
    static const Fault fault{"UnlistedFolder", "Permission denied",
                             [](const fs::path&) -> std::string { return "rights are not taken away here"; },
                             [](const fs::path&, const fs::path&) {}, [](const fs::path&, const fs::path&) {}};
    return fault;
}

} // namespace tallyhoop::test

#endif
