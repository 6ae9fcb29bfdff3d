// tests/screens/entries/selection_export_test.cpp - selections as a table, and what is left out of it.
#include "screens/entries/selection_export.h"

#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "intake/entry_table.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct SelectionExport : testing::Test {
    SelectionExport()
    {
        for (const TeamRow row : allTeamRows())
            field.teams[row] = "Team " + std::to_string(index(row));
        field.finalized = "1";
    }

    Entry player(const std::string& name, const std::string& initials)
    {
        Entry entry{startingBracket(field), initials, name, "150", {}};
        entry.picks.copy(Position{0}, Position{16});
        entry.picks.copy(Position{16}, Position{24});
        return entry;
    }

    void put(const std::string& name, const Entry& entry) { scratch.put(name, selectionFile(entry)); }

    std::string exportTo(const std::string& name)
    {
        platform.dialogs.pick(scratch.path() / name);
        return exportSelections(folder, platform.services, field);
    }

    /// @returns what an import reads of the table
    std::vector<HandedIn> readBack(const std::string& name)
    {
        return readEntryTable(scratch.get(name), KnownTeams{field}, {});
    }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    Field field = defaultField();
};

TEST_F(SelectionExport, WritesATableThatGivesTheSameFilesAgain)
{
    const Entry adams = player("Adams", "B");
    Entry smith = player("O'Neil, Zo\xEB \"Z\"", "=ZO");
    smith.picks.copy(Position{31}, Position{47});
    put("Adams_B.THC", adams);
    put("Smith.THC", smith);
    EXPECT_EQ(exportTo("SELECTIONS.CSV"), "Exported 2 selections to SELECTIONS.CSV.");
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "SELECTIONS.CSV");
    const std::vector<HandedIn> read = readBack("SELECTIONS.CSV");
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(selectionFile(read[0].entry), scratch.get("Adams_B.THC"));
    EXPECT_EQ(selectionFile(read[1].entry), scratch.get("Smith.THC"));
    EXPECT_EQ(read[1].fileName, "Smith.THC") << "name and initials would make another file";
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(SelectionExport, LeavesOutWhatCannotBeReadWholeAndNamesIt)
{
    put("Adams_B.THC", player("Adams", "B"));
    scratch.put("Broken_X.THC", selectionFile(player("Broken", "X")).substr(0, 300));
    EXPECT_EQ(exportTo("table"), "Exported 1 selection to table.CSV.");
    ASSERT_EQ(platform.dialogs.shown.size(), 1U);
    EXPECT_EQ(platform.dialogs.shown[0].text,
              "These selections could not be read, or not whole, and are left out:\r\n \r\nBroken_X.THC");
    ASSERT_EQ(readBack("table.CSV").size(), 1U);
    EXPECT_EQ(readBack("table.CSV")[0].entry.name, "Adams");
}

TEST_F(SelectionExport, NamesSelectionsOfAnotherField)
{
    Entry other = player("Other", "O");
    other.picks.put(Position{108}, "Somebody else"); // the last row of the field
    put("Other_O.THC", other);
    put("Same_S.THC", player("Same", "S"));
    EXPECT_EQ(exportTo("table.csv"), "Exported 2 selections to table.csv.");
    ASSERT_EQ(platform.dialogs.shown.size(), 1U);
    EXPECT_NE(platform.dialogs.shown[0].text.find("other teams in the first round"), std::string::npos);
    EXPECT_TRUE(platform.dialogs.shown[0].text.ends_with("\r\n \r\nOther_O.THC"));
}

TEST_F(SelectionExport, SaysWhenNothingWasWritten)
{
    EXPECT_EQ(exportSelections(folder, platform.services, field), "Nothing was exported.") << "there is nothing";
    put("Adams_B.THC", player("Adams", "B"));
    platform.dialogs.pick(std::nullopt);
    EXPECT_EQ(exportSelections(folder, platform.services, field), "Nothing was exported.");
    platform.progress.cancelAt = 1;
    EXPECT_EQ(exportSelections(folder, platform.services, field), "Nothing was exported.");
    EXPECT_EQ(platform.dialogs.fileChoices.size(), 1U);
}

} // namespace
} // namespace tallyhoop::test
