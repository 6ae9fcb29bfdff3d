// demo/main.cpp - DEMOSET.EXE: puts the sample pool into the folder of this program.
#include "base/windows1252.h"
#include "demo/sample_pool.h"
#include "files/replace_file.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

/// @returns the folder of this executable; an exception when the system does not say
std::filesystem::path ownFolder()
{
#ifdef _WIN32
    std::wstring path(32768, L'\0'); // longer than any path can be
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length);
    return std::filesystem::path{path}.parent_path();
#else
    return std::filesystem::read_symlink("/proc/self/exe").parent_path();
#endif
}

} // namespace

int main()
{
    tallyhoop::outliveFileSizeLimits();
    try {
        const tallyhoop::DataFolder folder{ownFolder()};
        const tallyhoop::Result<tallyhoop::Done> installed = tallyhoop::demo::installSamplePool(folder);
        if (installed)
            return EXIT_SUCCESS;
        std::cerr << tallyhoop::toUtf8(installed.failure().message) << '\n';
    } catch (const std::exception& trouble) {
        std::cerr << "The sample pool could not be written: " << trouble.what() << '\n';
    }
    return EXIT_FAILURE;
}
