// tests/faults/messages.cpp - texts and buttons, one function for each message.
#include "faults/messages.h"

#include "screens/reports/report_maker.h"

#include <string>

namespace tallyhoop::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kHowToRepair = "repair"; // the help topic

ui::Message writingProblem(const fs::path& file, const char* advice)
{
    return {"** ERROR IN WRITING FILE **", "There is a problem writing file: " + file.string() + "\r\n" + advice,
            ui::Buttons::Ok, ui::Icon::Critical};
}

} // namespace

ui::Message checkSpace(const fs::path& file)
{
    return writingProblem(file, " Check for adequate space in the Application Directory");
}

ui::Message checkSelection(const fs::path& file) { return writingProblem(file, " Check your selection and retry."); }

ui::Message checkItsFolder(const fs::path& file)
{
    return writingProblem(file, " Check for adequate space in its folder");
}

ui::Message changedMeanwhile(const fs::path& file)
{
    return {"** FILE HAS BEEN CHANGED **",
            "Another program has changed the file: " + file.string() +
                "\r\n"
                "since it was opened or last saved here.\r\n"
                " \r\n"
                "If you continue, the changes of the other program will be lost..\r\n"
                " \r\n"
                "Do you want to replace the file?",
            ui::Buttons::YesNo,
            ui::Icon::Question,
            {},
            true,
            "&Show Changes"};
}

std::vector<ui::Message> teamListTrouble(const fs::path& folder)
{
    const ui::Message offer{"TEAM NAMES Changed / Added",
                            "You have added or changed the Team Names ...\r\n"
                            "Do you want to save these changes made to\r\n"
                            "the list of team names?",
                            ui::Buttons::YesNo, ui::Icon::Question};
    return {offer, checkSpace(folder / "NCAALIST.THS")};
}

ui::Message damagedPlayerList(const fs::path& folder)
{
    return {"** ERROR Found in PLAYERNAMES.CSV file **",
            "There is a problem found with the file containing your player names.\r\n"
            "Possibly someone has edited this file with another program.\r\n\r\n"
            "The file: " +
                (folder / "PLAYERNAMES.TXT").string() +
                "\r\n"
                " is a copy of the original file with the error records identified.\r\n\r\n"
                "You can either go back to a backup copy of this file or attempt\r\n"
                "to correct the error(s) in this copy and then rename it to\r\n"
                "PLAYERNAMES.CSV.\r\n\r\n"
                "See the help file for additional instructions",
            ui::Buttons::Ok, ui::Icon::Critical, kHowToRepair};
}

namespace {

ui::Message folderCannotBeListed(const fs::path& folder, const Fault& fault)
{
    return {"",
            "The selections in this folder cannot be listed, or not all of them:\r\n" + folder.string() + "\r\n" +
                fault.reason,
            ui::Buttons::Ok, ui::Icon::Critical};
}

std::vector<ui::Message> troubleWithoutSelections(ReportId id, const fs::path& folder)
{
    const std::string noFiles = "There aren't any Player Selection files saved,  so the\r\n";
    const auto noReport = [&](const char* report) { return reportFailure(reportKind(id), noFiles + report); };
    switch (id) {
    case ReportId::TournamentStandings:
        return {noReport("\"Tournament Standings Report\" cannot be prepared.")};
    case ReportId::PlayerListing:
        return {damagedPlayerList(folder),
                {reportKind(id).failureTitle,
                 "Problems found with PLAYERNAMES.CSV file\r\n"
                 "This condition must be corrected, See Help content",
                 ui::Buttons::Ok, ui::Icon::Critical, kHowToRepair}};
    case ReportId::TeamSelectionSummary:
    case ReportId::TeamSelectionDetail:
        return {{"Tallyhoop - TeamSelSetup", noFiles + "Team Selection Reports cannot be prepared.", ui::Buttons::Ok,
                 ui::Icon::Exclamation}};
    case ReportId::PlayerSelectionDetail:
        return {{reportKind(id).failureTitle, noFiles + "\"Player Selection Detail\" report cannot be prepared.",
                 ui::Buttons::Ok, ui::Icon::None}};
    case ReportId::ResultsByPlayer:
        return {noReport("\"Projected Results by Player\" report cannot be prepared.")};
    case ReportId::ResultsByTeam:
        return {noReport("\"Projected Results by Team\" report cannot be prepared.")};
    }
    return {};
}

} // namespace

std::vector<ui::Message> reportTrouble(ReportId id, const fs::path& folder, const Fault& fault)
{
    if (!fault.hidesFolder)
        return {reportFailure(reportKind(id), fault.reason)};
    std::vector<ui::Message> messages = troubleWithoutSelections(id, folder);
    messages.insert(messages.begin(), folderCannotBeListed(folder, fault));
    return messages;
}

std::vector<ui::Message> tableTrouble(const fs::path& folder, const Fault& fault)
{
    if (fault.hidesFolder)
        return {folderCannotBeListed(folder, fault)};
    return {checkItsFolder(folder / "SELECTIONS.CSV")};
}

std::vector<ui::Message> savedPageTrouble(const fs::path& file, const Fault& fault)
{
    if (fault.hidesFolder)
        return {folderCannotBeListed(file.parent_path(), fault)};
    return {checkItsFolder(file)};
}

std::vector<ui::Message> mailedPageTrouble(const fs::path& folder, const Fault& fault)
{
    if (fault.hidesFolder)
        return {folderCannotBeListed(folder, fault)};
    return {{"Tallyhoop - frmPoolReports, Save as Web Page",
             std::string{"POOL.HTML could not be written.\r\n"} + fault.reason, ui::Buttons::Ok, ui::Icon::Critical}};
}

ui::Message outlookTrouble(const Fault& fault)
{
    return {"Tallyhoop - frmPoolOutlook, cmdSaveReport",
            std::string{"OUTLOOK.TXT could not be written.\r\n"} + fault.reason, ui::Buttons::Ok, ui::Icon::Critical};
}

ui::Message finalSheetTrouble(const Fault& fault)
{
    return {"Tallyhoop - frmMoney, Final Sheet", std::string{"FINAL.TXT could not be written.\r\n"} + fault.reason,
            ui::Buttons::Ok, ui::Icon::Critical};
}

} // namespace tallyhoop::test
