// demo/main.cpp - DEMOSET.EXE: puts the sample pool into the folder of this program.
#include "base/windows1252.h"
#include "demo/sample_pool.h"
#include "files/own_program.h"
#include "files/replace_file.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

int main()
{
    tallyhoop::outliveFileSizeLimits();
    try {
        const std::filesystem::path program = tallyhoop::ownProgram();
        if (program.empty())
            throw std::runtime_error{"the system does not say where this program is."};
        const tallyhoop::DataFolder folder{program.parent_path()};
        const tallyhoop::Result<tallyhoop::Done> installed = tallyhoop::demo::installSamplePool(folder);
        if (installed)
            return EXIT_SUCCESS;
        std::cerr << tallyhoop::toUtf8(installed.failure().message) << '\n';
    } catch (const std::exception& trouble) {
        std::cerr << "The sample pool could not be written: " << trouble.what() << '\n';
    }
    return EXIT_FAILURE;
}
