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

TEST(FileNamesOfReview, AreThoseOfAFileThatLooksAlike)
{
    const ScratchFolder scratch;
    const Entry plain = upperEntry("Pat O'Brien-Lee", "PO");
    scratch.put("Pat O'Brien-Lee_PO.THC", selectionFile(plain));
    scratch.put("Pat \"x\"_PO.THC", "");
    scratch.put("Ann_A.THC", "");
    scratch.put("ANN_A.THC", "");
    // as telephones type them: a curly apostrophe, a hyphen that does not break, a blank that does not break
    const Entry typed = upperEntry("Pat O\x92"
                                   "Brien-Lee",
                                   "PO");
    const Entry dashed = upperEntry("Pat\xA0O\x92"
                                    "Brien\x96Lee",
                                    "po");
    const Review review = reviewOf({{typed, {}, {}, {}}, {dashed, {}, {}, {}}, {upperEntry("Ann", "A"), {}, {}, {}}},
                                   scratch.folder(), test::field2000());
    EXPECT_THAT(fileNamesOf(review), ElementsAre("Pat O'Brien-Lee_PO.THC", "Pat O'Brien-Lee_PO.THC", "Ann_A.THC"));
    EXPECT_EQ(review.rows[0].effect, Effect::Replaces);
    EXPECT_EQ(review.rows[0].words.substr(0, 9), "Replaces ");
    EXPECT_EQ(review.rows[0].handedIn.entry.name, "Pat O\x92"
                                                  "Brien-Lee")
        << "the name itself is as it was typed";
}

TEST(FileNamesOfReview, AreThoseOfAnEntryThatLooksAlike)
{
    const ScratchFolder scratch;
    const Review review = reviewOf({{upperEntry("O\x92"
                                                "Brien",
                                                "O"),
                                     {},
                                     {},
                                     {}},
                                    {upperEntry("O'Brien", "O"), {}, {}, {}}},
                                   scratch.folder(), test::field2000());
    EXPECT_THAT(fileNamesOf(review), ElementsAre("O\x92"
                                                 "Brien_O.THC",
                                                 "O\x92"
                                                 "Brien_O.THC"));
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
