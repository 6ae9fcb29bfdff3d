// tests/fuzz/replay_test.cpp - every file of the fuzzers' corpus through every reader, in every build.
#include "fuzz/readers.h"

#include "model/replace_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> corpusOf(const std::string& reader)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator{fs::path{TALLYHOOP_FUZZ_CORPUS} / reader})
        files.push_back(entry.path());
    return files;
}

class Replay : public testing::TestWithParam<std::pair<const char*, fuzz::Reader>>
{
};

TEST_P(Replay, FindsNothingWrongWithAnyFileOfTheCorpus)
{
    const auto& [name, reader] = GetParam();
    EXPECT_GE(corpusOf(name).size(), 5u) << "a reader without a corpus of its own";
    for (const char* corpus : {"setup", "selection", "players", "teams", "settings"})
        for (const fs::path& file : corpusOf(corpus)) {
            const Result<std::string> bytes = readFile(file);
            ASSERT_TRUE(bytes) << file;
            EXPECT_EQ(reader(*bytes), std::nullopt) << file;
        }
}

INSTANTIATE_TEST_SUITE_P(OfEveryReader, Replay,
                         testing::Values(std::pair{"setup", &fuzz::setup}, std::pair{"selection", &fuzz::selection},
                                         std::pair{"players", &fuzz::players}, std::pair{"teams", &fuzz::teams},
                                         std::pair{"settings", &fuzz::settings}),
                         [](const auto& values) { return std::string{values.param.first}; });

} // namespace
} // namespace tallyhoop
