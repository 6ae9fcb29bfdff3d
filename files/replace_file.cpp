// files/replace_file.cpp - which file is replaced and by way of which temporary; and reading a file whole.
#include "files/replace_file.h"

#include "base/reason.h"
#include "files/replace_file_steps.h"
#include "files/whole_path.h"

#include <fmt/format.h>
#include <random>
#include <string>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

Failure failureOf(std::error_code error)
{
    return Failure{error == std::errc::operation_would_block ? kHeldByAnother : reasonOf(error)};
}

/// Follows symbolic links, also to a file that is not there yet: replacing the link itself would cut it off.
fs::path withoutLinks(fs::path file, std::error_code& error)
{
    constexpr int kMostLinks = 40;
    for (int links = 0; links < kMostLinks; ++links) {
        std::error_code notThere;
        if (!fs::is_symlink(fs::symlink_status(file, notThere)))
            return file;
        const fs::path next = fs::read_symlink(file, error);
        if (error)
            return file;
        file = next.is_absolute() ? next : file.parent_path() / next;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return file;
}

/// @returns a hidden name that no pattern of ours matches
fs::path hiddenBeside(const fs::path& target, const std::string& extension)
{
    constexpr std::size_t kMostUnits = 255; // longest name that file systems take
    const fs::path::string_type before = fs::path{"."}.native();
    const fs::path::string_type after = fs::path{extension}.native();
    const fs::path::string_type name = target.filename().native().substr(0, kMostUnits - before.size() - after.size());
    return target.parent_path() / fs::path{before + name + after};
}

/// The shared name is a fixed one: what a crash leaves is overwritten by the next save.
Temporaries temporariesOf(const fs::path& target)
{
    return {hiddenBeside(target, ".tmp~"), hiddenBeside(target, fmt::format(".{:08x}.tmp~", std::random_device{}()))};
}

/// Replacing something that is no file by a file would destroy it.
std::error_code checkKind(const fs::path& target)
{
    std::error_code notThere;
    const fs::file_status status = fs::status(target, notThere);
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if (fs::exists(status) && !fs::is_regular_file(status))
        return std::make_error_code(std::errc::invalid_argument);
    return {};
}

std::error_code replace(const fs::path& file, std::string_view bytes, const std::function<bool()>& mayReplace)
{
    std::error_code error;
    const fs::path full = wholePath(file, error);
    if (error)
        return error;
    const fs::path target = withoutLinks(full, error);
    if (error)
        return error;
    if (error = checkKind(target); error)
        return error;
    return replaceThrough(temporariesOf(target), target, bytes, mayReplace);
}

} // namespace

Result<Done> replaceFile(const fs::path& file, std::string_view bytes, const std::function<bool()>& mayReplace)
{
    if (const std::error_code error = replace(file, bytes, mayReplace); error)
        return failureOf(error);
    return Done{};
}

Result<std::string> readFile(const fs::path& file, std::size_t mostBytes)
{
    std::string bytes;
    const std::error_code error = readAll(file, mostBytes, bytes);
    if (error == std::errc::file_too_large)
        return Failure{fmt::format("The file is larger than {} MB.", mostBytes >> 20)};
    if (error)
        return Failure{reasonOf(error)};
    return bytes;
}

} // namespace tallyhoop
