// tests/files/saves_at_once_test.cpp - several programs save one file at the same moment, and no version is lost
// unseen.
#include "files/known_files.h"
#include "files/replace_file.h"

#include "fakes/scratch_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

constexpr int kPrograms = 4;
constexpr int kSavesOfEach = 25;

/// Adds 1 to the number at the beginning of the file, beginning anew whenever somebody else was faster.
bool addOne(KnownFiles& known, const fs::path& file, int program)
{
    constexpr int kMostAttempts = 10'000;
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const FileContent seen = KnownFiles::contentOf(file);
        const std::string bytes = std::to_string(std::stoi(seen.bytes) + 1) + " by program " + std::to_string(program);
        if (known.replace(file, bytes, seen).replaced == KnownFiles::Replaced::Yes)
            return true;
    }
    return false;
}

/// @returns the number after all programs have added theirs, one by one
int numberAfterSaves(const fs::path& file)
{
    std::vector<std::thread> programs;
    for (int program = 0; program < kPrograms; ++program)
        programs.emplace_back([&file, program] {
            KnownFiles known;
            for (int save = 0; save < kSavesOfEach; ++save)
                EXPECT_TRUE(addOne(known, file, program));
        });
    for (std::thread& program : programs)
        program.join();
    return std::stoi(KnownFiles::contentOf(file).bytes);
}

TEST(SavesAtOnce, LoseNoVersion)
{
    const test::ScratchFolder scratch;
    EXPECT_EQ(numberAfterSaves(scratch.put("A.THC", "0")), kPrograms * kSavesOfEach);
}

TEST(SavesAtOnce, LoseNoVersionAlsoWhenTheTemporaryIsInTheWay)
{
    const test::ScratchFolder scratch;
    fs::create_directory(scratch.path() / ".A.THC.tmp~");
    EXPECT_EQ(numberAfterSaves(scratch.put("A.THC", "0")), kPrograms * kSavesOfEach);
}

} // namespace
} // namespace tallyhoop
