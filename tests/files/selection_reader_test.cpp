// tests/files/selection_reader_test.cpp - whatever is expected of a selection, what is read is what the file holds.
#include "files/selection_reader.h"

#include "base/lines.h"
#include "files/naive_reader.h"
#include "files/selection_file.h"
#include "pool/sample_brackets.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace tallyhoop {
namespace {

constexpr std::size_t kLongest = 30; ///< the longest name that is compared in one go

void expectReadAsNaively(const SelectionReader& reader, std::string_view bytes)
{
    const Read<Entry> read = reader.read(bytes);
    const Read<Entry> expected = test::readNaively(bytes);
    ASSERT_EQ(read.value, expected.value);
    ASSERT_EQ(read.trouble.has_value(), expected.trouble.has_value());
    if (expected.trouble) {
        ASSERT_EQ(read.trouble->message, expected.trouble->message);
    }
}

std::string fileOf(const Bracket& picks) { return selectionFile({picks, "JS", "Smith", "140", ""}); }

/// The bracket with another name for each team, wherever it is.
Bracket renamed(const Bracket& bracket, const std::function<std::string(const std::string&)>& newName)
{
    Bracket changed;
    for (const Position position : allPositions())
        if (!bracket.isEmpty(position))
            changed.put(position, newName(bracket.at(position)));
    return changed;
}

/// Brackets over the same field as `like`, as people fill them in.
class RandomPicks
{
public:
    explicit RandomPicks(Bracket field) : m_field{std::move(field)} {}

    Bracket next()
    {
        Bracket picks = m_field;
        for (const Position game : gamePositions())
            picks.copy((*feeders(game))[m_random() % 2], game);
        return picks;
    }

    std::size_t below(std::size_t end) { return m_random() % end; }

private:
    Bracket m_field;
    std::mt19937 m_random{131};
};

TEST(SelectionReader, ReadsTheBracketsOfAPool)
{
    const SelectionReader reader{test::everyUpperTeamWins()};
    RandomPicks picks{test::startingField()};
    for (int round = 0; round < 200; ++round)
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, fileOf(picks.next()))) << round;
}

TEST(SelectionReader, SharesTheNamesOfTheExpectedBracket)
{
    const Bracket like = test::everyUpperTeamWins();
    const Read<Entry> read = SelectionReader{like}.read(fileOf(test::everyLowerTeamWins()));
    EXPECT_EQ(&read.value.picks.names(), &like.names());
    EXPECT_EQ(read.value.picks.numbers()[kChampion], like.numbers()[Position{108}]) << "Team 64";
}

TEST(SelectionReader, TellsNamesApartThatBeginAlike)
{
    const auto longName = [](const std::string& name) { return "Northern University of " + name.substr(5); };
    const SelectionReader reader{renamed(test::everyUpperTeamWins(), longName)};
    RandomPicks picks{renamed(test::startingField(), longName)};
    for (int round = 0; round < 200; ++round)
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, fileOf(picks.next()))) << round;
}

TEST(SelectionReader, TellsANameFromOneThatItBegins)
{
    // "Michigan" is the beginning of "Michigan 2", "Michigan 22" and so on.
    const auto name = [](const std::string& old) { return old == "Team 1" ? "Michigan" : "Michigan " + old.substr(5); };
    const SelectionReader reader{renamed(test::everyUpperTeamWins(), name)};
    RandomPicks picks{renamed(test::startingField(), name)};
    for (int round = 0; round < 200; ++round)
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, fileOf(picks.next()))) << round;
}

TEST(SelectionReader, ReadsNamesOfEveryLength)
{
    for (const std::size_t length : {kLongest - 1, kLongest, kLongest + 1, kLongest + 2, std::size_t{300}}) {
        const auto name = [length](const std::string& old) {
            return std::string(length - old.size(), 'x').append(old);
        };
        const SelectionReader reader{renamed(test::everyUpperTeamWins(), name)};
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, fileOf(renamed(test::everyLowerTeamWins(), name))))
            << length;
    }
}

TEST(SelectionReader, DoesNotTakeSeveralLinesForANameWithALineBreak)
{
    for (const char* lineBreak : {"\r\n", "\r", "\n"})
        for (const int place : {0, 16, 126}) {
            Bracket like = test::everyUpperTeamWins();
            like.put(Position{place}, std::string{"Team 1"} + lineBreak + "Team 2");
            ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(SelectionReader{like}, fileOf(like))) << place;
        }
}

TEST(SelectionReader, ReadsAFileThatEndsAnywhere)
{
    const SelectionReader reader{test::everyUpperTeamWins()};
    const std::string file = fileOf(test::everyLowerTeamWins());
    for (std::size_t size = 0; size <= file.size(); ++size)
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, std::string_view{file}.substr(0, size))) << size;
}

TEST(SelectionReader, ReadsAFileWithOneLineChanged)
{
    const SelectionReader reader{test::everyUpperTeamWins()};
    const std::vector<std::string> lines = linesOf(fileOf(test::everyLowerTeamWins()));
    for (std::size_t line = 0; line < lines.size(); ++line)
        for (const char* change : {"", " ", "Team 40", "team 1", "Nobody knows", "Team 1\r\nTeam 2", "*END*"}) {
            std::vector<std::string> changed = lines;
            changed[line] = change;
            ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, tallyhoop::fileOf(changed))) << line << change;
        }
}

TEST(SelectionReader, ReadsFilesDamagedAtRandom)
{
    constexpr std::array<std::string_view, 6> kPieces{"\r", "\n", "\r\n", "Team 7", "", std::string_view{"\0", 1}};
    const SelectionReader reader{test::everyUpperTeamWins()};
    RandomPicks picks{test::startingField()};
    for (int round = 0; round < 3000; ++round) {
        std::string file = fileOf(picks.next());
        for (std::size_t damages = picks.below(3); damages > 0; --damages)
            file.replace(picks.below(file.size()), picks.below(9), kPieces.at(picks.below(kPieces.size())));
        ASSERT_NO_FATAL_FAILURE(expectReadAsNaively(reader, file)) << round << '\n' << file;
    }
}

} // namespace
} // namespace tallyhoop
