// tests/faults/writers.cpp - for each file, the screen that writes it and the presses up to the last one: first the
// pool's own files, and what is exported.
#include "faults/writers.h"

#include "base/text.h"
#include "faults/import_writers.h"
#include "faults/messages.h"
#include "faults/report_writers.h"
#include "faults/screen_writer.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "reports/entry_form/entry_form.h"
#include "reports/final_sheet.h"
#include "screens/board/board_screen.h"
#include "screens/entries/entry_form_screen.h"
#include "screens/entries/selection_export.h"
#include "screens/money/money_screen.h"
#include "screens/players/players_screen.h"
#include "screens/setup/setup_screen.h"

#include <fstream>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSelection = "Adams_AB.THC";
constexpr const char* kNewSelection = "Evans_GH.THC";

class SetupWriter : public ScreenWriter<SetupScreen>
{
public:
    explicit SetupWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        open(field);
        screen->TxtInfo[0].text = "A new title";
        screen->showState();
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        answerIfAsked(mayReplace);
        screen->mnuSaveStartingField.click();
    }
};

class TeamListWriter : public ScreenWriter<SetupScreen>
{
public:
    explicit TeamListWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        open(field);
        platform.dialogs.type("Gonzaga");
        screen->cmdAddName.click();
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        platform.dialogs.answer(ui::Answer::Yes); // save the changed names?
        answerIfAsked(mayReplace);
        screen->mnuEnd.click();
    }
};

class BoardWriter : public ScreenWriter<BoardScreen>
{
public:
    explicit BoardWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        open(BoardScreen::Shared{field, savedPlayer, listedPlayer, folderTroubleSaid, droppedFiles});
    }

protected:
    void enter(const char* initials, const char* name)
    {
        screen->txtPlayerInitials.text = initials;
        screen->txtPlayerName.text = name;
        enterPoints();
    }
    void enterPoints()
    {
        screen->txtFinalPoints.text = "177";
        screen->txtFinalPoints.edited();
        screen->showState();
    }
};

class ResultsWriter : public BoardWriter
{
public:
    explicit ResultsWriter(const fs::path& folderPath) : BoardWriter{folderPath}
    {
        screen->mnuGameResults.click();
        enterPoints();
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        answerIfAsked(mayReplace);
        screen->mnuSaveSelection.click();
    }
};

class SelectionWriter : public BoardWriter
{
public:
    explicit SelectionWriter(const fs::path& folderPath) : BoardWriter{folderPath}
    {
        platform.dialogs.pick(folder.folder() / kSelection);
        screen->mnuOpenSelection.click();
        enterPoints();
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        platform.dialogs.pick(folder.folder() / kSelection);
        answerIfAsked(mayReplace);
        screen->mnuSaveSelection.click();
    }
};

class NewSelectionWriter : public BoardWriter
{
public:
    explicit NewSelectionWriter(const fs::path& folderPath) : BoardWriter{folderPath}
    {
        screen->mnuNewSelection.click();
        enter("GH", "Evans");
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        platform.dialogs.pick(folder.folder() / kNewSelection);
        answerIfAsked(mayReplace);
        screen->mnuSaveSelection.click();
    }
};

class PlayerListWriter : public ScreenWriter<PlayersScreen>
{
public:
    explicit PlayerListWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        open(savedPlayer, field);
        screen->txtName.text = "Evans,GH";
        screen->txtEmail.text = "evans@example.org";
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        answerIfAsked(mayReplace);
        screen->cmdAdd.click();
    }
};

/// The copy is written while the player list is read: a damaged player list.
class AnnotatedCopyWriter : public Writer
{
public:
    explicit AnnotatedCopyWriter(const fs::path& folderPath) : Writer{folderPath}
    {
        std::ofstream{folderPath / file_name::kPlayerNames, std::ios::app | std::ios::binary} << "damaged line\r\n";
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        PlayersScreen names{folder, platform.services, screens, savedPlayer, field};
        names.load();
        names.showState();
        EXPECT_FALSE(names.cmdAdd.enabled);
    }
    std::string onScreen() const override { return {}; }
};

class EntryFormWriter : public ScreenWriter<EntryFormScreen>
{
public:
    explicit EntryFormWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        field = readField(folder).value;
        open(EntryFormScreen::Shared{field, draft, m_organiser});
        screen->txtOrganiser.text = "org@example.org";
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        platform.dialogs.pick(folder.folder() / kEntryFormFile);
        screen->cmdSave.click();
    }

private:
    std::string m_organiser;
};

class TableWriter : public BoardWriter
{
public:
    explicit TableWriter(const fs::path& folderPath) : BoardWriter{folderPath}
    {
        const Bracket picks = readSelectionFile(folder.pathTo(kSelection), startingBracket(field)).value.picks;
        for (const TeamRow row : allTeamRows())
            field.teams[row] = picks.at(positionOf(row)); // otherwise a message says that they differ
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        if (fs::exists(folder.folder())) // otherwise there is nothing to write, and no name is asked for
            platform.dialogs.pick(folder.folder() / kSelectionTable);
        screen->mnuExportSelections.action();
    }
};

class MoneyWriter : public Writer
{
public:
    explicit MoneyWriter(const fs::path& folderPath) : Writer{folderPath}
    {
        m_screen.load();
        m_screen.txtEntryFee.text = "17.70";
        m_screen.txtPrize[0].text = "100 %";
        m_screen.showState();
    }
    void save(std::optional<ui::Answer> mayReplace) override
    {
        if (mayReplace)
            platform.dialogs.answer(*mayReplace);
        m_screen.cmdSave.click();
    }
    std::string onScreen() const override { return textOf(m_screen); }

protected:
    MoneyScreen m_screen{folder, openPool(folder, platform.services, board), platform.services, screens};
};

class FinalSheetWriter : public MoneyWriter
{
public:
    using MoneyWriter::MoneyWriter;
    void save(std::optional<ui::Answer> /*mayReplace*/) override { m_screen.cmdFinalSheet.click(); }
};

template <const char* const& Name>
std::vector<ui::Message> troubleWith(const fs::path& folder, const Fault& /*fault*/)
{
    return {checkSpace(folder / Name)};
}

std::vector<WriterKind> ownWriters()
{
    return {
        {"Setup", file_name::kSetup, "A new title", true, true, opened<SetupWriter>, troubleWith<file_name::kSetup>},
        {"Results", file_name::kResults, "\r\n177\r\n", true, true, opened<ResultsWriter>,
         [](const fs::path& folder, const Fault&) {
             return std::vector{checkSelection(folder / file_name::kResults)};
         }},
        {"Selection", kSelection, "\r\n177\r\n", true, true, opened<SelectionWriter>,
         [](const fs::path& folder, const Fault&) { return std::vector{checkSelection(folder / kSelection)}; }},
        {"NewSelection", kNewSelection, "\r\n177\r\n", false, false, opened<NewSelectionWriter>,
         [](const fs::path& folder, const Fault&) { return std::vector{checkSelection(folder / kNewSelection)}; }},
        {"EntryForm", kEntryFormFile, "org@example.org", false, false, opened<EntryFormWriter>,
         [](const fs::path& folder, const Fault&) { return std::vector{checkItsFolder(folder / kEntryFormFile)}; }},
        {"Import", kSelection, "\r\n177\r\n", true, false, importWriter,
         [](const fs::path&, const Fault&) { return std::vector<ui::Message>{}; }},
        {"ImportedPlayer", file_name::kPlayerNames, "EVANS_GH.THC", true, false, importedPlayerWriter,
         [](const fs::path&, const Fault&) { return std::vector<ui::Message>{}; }},
        {"Table", kSelectionTable, "Name,Initials,Total,", false, false, opened<TableWriter>, tableTrouble},
        {"PlayerList", file_name::kPlayerNames, "Evans,GH", true, true, opened<PlayerListWriter>,
         troubleWith<file_name::kPlayerNames>},
        {"AnnotatedCopy", file_name::kPlayerNamesErrors, "damaged line", true, false, opened<AnnotatedCopyWriter>,
         [](const fs::path& folder, const Fault&) { return std::vector{damagedPlayerList(folder)}; }},
        {"TeamList", file_name::kTeamNames, "Gonzaga", true, true, opened<TeamListWriter>,
         [](const fs::path& folder, const Fault&) { return teamListTrouble(folder); }},
        {"Prizes", file_name::kPrizes, "17.70", true, true, opened<MoneyWriter>, troubleWith<file_name::kPrizes>},
        {"FinalSheet", kFinalSheetFile, "17.70 each", true, false, opened<FinalSheetWriter>,
         [](const fs::path&, const Fault& fault) { return std::vector{finalSheetTrouble(fault)}; }},
    };
}

} // namespace

const std::vector<WriterKind>& allWriters()
{
    static const std::vector<WriterKind> writers = [] {
        std::vector<WriterKind> all = ownWriters();
        const std::vector<WriterKind> reports = reportWriters();
        all.insert(all.end(), reports.begin(), reports.end());
        return all;
    }();
    return writers;
}

} // namespace tallyhoop::test
