// screens/reports/reports_screen.cpp - the reports screen: opening, making the ticked reports, bringing them out.
// Texts are kept letter for letter, odd spellings included.
#include "screens/reports/reports_screen.h"
#include "screens/saving.h"

#include "base/lines.h"
#include "base/text.h"
#include "files/file_names.h"
#include "reports/page/pool_page.h"
#include "screens/help_topics.h"
#include "screens/mailing.h"
#include "screens/printer_setup.h"
#include "screens/printouts.h"
#include "screens/reports/report_output.h"
#include "ui/work.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kMailTitle = "Tallyhoop - frmPoolReports, MailReports";
constexpr std::array kDestinations{"Printer", "File", "Email", "Email All Participants"};
constexpr std::array kPrintouts{"Scored Player Selections (Select File at right --->)", "Tournament Results Sheet"};
constexpr std::array kDestinationHints{
    "Prints the reports.", "Writes RPTOPT1.TXT to RPTOPT7.TXT into the program's folder.",
    "Writes the files and sends them to people you choose.", "Writes the files and sends them to all players."};
constexpr std::array kPrintoutHints{"The bracket of the player selected at the right, marked right and wrong.",
                                    "The board with the results entered so far."};
template <std::size_t N>
void letThePersonChoose(ui::ControlArray<ui::OptionButton, N>& group, const std::array<const char*, N>& captions)
{
    for (std::size_t i = 0; i < N; ++i) {
        group[i].caption = captions[i];
        group[i].changed = [&group, i] {
            if (group[i].selected)
                ui::selectOption(group, i);
        };
    }
}

} // namespace

ReportsScreen::ReportsScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                             const Field& field, MailDraft& draft, BoardPrintouts& board, const RoadLimits& pageRoad)
    : Screen{"frmPoolReports", "Tallyhoop Reports"},
      m_folder{folder},
      m_platform{platform},
      m_screens{screens},
      m_field{field},
      m_draft{draft},
      m_board{board},
      m_pageRoad{pageRoad},
      m_maker{folder, platform, field}
{
    for (const ReportKind& kind : reportTable())
        chkOptions[kind.id].caption = kind.caption;
    letThePersonChoose(optDestination, kDestinations);
    letThePersonChoose(optSelected, kPrintouts);
    ui::selectOption(optDestination, 0);
    cmdPrintSelections.mnemonic = 's';
    cmdDefaultPrinter.mnemonic = 'd';
    cmdPreview.mnemonic = 'p';
    cmdSavePdf.mnemonic = 'f';
    cmdSaveCsv.mnemonic = 'v';
    cmdSelectedPrintouts.mnemonic = 'c';
    cmdPreviewBoard.mnemonic = 'b';
    cmdSaveBoardPdf.mnemonic = 'a';
    cmdCustomReport.mnemonic = 'g';
    cmdOpenFolder.mnemonic = 'o';
    cmdExit.mnemonic = 'x';
    explainControls();
    filList.spokenName = "Player selection files";
    txtReportTitle.spokenName = "Report title";
}

void ReportsScreen::explainControls()
{
    for (const ReportKind& kind : reportTable())
        chkOptions[kind.id].explanation = kind.explanation;
    for (std::size_t i = 0; i < kDestinations.size(); ++i)
        optDestination[i].explanation = kDestinationHints[i];
    for (std::size_t i = 0; i < kPrintouts.size(); ++i)
        optSelected[i].explanation = kPrintoutHints[i];
    txtReportTitle.explanation = "The title of the reports; the field's own title stays as it is.";
    cmdPrintSelections.explanation = "Makes the ticked reports and brings them to their destination.";
    cmdDefaultPrinter.explanation = "Press to change: the default printer, or one that you choose for each report.";
    cmdPreview.explanation = "Shows the ticked reports as they will be printed.";
    cmdSavePdf.explanation = "Saves the ticked reports as PDF files: one is named, several go into a folder.";
    cmdSaveCsv.explanation = "Saves the ticked standings and team selections as tables for spreadsheets.";
    cmdWebPage.explanation = "Saves one file that shows the whole pool in any browser (F12).";
    chkWebPage.explanation = "Makes the page that shows the whole pool in any browser, and attaches it to the message.";
    chkAllPlayers.changed = [this] {
        if (chkAllPlayers.ticked)
            ui::selectOption(optSelected, 0); // the only sheet that there is for each player
    };
    chkAllPlayers.explanation = "Every player's scored bracket, a page each, instead of the one selected below.";
    filList.emptyNote = "No selections saved yet.";
    filList.explanation = "The player whose scored bracket is printed.";
    cmdSelectedPrintouts.explanation =
        "Prints the chosen sheet; one player's, or the results, stay on the board afterwards.";
    cmdPreviewBoard.explanation =
        "Shows the chosen sheet as it will be printed; the board as it is when none is chosen.";
    cmdSaveBoardPdf.explanation = "Saves the chosen sheet as a PDF file; the board as it is when none is chosen.";
    cmdCustomReport.explanation = "Puts the results on the board and opens the list of all scores.";
    cmdOpenFolder.explanation = "Shows the folder that the reports are written to.";
    cmdExit.explanation = "Back to the board.";
}

std::string ReportsScreen::helpTopic() const { return m_refusalTopic.empty() ? help_topic::kReports : m_refusalTopic; }

/// The caption always names the mode now in force.
void ReportsScreen::showState()
{
    cmdSaveCsv.enabled = isTableTicked();
    chkWebPage.enabled = isMailChosen();
    cmdDefaultPrinter.caption = m_useDefaultPrinter ? "Use default printer" : "Select non default printer";
    status = m_board.holdsUnsavedResults() ? "Reports use the saved results; those on the board are not saved" : "";
}

void ReportsScreen::load()
{
    txtReportTitle.text = m_field.title;
    listFiles();
    m_draft.cancelled = false;
}

void ReportsScreen::closeRequested() { exitReports(); }

/// Shows the files that are there now; the chosen one stays chosen.
void ReportsScreen::listFiles()
{
    // By its path: two names may look alike as they are shown.
    const std::filesystem::path chosen =
        filList.selected ? m_files.at(static_cast<std::size_t>(*filList.selected)).path : std::filesystem::path{};
    m_files = listSelections(m_platform.dialogs, m_folder);
    filList.rows.clear();
    for (const FolderFile& file : m_files)
        filList.rows.push_back(file.name);
    const auto at = std::ranges::find(m_files, chosen, &FolderFile::path);
    filList.selected.reset();
    if (at != m_files.end())
        filList.selected = static_cast<int>(at - m_files.begin());
}

void ReportsScreen::createSelectedReports()
{
    const Destination destination = chosenDestination();
    const bool toEverybody = destination == Destination::EmailToEverybody;
    std::vector<std::filesystem::path> made; // only what this run has made may be mailed
    std::vector<std::string> printed;
    m_refusalTopic.clear();
    m_printerMissing = false;
    say({});
    const auto bringOut = [&](const ReportKind& kind, const ReportLines& lines) {
        const Result<bool> isOut = output(kind, lines, destination);
        if (!isOut)
            refuse(kind, {reportFailure(kind, isOut.failure().message)});
        else if (destination != Destination::Printer)
            made.push_back(m_folder.pathTo(kind.file));
        else if (*isOut)
            printed.emplace_back(kind.name);
    };
    const bool isWhole =
        forEachTickedReport("PrintSelections_Click ", cmdPrintSelections.caption, bringOut, isWebPageMailed());
    if (!printed.empty())
        say(printedSentence(printed));
    const std::optional<PoolPage> page = isWhole && isWebPageMailed() ? writeWebPage() : std::nullopt;
    if (page)
        made.push_back(m_folder.pathTo(kPoolPageFile));
    if (!made.empty())
        say(page ? withLack(writtenSentence(made), *page) : writtenSentence(made));
    if (isWhole && !made.empty() && isMailChosen() && page.has_value() == isWebPageMailed())
        mailReports(made, toEverybody);
}

void ReportsScreen::previewSelectedReports()
{
    say(showPreview(m_platform, m_folder.folder(), tickedPrintouts("Preview", cmdPreview.caption)));
}

void ReportsScreen::saveSelectedReportsAsPdf()
{
    say(saveAsPdf(m_platform, m_folder.folder(), tickedPrintouts("Save as PDF", cmdSavePdf.caption)));
}

std::vector<ui::Printout> ReportsScreen::tickedPrintouts(const char* titleEnd, const std::string& commandCaption)
{
    std::vector<ui::Printout> printouts;
    bool cancelled = false;
    const auto collect = [&](const ReportKind& kind, const ReportLines& lines) {
        if (cancelled)
            return;
        if (auto printout = printoutOf(kind, lines, false))
            printouts.emplace_back(std::move(*printout));
        else
            cancelled = true; // the font: each report needs it
    };
    forEachTickedReport(titleEnd, commandCaption, collect);
    return printouts;
}

bool ReportsScreen::isMailChosen() const
{
    return optDestination[Destination::Email].selected || optDestination[Destination::EmailToEverybody].selected;
}

ReportsScreen::Destination ReportsScreen::chosenDestination() const
{
    for (const auto destination : {Destination::Printer, Destination::Email, Destination::EmailToEverybody})
        if (optDestination[destination].selected)
            return destination;
    return Destination::File;
}

bool ReportsScreen::forEachTickedReport(const char* titleEnd, const std::string& commandCaption, const Deliver& deliver,
                                        bool isPageEnough)
{
    listFiles();
    bool anyTicked = false;
    for (const ReportKind& kind : reportTable()) {
        if (!chkOptions[kind.id].ticked)
            continue;
        anyTicked = true;
        const MadeReport made = m_maker.make(kind, txtReportTitle.text, m_files);
        if (const auto* lines = std::get_if<ReportLines>(&made)) {
            deliver(kind, *lines);
            continue;
        }
        const auto& reason = std::get<NoReport>(made);
        refuse(kind, reason);
        if (reason.consequence == WithoutReport::EndRun)
            return false;
    }
    if (!anyTicked && !isPageEnough)
        m_platform.dialogs.show({std::string{"Tallyhoop - frmPoolReports, "} + titleEnd,
                                 "You will need to select one of the Report Selections before\r\n"
                                 "choosing the \"" +
                                     commandCaption + "\" Command Button",
                                 ui::Buttons::Ok, ui::Icon::Exclamation});
    return true;
}

void ReportsScreen::refuse(const ReportKind& kind, const NoReport& reason)
{
    m_platform.dialogs.show(reason.message);
    m_refusalTopic = reason.message.helpTopic;
    if (reason.consequence == WithoutReport::Untick)
        chkOptions[kind.id].ticked = false;
}

/// Writes the work file, and then either prints the report or writes its own file.
Result<bool> ReportsScreen::output(const ReportKind& kind, const ReportLines& lines, Destination destination)
{
    const std::string bytes = fileOf(lines);
    if (const Result<Done> written = m_folder.write(file_name::kWorkFile, bytes); !written)
        return written.failure();
    if (destination == Destination::Printer)
        return print(kind, lines);
    if (const Result<Done> written = m_folder.write(kind.file, bytes); !written)
        return written.failure();
    return true;
}

bool ReportsScreen::print(const ReportKind& kind, const ReportLines& lines)
{
    if (m_printerMissing)
        return false;
    const auto printout = printoutOf(kind, lines, !m_useDefaultPrinter);
    if (!printout)
        return false;
    m_printerMissing = m_useDefaultPrinter && !m_platform.printer.isThere();
    const PrintOutcome outcome = printOut(m_platform, *printout);
    say(outcome.sentence);
    return outcome.isOnPaper;
}

std::optional<ui::TextPrintout> ReportsScreen::printoutOf(const ReportKind& kind, const ReportLines& lines,
                                                          bool showDialog)
{
    const auto setup = setUpPrinter(m_platform, showDialog, orientationOf(kind.orientation));
    if (!setup)
        return std::nullopt;
    return textPrintout(kind.name, lines, *setup, m_platform.printer);
}

/// Sends one message with all files.
void ReportsScreen::mailReports(std::span<const std::filesystem::path> files, bool toEverybody)
{
    mailFiles({m_platform, m_screens, m_draft, *this}, files,
              {.kind = MailKind::Reports, .title = kMailTitle, .toEverybody = toEverybody});
}

} // namespace tallyhoop
