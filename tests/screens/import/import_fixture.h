// tests/screens/import/import_fixture.h - the import screen on a scratch folder, with files to read in another one.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "intake/field_2000.h"
#include "screens/import/entry_words.h"
#include "screens/import/import_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// Whatever changes the screen here lets it show its state afterwards, as the desk does in the windows.
class ImportTest : public testing::Test
{
protected:
    ScratchFolder pool;
    ScratchFolder inbox;
    DataFolder folder = pool.folder();
    FakePlatform platform;
    FakeScreens screens;
    FakeOpenSelection board;
    std::vector<std::filesystem::path> dropped;
    Field field = field2000();
    std::unique_ptr<ImportScreen> screen;

    void open()
    {
        screen = std::make_unique<ImportScreen>(folder, platform.services, screens,
                                                ImportScreen::Shared{field, board, dropped}, &ImportTest::takeApart);
        screen->load();
        screen->showState();
    }

    /// A mail of one text, from the address in its first line.
    static Result<std::vector<MailPart>> takeApart(std::string_view bytes)
    {
        MailPart text;
        text.sender = bytes.substr(0, bytes.find('\n'));
        text.content = bytes;
        return std::vector<MailPart>{text};
    }

    static std::string mailFrom(const std::string& sender, const Entry& entry)
    {
        return sender + "\n\n" + formText(entry, {});
    }

    static std::string saved(Entry entry) { return bytesToWrite({std::move(entry), {}, {}, {}, true}); }

    /// An entry whose champion is another one than Duke.
    static Entry withChampion(Entry entry, const std::string& champion)
    {
        entry.picks.put(kChampion, champion);
        return entry;
    }

    static Entry incomplete(Entry entry)
    {
        entry.picks.clear(kChampion);
        return entry;
    }

    void putResults()
    {
        Entry results = upperEntry("FinalResults", "A", "");
        for (const Position position : gamePositions())
            if (roundOf(position) > 1)
                results.picks.clear(position);
        pool.put(file_name::kResults, selectionFile(results));
    }

    void choose(std::vector<std::filesystem::path> files)
    {
        platform.dialogs.pickSeveral(std::move(files));
        click(screen->cmdChooseFiles);
    }

    void paste(const std::string& text)
    {
        screen->txtPasted.text = text;
        screen->showState();
        click(screen->cmdReadText);
    }

    void click(ui::Command& command)
    {
        command.click();
        screen->showState();
    }

    bool key(ui::Control& control, const ui::KeyPress& press)
    {
        const bool dealtWith = screen->keyPressed(control, press) || control.keyPressed(press);
        screen->showState();
        return dealtWith;
    }

    /// As an arrow key or a press does.
    void reach(std::size_t row, EntryColumn column = EntryColumn::Name)
    {
        screen->grdEntries.current = ui::GridCell{row, static_cast<std::size_t>(column)};
        screen->showState();
    }

    void press(std::size_t row, EntryColumn column)
    {
        reach(row, column);
        screen->grdEntries.cellPressed(row, static_cast<std::size_t>(column));
        screen->showState();
    }

    void pressSpace() { key(screen->grdEntries, {.key = ui::Key::Character, .character = ' '}); }

    std::vector<std::string> column(EntryColumn column) const
    {
        std::vector<std::string> cells;
        for (const auto& row : screen->grdEntries.rows)
            cells.push_back(row.at(static_cast<std::size_t>(column)));
        return cells;
    }
};

} // namespace tallyhoop::test
