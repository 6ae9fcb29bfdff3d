// Typing ahead in an entry box.
#include "screens/list_search.h"

#include <gtest/gtest.h>
#include <vector>

namespace tallyhoop {
namespace {

constexpr std::int16_t kBackspace = 8;
constexpr std::int16_t kEnter = 13;

const std::vector<std::string> kTeams = {"Dartmouth", "Davidson", "dePaul", "Duke", "Duquesne", "Iowa", "Iowa St."};

struct Search {
    SearchSource source;
    SearchList list{kTeams};
    std::int16_t keyCode = 0;

    /// Presses a key as a box does: with its own text as the typed text.
    void press(std::int16_t key)
    {
        keyCode = key;
        const std::string typed = source.text;
        ListSearch{}.FindIndexStr(source, typed, keyCode, &list);
    }
};

Search withText(const std::string& text, int caret, int selected)
{
    Search search;
    search.source.text = text;
    search.source.selectionStart = caret;
    search.source.selectionLength = selected;
    return search;
}

TEST(ListSearch, CompletesTheBoxAndSelectsWhatIsNotYetTyped)
{
    Search search;
    search.press('D');
    EXPECT_EQ(search.source.text, "Dartmouth");
    EXPECT_EQ(search.source.selectionStart, 1);
    EXPECT_EQ(search.source.selectionLength, 8);
    EXPECT_EQ(search.list.selected, 0);
    EXPECT_EQ(search.keyCode, 0);
}

TEST(ListSearch, DropsTheSelectedCompletionWhenTypingGoesOn)
{
    Search search;
    search.press('D');
    search.press('u');
    EXPECT_EQ(search.source.text, "Duke");
    EXPECT_EQ(search.source.selectionStart, 2);
    EXPECT_EQ(search.source.selectionLength, 2);
    search.press('q');
    EXPECT_EQ(search.source.text, "Duquesne");
    EXPECT_EQ(search.list.selected, 4);
}

TEST(ListSearch, MatchesPrefixesWithoutRegardToCaseFirstRowFirst)
{
    Search search;
    search.press('d');
    EXPECT_EQ(search.list.selected, 0); // Dartmouth, although dePaul has the small letter
    search.press('E');
    EXPECT_EQ(search.source.text, "dePaul");
    EXPECT_EQ(search.list.selected, 2);
}

TEST(ListSearch, SwallowsACharacterThatLeadsNowhere)
{
    Search search = withText("Duke", 2, 2);
    search.list.selected = 3;
    search.press('x');
    EXPECT_EQ(search.source.text, "Duke");
    EXPECT_EQ(search.source.selectionStart, 2);
    EXPECT_EQ(search.source.selectionLength, 2);
    EXPECT_EQ(search.list.selected, 3);
    EXPECT_EQ(search.keyCode, 0);
}

TEST(ListSearch, MatchesTheWholeTextWithABlankInIt)
{
    Search search = withText("Iowa", 4, 0);
    search.press(' ');
    EXPECT_EQ(search.source.text, "Iowa St.");
    EXPECT_EQ(search.source.selectionStart, 5);
    EXPECT_EQ(search.source.selectionLength, 3);
}

TEST(ListSearch, AppendsToTheTypedTextWhenTheBoxIsStillEmpty)
{
    Search search;
    search.keyCode = 'u';
    ListSearch{}.FindIndexStr(search.source, "D", search.keyCode, &search.list);
    EXPECT_EQ(search.source.text, "Duke");
    EXPECT_EQ(search.source.selectionStart, 2);
}

TEST(ListSearch, BackspaceShortensThePrefixByOne)
{
    Search search = withText("Duquesne", 3, 5);
    search.press(kBackspace);
    EXPECT_EQ(search.source.text, "Duke"); // "Du"
    EXPECT_EQ(search.source.selectionStart, 2);
    EXPECT_EQ(search.source.selectionLength, 2);
    EXPECT_EQ(search.keyCode, 0);
}

TEST(ListSearch, BackspaceAtPositionOneOrZeroEmptiesTheBoxAndLeavesTheKey)
{
    for (const int caret : {1, 0}) {
        Search search = withText("Duke", caret, 4 - caret);
        search.list.selected = 3;
        search.press(kBackspace);
        EXPECT_EQ(search.source.text, "");
        EXPECT_EQ(search.source.selectionStart, 0);
        EXPECT_EQ(search.source.selectionLength, 0);
        EXPECT_EQ(search.list.selected, 3);
        EXPECT_EQ(search.keyCode, kBackspace);
    }
}

TEST(ListSearch, BackspaceInAnEmptyBoxIsLeftAlone)
{
    Search search;
    search.press(kBackspace);
    EXPECT_EQ(search.source.text, "");
    EXPECT_EQ(search.keyCode, kBackspace);
    EXPECT_FALSE(search.list.selected);
}

TEST(ListSearch, EnterWithAListBoxIsPassedThroughUnchanged)
{
    Search search = withText("Du", 2, 0);
    search.press(kEnter);
    EXPECT_EQ(search.keyCode, kEnter);
    EXPECT_EQ(search.source.text, "Du");
    EXPECT_FALSE(search.list.selected);
}

TEST(ListSearch, LeavesOtherKeysAlone)
{
    for (const std::int16_t key :
         {std::int16_t{9}, std::int16_t{27}, std::int16_t{31}, std::int16_t{128}, std::int16_t{228}}) {
        Search search = withText("Du", 2, 0);
        search.press(key);
        EXPECT_EQ(search.keyCode, key);
        EXPECT_EQ(search.source.text, "Du");
    }
}

TEST(ListSearch, TreatsTheLastPrintableCodesAsCharacters)
{
    const std::vector<std::string> rows = {"a", "~b", "\x7f"};
    for (const auto& [key, row] : {std::pair{'~', 1}, std::pair{'\x7f', 2}}) {
        SearchSource source;
        SearchList list{rows};
        std::int16_t keyCode = key;
        ListSearch{}.FindIndexStr(source, "", keyCode, &list);
        EXPECT_EQ(list.selected, row);
        EXPECT_EQ(keyCode, 0);
    }
}

TEST(ListSearch, LeavesTheKeyWhenThereIsNoListBoxToSearch)
{
    Search other;
    other.list.isListBox = false;
    other.press('D');
    EXPECT_EQ(other.keyCode, 'D');
    EXPECT_EQ(other.source.text, "");

    SearchSource source;
    std::int16_t keyCode = 'D';
    ListSearch{}.FindIndexStr(source, "", keyCode);
    EXPECT_EQ(keyCode, 'D');
}

SearchSource comboBox()
{
    SearchSource source;
    source.kind = SearchSource::Kind::ComboBox;
    source.ownList.isListBox = false;
    source.ownList.rows = kTeams;
    return source;
}

TEST(ListSearchComboBox, SearchesItsOwnListWhenNoOtherIsGiven)
{
    SearchSource source = comboBox();
    std::int16_t keyCode = 'i';
    ListSearch{}.FindIndexStr(source, "", keyCode);
    EXPECT_EQ(source.ownList.selected, 5);
    EXPECT_EQ(source.text, "Iowa"); // a combo box shows the row selected in its list
    EXPECT_EQ(source.selectionStart, 1);
    EXPECT_EQ(source.selectionLength, 3);
    EXPECT_EQ(keyCode, 0);
    EXPECT_FALSE(source.droppedDown);
}

TEST(ListSearchComboBox, EnterOpensTheListAndKeepsTheKey)
{
    SearchSource source = comboBox();
    source.text = "Iowa";
    std::int16_t keyCode = kEnter;
    ListSearch{}.FindIndexStr(source, "Iowa", keyCode);
    EXPECT_TRUE(source.droppedDown);
    EXPECT_EQ(keyCode, kEnter);
    EXPECT_FALSE(source.ownList.selected);
}

TEST(ListSearchComboBox, SwallowsACharacterThatLeadsNowhere)
{
    SearchSource source = comboBox();
    std::int16_t keyCode = 'x';
    ListSearch{}.FindIndexStr(source, "", keyCode);
    EXPECT_FALSE(source.ownList.selected);
    EXPECT_EQ(source.text, "");
    EXPECT_EQ(keyCode, 0);
}

TEST(ListSearchComboBox, SearchesAGivenListBoxInsteadAndKeepsItsOwnText)
{
    SearchSource source = comboBox();
    source.text = "Du";
    source.selectionStart = 2;
    SearchList list{kTeams};
    std::int16_t keyCode = 'q';
    ListSearch{}.FindIndexStr(source, "Du", keyCode, &list);
    EXPECT_EQ(list.selected, 4);
    EXPECT_FALSE(source.ownList.selected);
    EXPECT_EQ(source.text, "Du"); // only a text box takes the found row's text
    EXPECT_EQ(source.selectionStart, 2);
    EXPECT_EQ(source.selectionLength, 0);
    EXPECT_EQ(keyCode, 0);
}

TEST(ListSearchComboBox, EnterWithAGivenListBoxIsPassedThrough)
{
    SearchSource source = comboBox();
    SearchList list{kTeams};
    std::int16_t keyCode = kEnter;
    ListSearch{}.FindIndexStr(source, "", keyCode, &list);
    EXPECT_EQ(keyCode, kEnter);
    EXPECT_FALSE(source.droppedDown);
}

} // namespace
} // namespace tallyhoop
