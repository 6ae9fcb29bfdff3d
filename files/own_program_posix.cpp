// files/own_program_posix.cpp - as Linux has it.
#ifndef _WIN32

#include "files/own_program.h"

#include <system_error>

namespace tallyhoop {

std::filesystem::path ownProgram()
{
    std::error_code systemDoesNotSay;
    return std::filesystem::read_symlink("/proc/self/exe", systemDoesNotSay);
}

} // namespace tallyhoop

#endif
