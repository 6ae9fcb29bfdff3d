// tests/intake/real_mails_test.cpp - one bracket in mails as programs and people make them of it.
//
// The mails are the corpus of the fuzzer. Each has the text of exampleText(), or its selection file, and its name says
// what has to come of it.
#include "intake/entry_readers.h"
#include "intake/entry_refusals.h"

#include "files/replace_file.h"
#include "intake/field_2000.h"
#include "intake/mail_readers.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

class RealMails : public testing::TestWithParam<test::MailReader>
{
};

INSTANTIATE_TEST_SUITE_P(ByEachReader, RealMails, testing::ValuesIn(test::mailReaders()),
                         [](const auto& tested) { return tested.param.name; });

/// @returns the mails whose names begin so, by name
std::map<std::string, std::vector<HandedIn>> mailsThatAre(const std::string& kind, const test::MailReader& reader)
{
    const EntryReaders readers{test::field2000(), reader.takeApart};
    std::map<std::string, std::vector<HandedIn>> mails;
    for (const fs::directory_entry& file : fs::directory_iterator{fs::path{TALLYHOOP_FUZZ_CORPUS} / "mails"}) {
        const std::string name = file.path().filename().string();
        if (name.starts_with(kind))
            mails[name] = readers.read({name + ".EML", *readFile(file.path())});
    }
    return mails;
}

TEST_P(RealMails, GiveTheEntry)
{
    const auto mails = mailsThatAre("good_", GetParam());
    EXPECT_EQ(mails.size(), 33u);
    for (const auto& [name, read] : mails) {
        ASSERT_EQ(read.size(), 1u) << name;
        EXPECT_TRUE(refusalsOf(read[0], test::field2000()).empty()) << name << ": " << read[0].refusals.front();
        EXPECT_EQ(read[0].entry.name, "Zo\xE9 O\x92Neil") << name;
        EXPECT_EQ(read[0].entry.finalPoints, "142") << name;
        EXPECT_EQ(read[0].entry.picks, test::upperTeamsWin()) << name;
        const bool isFile = name.starts_with("good_attached_selection");
        EXPECT_EQ(read[0].entry.initials, isFile ? "ZO" : "zo") << name;
        EXPECT_EQ(read[0].email, isFile ? "zoe@home.example" : "zoe@example.org") << name;
    }
}

TEST_P(RealMails, AreRefusedWhenTheyAreMangled)
{
    const auto mails = mailsThatAre("mangled_", GetParam());
    EXPECT_EQ(mails.size(), 6u);
    for (const auto& [name, read] : mails) {
        ASSERT_EQ(read.size(), 1u) << name;
        const std::vector<std::string> reasons = refusalsOf(read[0], test::field2000());
        EXPECT_TRUE(std::ranges::any_of(reasons, [](const std::string& reason) {
            return reason.starts_with("Mangled: ");
        })) << name;
    }
}

TEST_P(RealMails, AreRefusedWhenTheyHaveNoEntry)
{
    const auto mails = mailsThatAre("none_", GetParam());
    EXPECT_EQ(mails.size(), 3u);
    for (const auto& [name, read] : mails) {
        ASSERT_EQ(read.size(), 1u) << name;
        ASSERT_EQ(read[0].refusals.size(), 1u) << name;
        EXPECT_TRUE(read[0].refusals[0].starts_with("There is no entry in this mail.")) << name;
    }
}

} // namespace
} // namespace tallyhoop
