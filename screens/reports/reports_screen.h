// screens/reports/reports_screen.h - the reports screen: which reports, where to, and the printouts of the board.
#pragma once

#include "files/data_folder.h"
#include "output/pool_page_making.h"
#include "pool/field.h"
#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "screens/board_printouts.h"
#include "screens/hand_overs.h"
#include "screens/reports/bracket_sheets.h"
#include "screens/reports/report_maker.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

class ReportsScreen : public ui::Screen
{
public:
    /// @param draft what the e-mail dialog leaves; emptied before it is asked
    /// @param pageRoad how much work the road of the web page may be
    ReportsScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Field& field,
                  MailDraft& draft, BoardPrintouts& board, const RoadLimits& pageRoad = kPageRoad);

    std::string helpTopic() const override;
    void showState() override;
    void load() override;
    void closeRequested() override;

    ui::Label fraMultipleOutput{this, "fraMultipleOutput", "Multiple Output Options"};
    ui::Label lblReportSelections{this, "lblReportSelections", "Report Selections"};
    ui::ControlArray<ui::CheckBox, kReports> chkOptions{this, "chkOptions"}; ///< by ReportId
    ui::Label lblDestination{this, "lblDestination", "Destination"};
    ui::ControlArray<ui::OptionButton, 4> optDestination{this, "optDestination"};
    ui::CheckBox chkWebPage{this, "chkWebPage", "Attach the pool's web page"}; ///< to what is mailed
    ui::Label lblReportTitle{this, "lblReportTitle", "Report Titles:"};
    ui::TextBox txtReportTitle{this, "txtReportTitle"};
    ui::Command cmdPrintSelections{this, "cmdPrintSelections", "Create Selected Reports",
                                   [this] { createSelectedReports(); }};
    ui::Command cmdDefaultPrinter{this, "cmdDefaultPrinter", "Use default printer",
                                  [this] { m_useDefaultPrinter = !m_useDefaultPrinter; }};
    ui::Command cmdPreview{this, "cmdPreview", "Preview", [this] { previewSelectedReports(); }};
    ui::Command cmdSavePdf{this, "cmdSavePdf", "Save as PDF", [this] { saveSelectedReportsAsPdf(); }};
    ui::Command cmdSaveCsv{this, "cmdSaveCsv", "Save as CSV...", [this] { saveSelectedTables(); }};
    ui::Command cmdWebPage{this, "cmdWebPage", "Save as &Web Page...", [this] { saveWebPage(); }};

    ui::Label fraPrinterOnly{this, "fraPrinterOnly", "Printer Only Options"};
    ui::ControlArray<ui::OptionButton, 2> optSelected{this, "optSelected"};
    ui::ListBox filList{this, "filList"};                             ///< every player's file
    ui::CheckBox chkAllPlayers{this, "chkAllPlayers", "All players"}; ///< instead of the one selected in filList
    ui::Command cmdSelectedPrintouts{this, "cmdSelectedPrintouts", "Create Selected Printout",
                                     [this] { createSelectedPrintout(); }};
    ui::Command cmdPreviewBoard{this, "cmdPreviewBoard", "Preview Board", [this] { previewBoard(); }};
    ui::Command cmdSaveBoardPdf{this, "cmdSaveBoardPdf", "Save Board as PDF", [this] { saveBoardAsPdf(); }};

    ui::Label fraCustomReports{this, "fraCustomReports", "Custom Reports Option"};
    ui::Command cmdCustomReport{this, "cmdCustomReport", "Goto Custom Reporting", [this] { gotoCustomReporting(); }};
    ui::Command cmdOpenFolder{this, "cmdOpenFolder", "Open Folder", [this] { openFolder(); }};
    ui::Command cmdExit{this, "cmdExit", "Exit Reports", [this] { exitReports(); }};

private:
    enum class Destination { Printer, File, Email, EmailToEverybody }; ///< the index in optDestination
    using Deliver = std::function<void(const ReportKind&, const ReportLines&)>;

    void explainControls();
    void listFiles();

    // Reports.
    void createSelectedReports();
    void previewSelectedReports();
    void saveSelectedReportsAsPdf();
    void saveSelectedTables();
    bool isTableTicked() const;
    void saveWebPage();
    std::optional<PoolPage> makeWebPage();
    bool isWebPageMailed() const;

    /// Makes the page and writes it into the program's folder. @returns nothing after it was said why it is not there
    std::optional<PoolPage> writeWebPage();

    /// @returns the words, and after them why the page has no final sheet although it should
    static std::string withLack(const std::string& words, const PoolPage& page);
    Destination chosenDestination() const;
    bool isMailChosen() const;

    /// Makes the ticked reports, hands each on that could be made, and explains itself when none is ticked.
    /// @param titleEnd what the explanation's caption says of the command
    /// @param isPageEnough whether there is something to bring out when none is ticked: the web page
    /// @returns false when the person has cancelled
    bool forEachTickedReport(const char* titleEnd, const std::string& commandCaption, const Deliver& deliver,
                             bool isPageEnough = false);

    /// Shows why there is no report and, where it says so, unticks the report's box.
    void refuse(const ReportKind& kind, const NoReport& reason);

    /// @returns whether it was written or printed: a print can be cancelled, go to a file, or fail with its own message
    Result<bool> output(const ReportKind& kind, const ReportLines& lines, Destination destination);
    bool print(const ReportKind& kind, const ReportLines& lines);

    /// @returns nothing when the person cancelled a dialog
    std::optional<ui::TextPrintout> printoutOf(const ReportKind& kind, const ReportLines& lines, bool showDialog);

    /// @returns the ticked reports that could be made; empty after the reason was shown
    std::vector<ui::Printout> tickedPrintouts(const char* titleEnd, const std::string& commandCaption);
    void mailReports(std::span<const std::filesystem::path> files, bool toEverybody);

    // Printouts of the board and ways out.
    void createSelectedPrintout();
    void printResultsSheet();
    void printScoredSelection();
    void printAllPlayers();
    void previewBoard();
    void saveBoardAsPdf();

    /// @returns whether a sheet can be made of what is chosen; the message why not was shown
    bool sheetIsPossible();

    /// @returns what is chosen, or the board as it is when nothing is; nothing after a message was shown
    std::optional<ui::Printout> chosenSheet();
    std::optional<ui::DrawingPrintout> scoredSheets();
    void gotoCustomReporting();
    void openFolder();
    void exitReports();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
    const Field& m_field;
    MailDraft& m_draft;
    BoardPrintouts& m_board;
    RoadLimits m_pageRoad;
    ReportMaker m_maker;
    BracketSheets m_sheets{m_folder, m_platform, m_field};

    std::vector<FolderFile> m_files; ///< the rows of filList
    bool m_useDefaultPrinter = true; ///< false = the person chooses a printer for each report
    bool m_printerMissing = false;   ///< no printer was found in this run; said once
    std::string m_refusalTopic;      ///< help topic of the last refusal; empty = none of its own
};

} // namespace tallyhoop
