// files/replace_file_posix.cpp - writing, flushing and renaming, and reading, on Linux and other POSIX systems.
#ifndef _WIN32

#include "files/replace_file_steps.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

std::error_code lastError() { return {errno, std::generic_category()}; }

/// Calls a system function again as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call)
{
    auto outcome = call();
    while (outcome < 0 && errno == EINTR)
        outcome = call();
    return outcome;
}

/// An open file or folder, closed at the end of its life.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number{number} {}
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

/// @returns whether the open file is the one at the path; nothing and errno when that cannot be found out
std::optional<bool> isStillAt(const fs::path& path, const struct stat& open)
{
    struct stat there {
    };
    if (::lstat(path.c_str(), &there) != 0)
        return errno == ENOENT ? std::optional{false} : std::nullopt;
    return open.st_dev == there.st_dev && open.st_ino == there.st_ino;
}

using Deadline = std::chrono::steady_clock::time_point;

/// @returns 0, or -1 and errno; EWOULDBLOCK when another program holds the lock until the deadline
int lockInTime(int descriptor, Deadline deadline)
{
    using namespace std::chrono_literals;
    for (;;) {
        if (uninterrupted([&] { return ::flock(descriptor, LOCK_EX | LOCK_NB); }) == 0)
            return 0;
        if (errno != EWOULDBLOCK)
            return 0; // a file system without locks is used without them
        if (std::chrono::steady_clock::now() >= deadline) {
            errno = EWOULDBLOCK;
            return -1;
        }
        std::this_thread::sleep_for(2ms);
    }
}

/// Opens what is at the shared temporary's place for us alone: another program may be saving the same file right now.
/// What a link leads to is never opened so: it is not ours.
/// @param accepts whether it is of use, once it is locked
/// @returns -1 and errno when it cannot be had; EWOULDBLOCK when others keep it until the deadline
int openLocked(const fs::path& temporary, int flags, Deadline deadline, bool (*accepts)(const struct stat&))
{
    for (;;) {
        const int descriptor = uninterrupted(
            [&] { return ::open(temporary.c_str(), flags | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0666); });
        if (descriptor < 0)
            return -1;
        struct stat status {
        };
        std::optional<bool> isStillThere = false;
        int error = 0;
        if (lockInTime(descriptor, deadline) != 0 || ::fstat(descriptor, &status) != 0 ||
            !(isStillThere = isStillAt(temporary, status)))
            error = errno;
        else if (*isStillThere && !accepts(status))
            error = EMLINK;
        else if (!*isStillThere && std::chrono::steady_clock::now() >= deadline)
            error = EWOULDBLOCK;
        if (error == 0 && *isStillThere)
            return descriptor;
        ::close(descriptor);
        if (error != 0) {
            errno = error;
            return -1;
        }
        // While we waited, the other one has put this very file in place, or taken it away.
    }
}

/// Opens the shared temporary to write into it, unless that is something else than a file of one name.
int openShared(const fs::path& temporary, Deadline deadline)
{
    return openLocked(temporary, O_CREAT | O_WRONLY, deadline,
                      [](const struct stat& status) { return S_ISREG(status.st_mode) && status.st_nlink == 1; });
}

/// Opens what is in the shared temporary's place only to hold it: who may write into it does the same.
int holdShared(const fs::path& temporary, Deadline deadline)
{
    return openLocked(temporary, O_RDONLY, deadline, [](const struct stat&) { return true; });
}

/// A turn at saving, until its descriptor is closed.
struct Turn {
    int descriptor = -1;   ///< -1 and errno: nothing could be held; EWOULDBLOCK when others have their turn
    bool isShared = false; ///< the descriptor is that of the shared temporary, to be written into
};

/// Something that is not ours may be in the shared temporary's place: another user's file, a link, a folder. It stays,
/// and we go round it, but hold it as far as we may: its owner, or somebody else who goes round it, may be saving too.
Turn takeTurn(const fs::path& shared, Deadline deadline)
{
    constexpr int kMostAttempts = 3;
    for (int attempt = 1;; ++attempt) {
        if (const int descriptor = openShared(shared, deadline); descriptor >= 0 || errno == EWOULDBLOCK)
            return {descriptor, true};
        if (const int descriptor = holdShared(shared, deadline);
            descriptor >= 0 || errno != ENOENT || attempt == kMostAttempts)
            return {descriptor, false};
        // What was in the way has just been put in place.
    }
}

int openOwn(const fs::path& temporary)
{
    return uninterrupted(
        [&] { return ::open(temporary.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0666); });
}

std::error_code writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (written < 0)
            return lastError();
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

/// Some network file systems speak of a full disk only when a file is closed. Closing a copy keeps our lock.
std::error_code checkClosing(int descriptor)
{
    const int copy = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    if (copy < 0)
        return lastError();
    return ::close(copy) == 0 || errno == EINTR ? std::error_code{} : lastError();
}

std::error_code fill(int descriptor, std::string_view bytes)
{
    if (::ftruncate(descriptor, 0) != 0)
        return lastError();
    if (const std::error_code error = writeAll(descriptor, bytes); error)
        return error;
    if (uninterrupted([&] { return ::fsync(descriptor); }) != 0)
        return lastError();
    return checkClosing(descriptor);
}

/// A rename would replace a write-protected file too; writing into it would not, and the protection has its reason.
std::error_code keepModeOf(const fs::path& target, int descriptor)
{
    struct stat old {
    };
    if (::stat(target.c_str(), &old) != 0)
        return {};
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        return lastError();
    // A file system that knows no modes has none to keep.
    return ::fchmod(descriptor, old.st_mode & 07777) == 0 || errno == EPERM || errno == ENOTSUP ? std::error_code{}
                                                                                                : lastError();
}

/// @returns no error for a file, else what is wrong with reading from it
std::error_code kindTrouble(const struct stat& status)
{
    if (S_ISREG(status.st_mode))
        return {};
    return std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory : std::errc::invalid_argument);
}

/// Opens a file to read it. Something else may be there by now: opening a pipe does not wait for its other end.
/// @returns -1 when it cannot be opened; only then the error says why
int openToRead(const fs::path& file, std::error_code& error)
{
    const auto open = [&file](int flags) {
        return uninterrupted([&] { return ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | flags); });
    };
    int descriptor = open(O_NONBLOCK);
    if (descriptor >= 0)
        return descriptor;
    error = lastError();
    struct stat status {
    };
    if (::stat(file.c_str(), &status) != 0)
        return -1;
    if (const std::error_code kind = kindTrouble(status); kind) {
        error = kind;
    } else if (error == std::errc::operation_would_block) { // a file server has lent it to somebody, and asks for it
        descriptor = open(0);
        error = lastError();
    }
    return descriptor;
}

} // namespace

// The names are in place already, so a failure here is none of the caller's.
void flushFolder(const fs::path& folder)
{
    const Descriptor descriptor{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (descriptor.isOpen())
        uninterrupted([&] { return ::fsync(descriptor.number()); });
}

std::error_code replaceThrough(const Temporaries& temporaries, const fs::path& target, std::string_view bytes,
                               const std::function<bool()>& mayReplace)
{
    const Turn turn = takeTurn(temporaries.shared, std::chrono::steady_clock::now() + std::chrono::milliseconds{500});
    const Descriptor held{turn.descriptor};
    if (!held.isOpen() && errno == EWOULDBLOCK)
        return lastError();
    const Descriptor own{turn.isShared ? -1 : openOwn(temporaries.own)};
    if (!turn.isShared && !own.isOpen())
        return lastError();
    const int descriptor = turn.isShared ? held.number() : own.number();
    const fs::path& temporary = turn.isShared ? temporaries.shared : temporaries.own;

    std::error_code error = keepModeOf(target, descriptor);
    if (!error)
        error = fill(descriptor, bytes);
    if (!error && mayReplace && !mayReplace())
        error = std::make_error_code(std::errc::operation_canceled);
    if (!error && ::rename(temporary.c_str(), target.c_str()) != 0)
        error = lastError();
    if (error)
        ::unlink(temporary.c_str());
    else
        flushFolder(target.parent_path());
    return error;
}

std::error_code readAll(const fs::path& file, std::size_t mostBytes, std::string& bytes)
{
    std::error_code error;
    const Descriptor descriptor{openToRead(file, error)};
    if (!descriptor.isOpen())
        return error;
    struct stat status {
    };
    if (::fstat(descriptor.number(), &status) != 0)
        return lastError();
    if (error = kindTrouble(status); error)
        return error;

    // Where thousands of small files are read every call counts: with room for one byte more, a read that ends at the
    // size of the file has met its end.
    const auto expected = static_cast<std::size_t>(status.st_size);
    bytes.resize(std::min(expected, mostBytes) + 1);
    for (std::size_t size = 0;;) {
        const ssize_t got =
            uninterrupted([&] { return ::read(descriptor.number(), bytes.data() + size, bytes.size() - size); });
        if (got < 0)
            return lastError();
        size += static_cast<std::size_t>(got);
        if (size > mostBytes)
            return std::make_error_code(std::errc::file_too_large);
        if (got == 0 || size == expected) {
            bytes.resize(size);
            return {};
        }
        if (size == bytes.size())
            bytes.resize(2 * size);
    }
}

void outliveFileSizeLimits() { static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); }

} // namespace tallyhoop

#endif
