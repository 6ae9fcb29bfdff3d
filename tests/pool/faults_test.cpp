// tests/pool/faults_test.cpp - what in a bracket cannot be.
#include "pool/faults.h"

#include "pool/sample_brackets.h"

#include <gmock/gmock.h>

namespace tallyhoop {

void PrintTo(const Fault& fault, std::ostream* out)
{
    *out << "{position " << index(fault.position) << ", kind " << static_cast<int>(fault.kind) << '}';
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The field that the sample brackets are about: "Team 1" .. "Team 64".
Field sampleField()
{
    Field field;
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "Team " + std::to_string(index(row) + 1);
    return field;
}

TEST(FaultsOf, AreNoneInACompleteBracketOfTheField)
{
    EXPECT_THAT(faultsOf(test::everyUpperTeamWins(), sampleField()), IsEmpty());
    EXPECT_THAT(faultsOf(test::everyLowerTeamWins(), sampleField()), IsEmpty());
}

TEST(FaultsOf, AnEmptyBracketAreEveryRowAndEveryGame)
{
    const std::vector<Fault> faults = faultsOf(Bracket{}, sampleField());
    ASSERT_EQ(faults.size(), 127u);
    EXPECT_EQ(faults.front(), (Fault{Position{0}, FaultKind::OtherTeam}));
    EXPECT_EQ(faults[15], (Fault{Position{15}, FaultKind::OtherTeam}));
    EXPECT_EQ(faults[16], (Fault{Position{16}, FaultKind::NoPick}));
    EXPECT_EQ(faults.back(), (Fault{kChampion, FaultKind::NoPick}));
    EXPECT_EQ(std::ranges::count(faults, FaultKind::OtherTeam, &Fault::kind), 64);
}

TEST(FaultsOf, ABracketWithoutPicksAreThe63Games)
{
    const std::vector<Fault> faults = faultsOf(test::startingField(), sampleField());
    ASSERT_EQ(faults.size(), 63u);
    EXPECT_EQ(std::ranges::count(faults, FaultKind::NoPick, &Fault::kind), 63);
}

TEST(FaultsOf, NameARowThatHasAnotherTeamThanTheField)
{
    Bracket bracket = test::everyUpperTeamWins();
    bracket.put(Position{1}, "Team 99"); // it loses its first game: no later pick is touched
    bracket.put(Position{108}, "TEAM 64");
    EXPECT_THAT(faultsOf(bracket, sampleField()),
                ElementsAre(Fault{Position{1}, FaultKind::OtherTeam}, Fault{Position{108}, FaultKind::OtherTeam}));
}

TEST(FaultsOf, NameAGameWithoutAPickAndWhatDoesNotFollowFromIt)
{
    Bracket bracket = test::everyUpperTeamWins();
    bracket.clear(Position{16}); // Team 1 goes on in position 24 all the same, and nobody sent it there
    EXPECT_THAT(faultsOf(bracket, sampleField()),
                ElementsAre(Fault{Position{16}, FaultKind::NoPick}, Fault{Position{24}, FaultKind::NotInGame}));
}

TEST(FaultsOf, NameATeamThatDoesNotPlayTheGameOnceForEachPlaceWhereNobodySentIt)
{
    Bracket bracket = test::everyUpperTeamWins();
    for (const int position : {24, 28, 30})
        bracket.put(Position{position}, "Team 16"); // lost in position 23
    bracket.put(kChampion, "Team 64");
    EXPECT_THAT(faultsOf(bracket, sampleField()),
                ElementsAre(Fault{Position{24}, FaultKind::NotInGame}, Fault{Position{124}, FaultKind::NotInGame},
                            Fault{kChampion, FaultKind::NotInGame}))
        << "Team 1 goes on in position 124, and lost in 24";
}

TEST(FaultsOf, TakeAnEmptyNameOfTheFieldAsItIs)
{
    Field field = sampleField();
    field.teams[TeamRow{1}] = "";
    Bracket bracket = test::everyUpperTeamWins();
    EXPECT_THAT(faultsOf(bracket, field), ElementsAre(Fault{Position{1}, FaultKind::OtherTeam}));
    bracket.clear(Position{1});
    EXPECT_THAT(faultsOf(bracket, field), IsEmpty());
    bracket.clear(Position{16}); // the nobody of row 1 cannot win
    EXPECT_EQ(faultsOf(bracket, field).front(), (Fault{Position{16}, FaultKind::NoPick}));
}

TEST(FaultsOf, DoesNotDistinguishTeamsOfOneName)
{
    Field field = sampleField();
    field.teams[TeamRow{1}] = "Team 1";  // both teams of the first game
    field.teams[TeamRow{17}] = "Team 1"; // and one of another region
    Bracket bracket = test::everyUpperTeamWins();
    bracket.put(Position{1}, "Team 1");
    bracket.put(Position{32}, "Team 1");
    EXPECT_THAT(faultsOf(bracket, field), IsEmpty());
    bracket.put(Position{47}, "Team 1"); // the one of the other region wins its game
    EXPECT_THAT(faultsOf(bracket, field), ElementsAre(Fault{Position{55}, FaultKind::NotInGame}))
        << "Team 17, picked for position 55, did not get there";
}

TEST(FaultsOf, GoByNamesWhateverTableTheBracketHas)
{
    const Bracket bracket = test::everyUpperTeamWins();
    Bracket backwards; // the same names, numbered from the end
    for (int position = 126; position >= 0; --position)
        backwards.put(Position{position}, bracket.at(Position{position}));
    EXPECT_THAT(faultsOf(backwards, sampleField()), IsEmpty());
}

} // namespace
} // namespace tallyhoop
