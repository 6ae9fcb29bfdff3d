// screens/reports/reports_screen.cpp - the reports screen: opening, making the ticked reports, bringing them out.
// Texts are kept letter for letter, odd spellings included.
#include "screens/reports/reports_screen.h"
#include "screens/saving.h"

#include "base/lines.h"
#include "files/file_names.h"
#include "screens/help_topics.h"
#include "screens/reports/report_delivery.h"
#include "screens/reports/report_output.h"

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

/// @returns "Written to the program's folder: RPTOPT1.TXT, RPTOPT3.TXT."
std::string whatWasMade(std::span<const std::filesystem::path> files, bool onPaper)
{
    if (onPaper)
        return {};
    std::string names;
    for (const std::filesystem::path& file : files)
        names += (names.empty() ? "" : ", ") + shown(file.filename());
    return "Written to the program's folder: " + names + ".";
}

/// Signs on unless a session is open; signs off after the message.
Result<Done> sendReports(ui::Mail& mail, const MailDraft& draft, std::span<const std::filesystem::path> files)
{
    if (!mail.isOpen())
        if (Result<Done> signedOn = mail.signOn(); !signedOn)
            return signedOn;
    const Result<Done> sent = mail.send(reportMessage(draft, files));
    mail.signOff();
    return sent;
}

} // namespace

ReportsScreen::ReportsScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens,
                             const Field& field, MailDraft& draft, BoardPrintouts& board)
    : Screen{"frmPoolReports", "Tallyhoop Reports"},
      m_folder{folder},
      m_platform{platform},
      m_screens{screens},
      m_field{field},
      m_draft{draft},
      m_board{board},
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
    cmdSavePdf.explanation = "Saves each ticked report as a PDF file.";
    filList.emptyNote = "No selections saved yet.";
    filList.explanation = "The player whose scored bracket is printed.";
    cmdSelectedPrintouts.explanation = "Prints the chosen sheet and goes back to the board.";
    cmdPreviewBoard.explanation = "Shows the board as it will be printed.";
    cmdSaveBoardPdf.explanation = "Saves the board as a PDF file.";
    cmdCustomReport.explanation = "Puts the results on the board and opens the list of all scores.";
    cmdOpenFolder.explanation = "Shows the folder that the reports are written to.";
    cmdExit.explanation = "Back to the board.";
}

std::string ReportsScreen::helpTopic() const { return m_refusalTopic.empty() ? help_topic::kReports : m_refusalTopic; }

/// The caption always names the mode now in force.
void ReportsScreen::showState()
{
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
    m_refusalTopic.clear();
    const auto bringOut = [&](const ReportKind& kind, const ReportLines& lines) {
        if (const Result<Done> done = output(kind, lines, destination); !done)
            refuse(kind, {reportFailure(kind, done.failure().message)});
        else
            made.push_back(m_folder.pathTo(kind.file));
    };
    if (!forEachTickedReport("PrintSelections_Click ", cmdPrintSelections.caption, bringOut) || made.empty())
        return;
    say(whatWasMade(made, destination == Destination::Printer));
    if (destination == Destination::Email || toEverybody)
        mailReports(made, toEverybody);
}

void ReportsScreen::previewSelectedReports()
{
    forEachTickedReport("Preview", cmdPreview.caption, [this](const ReportKind& kind, const ReportLines& lines) {
        previewReport(m_platform, kind, lines);
    });
}

void ReportsScreen::saveSelectedReportsAsPdf()
{
    forEachTickedReport("Save as PDF", cmdSavePdf.caption, [this](const ReportKind& kind, const ReportLines& lines) {
        saveAsPdf(m_platform, m_folder.folder(), kind, lines);
    });
}

ReportsScreen::Destination ReportsScreen::chosenDestination() const
{
    for (const auto destination : {Destination::Printer, Destination::Email, Destination::EmailToEverybody})
        if (optDestination[destination].selected)
            return destination;
    return Destination::File;
}

bool ReportsScreen::forEachTickedReport(const char* titleEnd, const std::string& commandCaption, const Deliver& deliver)
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
    if (!anyTicked)
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
Result<Done> ReportsScreen::output(const ReportKind& kind, const ReportLines& lines, Destination destination)
{
    const std::string bytes = fileOf(lines);
    if (Result<Done> written = m_folder.write(file_name::kWorkFile, bytes); !written)
        return written;
    if (destination != Destination::Printer)
        return m_folder.write(kind.file, bytes);
    printReport(m_platform, !m_useDefaultPrinter, kind, lines);
    return Done{};
}

/// Sends one message with all files. They stay where they are, so nothing is lost when that fails.
void ReportsScreen::mailReports(std::span<const std::filesystem::path> files, bool toEverybody)
{
    m_draft = {};
    m_draft.toEverybody = toEverybody;
    m_screens.load(ScreenKind::Email);
    if (m_draft.cancelled) {
        m_draft.cancelled = false;
        return;
    }
    const Result<Done> sent = sendReports(m_platform.mail, m_draft, files);
    m_draft.recipients.clear();
    if (!sent)
        m_platform.dialogs.show({"Tallyhoop - frmPoolReports, MailReports", sent.failure().message, ui::Buttons::Ok,
                                 ui::Icon::Exclamation});
}

} // namespace tallyhoop
