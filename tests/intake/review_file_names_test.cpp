// tests/intake/review_file_names_test.cpp - which selection an entry becomes.
#include "intake/entry_table.h"
#include "intake/review.h"

#include "base/windows1252.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::ScratchFolder;
using test::upperEntry;
using testing::ElementsAre;

std::vector<std::string> fileNamesOf(const Review& review)
{
    std::vector<std::string> names;
    for (const ReviewRow& row : review.rows)
        names.push_back(row.fileName);
    return names;
}

std::vector<Effect> effectsOf(const Review& review)
{
    std::vector<Effect> effects;
    for (const ReviewRow& row : review.rows)
        effects.push_back(row.effect);
    return effects;
}

TEST(FileNamesOfReview, AreThoseOfTheTable)
{
    const ScratchFolder scratch;
    Entry renamed = upperEntry("Ann Smith", "AS");
    renamed.fileName = "The boss.thc";
    scratch.put(renamed.fileName, selectionFile(renamed));
    const std::vector<Entry> entries{renamed};
    const std::string table = entryTable(entries, test::field2000());
    const Review review =
        reviewOf(readEntryTable(table, KnownTeams{test::field2000()}, {}), scratch.folder(), test::field2000());
    EXPECT_THAT(fileNamesOf(review), ElementsAre("The boss.thc")) << "not a second player in Ann Smith_AS.THC";
    EXPECT_THAT(effectsOf(review), ElementsAre(Effect::Identical));
}

/// What was handed in by people of these names.
Review reviewOfNames(const ScratchFolder& scratch, const std::vector<std::string>& names)
{
    std::vector<HandedIn> handedIn(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        handedIn[i].entry = upperEntry(names[i], "P");
    return reviewOf(std::move(handedIn), scratch.folder(), test::field2000());
}

TEST(FileNamesOfReview, AreThoseOfAFileThatLooksAlike)
{
    const ScratchFolder scratch;
    scratch.put("Pat O'Neil-Lee_P.THC", selectionFile(upperEntry("Pat O'Neil-Lee", "P")));
    // as telephones type it: a curly apostrophe, a longer dash, a blank that does not break
    const Review review = reviewOfNames(scratch, {"Pat O\x92Neil-Lee", "Pat\xA0O'Neil\x96Lee"});
    EXPECT_THAT(fileNamesOf(review), ElementsAre("Pat O'Neil-Lee_P.THC", "Pat O'Neil-Lee_P.THC"));
    EXPECT_THAT(effectsOf(review), ElementsAre(Effect::Replaces, Effect::Replaces));
    EXPECT_EQ(review.rows[0].handedIn.entry.name, "Pat O\x92Neil-Lee") << "the name itself is as it was typed";
}

TEST(FileNamesOfReview, AreThoseOfTheMostSimilarFile)
{
    const ScratchFolder scratch;
    for (const char* name : {"Ann_P.THC", "O'Neil_P.THC", "o\xE2\x80\x99neil_p.thc"})
        scratch.put(name, "");
#ifndef _WIN32 // where these are one file
    scratch.put("ANN_P.THC", "");
#endif
    EXPECT_THAT(fileNamesOf(reviewOfNames(scratch, {"Ann", "O\x92Neil"})), ElementsAre("Ann_P.THC", "o\x92neil_p.thc"))
        << "the very same; the same apostrophe in another case of letters";
}

TEST(FileNamesOfReview, AreThoseOfAnEntryThatLooksAlike)
{
    const ScratchFolder scratch;
    const Review review = reviewOfNames(scratch, {"O\x92Neil", "O'Neil"});
    EXPECT_THAT(fileNamesOf(review), ElementsAre("O\x92Neil_P.THC", "O\x92Neil_P.THC"));
    EXPECT_EQ(review.rows[0].later, 1u) << "the second is the same player's";
    EXPECT_FALSE(review.rows[0].isTicked);
    EXPECT_TRUE(review.rows[1].isTicked);
}

TEST(FileNamesOfReview, NeverLeadOutOfTheFolder)
{
    const ScratchFolder scratch;
    HandedIn entry{upperEntry(), {}, {}, {}};
    entry.fileName = "../Ann.THC";
    const Review review = reviewOf({entry}, scratch.folder(), test::field2000());
    EXPECT_THAT(effectsOf(review), ElementsAre(Effect::Refused));
    EXPECT_TRUE(review.rows.at(0).file.empty());
    EXPECT_THAT(review.rows.at(0).reasons, ElementsAre("The file name \"../Ann.THC\" cannot be that of a selection."));
}

} // namespace
} // namespace tallyhoop
