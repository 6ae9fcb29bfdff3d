// tests/fuzz/message_replay_test.cpp - every file of the fuzzers' corpora as a message, in every build with windows.
#include "fuzz/targets.h"

#include "files/replace_file.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(Replay, FindsNothingWrongWithAnyFileOfAnyCorpusAsAMessage)
{
    int messages = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator{TALLYHOOP_FUZZ_CORPUS}) {
        if (!file.is_regular_file())
            continue;
        messages += file.path().parent_path().filename() == "messages" ? 1 : 0;
        const Result<std::string> bytes = readFile(file.path());
        ASSERT_TRUE(bytes) << file.path();
        EXPECT_EQ(fuzz::message_file(*bytes), std::nullopt) << file.path();
    }
    EXPECT_GE(messages, 5) << "messages without a corpus of their own";
}

} // namespace
} // namespace tallyhoop
