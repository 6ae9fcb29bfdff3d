// cli/arguments_windows.cpp - the words as Windows has them: what reaches main() has lost what its code page lacks.
#ifdef _WIN32

#include "cli/arguments.h"

#include <windows.h>
// The comment keeps the order of the includes: the next header needs the one above.
#include <shellapi.h>

namespace tallyhoop::cli {

std::vector<std::string> argumentsOf(int /*count*/, const char* const* /*words*/)
{
    std::vector<std::string> arguments;
    int count = 0;
    LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i)
        arguments.push_back(argumentOf(words[i]));
    ::LocalFree(words);
    return arguments;
}

std::filesystem::path pathOf(const std::string& argument)
{
    return std::filesystem::path{std::u8string{argument.begin(), argument.end()}};
}

std::string argumentOf(const std::filesystem::path& path)
{
    const std::wstring& wide = path.native();
    const auto size = static_cast<int>(wide.size());
    const int needed = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

} // namespace tallyhoop::cli

#endif
