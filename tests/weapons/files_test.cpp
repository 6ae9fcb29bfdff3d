// tests/weapons/files_test.cpp - whatever stands in one field of a file, it comes back, and the other fields with it.
#include "weapons/weapons.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

class WeaponsInFiles : public testing::TestWithParam<Weapon>
{
protected:
    const std::string& weapon() const { return GetParam().text; }
};

TEST_P(WeaponsInFiles, ComeBackFromEachFieldOfTheSetup)
{
    for (std::size_t field = 0; field < setup_line::kEnd; ++field) {
        SetupLines lines = defaultSetupLines();
        lines.at(field) = weapon();
        SetupLines again{};
        ASSERT_EQ(readSetup(setupFile(lines), again), SetupReading::Taken) << "field " << field;
        for (std::size_t i = 0; i < setup_line::kEnd; ++i)
            ASSERT_EQ(again.at(i), lines.at(i)) << "field " << field << " touched field " << i;
    }
}

TEST_P(WeaponsInFiles, ComeBackFromEachFieldOfASelection)
{
    for (std::size_t field = 1; field < selection_line::kEnd; ++field) {
        SelectionLines lines;
        lines.fill("Team");
        lines[0].clear();
        lines.at(field) = weapon();
        const Read<SelectionLines> again = readSelection(selectionFile(lines));
        ASSERT_FALSE(again.trouble) << "field " << field;
        for (std::size_t i = 1; i < selection_line::kEnd; ++i)
            ASSERT_EQ(again.value.at(i), lines.at(i)) << "field " << field << " touched field " << i;
    }
}

TEST_P(WeaponsInFiles, ComeBackFromEachFieldOfAPlayer)
{
    const PlayerRecord plain{"Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102"};
    // Double quotes frame the fields; an apostrophe stands for one.
    std::string kept = weapon();
    std::replace(kept.begin(), kept.end(), '"', '\'');
    for (const auto& [field, width] :
         {std::pair{&PlayerRecord::name, kNameWidth}, std::pair{&PlayerRecord::fileName, kFileNameWidth},
          std::pair{&PlayerRecord::email, kEmailWidth}, std::pair{&PlayerRecord::phone, kPhoneWidth}}) {
        PlayerRecord record = plain;
        record.*field = weapon();
        const std::vector<std::string> lines = linesOf(playerNamesFile(std::vector{record, plain}));
        ASSERT_EQ(lines.size(), 3u);
        EXPECT_EQ(faultOf(lines[1]), RecordFault::None);
        const PlayerRecord again = parseRecord(lines[1]);
        EXPECT_EQ(again.*field, fitted(kept, width));
        for (const auto other :
             {&PlayerRecord::name, &PlayerRecord::fileName, &PlayerRecord::email, &PlayerRecord::phone})
            EXPECT_TRUE(other == field || trimTrailingBlanks(again.*other) == plain.*other);
        EXPECT_EQ(trimTrailingBlanks(parseRecord(lines[2]).name), plain.name);
    }
}

TEST_P(WeaponsInFiles, DoNotEndTheListOfTeamsBeforeItsEnd)
{
    const Result<std::vector<std::string>> again =
        readTeamNameList(teamNameListFile(std::vector<std::string>{"Adams St.", weapon(), "Zebra"}));
    ASSERT_TRUE(again);
    EXPECT_TRUE(std::ranges::find(*again, "Adams St.") != again->end());
    if (!weapon().starts_with("*")) { // a marker is no team
        EXPECT_TRUE(std::ranges::find(*again, weapon()) != again->end());
        EXPECT_TRUE(std::ranges::find(*again, "Zebra") != again->end());
    }
}

TEST_P(WeaponsInFiles, SurviveTheWayToTheSystemAndBack) { EXPECT_EQ(fromUtf8(toUtf8(weapon())), weapon()); }

INSTANTIATE_TEST_SUITE_P(Each, WeaponsInFiles, testing::ValuesIn(weapons()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
