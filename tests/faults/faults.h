// tests/faults/faults.h - what can keep a file from being written, made on purpose and repaired again.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// To be used in a process of its own: see inOwnProcess().
struct Fault {
    const char* name;
    const char* reason; ///< what the system says of it

    /// Makes the folder ready, before anything is put into it. @returns why this machine cannot; empty = it can
    std::string (*arrange)(const std::filesystem::path& folder);

    void (*strike)(const std::filesystem::path& folder, const std::filesystem::path& target);
    void (*repair)(const std::filesystem::path& folder, const std::filesystem::path& target);

    bool wantsTarget = false;     ///< strikes a file that is there already
    bool hidesFolder = false;     ///< nothing can be read either
    bool takesEmptyFiles = false; ///< only bytes have no room
};

inline void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }

/// A full disk, a limit on the size of files, a read-only folder, a vanished folder, a file held read-only, no
/// permission.
const std::vector<Fault>& allFaults();

/// @returns those that a writer meets which replaces no file: one that is held can still be copied
std::vector<Fault> faultsOfTheFolder();

/// A folder that may be entered and written into, but not listed.
const Fault& unlistedFolder();

/// Fills the disk of the folder, but for so many bytes, with a file of this name.
inline constexpr const char* kFiller = "Holiday film.mpg";
void fillDisk(const std::filesystem::path& folder, std::size_t bytesFree);

/// Puts a small disk of its own under a folder. @returns why this machine cannot; empty = it is there
std::string mountSmallDisk(const std::filesystem::path& folder);

} // namespace tallyhoop::test
