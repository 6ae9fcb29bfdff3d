// tests/faults/import_writers.cpp - an entry that was handed in, one press away from the selection and the player list.
#include "faults/import_writers.h"

#include "base/text.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "screens/import/import_screen.h"

#include <fstream>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

/// What could not be written is said in the summary, not in a message.
class ImportWriter : public Writer
{
public:
    explicit ImportWriter(const fs::path& folderPath) : Writer{folderPath}
    {
        const Entry handedIn{startingBracket(m_field), "AB", "Adams", "177", {}};
        droppedFiles = {m_inbox.put("handed-in.THC", selectionFile(handedIn))};
        m_screen.load();
        m_screen.keyPressed(m_screen.grdEntries, {.key = ui::Key::Character, .character = ' '}); // without a pick
        m_screen.showState();
    }
    /// Twice: a row that was compared while the folder was away is compared again before it is written.
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        m_screen.cmdImport.click();
        m_screen.cmdImport.click();
    }
    std::string onScreen() const override
    {
        std::string rows;
        for (std::vector<std::string> row : m_screen.grdEntries.rows) {
            row.pop_back(); // what would happen, which depends on the folder
            rows += joined(row, ", ") + "\n";
        }
        return rows;
    }

private:
    ScratchFolder m_inbox;
    Field m_field = readField(folder).value;
    FakeOpenSelection m_below;
    ImportScreen m_screen{folder, platform.services, screens, {m_field, m_below, droppedFiles}, nullptr};
};

/// The selection is there already: only the list is to be written.
class ImportedPlayerWriter : public Writer
{
public:
    explicit ImportedPlayerWriter(const fs::path& folderPath) : Writer{folderPath}
    {
        const std::string bytes = selectionFile({startingBracket(m_field), "GH", "Evans", "177", {}});
        std::ofstream{folderPath / "Evans_GH.THC", std::ios::binary} << bytes;
        m_handedIn = m_inbox.put("handed-in.THC", bytes);
        fs::permissions(m_inbox.path(), fs::perms{0755}); // to be read without rights, too
        m_screen.showState();
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        m_screen.filesDropped({m_handedIn});
        m_screen.showState();
        m_screen.keyPressed(m_screen.grdEntries, {.key = ui::Key::Character, .character = ' '}); // nothing new
        m_screen.showState();
        m_screen.cmdImport.click();
        m_screen.cmdEmptyList.click();
        m_screen.showState();
    }
    std::string onScreen() const override { return m_screen.lblCounts.text; }

private:
    ScratchFolder m_inbox;
    fs::path m_handedIn;
    Field m_field = readField(folder).value;
    FakeOpenSelection m_below;
    ImportScreen m_screen{folder, platform.services, screens, {m_field, m_below, droppedFiles}, nullptr};
};

} // namespace

std::unique_ptr<Writer> importWriter(const fs::path& folder) { return std::make_unique<ImportWriter>(folder); }

std::unique_ptr<Writer> importedPlayerWriter(const fs::path& folder)
{
    return std::make_unique<ImportedPlayerWriter>(folder);
}

} // namespace tallyhoop::test
