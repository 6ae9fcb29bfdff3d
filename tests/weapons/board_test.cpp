// tests/weapons/board_test.cpp - a player who bears such a name is saved in the folder, opened again and scored.
#include "weapons/weapons.h"

#include "screens/board/board_fixture.h"

namespace tallyhoop::test {
namespace {

class WeaponsOnTheBoard : public BoardTest, public testing::WithParamInterface<Weapon>
{
protected:
    const std::string& weapon() const { return GetParam().text; }

    /// The name as a box takes it: it must not begin with a blank.
    std::string name() const { return weapon().starts_with(' ') ? "x" + weapon() : weapon(); }
};

TEST_P(WeaponsOnTheBoard, AreThePlayersNameAndNothingElse)
{
    loadFinalized();
    fill(name(), name(), "150");
    const std::string proposed = proposedFileName(name(), board->txtPlayerInitials.text);
    platform.dialogs.pick(*folder.pathOf(proposed));
    board->SaveSelection();
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_TRUE(isBareName(platform.dialogs.fileChoices.front().proposedName));
    ASSERT_EQ(folder.files(".THC").size(), 1u);
    const FolderFile file = folder.files(".THC").front();
    EXPECT_EQ(file.path.parent_path(), scratch.path());
    EXPECT_EQ(readSelectionFile(file.path).value[selection_line::kName], name());

    board->showSelection(file.path);
    EXPECT_EQ(board->txtPlayerName.text, name());
}

TEST_P(WeaponsOnTheBoard, AreATeamAndASeedLikeAnyOther)
{
    SetupLines lines = defaultSetupLines();
    for (int i = 0; i < kTeams; ++i)
        lines[static_cast<std::size_t>(i)] = team(i / 16, i % 16);
    lines[0] = weapon();
    lines[setup_line::kSeed] = weapon();
    lines[setup_line::kTitle] = weapon();
    lines[setup_line::kFinalized] = "1";
    scratch.put(file_name::kSetup, setupFile(lines));
    load();
    EXPECT_EQ(at(0), weapon());
    EXPECT_EQ(board->lblTitle.text, weapon());
    for (const std::size_t region : {0, 1, 2, 3})
        EXPECT_EQ(board->txtSeed[region * kRowsPerRegion].text, weapon());
    click(0);
    EXPECT_EQ(at(16), weapon());
    drag(0, 126);
    EXPECT_EQ(at(126), weapon());
}

INSTANTIATE_TEST_SUITE_P(Each, WeaponsOnTheBoard, testing::ValuesIn(weapons()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
