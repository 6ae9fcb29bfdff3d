// tests/files/naive_reader.cpp - line by line.
#include "files/naive_reader.h"

#include "base/lines.h"

namespace tallyhoop::test {

Read<Entry> readNaively(std::string_view bytes)
{
    std::vector<std::string> lines = linesOf(bytes);
    Read<Entry> read;
    if (lines.size() > 131)
        read.trouble = Failure{"The file has more than 131 lines."};
    else if (lines.size() < 131)
        read.trouble = Failure{"The file has fewer than 131 lines."};
    else if (lines.back() != "*END*")
        read.trouble = Failure{"Line 131 of the file is not the end marker."};
    lines.resize(131);
    for (int place = 0; place < 127; ++place)
        read.value.picks.put(Position{place}, lines[static_cast<std::size_t>(place)]);
    read.value.initials = lines[127];
    read.value.name = lines[128];
    read.value.finalPoints = lines[129];
    return read;
}

} // namespace tallyhoop::test
