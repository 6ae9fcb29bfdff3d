// cli/main.cpp - the program without windows.
#include "cli/command_line.h"
#include "cli/session.h"
#include "cli/terminal.h"
#include "files/replace_file.h"

#include <cstdio>
#include <exception>

int main(int count, char** words)
{
    tallyhoop::outliveFileSizeLimits();
    tallyhoop::cli::prepareOutput();
    try {
        return tallyhoop::cli::run(count, words);
    } catch (const std::exception& error) { // a lack of memory
        static_cast<void>(std::fprintf(stderr, "tallyhoop-cli: %s\n", error.what()));
        return tallyhoop::cli::kFaultsFound;
    }
}
