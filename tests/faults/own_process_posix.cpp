// tests/faults/own_process_posix.cpp - forks, so that lost rights and mounts end with the child.
#ifndef _WIN32

#include "faults/own_process.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

namespace tallyhoop::test {

namespace {

constexpr int kSucceeded = 0;
constexpr int kFailed = 1;
constexpr int kSkipped = 77;

[[noreturn]] void runAndLeave(const std::function<std::string()>& part, int reasonPipe)
{
    const std::string cannot = part();
    const auto length = static_cast<ssize_t>(cannot.size());
    const bool isReported = ::write(reasonPipe, cannot.data(), cannot.size()) == length;
    std::cout.flush();
    std::fflush(nullptr);
    if (testing::Test::HasFailure() || !isReported)
        ::_exit(kFailed);
    ::_exit(cannot.empty() ? kSucceeded : kSkipped);
}

std::string readAll(int pipe)
{
    std::string text;
    char buffer[256];
    for (ssize_t count = 0; (count = ::read(pipe, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(count));
    return text;
}

} // namespace

void inOwnProcess(const std::function<std::string()>& part)
{
    int reason[2];
    ASSERT_EQ(::pipe(reason), 0);
    std::cout.flush();
    std::fflush(nullptr);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::close(reason[0]);
        runAndLeave(part, reason[1]);
    }
    ::close(reason[1]);
    const std::string cannot = readAll(reason[0]);
    ::close(reason[0]);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    if (WEXITSTATUS(status) == kSkipped)
        GTEST_SKIP() << cannot;
    EXPECT_EQ(WEXITSTATUS(status), kSucceeded) << "see above";
}

} // namespace tallyhoop::test

#endif
