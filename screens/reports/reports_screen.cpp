// screens/reports/reports_screen.cpp - the reports screen: opening, creating the ticked reports, closing.
#include "screens/reports/reports_screen.h"

#include "files/file_names.h"
#include "pool/pool_lines.h"
#include "screens/help_topics.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr std::array kDestinations{"Printer", "File", "Email", "Email All Participants"};
constexpr std::array kPrintouts{"Scored Player Selections (Select File at right --->)", "Tournament Results Sheet"};
constexpr std::array kDestinationHints{
    "Prints the reports.", "Writes RPTOPT1.TXT to RPTOPT7.TXT into the program's folder.",
    "Writes the files and sends them to people you choose.", "Writes the files and sends them to all players."};
constexpr std::array kPrintoutHints{"The bracket of the player selected at the right, marked right and wrong.",
                                    "The board with the results entered so far."};
constexpr const char* kNothingTickedTitle = "Tallyhoop - frmPoolReports, PrintSelections_Click "; // sic: the blank
constexpr const char* kNothingTicked = "You will need to select one of the Report Selections before\r\n"
                                       "choosing the \"Create Selected Reports\" Command Button";

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

ReportsScreen::ReportsScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state,
                             Screens& screens, BracketBoard& board)
    : Screen{"frmPoolReports", "Tallyhoop Reports"},
      m_folder{folder},
      m_platform{platform},
      m_state{state},
      m_screens{screens},
      m_board{board},
      m_maker{folder, platform, board}
{
    for (std::size_t i = 0; i < kReports; ++i)
        chkOptions[i].caption = reportTable()[i].caption;
    letThePersonChoose(optDestination, kDestinations);
    letThePersonChoose(optSelected, kPrintouts);
    ui::selectOption(optDestination, 0);
    cmdPrintSelections.mnemonic = 's';
    cmdDefaultPrinter.mnemonic = 'd';
    cmdPreview.mnemonic = 'p';
    cmdSavePdf.mnemonic = 'f';
    cmdSelectedPrintouts.mnemonic = 'c';
    cmdPreviewBoard.mnemonic = 'b';
    cmdSaveBoardPdf.mnemonic = 'a';
    cmdCustomReport.mnemonic = 'g';
    cmdExit.mnemonic = 'x';
    explainControls();
    filList.spokenName = "Player selection files";
    txtReportTitle.spokenName = "Report title";
}

void ReportsScreen::explainControls()
{
    for (std::size_t i = 0; i < kReports; ++i)
        chkOptions[i].explanation = reportTable()[i].explanation;
    for (std::size_t i = 0; i < kDestinations.size(); ++i)
        optDestination[i].explanation = kDestinationHints[i];
    for (std::size_t i = 0; i < kPrintouts.size(); ++i)
        optSelected[i].explanation = kPrintoutHints[i];
    txtReportTitle.explanation = "Heads the reports; the field's own title stays as it is.";
    cmdPrintSelections.explanation = "Makes the ticked reports and brings them to their destination.";
    cmdDefaultPrinter.explanation = "Press to change: the default printer, or one that you choose for each report.";
    cmdPreview.explanation = "Shows the ticked reports as they will be printed.";
    cmdSavePdf.explanation = "Saves each ticked report as a PDF file.";
    filList.explanation = "The player whose scored bracket is printed.";
    cmdSelectedPrintouts.explanation = "Prints the chosen sheet and goes back to the board.";
    cmdPreviewBoard.explanation = "Shows the board as it will be printed.";
    cmdSaveBoardPdf.explanation = "Saves the board as a PDF file.";
    cmdCustomReport.explanation = "Puts the results on the board and opens the list of all scores.";
    cmdExit.explanation = "Back to the board.";
}

std::string ReportsScreen::helpTopic() const { return m_refusalTopic.empty() ? help_topic::kReports : m_refusalTopic; }

void ReportsScreen::load()
{
    txtReportTitle.text = m_state.setupLines[setup_line::kTitle];
    listFiles();
    toPrinter = toFile = toEmail = mblnSelectEMailAll = false;
    m_state.mailDraft.cancelled = false;
    useDefaultPrinter = true;
    m_board.setReportsEnabled(false);
}

void ReportsScreen::closeRequested() { exitReports(); }

void ReportsScreen::unloading() { m_board.setReportsEnabled(true); }

/// Shows the files that are there now; the chosen one stays chosen.
void ReportsScreen::listFiles()
{
    const std::string chosen = filList.selectedText();
    m_files = m_folder.files(file_name::kSelectionEnding);
    filList.rows.clear();
    for (const FolderFile& file : m_files)
        filList.rows.push_back(file.name);
    const auto at = std::ranges::find(filList.rows, chosen);
    filList.selected.reset();
    if (at != filList.rows.end())
        filList.selected = static_cast<int>(at - filList.rows.begin());
}

void ReportsScreen::createSelectedReports()
{
    readDestination();
    listFiles();
    m_made.fill(false);
    m_refusalTopic.clear();
    bool anyTicked = false;
    for (std::size_t index = 0; index < kReports; ++index) {
        if (!chkOptions[index].ticked)
            continue;
        anyTicked = true;
        const Delivery delivery = createReport(index);
        if (delivery == Delivery::Cancelled)
            return;
        m_made[index] = delivery == Delivery::Done;
    }
    if (!anyTicked) {
        m_platform.dialogs.show({kNothingTickedTitle, kNothingTicked, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const bool anyMade = std::ranges::find(m_made, true) != m_made.end();
    if ((toEmail || mblnSelectEMailAll) && anyMade)
        MailReports();
}

void ReportsScreen::readDestination()
{
    const std::array<bool*, 4> fields{&toPrinter, &toFile, &toEmail, &mblnSelectEMailAll};
    for (std::size_t i = 0; i < fields.size(); ++i)
        *fields[i] = optDestination[i].selected;
}

ReportsScreen::Delivery ReportsScreen::createReport(std::size_t index)
{
    bool cancelled = false;
    const std::optional<ReportLines> lines = makeReport(index, cancelled);
    if (!lines)
        return cancelled ? Delivery::Cancelled : Delivery::Failed;
    const ReportKind& kind = reportTable()[index];
    if (const Result<Done> output = OutputReport(kind.key, *lines); !output) {
        refuse(index, {reportFailure(kind, output.failure().message)});
        return Delivery::Failed;
    }
    return Delivery::Done;
}

std::optional<ReportLines> ReportsScreen::makeReport(std::size_t index, bool& cancelled)
{
    MadeReport made = m_maker.make(reportTable()[index], txtReportTitle.text, m_files);
    if (ReportLines* lines = std::get_if<ReportLines>(&made))
        return std::move(*lines);
    const NoReport& reason = std::get<NoReport>(made);
    cancelled = reason.cancelled;
    refuse(index, reason);
    return std::nullopt;
}

void ReportsScreen::refuse(std::size_t index, const NoReport& reason)
{
    m_platform.dialogs.show(reason.message);
    m_refusalTopic = reason.message.helpTopic;
    if (reason.untick)
        chkOptions[index].ticked = false;
}

/// The caption always names the mode now in force.
void ReportsScreen::toggleDefaultPrinter()
{
    useDefaultPrinter = !useDefaultPrinter;
    cmdDefaultPrinter.caption = useDefaultPrinter ? "Use default printer" : "Select non default printer";
}

void ReportsScreen::exitReports()
{
    if (m_platform.mail.isOpen())
        m_platform.mail.signOff();
    m_screens.unload(ScreenKind::Reports);
}

} // namespace tallyhoop
