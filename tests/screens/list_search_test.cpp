// tests/screens/list_search_test.cpp - typing ahead in an entry box.
#include "screens/list_search.h"

#include "ui/screen.h"

#include <gtest/gtest.h>
#include <vector>

namespace tallyhoop {
namespace {

using ui::Key;
using ui::KeyPress;

const std::vector<std::string> kTeams = {"Dartmouth", "Davidson", "dePaul", "Duke", "Duquesne", "Iowa", "Iowa St."};

class TypeAhead : public testing::Test
{
protected:
    TypeAhead() { list.rows = kTeams; }

    void fill(const std::string& text, int caret, int selected)
    {
        box.text = text;
        box.selectionStart = caret;
        box.selectionLength = selected;
    }

    /// @returns whether the key was dealt with
    bool press(Key key) { return typeAhead(box, list, {.key = key}); }
    bool type(char character) { return typeAhead(box, list, {.key = Key::Character, .character = character}); }

    ui::Screen screen{"frmSearch", "Search"};
    ui::TextBox box{&screen, "txtEntry"};
    ui::ListBox list{&screen, "lstTeams"};
};

TEST_F(TypeAhead, CompletesTheBoxAndSelectsWhatIsNotYetTyped)
{
    EXPECT_TRUE(type('D'));
    EXPECT_EQ(box.text, "Dartmouth");
    EXPECT_EQ(box.selectionStart, 1);
    EXPECT_EQ(box.selectionLength, 8);
    EXPECT_EQ(list.selected, 0);
}

TEST_F(TypeAhead, DropsTheSelectedCompletionWhenTypingGoesOn)
{
    type('D');
    type('u');
    EXPECT_EQ(box.text, "Duke");
    EXPECT_EQ(box.selectionStart, 2);
    EXPECT_EQ(box.selectionLength, 2);
    type('q');
    EXPECT_EQ(box.text, "Duquesne");
    EXPECT_EQ(list.selected, 4);
}

TEST_F(TypeAhead, MatchesPrefixesWithoutRegardToCaseFirstRowFirst)
{
    type('d');
    EXPECT_EQ(list.selected, 0); // Dartmouth, although dePaul has the small letter
    type('E');
    EXPECT_EQ(box.text, "dePaul");
    EXPECT_EQ(list.selected, 2);
}

TEST_F(TypeAhead, SwallowsACharacterThatLeadsNowhere)
{
    fill("Duke", 2, 2);
    list.selected = 3;
    EXPECT_TRUE(type('x'));
    EXPECT_EQ(box.text, "Duke");
    EXPECT_EQ(box.selectionStart, 2);
    EXPECT_EQ(box.selectionLength, 2);
    EXPECT_EQ(list.selected, 3);
}

TEST_F(TypeAhead, MatchesTheWholeTextWithABlankInIt)
{
    fill("Iowa", 4, 0);
    type(' ');
    EXPECT_EQ(box.text, "Iowa St.");
    EXPECT_EQ(box.selectionStart, 5);
    EXPECT_EQ(box.selectionLength, 3);
}

TEST_F(TypeAhead, IgnoresACaretBeforeTheText)
{
    fill("Duke", -2, 4);
    type('i');
    EXPECT_EQ(box.text, "Iowa");
    EXPECT_EQ(box.selectionStart, 1);
}

TEST_F(TypeAhead, BackspaceShortensThePrefixByOne)
{
    fill("Duquesne", 3, 5);
    EXPECT_TRUE(press(Key::Backspace));
    EXPECT_EQ(box.text, "Duke"); // "Du"
    EXPECT_EQ(box.selectionStart, 2);
    EXPECT_EQ(box.selectionLength, 2);
    EXPECT_EQ(list.selected, 3);
}

TEST_F(TypeAhead, BackspaceAtPositionOneOrZeroEmptiesTheBoxAndKeepsTheRow)
{
    for (const int caret : {1, 0}) {
        fill("Duke", caret, 4 - caret);
        list.selected = 3;
        EXPECT_TRUE(press(Key::Backspace));
        EXPECT_EQ(box.text, "");
        EXPECT_EQ(box.selectionStart, 0);
        EXPECT_EQ(box.selectionLength, 0);
        EXPECT_EQ(list.selected, 3);
    }
}

TEST_F(TypeAhead, BackspaceInAnEmptyBoxIsLeftAlone)
{
    EXPECT_FALSE(press(Key::Backspace));
    EXPECT_EQ(box.text, "");
    EXPECT_FALSE(list.selected);
}

TEST_F(TypeAhead, LeavesOtherKeysAlone)
{
    for (const Key key : {Key::Enter, Key::Delete, Key::Escape, Key::Tab, Key::Up, Key::Left, Key::Home, Key::Other}) {
        fill("Du", 2, 0);
        EXPECT_FALSE(press(key));
        EXPECT_EQ(box.text, "Du");
        EXPECT_FALSE(list.selected);
    }
}

TEST_F(TypeAhead, LeavesControlCharactersAndLettersOutsideAsciiAlone)
{
    list.rows = {"\x1F", "\x80", "\xE4"};
    for (const char character : {'\t', '\x1B', '\x1F', '\x80', '\xE4'}) {
        fill("", 0, 0);
        EXPECT_FALSE(type(character));
        EXPECT_EQ(box.text, "");
    }
}

TEST_F(TypeAhead, LeavesShortcutsAlone)
{
    EXPECT_FALSE(typeAhead(box, list, {.key = Key::Character, .character = 'd', .control = true}));
    EXPECT_FALSE(typeAhead(box, list, {.key = Key::Character, .character = 'd', .alt = true}));
    EXPECT_EQ(box.text, "");
}

TEST_F(TypeAhead, TreatsTheLastPrintableCodesAsCharacters)
{
    list.rows = {"a", "~b", "\x7f"};
    for (const auto& [character, row] : {std::pair{'~', 1}, std::pair{'\x7f', 2}}) {
        fill("", 0, 0);
        EXPECT_TRUE(type(character));
        EXPECT_EQ(list.selected, row);
    }
}

} // namespace
} // namespace tallyhoop
