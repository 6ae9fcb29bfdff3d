// bench/peak_memory.h - the most memory that a program of the benchmarks has used.
#pragma once

#include <fstream>
#include <string>

namespace tallyhoop::bench {

/// KiB of this process alone: what the system says of children may be the memory of the parent they were forked from.
/// 0 where the system does not tell.
inline long peakKilobytes()
{
    std::ifstream status{"/proc/self/status"};
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            return std::stol(line.substr(6));
    return 0;
}

} // namespace tallyhoop::bench
