// tests/screens/board/board_menus_test.cpp - which entries can be chosen when, and what each of them asks for.
#include "screens/board/board_menus.h"

#include "base/windows1252.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"

#include <gmock/gmock.h>
#include <ostream>
#include <set>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;

/// Remembers what it was asked for.
struct RecordedCommands : BoardCommands {
    std::vector<std::string> asked;

    void newSelection() override { asked.emplace_back("newSelection"); }
    void openSelection() override { asked.emplace_back("openSelection"); }
    void saveSelection() override { asked.emplace_back("saveSelection"); }
    void previewForm() override { asked.emplace_back("previewForm"); }
    void printForm() override { asked.emplace_back("printForm"); }
    void undo() override { asked.emplace_back("undo"); }
    void redo() override { asked.emplace_back("redo"); }
    void scoreSelections() override { asked.emplace_back("scoreSelections"); }
    void enterGameResults() override { asked.emplace_back("enterGameResults"); }
    void selectHighSeeds() override { asked.emplace_back("selectHighSeeds"); }
    void openRecent(std::size_t index) override { asked.push_back("openRecent " + std::to_string(index)); }
    void openNeighbour(int step) override { asked.push_back("openNeighbour " + std::to_string(step)); }
    void openFolder() override { asked.emplace_back("openFolder"); }
    void backUpPool() override { asked.emplace_back("backUpPool"); }
    void exportSelections() override { asked.emplace_back("exportSelections"); }
};

struct MenuScreen : ui::Screen, BoardMenus {
    MenuScreen(BoardCommands& commands, const BoardExits& exits)
        : Screen{"screen", ""}, BoardMenus{this, commands, exits}
    {
    }

    std::string helpTopic() const override { return "some topic"; }

    std::vector<ui::MenuEntry*> entries() const
    {
        std::vector<ui::MenuEntry*> found;
        for (ui::Control* control : controls())
            found.push_back(dynamic_cast<ui::MenuEntry*>(control));
        return found;
    }
};

struct State {
    const char* name;
    BoardState state;
    std::set<std::string> disabled;
};

void PrintTo(const State& state, std::ostream* out) { *out << state.name; }

/// Menus of a field that is final: it must not be changed any more.
const std::set<std::string> kSetupMenus = {"mnuSetup", "mnuDemo", "mnuDemoSet", "mnuDemoReset"};

std::set<std::string> together(std::set<std::string> names, const std::set<std::string>& others)
{
    names.insert(others.begin(), others.end());
    return names;
}

/// Without a field there are no selections to turn to; none is there, and none was used yet, in any of the states.
std::set<std::string> withSelectionMenus(std::set<std::string> disabled)
{
    if (disabled.contains("mnuOpenSelection"))
        disabled.insert({"mnuPrevious", "mnuNext", "mnuEntryForm", "mnuImport", "mnuMoney"});
    return together(std::move(disabled), {"mnuOutlook", "mnuExportSelections", "mnuRecent", "mnuRecentFile_0",
                                          "mnuRecentFile_1", "mnuRecentFile_2", "mnuRecentFile_3", "mnuRecentFile_4"});
}

/// Menus over a scratch folder, and everything that they can ask.
struct MenusAndOthers {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    RecordedCommands commands;
    MenuScreen menus{commands, BoardExits{folder, platform.services, screens}};
};

class BoardMenusIn : public testing::TestWithParam<State>, protected MenusAndOthers
{
};

TEST_P(BoardMenusIn, DisableExactlyWhatMakesNoSenseThere)
{
    const std::set<std::string> expected = withSelectionMenus(GetParam().disabled);
    for (const bool before : {false, true}) { // whatever it was before
        for (ui::MenuEntry* entry : menus.entries())
            if (expected.contains(entry->name))
                entry->enabled = before;
        menus.enableMenus(GetParam().state);
        std::set<std::string> disabled;
        for (const ui::MenuEntry* entry : menus.entries())
            if (!entry->enabled)
                disabled.insert(entry->name);
        EXPECT_EQ(disabled, expected);
    }
}

const std::vector<State> kStates = {
    {"NoField",
     {.mayStartDemo = true},
     {"mnuNewSelection", "mnuOpenSelection", "mnuSaveSelection", "mnuGameResults", "mnuScoreSelections", "mnuReports",
      "mnuUndo", "mnuRedo", "mnuDemoReset"}},
    {"ResultsWithoutAField",
     {.mayStartDemo = true, .resultsThere = true, .canUndo = true},
     {"mnuNewSelection", "mnuOpenSelection", "mnuSaveSelection", "mnuGameResults", "mnuScoreSelections", "mnuReports",
      "mnuRedo", "mnuDemoReset"}},
    {"FieldThatSomebodyHasMarkedOtherwise",
     {},
     {"mnuNewSelection", "mnuOpenSelection", "mnuSaveSelection", "mnuGameResults", "mnuScoreSelections", "mnuReports",
      "mnuUndo", "mnuRedo", "mnuDemoSet", "mnuDemoReset"}},
    {"DemoWithoutAField",
     {.demo = true, .mayStartDemo = true},
     {"mnuNewSelection", "mnuOpenSelection", "mnuSaveSelection", "mnuGameResults", "mnuScoreSelections", "mnuReports",
      "mnuUndo", "mnuRedo", "mnuDemoSet"}},
    {"FinalField", {.finalized = true}, together(kSetupMenus, {"mnuScoreSelections", "mnuUndo", "mnuRedo"})},
    {"FinalFieldWithResults", {.finalized = true, .resultsThere = true}, together(kSetupMenus, {"mnuUndo", "mnuRedo"})},
    {"Demo", {.finalized = true, .demo = true, .resultsThere = true}, {"mnuUndo", "mnuRedo", "mnuDemoSet"}},
    {"ChangedBoard", {.finalized = true, .resultsThere = true, .canUndo = true}, together(kSetupMenus, {"mnuRedo"})},
    {"BoardWithEverythingUndone",
     {.finalized = true, .resultsThere = true, .canRedo = true},
     together(kSetupMenus, {"mnuUndo"})},
    {"FirstResults", // they can be scored although no file holds them yet
     {.finalized = true, .resultsMode = true, .canUndo = true, .canRedo = true},
     together(kSetupMenus, {"mnuGameResults"})},
    {"ScoredBoard",
     {.finalized = true, .resultsThere = true, .scored = true, .marked = true, .canUndo = true, .canRedo = true},
     together(kSetupMenus, {"mnuSaveSelection", "mnuScoreSelections", "mnuHighSeed", "mnuUndo", "mnuRedo"})},
    {"ListOfScores",
     {.finalized = true,
      .resultsMode = true,
      .resultsThere = true,
      .scoreListOpen = true,
      .canUndo = true,
      .canRedo = true},
     together(kSetupMenus, {"mnuGameResults", "mnuHighSeed", "mnuUndo", "mnuRedo"})},
    {"PlayerOfTheListOfScores",
     {.finalized = true,
      .resultsMode = true,
      .resultsThere = true,
      .marked = true,
      .scoreListOpen = true,
      .canUndo = true,
      .canRedo = true},
     together(kSetupMenus, {"mnuGameResults", "mnuHighSeed", "mnuUndo", "mnuRedo"})},
    {"Reports",
     {.finalized = true, .resultsThere = true, .reportsOpen = true},
     together(kSetupMenus, {"mnuReports", "mnuUndo", "mnuRedo"})},
};

INSTANTIATE_TEST_SUITE_P(Each, BoardMenusIn, testing::ValuesIn(kStates),
                         [](const auto& values) { return std::string{values.param.name}; });

struct BoardMenusTest : testing::Test, MenusAndOthers {
};

TEST_F(BoardMenusTest, EachEntryOfTheBoardAsksForItsOwnCommand)
{
    for (ui::MenuEntry* entry :
         {&menus.mnuNewSelection, &menus.mnuOpenSelection, &menus.mnuSaveSelection, &menus.mnuPrintPreview,
          &menus.mnuPrintForm, &menus.mnuUndo, &menus.mnuRedo, &menus.mnuScoreSelections, &menus.mnuGameResults,
          &menus.mnuHighSeed, &menus.mnuPrevious, &menus.mnuNext, &menus.mnuOpenFolder, &menus.mnuBackUp,
          &menus.mnuExportSelections})
        entry->click();
    EXPECT_THAT(commands.asked,
                ElementsAre("newSelection", "openSelection", "saveSelection", "previewForm", "printForm", "undo",
                            "redo", "scoreSelections", "enterGameResults", "selectHighSeeds", "openNeighbour -1",
                            "openNeighbour 1", "openFolder", "backUpPool", "exportSelections"));
    EXPECT_TRUE(screens.loads.empty());
}

TEST_F(BoardMenusTest, EachOtherEntryLeadsWhereItSays)
{
    menus.mnuEditNames.click();
    menus.mnuReports.click();
    menus.mnuOutlook.click();
    menus.mnuEntryForm.click();
    menus.mnuImport.click();
    menus.mnuMoney.click();
    EXPECT_THAT(screens.loads, ElementsAre(ScreenKind::Players, ScreenKind::Reports, ScreenKind::Outlook,
                                           ScreenKind::EntryForm, ScreenKind::Import, ScreenKind::Money));
    menus.mnuSetupOptions.click();
    EXPECT_EQ(screens.loads.back(), ScreenKind::Setup);
    EXPECT_EQ(screens.unloads.back(), ScreenKind::Board);
    platform.dialogs.answer(ui::Answer::Cancel);
    menus.mnuDemoSet.click();
    EXPECT_EQ(platform.dialogs.shown.back().caption, "** DEMO MODE SET **");
    menus.mnuDemoReset.click();
    EXPECT_EQ(screens.loads.back(), ScreenKind::Board);
    menus.mnuHelpDisplay.click();
    EXPECT_THAT(platform.help.topics, ElementsAre("some topic"));
    menus.mnuHelpAbout.click();
    EXPECT_EQ(platform.dialogs.aboutShown, 1);
    EXPECT_FALSE(screens.ended);
    menus.mnuExit.click();
    EXPECT_TRUE(screens.ended);
    EXPECT_TRUE(commands.asked.empty());
}

TEST_F(BoardMenusTest, OutlookAndExportNeedAFinalFieldAndASelection)
{
    for (const ui::MenuEntry* entry : {&menus.mnuOutlook, &menus.mnuExportSelections}) {
        menus.enableMenus({.finalized = true, .selectionsThere = true});
        EXPECT_TRUE(entry->enabled) << entry->name;
        menus.enableMenus({.selectionsThere = true});
        EXPECT_FALSE(entry->enabled) << entry->name;
        menus.enableMenus({.finalized = true});
        EXPECT_FALSE(entry->enabled) << entry->name;
    }
}

TEST_F(BoardMenusTest, NoTwoEntriesOfAMenuHaveTheSameMnemonic)
{
    menus.enableMenus({.finalized = true, .recent = {"A.THC", "B.THC", "C.THC", "D.THC", "E.THC"}});
    std::vector<std::vector<ui::MenuEntry*>> lists{menus.menuBar};
    for (const ui::MenuEntry* entry : menus.entries())
        lists.push_back(entry->children);
    for (const auto& list : lists) {
        std::string letters;
        for (const ui::MenuEntry* entry : list) {
            if (entry == nullptr)
                continue;
            const std::size_t mark = entry->caption.find('&');
            ASSERT_LT(mark, entry->caption.size() - 1) << entry->name;
            const char letter = upperCase(entry->caption.substr(mark + 1, 1)).front();
            EXPECT_EQ(letters.find(letter), std::string::npos) << entry->name << ": " << letter;
            letters += letter;
        }
    }
}

TEST_F(BoardMenusTest, TheSelectionsUsedLastHaveAnEntryEach)
{
    menus.enableMenus({.finalized = true, .recent = {"Smith_JS.THC", "Bell & Co_B.THC"}});
    EXPECT_TRUE(menus.mnuRecent.enabled);
    EXPECT_EQ(menus.mnuRecentFile[0].caption, "&1 Smith_JS.THC");
    EXPECT_EQ(menus.mnuRecentFile[1].caption, "&2 Bell && Co_B.THC") << "an ampersand in a name is no mnemonic";
    EXPECT_TRUE(menus.mnuRecentFile[1].visible);
    EXPECT_FALSE(menus.mnuRecentFile[2].visible);
    menus.mnuRecentFile[1].click();
    EXPECT_THAT(commands.asked, ElementsAre("openRecent 1"));
    menus.enableMenus({.recent = {"Smith_JS.THC"}});
    EXPECT_FALSE(menus.mnuRecent.enabled) << "without a final field no selection can be opened";
    EXPECT_FALSE(menus.mnuRecentFile[1].visible);
}

TEST_F(BoardMenusTest, ADisabledEntryAsksForNothing)
{
    menus.enableMenus({.mayStartDemo = true});
    menus.mnuSaveSelection.click();
    menus.mnuReports.click();
    EXPECT_TRUE(commands.asked.empty());
    EXPECT_TRUE(screens.loads.empty());
}

TEST_F(BoardMenusTest, EveryEntryIsInExactlyOneMenu)
{
    std::multiset<const ui::MenuEntry*> placed(menus.menuBar.begin(), menus.menuBar.end());
    for (const ui::MenuEntry* entry : menus.entries())
        for (const ui::MenuEntry* child : entry->children)
            if (child != nullptr)
                placed.insert(child);
    for (const ui::MenuEntry* entry : menus.entries())
        EXPECT_EQ(placed.count(entry), 1u) << entry->name;
    EXPECT_EQ(placed.size(), 40u);
}

TEST_F(BoardMenusTest, EntriesHaveShortcutsOfTheirOwnAndSayWhatTheyDo)
{
    std::set<std::string> shortcuts;
    for (const ui::MenuEntry* entry : menus.entries()) {
        if (!entry->shortcut.empty()) {
            EXPECT_TRUE(shortcuts.insert(entry->shortcut).second) << entry->shortcut;
        }
        if (entry->action) {
            EXPECT_FALSE(entry->explanation.empty()) << entry->name;
            const bool hasIcon = entry != &menus.mnuReports; // a menu without children
            EXPECT_EQ(entry->icon != ui::MenuIcon::None, hasIcon) << entry->name;
        }
    }
    EXPECT_EQ(shortcuts,
              (std::set<std::string>{"Ctrl+I", "Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+Q", "Ctrl+Z",
                                     "Ctrl+Shift+Z", "Ctrl+PgUp", "Ctrl+PgDown", "F1", "F5", "F6", "F7", "F8", "F9"}));
}

} // namespace
} // namespace tallyhoop::test
