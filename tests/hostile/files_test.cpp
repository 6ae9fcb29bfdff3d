// tests/hostile/files_test.cpp - whatever is in one field of a file, it comes back, and the other fields with it.
#include "hostile/hostile_names.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"

#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

class HostileNamesInFiles : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }
};

/// A text of the setup that anything can be written into.
struct SetupText {
    std::string name;
    std::function<void(Field&, const std::string&)> put;
    bool isComment = false;
};

std::vector<SetupText> textsOfTheSetup()
{
    std::vector<SetupText> texts;
    for (const TeamRow row : allTeamRows())
        texts.push_back({"team " + std::to_string(index(row)),
                         [row](Field& field, const std::string& text) { field.teams[row] = text; }});
    texts.push_back({"title", [](Field& field, const std::string& text) { field.title = text; }});
    for (std::size_t i = 0; i < kRegions; ++i)
        texts.push_back({"title of region " + std::to_string(i),
                         [i](Field& field, const std::string& text) { field.regionTitles.at(i) = text; }});
    for (std::size_t i = 0; i < kRounds; ++i)
        texts.push_back({"payoff " + std::to_string(i), [i](Field& field, const std::string& text) {
                             std::array<std::string, kRounds> payoffs = field.payoffs.texts();
                             payoffs.at(i) = text;
                             field.payoffs = PayoffTexts{payoffs};
                         }});
    for (std::size_t i = 0; i < kRowsPerRegion; ++i)
        texts.push_back(
            {"seed " + std::to_string(i), [i](Field& field, const std::string& text) { field.seeds.at(i) = text; }});
    texts.push_back({"comment 1", [](Field& field, const std::string& text) { field.comment1 = text; }, true});
    texts.push_back({"comment 2", [](Field& field, const std::string& text) { field.comment2 = text; }, true});
    texts.push_back({"finalized", [](Field& field, const std::string& text) { field.finalized = text; }});
    return texts;
}

TEST_P(HostileNamesInFiles, ComeBackFromEachTextOfTheSetup)
{
    const std::vector<SetupText> texts = textsOfTheSetup();
    ASSERT_EQ(texts.size(), 94u); // 64 teams, 5 titles, 6 payoffs, 16 seeds, 2 comments, finalized
    for (const SetupText& text : texts) {
        Field field = defaultField();
        text.put(field, hostileName());
        const Read<Field> again = readSetup(setupFile(field));
        ASSERT_FALSE(again.trouble) << text.name;
        if (text.isComment) // a bar in a comment is a line break
            text.put(field, decodeLineBreaks(hostileName()));
        ASSERT_EQ(again.value, field) << text.name;
    }
}

TEST_P(HostileNamesInFiles, ComeBackFromEachFieldOfASelection)
{
    Entry plain;
    plain.initials = "JS";
    plain.name = "Smith";
    plain.finalPoints = "150";
    for (const Position position : allPositions())
        plain.picks.put(position, "Team");
    std::vector<Entry> entries;
    for (const Position position : allPositions()) {
        entries.push_back(plain);
        entries.back().picks.put(position, hostileName());
    }
    for (std::string Entry::*text : {&Entry::initials, &Entry::name, &Entry::finalPoints}) {
        entries.push_back(plain);
        entries.back().*text = hostileName();
    }
    for (const Entry& entry : entries) {
        const Read<Entry> again = readSelection(selectionFile(entry));
        ASSERT_FALSE(again.trouble);
        ASSERT_EQ(again.value, entry);
    }
}

TEST_P(HostileNamesInFiles, ComeBackFromEachFieldOfAPlayer)
{
    const PlayerRecord plain{"Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102"};
    // Double quotes frame the fields; an apostrophe replaces one inside a field.
    std::string kept = hostileName();
    std::replace(kept.begin(), kept.end(), '"', '\'');
    for (const auto& [field, width] :
         {std::pair{&PlayerRecord::name, kNameWidth}, std::pair{&PlayerRecord::fileName, kFileNameWidth},
          std::pair{&PlayerRecord::email, kEmailWidth}, std::pair{&PlayerRecord::phone, kPhoneWidth}}) {
        PlayerRecord record = plain;
        record.*field = hostileName();
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

TEST_P(HostileNamesInFiles, DoNotEndTheListOfTeamsBeforeItsEnd)
{
    const Result<std::vector<std::string>> again =
        readTeamNameList(teamNameListFile(std::vector<std::string>{"Adams St.", hostileName(), "Zebra"}));
    ASSERT_TRUE(again);
    EXPECT_TRUE(std::ranges::find(*again, "Adams St.") != again->end());
    if (!hostileName().starts_with("*")) { // a marker is no team
        EXPECT_TRUE(std::ranges::find(*again, hostileName()) != again->end());
        EXPECT_TRUE(std::ranges::find(*again, "Zebra") != again->end());
    }
}

TEST_P(HostileNamesInFiles, SurviveTheConversionForTheSystemAndBack)
{
    EXPECT_EQ(fromUtf8(toUtf8(hostileName())), hostileName());
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInFiles, testing::ValuesIn(hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
