// tests/qt/writers_under_faults_test.cpp - PDF files and the message file under every fault of the disk.
#include "app/wiring.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "faults/faults.h"
#include "faults/own_process.h"
#include "files/player_names_file.h"
#include "qt/desk.h"
#include "qt/services/mail_hand_over.h"
#include "qt/services/message_file.h"
#include "qt/services/qt_printer.h"
#include "screens/reports/reports_screen.h"

#include <QByteArray>
#include <algorithm>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <iterator>
#include <map>

namespace tallyhoop::qt {
namespace {

namespace fs = std::filesystem;
using test::Fault;
using test::ScratchFolder;

/// The reports screen with this computer's printer and mail; the fault starts once the reports are made.
struct Reports {
    explicit Reports(const fs::path& path) : folder{path}
    {
        fake.dialogs.whileShown = [this](const ui::Message& message) {
            if (message.buttons == ui::Buttons::YesNo && strike)
                strike();
        };
        screens.whenLoaded = [this](ScreenKind) {
            shared.mailDraft.recipients = {"smith@example.org"};
            shared.mailDraft.subject = "Standings";
            shared.mailDraft.message = "Hi";
            if (strike)
                strike();
        };
        screen.load();
        screen.txtReportTitle.text = "A title";
        screen.chkOptions[static_cast<std::size_t>(ReportId::PlayerListing)].ticked = true;
        ui::selectOption(screen.optDestination, 2);
    }

    std::string onScreen() const
    {
        return screen.txtReportTitle.text + (screen.chkOptions[1].ticked ? " ticked" : " not ticked") +
               (screen.optDestination[2].selected ? " to e-mail" : "");
    }

    DataFolder folder;
    test::FakePlatform fake;
    Desk desk;
    QtPrinter printer{desk};
    MailHandOver mail{folder};
    ui::Platform services{fake.dialogs,  printer,    mail,          fake.help,
                          fake.programs, fake.clock, fake.progress, fake.clipboard};
    SharedValues shared;
    test::FakeScreens screens;
    test::FakeBoard board;
    ReportsScreen screen{folder, services, screens, shared.field, shared.mailDraft, board};
    std::function<void()> strike;
};

/// One service that writes a file, and the file.
struct Writer {
    const char* name;
    const char* file;
    void (*press)(Reports& reports, const fs::path& target);
    std::vector<ui::Message> (*asked)(const fs::path& target);
    std::vector<ui::Message> (*said)(const fs::path& target); ///< once the file is written
    ui::Message (*trouble)(const fs::path& folder, const Fault& fault);
    const char* begin; ///< of the new file
    const char* end;
};

void saveReportPdf(Reports& reports, const fs::path& target)
{
    reports.fake.dialogs.pick(target).answer(ui::Answer::Yes);
    reports.screen.cmdSavePdf.click();
}

void saveBoardPdf(Reports& reports, const fs::path& target)
{
    reports.fake.dialogs.pick(target).answer(ui::Answer::Yes);
    reports.screen.cmdSaveBoardPdf.click();
}

void sendMail(Reports& reports, const fs::path& /*target*/)
{
    if (!reports.strike) // the message file will be written and offered
        reports.fake.dialogs.answer(ui::Answer::No);
    reports.screen.cmdPrintSelections.click();
}

std::vector<ui::Message> offerToReplace(const fs::path& target)
{
    return {{"", "Do you want to replace the existing file ?\r\n" + target.string(), ui::Buttons::YesNo,
             ui::Icon::Question}};
}

std::vector<ui::Message> nothing(const fs::path& /*target*/) { return {}; }

std::vector<ui::Message> offerOfTheFolder(const fs::path& target)
{
    return {{"Tallyhoop - frmPoolReports, MailReports",
             "The message and its reports are in the file TALLYHOOP.EML, which the desktop has been asked to open.\r\n"
             "Send the message from the window that opens.\r\n\r\n"
             "If none does, open the file with your mail program, or attach the reports to a message of your own. All "
             "files are in the folder\r\n" +
                 target.parent_path().string() + "\r\n\r\nDo you want to see this folder?",
             ui::Buttons::YesNo, ui::Icon::Information, "email"}};
}

/// A PDF file is a printout, and fails as one.
ui::Message printingTrouble(const fs::path& /*folder*/, const Fault& /*fault*/)
{
    return {"",
            "Error in attempting to print to the printer\r\n"
            "Check you printer for proper attachment", // sic
            ui::Buttons::Ok, ui::Icon::Critical};
}

ui::Message mailTrouble(const fs::path& folder, const Fault& fault)
{
    const std::string report = (folder / "RPTOPT2.TXT").string();
    const std::string reason = fault.hidesFolder ? "The file " + report + " is not there." : fault.reason;
    return {"Tallyhoop - frmPoolReports, MailReports",
            "The message could not be handed to a mail program.\r\n" + reason +
                "\r\n\r\nYou can attach the files yourself:\r\n\r\nRPTOPT2.TXT\r\n\r\nThey are in the folder " +
                folder.string(),
            ui::Buttons::Ok, ui::Icon::Exclamation};
}

const std::vector<Writer> kWriters{
    {"ReportPdf", "Report.PDF", saveReportPdf, offerToReplace, nothing, printingTrouble, "%PDF-", "%%EOF\n"},
    {"BoardPdf", "Bracket.PDF", saveBoardPdf, offerToReplace, nothing, printingTrouble, "%PDF-", "%%EOF\n"},
    {"MessageFile", kMessageFile, sendMail, nothing, offerOfTheFolder, mailTrouble, "X-Unsent: 1", "--\r\n"}};

void PrintTo(const Writer& writer, std::ostream* out) { *out << writer.name; }

std::map<std::string, std::string> filesIn(const fs::path& folder)
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator{folder}) {
        std::ifstream stream{entry.path(), std::ios::binary};
        if (entry.path().filename() != test::kFiller)
            files[entry.path().filename().string()] = {std::istreambuf_iterator<char>{stream}, {}};
    }
    return files;
}

class ServicesUnderFaults : public testing::TestWithParam<std::tuple<Writer, Fault>>
{
protected:
    const Writer writer = std::get<0>(GetParam());
    const Fault fault = std::get<1>(GetParam());
    ScratchFolder scratch;
    ScratchFolder programs;
    QByteArray oldPath = qgetenv("PATH");

    ServicesUnderFaults()
    {
        // A desktop that has only a program that opens message files.
        const fs::path opener = programs.put("gio", "#!/bin/sh\nexit 0\n");
        fs::permissions(opener, fs::perms{0755});
        fs::permissions(programs.path(), fs::perms{0755});
        qputenv("PATH", QByteArray::fromStdString(programs.path().native()));
    }
    ~ServicesUnderFaults() override { qputenv("PATH", oldPath); }
};

TEST_P(ServicesUnderFaults, LoseNothingAndWorkAgainOnceItIsRepaired)
{
    test::inOwnProcess([this]() -> std::string {
        if (std::string cannot = fault.arrange(scratch.path()); !cannot.empty())
            return cannot;
        scratch.put("PLAYERNAMES.CSV", playerNamesFile(std::vector<PlayerRecord>{{"Smith,JS", "", "", ""}}));
        const fs::path target = scratch.put(writer.file, "an older file");
        Reports reports{scratch.path()};
        std::map<std::string, std::string> before;
        reports.strike = [&] {
            before = filesIn(scratch.path());
            fault.strike(scratch.path(), target);
        };
        const std::string shownBefore = reports.onScreen();
        std::vector<ui::Message> expected = writer.asked(target);
        expected.push_back(writer.trouble(scratch.path(), fault));

        writer.press(reports, target);
        fault.repair(scratch.path(), target);
        EXPECT_EQ(reports.fake.dialogs.shown, expected);
        EXPECT_EQ(filesIn(scratch.path()), before);
        EXPECT_EQ(reports.onScreen(), shownBefore);

        reports.strike = nullptr;
        reports.fake.dialogs.shown.clear();
        writer.press(reports, target);
        expected = writer.asked(target);
        std::ranges::copy(writer.said(target), std::back_inserter(expected));
        EXPECT_EQ(reports.fake.dialogs.shown, expected);
        EXPECT_THAT(scratch.get(writer.file), testing::HasSubstr(writer.begin));
        EXPECT_THAT(scratch.get(writer.file), testing::EndsWith(writer.end));
        EXPECT_EQ(filesIn(scratch.path()).size(), before.size());
        return {};
    });
}

INSTANTIATE_TEST_SUITE_P(All, ServicesUnderFaults,
                         testing::Combine(testing::ValuesIn(kWriters), testing::ValuesIn(test::allFaults())),
                         [](const auto& instance) {
                             return std::string{std::get<0>(instance.param).name} + "_" +
                                    std::get<1>(instance.param).name;
                         });

} // namespace
} // namespace tallyhoop::qt
