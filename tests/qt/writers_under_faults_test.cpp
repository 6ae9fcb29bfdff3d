// tests/qt/writers_under_faults_test.cpp - PDF files and the message file under every fault of the disk.
#include "fakes/scratch_folder.h"
#include "faults/faults.h"
#include "faults/own_process.h"
#include "ui/qt/desk.h"
#include "ui/qt/services/mail_hand_over.h"
#include "ui/qt/services/qt_printer.h"

#include <QByteArray>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <map>

namespace tallyhoop::qt {
namespace {

namespace fs = std::filesystem;
using test::Fault;
using test::ScratchFolder;

/// One service that writes a file, and the file.
struct Writer {
    const char* name;
    const char* file;
    Result<Done> (*write)(const fs::path& folder);
    const char* begin; ///< of the new file
    const char* end;
};

Result<Done> writeReportPdf(const fs::path& folder)
{
    Desk desk;
    QtPrinter printer{desk};
    return printer.savePdf(ui::TextPrintout{"Report", {"a line"}, {"Courier New", 10}, ui::Orientation::Portrait, 0},
                           folder / "Report.PDF");
}

Result<Done> writeBoardPdf(const fs::path& folder)
{
    Desk desk;
    QtPrinter printer{desk};
    return printer.savePdf(ui::DrawingPrintout{"Board", {}, ui::Orientation::Landscape}, folder / "Bracket.PDF");
}

Result<Done> writeMessage(const fs::path& folder)
{
    MailHandOver mail{DataFolder{folder}};
    return mail.send({.recipients = {"smith@example.org"},
                      .subject = "Standings",
                      .body = "Hi          ",
                      .placeholders = 10,
                      .attachments = {{folder / "RPTOPT1.TXT", 2}}});
}

const std::vector<Writer> kWriters{{"ReportPdf", "Report.PDF", writeReportPdf, "%PDF-", "%%EOF\n"},
                                   {"BoardPdf", "Bracket.PDF", writeBoardPdf, "%PDF-", "%%EOF\n"},
                                   {"MessageFile", kMessageFile, writeMessage, "X-Unsent: 1", "--\r\n"}};

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
        // A desktop without any mail program but one that opens message files.
        const fs::path opener = programs.put("gio", "#!/bin/sh\nexit 0\n");
        fs::permissions(opener, fs::perms{0755});
        fs::permissions(programs.path(), fs::perms{0755});
        qputenv("PATH", QByteArray::fromStdString(programs.path().native()));
    }
    ~ServicesUnderFaults() override { qputenv("PATH", oldPath); }
};

TEST_P(ServicesUnderFaults, LoseNothingAndWorkAgainOnceItIsMended)
{
    test::inOwnProcess([this]() -> std::string {
        if (std::string cannot = fault.arrange(scratch.path()); !cannot.empty())
            return cannot;
        scratch.put("RPTOPT1.TXT", "a report\r\n");
        const fs::path target = scratch.put(writer.file, "an older file");
        const auto before = filesIn(scratch.path());

        fault.strike(scratch.path(), target);
        const Result<Done> inVain = writer.write(scratch.path());
        fault.mend(scratch.path(), target);
        EXPECT_FALSE(inVain);
        EXPECT_EQ(filesIn(scratch.path()), before);

        const Result<Done> atLast = writer.write(scratch.path());
        EXPECT_TRUE(atLast) << (atLast ? std::string{} : atLast.failure().message);
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
