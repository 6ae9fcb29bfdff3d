// tests/hostile/board_test.cpp - a player who bears such a name is saved in the folder, opened again and scored.
#include "hostile/hostile_names.h"

#include "screens/board/board_fixture.h"

namespace tallyhoop::test {
namespace {

class HostileNamesOnTheBoard : public BoardTest, public testing::WithParamInterface<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    /// The name as a box takes it: it must not begin with a blank.
    std::string name() const { return hostileName().starts_with(' ') ? "x" + hostileName() : hostileName(); }
};

TEST_P(HostileNamesOnTheBoard, AreThePlayersNameAndNothingElse)
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

TEST_P(HostileNamesOnTheBoard, AreATeamAndASeedLikeAnyOther)
{
    Field made = fieldOfTeams("1");
    made.teams[TeamRow{0}] = hostileName();
    made.seeds[0] = hostileName();
    made.title = hostileName();
    putField(made);
    load();
    EXPECT_EQ(at(0), hostileName());
    EXPECT_EQ(board->lblTitle.text, hostileName());
    for (const std::size_t row : {0, 16, 32, 48})
        EXPECT_EQ(board->txtSeed[row].text, hostileName());
    click(0);
    EXPECT_EQ(at(16), hostileName());
    drag(0, 126);
    EXPECT_EQ(at(126), hostileName());
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesOnTheBoard, testing::ValuesIn(hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
