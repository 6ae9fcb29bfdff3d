// tests/faults/report_writers.cpp - the Reports screen with one report ticked, or asked for the page; the outlook
// saved.
#include "faults/report_writers.h"

#include "fakes/fake_background.h"
#include "faults/messages.h"
#include "faults/screen_writer.h"
#include "files/file_names.h"
#include "files/setup_file.h"
#include "pool/outlook/quick_road.h"
#include "reports/outlook.h"
#include "reports/page/pool_page.h"
#include "reports/report_table.h"
#include "screens/outlook/outlook_screen.h"
#include "screens/reports/reports_screen.h"

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kToPrinter = 0;
constexpr std::size_t kToFile = 1;
constexpr std::size_t kToMail = 2;

constexpr const char* kSavedPage = "PAGE.HTML";

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

std::vector<WriterKind> reportWriters()
{
    return {
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
        {"WebPage", kSavedPage, "Content-Security-Policy", false, false, opened<WebPageWriter>,
         [](const fs::path& folder, const Fault& fault) { return savedPageTrouble(folder / kSavedPage, fault); }},
        {"MailedPage", kPoolPageFile, "Content-Security-Policy", true, false, opened<MailedPageWriter>,
         mailedPageTrouble},
    };
}

} // namespace tallyhoop::test
