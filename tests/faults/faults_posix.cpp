// tests/faults/faults_posix.cpp - disks, limits and rights of this process on Linux, by mounts that nobody else sees.
#ifndef _WIN32

#include "faults/faults.h"

#include "files/replace_file.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

std::string cannot(const char* what) { return std::string{what} + ": " + std::strerror(errno); }

bool isRoot() { return ::getuid() == 0; }

void writeLine(const char* file, const std::string& line) { std::ofstream{file} << line << std::flush; }

/// Mounts of our own that nobody else sees and that end with this process. Without rights, as root of a small world.
std::string takeOwnMounts()
{
    const uid_t user = ::getuid();
    const gid_t group = ::getgid();
    if (::unshare(isRoot() ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return cannot("no mounts of one's own here");
    if (user != 0) {
        writeLine("/proc/self/setgroups", "deny");
        writeLine("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
        writeLine("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
    }
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return cannot("no private mounts here");
    return {};
}

std::string letOthersIn(const fs::path& folder)
{
    fs::permissions(folder, fs::perms{0755});
    return {};
}

/// Root may do everything; the fault is for people who may not.
void dropRights()
{
    if (isRoot() && (::setegid(kNobody) != 0 || ::seteuid(kNobody) != 0))
        ADD_FAILURE() << cannot("rights cannot be dropped");
}

void takeRightsBack()
{
    if (isRoot() && (::seteuid(0) != 0 || ::setegid(0) != 0))
        ADD_FAILURE() << cannot("rights cannot be taken back");
}

void fillDiskWhole(const fs::path& folder, const fs::path& /*target*/) { fillDisk(folder, 0); }

void emptyDisk(const fs::path& folder, const fs::path& /*target*/) { fs::remove(folder / kFiller); }

void limitFileSize(rlim_t bytes)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
        ADD_FAILURE() << cannot("no limit can be set");
}

/// As both programs do when they start; the test must not owe its life to whoever started it.
std::string outliveLimits(const fs::path& /*folder*/)
{
    std::signal(SIGXFSZ, SIG_DFL);
    outliveFileSizeLimits();
    return {};
}

void remount(const fs::path& folder, unsigned long flags)
{
    if (::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | flags, nullptr) != 0)
        ADD_FAILURE() << cannot("the disk cannot be mounted anew");
}

fs::path elsewhere(const fs::path& folder) { return folder.string() + ".elsewhere"; }

void giveAway(const fs::path& folder)
{
    if (isRoot() && ::chown(folder.c_str(), kNobody, kNobody) != 0)
        ADD_FAILURE() << cannot("the folder cannot be given away");
}

void takeFromEverybody(const fs::path& folder, const fs::path& target)
{
    giveAway(folder);
    fs::permissions(target, fs::perms{0444});
    dropRights();
}

} // namespace

std::string mountSmallDisk(const fs::path& folder)
{
    if (std::string trouble = takeOwnMounts(); !trouble.empty())
        return trouble;
    if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=256k,mode=0755") != 0)
        return cannot("no small disk can be mounted");
    return {};
}

void fillDisk(const fs::path& folder, std::size_t bytesFree)
{
    const int file = ::open((folder / kFiller).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    ASSERT_GE(file, 0);
    const std::string chunk(4096, 'x');
    off_t size = 0;
    for (ssize_t count = 0; (count = ::write(file, chunk.data(), chunk.size())) > 0;)
        size += count;
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_EQ(::ftruncate(file, size - static_cast<off_t>(bytesFree)), 0);
    ::close(file);
}

const std::vector<Fault>& allFaults()
{
    static const std::vector<Fault> faults{
        {"FullDisk", "No space left on device", mountSmallDisk, fillDiskWhole, emptyDisk, false, false, true},
        {"FileSizeLimit", "File too large", outliveLimits, [](const fs::path&, const fs::path&) { limitFileSize(10); },
         [](const fs::path&, const fs::path&) { limitFileSize(RLIM_INFINITY); }, false, false, true},
        {"ReadOnlyFolder", "Read-only file system", mountSmallDisk,
         [](const fs::path& folder, const fs::path&) { remount(folder, MS_RDONLY); },
         [](const fs::path& folder, const fs::path&) { remount(folder, 0); }},
        {"VanishedFolder", "No such file or directory", letOthersIn,
         [](const fs::path& folder, const fs::path&) { fs::rename(folder, elsewhere(folder)); },
         [](const fs::path& folder, const fs::path&) { fs::rename(elsewhere(folder), folder); }, false, true},
        {"FileHeldReadOnly", "Permission denied", letOthersIn, takeFromEverybody,
         [](const fs::path&, const fs::path& target) {
             takeRightsBack();
             fs::permissions(target, fs::perms{0644});
         },
         true},
        {"NoPermission", "Permission denied", letOthersIn,
         [](const fs::path& folder, const fs::path&) {
             fs::permissions(folder, fs::perms{0555});
             dropRights();
         },
         [](const fs::path& folder, const fs::path&) {
             takeRightsBack();
             fs::permissions(folder, fs::perms{0755});
         }},
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
    static const Fault fault{"UnlistedFolder", "Permission denied", letOthersIn,
                             [](const fs::path& folder, const fs::path&) {
                                 giveAway(folder);
                                 fs::permissions(folder, fs::perms{0300});
                                 dropRights();
                             },
                             [](const fs::path& folder, const fs::path&) {
                                 takeRightsBack();
                                 fs::permissions(folder, fs::perms{0755});
                             }};
    return fault;
}

} // namespace tallyhoop::test

#endif
