// tests/fuzz/mail_replay_test.cpp - every file of the fuzzers' corpora as a mail that is read.
#include "fuzz/targets.h"

#include "files/replace_file.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(Replay, FindsNothingWrongWithAnyFileOfAnyCorpusAsAMail)
{
    int mails = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator{TALLYHOOP_FUZZ_CORPUS}) {
        if (!file.is_regular_file())
            continue;
        mails += file.path().parent_path().filename() == "mails" ? 1 : 0;
        const Result<std::string> bytes = readFile(file.path());
        ASSERT_TRUE(bytes) << file.path();
        EXPECT_EQ(fuzz::mail(*bytes), std::nullopt) << file.path();
    }
    EXPECT_GE(mails, 30) << "mails without a corpus of their own";
}

} // namespace
} // namespace tallyhoop
