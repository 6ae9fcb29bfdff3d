// files/whole_path.cpp - leaves the two separators before a computer's name where they are.
#include "files/whole_path.h"

#include <algorithm>
#include <array>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

constexpr bool kHasComputers = fs::path::preferred_separator == '\\';

bool isSeparator(fs::path::value_type c)
{
    constexpr std::array<fs::path::value_type, 2> kSeparators = {'/', fs::path::preferred_separator}; // one on Linux
    return std::ranges::find(kSeparators, c) != kSeparators.end();
}

bool beginsWithComputer(const fs::path& path)
{
    const fs::path::string_type& name = path.native();
    return kHasComputers && name.size() > 2 && isSeparator(name[0]) && isSeparator(name[1]) && !isSeparator(name[2]);
}

} // namespace

fs::path wholePath(const fs::path& path, std::error_code& error)
{
    error.clear();
    if (beginsWithComputer(path))
        return path;
    fs::path whole = fs::absolute(path, error);
    return error ? path : whole;
}

fs::path normalPath(const fs::path& path)
{
    fs::path normal = path.lexically_normal();
    if (!beginsWithComputer(path) || beginsWithComputer(normal))
        return normal;
    return fs::path::string_type(1, fs::path::preferred_separator) + normal.native();
}

} // namespace tallyhoop
