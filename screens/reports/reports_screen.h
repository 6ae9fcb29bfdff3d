// screens/reports/reports_screen.h - the reports screen: which reports, where to, and the printouts of the bracket
// board.
#pragma once

#include "files/data_folder.h"
#include "reports/report_layout.h"
#include "reports/report_table.h"
#include "screens/mod_tallyhoop.h"
#include "screens/reports/report_maker.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace tallyhoop {

class ReportsScreen : public ui::Screen
{
public:
    ReportsScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                  BracketBoard& board);

    std::string helpTopic() const override;
    void load() override;
    void closeRequested() override;
    void unloading() override;

    ui::Label fraMultipleOutput{this, "fraMultipleOutput", "Multiple Output Options"};
    ui::Label lblReportSelections{this, "lblReportSelections", "Report Selections"};
    ui::ControlArray<ui::CheckBox, kReports> chkOptions{this, "chkOptions"}; ///< in the order of reportTable()
    ui::Label lblDestination{this, "lblDestination", "Destination"};
    ui::ControlArray<ui::OptionButton, 4> optDestination{this, "optDestination"};
    ui::Label lblReportTitle{this, "lblReportTitle", "Report Titles:"};
    ui::TextBox txtReportTitle{this, "txtReportTitle"};
    ui::Command cmdPrintSelections{this, "cmdPrintSelections", "Create Selected Reports",
                                   [this] { createSelectedReports(); }};
    ui::Command cmdDefaultPrinter{this, "cmdDefaultPrinter", "Use default printer", [this] { toggleDefaultPrinter(); }};
    ui::Command cmdPreview{this, "cmdPreview", "Preview", [this] { previewSelectedReports(); }};
    ui::Command cmdSavePdf{this, "cmdSavePdf", "Save as PDF", [this] { saveSelectedReportsAsPdf(); }};

    ui::Label fraPrinterOnly{this, "fraPrinterOnly", "Printer Only Options"};
    ui::ControlArray<ui::OptionButton, 2> optSelected{this, "optSelected"};
    ui::ListBox filList{this, "filList"}; ///< every player's file
    ui::Command cmdSelectedPrintouts{this, "cmdSelectedPrintouts", "Create Selected Printout",
                                     [this] { createSelectedPrintout(); }};
    ui::Command cmdPreviewBoard{this, "cmdPreviewBoard", "Preview Board", [this] { previewBoard(); }};
    ui::Command cmdSaveBoardPdf{this, "cmdSaveBoardPdf", "Save Board as PDF", [this] { saveBoardAsPdf(); }};

    ui::Label fraCustomReports{this, "fraCustomReports", "Custom Reports Option"};
    ui::Command cmdCustomReport{this, "cmdCustomReport", "Goto Custom Reporting", [this] { gotoCustomReporting(); }};
    ui::Command cmdExit{this, "cmdExit", "Exit Reports", [this] { exitReports(); }};

private:
    enum class Delivery { Done, Failed, Cancelled };

    void explainControls();
    void listFiles();

    // Creating reports.
    void createSelectedReports();
    Delivery createReport(std::size_t index);
    void readDestination();
    void toggleDefaultPrinter();

    /// @returns the report's lines; nothing after its message was shown and, where it says so, its box unticked
    std::optional<ReportLines> makeReport(std::size_t index, bool& cancelled);
    void refuse(std::size_t index, const NoReport& reason);

    // The output step.
    Result<Done> OutputReport(std::string_view reportKey, const ReportLines& lines);
    void printReport(const ReportKind& kind, const ReportLines& lines);
    void deliverBusily(const char* what, const std::function<Result<Done>()>& deliver);
    void previewSelectedReports();
    void saveSelectedReportsAsPdf();
    void saveAsPdf(const ReportKind& kind, const ReportLines& lines);
    std::optional<std::filesystem::path> choosePdf(const std::string& dialogCaption, const std::string& proposedName);
    void forEachTickedReport(const char* commandCaption,
                             const std::function<void(const ReportKind&, const ReportLines&)>& deliver);

    // The e-mail step.
    void MailReports();
    void showMailTrouble(const Failure& failure);

    // Printouts of the board and ways out.
    void createSelectedPrintout();
    void printResultsSheet();
    void printScoredSelection();
    void previewBoard();
    void saveBoardAsPdf();
    ui::DrawingPrintout boardPrintout() const;
    void gotoCustomReporting();
    void exitReports();

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    modTallyhoop& m_state;
    Screens& m_screens;
    BracketBoard& m_board;
    ReportMaker m_maker;

    std::vector<FolderFile> m_files; ///< the rows of filList
    bool toPrinter = false;
    bool toFile = false;
    bool toEmail = false;
    bool mblnSelectEMailAll = false;
    bool useDefaultPrinter = true;
    std::string m_refusalTopic;          ///< help topic of the run's last refusal; empty = none of its own
    std::array<bool, kReports> m_made{}; ///< by the run at hand: only these may be mailed
};

} // namespace tallyhoop
