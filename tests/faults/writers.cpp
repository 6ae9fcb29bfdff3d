// tests/faults/writers.cpp - for each file, the screen that writes it and the presses up to the last one.
#include "faults/writers.h"

#include "base/text.h"
#include "fakes/fake_background.h"
#include "faults/import_writers.h"
#include "faults/messages.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "pool/outlook/quick_road.h"
#include "reports/entry_form/entry_form.h"
#include "reports/final_sheet.h"
#include "reports/outlook.h"
#include "reports/page/pool_page.h"
#include "screens/board/board_screen.h"
#include "screens/entries/entry_form_screen.h"
#include "screens/entries/selection_export.h"
#include "screens/money/money_screen.h"
#include "screens/outlook/outlook_screen.h"
#include "screens/players/players_screen.h"
#include "screens/reports/reports_screen.h"
#include "screens/setup/setup_screen.h"

#include <fstream>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSelection = "Adams_AB.THC";
constexpr const char* kNewSelection = "Evans_GH.THC";

template <class ScreenKindOfWriter>
class ScreenWriter : public Writer
{
public:
    using Writer::Writer;
    std::string onScreen() const override { return textOf(*screen); }

protected:
    std::unique_ptr<ScreenKindOfWriter> screen;

    template <class... Arguments>
    void open(Arguments&&... arguments)
    {
        screen = std::make_unique<ScreenKindOfWriter>(folder, platform.services, screens,
                                                      std::forward<Arguments>(arguments)...);
        screen->load();
        screen->showState();
    }

    void answerIfAsked(std::optional<ui::Answer> answer)
    {
        if (answer)
            platform.dialogs.answer(*answer);
    }
};

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

template <std::size_t Index, std::size_t Destination>
class ReportWriter : public ScreenWriter<ReportsScreen>
{
public:
    explicit ReportWriter(const fs::path& folderPath) : ScreenWriter{folderPath}
    {
        field = readField(folder).value;
        open(field, draft, board, kQuickRoad);
        screen->txtReportTitle.text = "A new title";
        screen->cmdDefaultPrinter.click(); // so that nothing is as it was at first
        ui::selectOption(screen->optDestination, Destination);
        ui::selectOption(screen->optSelected, 1);
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        screen->chkOptions[Index].ticked = true;
        screen->cmdPrintSelections.click();
    }
    std::string onScreen() const override
    {
        // The chosen files are listed again before every report, and a report that failed loses its own tick.
        std::string all = screen->txtReportTitle.text + "\n" + screen->cmdDefaultPrinter.caption + "\n";
        for (std::size_t i = 0; i < screen->optDestination.size(); ++i)
            all += screen->optDestination[i].selected ? '*' : '-';
        for (std::size_t i = 0; i < screen->optSelected.size(); ++i)
            all += screen->optSelected[i].selected ? '*' : '-';
        for (std::size_t i = 0; i < screen->chkOptions.size(); ++i)
            all += i != Index && screen->chkOptions[i].ticked ? '*' : '-';
        return all;
    }
};

class OutlookWriter : public Writer
{
public:
    explicit OutlookWriter(const fs::path& folderPath) : Writer{folderPath}
    {
        m_screen.load();
        m_screen.showState();
    }
    void save(std::optional<ui::Answer> /*mayReplace*/) override { m_screen.cmdSaveReport.click(); }
    std::string onScreen() const override { return textOf(m_screen); }

private:
    OutlookScreen m_screen{folder, openPool(folder, platform.services, board), platform.services, screens,
                           std::make_unique<FakeBackground>()};
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

constexpr std::size_t kToPrinter = 0;
constexpr std::size_t kToFile = 1;
constexpr std::size_t kToMail = 2;

constexpr const char* kSavedPage = "PAGE.HTML";

class WebPageWriter : public ReportWriter<0, kToFile>
{
public:
    using ReportWriter::ReportWriter;
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        if (fs::exists(folder.folder())) // otherwise nobody is there to be shown, and no name is asked for
            platform.dialogs.pick(folder.folder() / kSavedPage);
        screen->cmdWebPage.click();
    }
};

class MailedPageWriter : public ReportWriter<0, kToMail>
{
public:
    using ReportWriter::ReportWriter;
    void save(std::optional<ui::Answer> /*mayReplace*/) override
    {
        screens.whenLoaded = [this](ScreenKind) { draft.cancelled = true; };
        screen->chkWebPage.ticked = true;
        screen->cmdPrintSelections.click();
    }
};

template <class Kind>
std::unique_ptr<Writer> opened(const fs::path& folder)
{
    return std::make_unique<Kind>(folder);
}

template <const char* const& Name>
std::vector<ui::Message> troubleWith(const fs::path& folder, const Fault& /*fault*/)
{
    return {checkSpace(folder / Name)};
}

template <ReportId Id>
std::vector<ui::Message> troubleOfReport(const fs::path& folder, const Fault& fault)
{
    return reportTrouble(Id, folder, fault);
}

template <ReportId Id>
WriterKind reportFile(const char* name)
{
    constexpr auto kIndex = static_cast<std::size_t>(Id);
    return {name,
            reportTable()[kIndex].file,
            "A new title",
            true,
            false,
            opened<ReportWriter<kIndex, kToFile>>,
            troubleOfReport<Id>};
}

} // namespace

const std::vector<WriterKind>& allWriters()
{
    static const std::vector<WriterKind> writers{
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
        {"WorkFile", file_name::kWorkFile, "A new title", true, false, opened<ReportWriter<0, kToPrinter>>,
         troubleOfReport<ReportId::TournamentStandings>},
        reportFile<ReportId::TournamentStandings>("TournamentStandings"),
        reportFile<ReportId::PlayerListing>("PlayerListing"),
        reportFile<ReportId::TeamSelectionSummary>("TeamSelectionSummary"),
        reportFile<ReportId::TeamSelectionDetail>("TeamSelectionDetail"),
        reportFile<ReportId::PlayerSelectionDetail>("PlayerSelectionDetail"),
        reportFile<ReportId::ResultsByPlayer>("ResultsByPlayer"),
        reportFile<ReportId::ResultsByTeam>("ResultsByTeam"),
        {"Outlook", kOutlookFile, "Pool Outlook", true, false, opened<OutlookWriter>,
         [](const fs::path&, const Fault& fault) { return std::vector{outlookTrouble(fault)}; }},
        {"Prizes", file_name::kPrizes, "17.70", true, true, opened<MoneyWriter>, troubleWith<file_name::kPrizes>},
        {"WebPage", kSavedPage, "Content-Security-Policy", false, false, opened<WebPageWriter>,
         [](const fs::path& folder, const Fault& fault) { return savedPageTrouble(folder / kSavedPage, fault); }},
        {"MailedPage", kPoolPageFile, "Content-Security-Policy", true, false, opened<MailedPageWriter>,
         mailedPageTrouble},
        {"FinalSheet", kFinalSheetFile, "17.70 each", true, false, opened<FinalSheetWriter>,
         [](const fs::path&, const Fault& fault) { return std::vector{finalSheetTrouble(fault)}; }},
    };
    return writers;
}

} // namespace tallyhoop::test
