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
    saveAs(*folder.pathOf(proposed));
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_TRUE(isBareName(platform.dialogs.fileChoices.front().proposedName));
    ASSERT_EQ(folder.files(".THC").size(), 1u);
    const FolderFile file = folder.files(".THC").front();
    EXPECT_EQ(file.path.parent_path(), scratch.path());
    EXPECT_EQ(readSelectionFile(file.path).value.name, name());

    open(file.path);
    EXPECT_EQ(board->txtPlayerName.text, name());
}

TEST_P(WeaponsOnTheBoard, AreATeamAndASeedLikeAnyOther)
{
    Field made = fieldOfTeams("1");
    made.teams[TeamRow{0}] = weapon();
    made.seeds[0] = weapon();
    made.title = weapon();
    putField(made);
    load();
    EXPECT_EQ(at(0), weapon());
    EXPECT_EQ(board->lblTitle.text, weapon());
    for (const std::size_t row : {0, 16, 32, 48})
        EXPECT_EQ(board->txtSeed[row].text, weapon());
    click(0);
    EXPECT_EQ(at(16), weapon());
    drag(0, 126);
    EXPECT_EQ(at(126), weapon());
}

INSTANTIATE_TEST_SUITE_P(Each, WeaponsOnTheBoard, testing::ValuesIn(weapons()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
