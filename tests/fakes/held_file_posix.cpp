// tests/fakes/held_file_posix.cpp - by a lock.
#ifndef _WIN32

#include "fakes/held_file.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

namespace tallyhoop::test {

HeldFile::HeldFile(const std::filesystem::path& file) : m_file{::open(file.c_str(), O_RDONLY | O_CLOEXEC)}
{
    EXPECT_EQ(::flock(static_cast<int>(m_file), LOCK_EX | LOCK_NB), 0);
}

HeldFile::~HeldFile() { ::close(static_cast<int>(m_file)); }

bool isHeld(const std::filesystem::path& path)
{
    const int other = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool held = ::flock(other, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(other);
    return held;
}

} // namespace tallyhoop::test

#endif
