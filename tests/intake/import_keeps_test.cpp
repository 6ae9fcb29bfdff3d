// tests/intake/import_keeps_test.cpp - what is no whole selection is kept before an import replaces it.
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"
#include "intake/importing.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// No file can become larger as long as this is there; what is tried fails.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    using Handler = void (*)(int);

    Handler m_handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before{};
};

/// Two entries, each of which replaces what is no whole selection, reviewed and ticked.
struct ImportKeeps : testing::Test {
    const test::ScratchFolder scratch;
    Review review;

    void reviewOver(const std::string& ann, const std::string& bob)
    {
        scratch.put("Ann Smith_as.THC", ann);
        scratch.put("Bob_B.THC", bob);
        const auto from = [](Entry entry) { return HandedIn{std::move(entry), {}, {"x.EML", {}, 1, {}}, {}, true}; };
        review = reviewOf({from(test::upperEntry()), from(test::upperEntry("Bob", "B"))}, scratch.folder(),
                          test::field2000());
        setTicked(review, 0, true);
        setTicked(review, 1, true);
    }

    ImportOutcome imported() const
    {
        const std::chrono::local_days day{std::chrono::year{2026} / 11 / 20};
        return importTicked(review, scratch.folder(), day + std::chrono::hours{10}, goOn, 1);
    }
};

TEST_F(ImportKeeps, WhatIsNoWholeSelectionInABackupFolder)
{
    reviewOver("notes of Ann", "notes of Bob");
    const ImportOutcome outcome = imported();
    EXPECT_EQ(outcome.replaced, 2u);
    EXPECT_EQ(scratch.get("Backup 2026-11-20 100000/Ann Smith_as.THC"), "notes of Ann");
    EXPECT_EQ(scratch.get("Backup 2026-11-20 100000 (2)/Bob_B.THC"), "notes of Bob");
    EXPECT_EQ(scratch.get("Bob_B.THC"), selectionFile(test::upperEntry("Bob", "B")));
    EXPECT_THAT(outcome.summary, HasSubstr("What was no whole selection is kept:\r\n"
                                           "  Ann Smith_as.THC: in the folder Backup 2026-11-20 100000\r\n"
                                           "  Bob_B.THC: in the folder Backup 2026-11-20 100000 (2)\r\n"));
}

TEST_F(ImportKeeps, NoSelectionThatIsWhole)
{
    reviewOver(selectionFile(test::upperEntry("Ann Smith", "AS", "99")), "notes of Bob");
    const ImportOutcome outcome = imported();
    ASSERT_EQ(outcome.kept.size(), 1u);
    EXPECT_EQ(outcome.kept[0].row, 1u);
    EXPECT_EQ(outcome.kept[0].folder, scratch.path() / "Backup 2026-11-20 100000");
}

TEST_F(ImportKeeps, NothingThatChangedSinceTheReview)
{
    reviewOver("notes of Ann", "notes of Bob");
    scratch.put("Ann Smith_as.THC", "more notes of Ann");
    EXPECT_EQ(imported().kept.size(), 1u) << "Bob's";
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), "more notes of Ann");
    EXPECT_FALSE(fs::exists(scratch.path() / "Backup 2026-11-20 100000 (2)"));
}

TEST_F(ImportKeeps, NothingThatIsGoneSinceTheReview)
{
    reviewOver("notes of Ann", "notes of Bob");
    fs::remove(scratch.path() / "Ann Smith_as.THC");
    const ImportOutcome outcome = imported();
    ASSERT_EQ(outcome.notWritten.size(), 1u);
    EXPECT_EQ(outcome.notWritten[0].reason, "The file has been changed since the review.");
}

TEST_F(ImportKeeps, WhereItCannotTheFileStaysAndTheSummarySaysWhy)
{
    reviewOver(std::string(100'000, 'x'), "notes of Bob");
    const ImportOutcome outcome = [&] {
        const FileSizeLimit limit{50'000}; // room for a selection and the player list
        return imported();
    }();
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), std::string(100'000, 'x'));
    EXPECT_EQ(outcome.replaced, 1u);
    ASSERT_EQ(outcome.notWritten.size(), 1u);
    const std::string file = (scratch.path() / "Backup 2026-11-20 100000" / "Ann Smith_as.THC").string();
    EXPECT_EQ(outcome.notWritten[0].reason, "What is here could not be kept first: " + file + ": File too large");
}

TEST_F(ImportKeeps, NoBackupOfWhatCouldNotBeReplaced)
{
    reviewOver("x", "notes of Bob");
    const ImportOutcome outcome = [&] {
        const FileSizeLimit limit{300}; // room for the backups, but for no selection
        return imported();
    }();
    EXPECT_EQ(outcome.notWritten.size(), 2u);
    EXPECT_EQ(scratch.get("Ann Smith_as.THC"), "x");
    EXPECT_FALSE(fs::exists(scratch.path() / "Backup 2026-11-20 100000"));
}

} // namespace
} // namespace tallyhoop
