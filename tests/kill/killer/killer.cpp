// tests/kill/killer/killer.cpp - wraps the system's calls about files and kills the program at a chosen one: before the
// call, or, when it writes, after half of it.
//
// Loaded with LD_PRELOAD. After tallyhoopKillAtCall(), or from the start when TALLYHOOP_KILL_AT_CALL gives the number,
// it counts from the first call that names a temporary file, because the calls of a dialog before it vary in number.
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

int callsLeft = 0; // 0 = do not kill
bool isSaving = false;

__attribute__((constructor)) void readOrder()
{
    if (const char* call = std::getenv("TALLYHOOP_KILL_AT_CALL"); call != nullptr)
        callsLeft = std::atoi(call);
}

[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

/// A file dialog reads its folder in a thread of its own, at varying times: such calls are not counted.
bool isMainThread() { return ::gettid() == ::getpid(); }

bool isLast() { return callsLeft > 0 && isSaving && isMainThread() && --callsLeft == 0; }

void passOrDie()
{
    if (isLast())
        die();
}

void passOrDie(const char* path)
{
    isSaving = isSaving || (callsLeft > 0 && isMainThread() && std::strstr(path, ".tmp~") != nullptr);
    passOrDie();
}

/// @returns whether this is a file or folder, not a pipe to the test or to the program itself
bool isFile(int descriptor)
{
    struct stat status {
    };
    return ::fstat(descriptor, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

template <class Function>
Function next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

void tallyhoopKillAtCall(int call) { callsLeft = call; }

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    static const auto real = next<ssize_t (*)(int, const void*, std::size_t)>("write");
    if (callsLeft > 0 && isFile(descriptor) && isLast()) {
        if (real(descriptor, bytes, count / 2) >= 0)
            ::fsync(descriptor);
        die();
    }
    return real(descriptor, bytes, count);
}

int open(const char* path, int flags, ...)
{
    static const auto real = next<int (*)(const char*, int, mode_t)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    passOrDie(path);
    return real(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    static const auto real = next<int (*)(const char*, int, mode_t)>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    passOrDie(path);
    return real(path, flags, mode);
}

int ftruncate(int descriptor, off_t size)
{
    static const auto real = next<int (*)(int, off_t)>("ftruncate");
    passOrDie();
    return real(descriptor, size);
}

int fsync(int descriptor)
{
    static const auto real = next<int (*)(int)>("fsync");
    passOrDie();
    return real(descriptor);
}

int fchmod(int descriptor, mode_t mode)
{
    static const auto real = next<int (*)(int, mode_t)>("fchmod");
    passOrDie();
    return real(descriptor, mode);
}

int close(int descriptor)
{
    static const auto real = next<int (*)(int)>("close");
    if (callsLeft > 0 && isFile(descriptor))
        passOrDie();
    return real(descriptor);
}

int rename(const char* from, const char* to)
{
    static const auto real = next<int (*)(const char*, const char*)>("rename");
    passOrDie(from);
    return real(from, to);
}

int unlink(const char* path)
{
    static const auto real = next<int (*)(const char*)>("unlink");
    passOrDie(path);
    return real(path);
}

int unlinkat(int folder, const char* path, int flags)
{
    static const auto real = next<int (*)(int, const char*, int)>("unlinkat");
    passOrDie(path);
    return real(folder, path, flags);
}

int remove(const char* path)
{
    static const auto real = next<int (*)(const char*)>("remove");
    passOrDie(path);
    return real(path);
}

int mkdir(const char* path, mode_t mode)
{
    static const auto real = next<int (*)(const char*, mode_t)>("mkdir");
    passOrDie(path);
    return real(path, mode);
}
}
