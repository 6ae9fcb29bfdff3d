// tests/faults/own_process_windows.cpp - in this one: what the faults do on Windows is undone by their repair.
#ifdef _WIN32

#include "faults/own_process.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

void inOwnProcess(const std::function<std::string()>& part)
{
    if (const std::string cannot = part(); !cannot.empty())
        GTEST_SKIP() << cannot;
}

} // namespace tallyhoop::test

#endif
