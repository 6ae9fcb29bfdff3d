// tests/qt/services/mail_hand_over_test.cpp - which client gets a message, on desktops that the tests make up.
#include "qt/services/mail_hand_over.h"

#include "fakes/scratch_folder.h"

#include <QByteArray>
#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tallyhoop::qt {
namespace {

using Arguments = std::vector<std::string>;
using Routes = std::vector<MailRoute>;

/// A search path with programs that report how they were started.
class MailHandOverTest : public testing::Test
{
protected:
    MailHandOverTest()
    {
        qputenv("PATH", QByteArray::fromStdString(programs.path().native()));
        EXPECT_EQ(mkfifo(pipeName().c_str(), 0600), 0);
        // Both sides of the pipe are open here, so that neither waits for the other.
        m_pipe = ::open(pipeName().c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    }

    ~MailHandOverTest() override
    {
        qputenv("PATH", m_oldPath);
        ::close(m_pipe);
    }

    void install(const std::string& name, const std::string& script)
    {
        const std::filesystem::path file = programs.put(name, "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    }

    void installRecording(const std::string& name, int exitCode = 0)
    {
        install(name, "{ printf '%s\\0' \"${0##*/}\" \"$@\"; printf 'END\\0'; } > '" + pipeName() + "'\nexit " +
                          std::to_string(exitCode));
    }

    /// The desktop's answer to "who reads mail?".
    void setHandler(const std::string& desktopFile)
    {
        install("xdg-mime", "[ \"$*\" = 'query default x-scheme-handler/mailto' ] && echo '" + desktopFile + "'");
    }

    /// @returns name and arguments of the program that was started, waiting for its report
    Arguments started() const
    {
        constexpr int kPatience = 20000; // milliseconds; reached only when nothing was started
        const std::string end = std::string{"END"} + '\0';
        std::string report;
        while (!report.ends_with(end)) {
            pollfd ready{m_pipe, POLLIN, 0};
            if (::poll(&ready, 1, kPatience) != 1) {
                ADD_FAILURE() << "no program was started";
                return {};
            }
            std::array<char, 4096> buffer{};
            const ssize_t count = ::read(m_pipe, buffer.data(), buffer.size());
            if (count > 0)
                report.append(buffer.data(), static_cast<std::size_t>(count));
        }
        Arguments words;
        for (std::size_t start = 0; start < report.size() - end.size();) {
            words.emplace_back(report.c_str() + start);
            start += words.back().size() + 1;
        }
        return words;
    }

    bool nothingStarted() const
    {
        pollfd ready{m_pipe, POLLIN, 0};
        return ::poll(&ready, 1, 0) == 0;
    }

    /// A message with two reports in a folder whose name has all kinds of special characters.
    ui::MailMessage message() const
    {
        std::filesystem::create_directory(awkward);
        scratch.put("O'Brien, J 100% f\xC3\xBCr/RPTOPT1.TXT", "first\r\n");
        scratch.put("O'Brien, J 100% f\xC3\xBCr/RPTOPT7.TXT", "second\r\n");
        return {.recipients = {"o'brien@example.org", "zo\xEB@example.org"},
                .subject = "It's 100% f\xFCr all, ok",
                .body = "Hi,\r\n'all'          ",
                .placeholders = 10,
                .attachments = {{awkward / "RPTOPT1.TXT", 12}, {awkward / "RPTOPT7.TXT", 13}}};
    }

    ui::MailMessage toThousands() const
    {
        ui::MailMessage everybody = message();
        everybody.recipients.assign(10000, "somebody.or.other@example.org");
        return everybody;
    }

    std::string pipeName() const { return (programs.path() / "report").native(); }
    std::string encodedFolder() const
    {
        return "file://" + scratch.path().native() + "/O%27Brien%2C%20J%20100%25%20f%C3%BCr";
    }

    test::ScratchFolder programs;
    test::ScratchFolder scratch;
    std::filesystem::path awkward = scratch.path() / "O'Brien, J 100% f\xC3\xBCr";
    MailHandOver mail{DataFolder{awkward}};

private:
    QByteArray m_oldPath = qgetenv("PATH");
    int m_pipe = -1;
};

TEST(MailRoutes, PreferThunderbirdsOwnCommandWhenItIsTheHandler)
{
    EXPECT_EQ(mailRoutes("thunderbird.desktop", true, true),
              (Routes{MailRoute::Thunderbird, MailRoute::XdgEmail, MailRoute::MessageFile}));
    EXPECT_EQ(mailRoutes("org.mozilla.Thunderbird.desktop", true, false),
              (Routes{MailRoute::Thunderbird, MailRoute::MessageFile}));
    EXPECT_EQ(mailRoutes("thunderbird.desktop", false, true), (Routes{MailRoute::XdgEmail, MailRoute::MessageFile}));
}

TEST(MailRoutes, UseXdgEmailForClientsKnownToAttachFiles)
{
    EXPECT_EQ(mailRoutes("org.kde.kmail2.desktop", true, true), (Routes{MailRoute::XdgEmail, MailRoute::MessageFile}));
    EXPECT_EQ(mailRoutes("org.gnome.Evolution.desktop", false, true),
              (Routes{MailRoute::XdgEmail, MailRoute::MessageFile}));
    EXPECT_EQ(mailRoutes("org.kde.kmail2.desktop", true, false), Routes{MailRoute::MessageFile});
}

TEST(MailRoutes, WriteAMessageFileForEveryOtherHandlerAndForNone)
{
    EXPECT_EQ(mailRoutes("firefox-esr.desktop", true, true), Routes{MailRoute::MessageFile});
    EXPECT_EQ(mailRoutes("a-browser-of-next-year.desktop", true, true), Routes{MailRoute::MessageFile});
    EXPECT_EQ(mailRoutes("", true, true), Routes{MailRoute::MessageFile});
    EXPECT_EQ(mailRoutes("", false, false), Routes{MailRoute::MessageFile});
}

TEST_F(MailHandOverTest, OpensAndClosesASession)
{
    EXPECT_FALSE(mail.isOpen());
    EXPECT_TRUE(mail.signOn());
    EXPECT_TRUE(mail.isOpen());
    mail.signOff();
    EXPECT_FALSE(mail.isOpen());
}

TEST_F(MailHandOverTest, ComposesInThunderbirdWhenItIsTheHandler)
{
    setHandler("thunderbird.desktop");
    installRecording("thunderbird");
    installRecording("xdg-email");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started(), (Arguments{"thunderbird", "-compose",
                                    "to='o'brien@example.org,zo\xC3\xAB@example.org',"
                                    "subject=It%27s%20100%25%20f%C3%BCr%20all%2C%20ok,"
                                    "body=Hi%2C%0D%0A%27all%27,format=text,"
                                    "attachment='" +
                                        encodedFolder() + "/RPTOPT1.TXT," + encodedFolder() + "/RPTOPT7.TXT'"}));
}

TEST_F(MailHandOverTest, OpensAMessageFileWhenNoHandlerIsSet)
{
    setHandler("");
    installRecording("thunderbird");
    installRecording("xdg-email");
    installRecording("gio");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started().at(0), "gio");
}

TEST_F(MailHandOverTest, GivesOtherHandlersToXdgEmailWithEachFile)
{
    setHandler("org.gnome.Evolution.desktop");
    installRecording("thunderbird");
    installRecording("xdg-email");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started(), (Arguments{"xdg-email", "--utf8", "--attach", (awkward / "RPTOPT1.TXT").native(), "--attach",
                                    (awkward / "RPTOPT7.TXT").native(),
                                    "mailto:o%27brien@example.org,zo%C3%AB@example.org"
                                    "?subject=It%27s%20100%25%20f%C3%BCr%20all%2C%20ok&body=Hi%2C%0D%0A%27all%27"}));
}

TEST_F(MailHandOverTest, OpensAMessageFileInTheFolderWhenNeitherCanBeUsed)
{
    installRecording("gio");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started(), (Arguments{"gio", "open", (awkward / "TALLYHOOP.EML").native()}));
    const std::string file = scratch.get("O'Brien, J 100% f\xC3\xBCr/TALLYHOOP.EML");
    EXPECT_NE(file.find("X-Unsent: 1\r\n"), std::string::npos);
    EXPECT_NE(file.find("\r\nZmlyc3QNCg==\r\n"), std::string::npos) << "\"first\" is not attached";
    EXPECT_NE(file.find("\r\nc2Vjb25kDQo=\r\n"), std::string::npos) << "\"second\" is not attached";
}

TEST_F(MailHandOverTest, OpensItWithXdgOpenWhenThereIsNothingElse)
{
    installRecording("xdg-open");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started(), (Arguments{"xdg-open", (awkward / "TALLYHOOP.EML").native()}));
}

TEST_F(MailHandOverTest, TriesTheNextWayWhenAProgramCannotBeStarted)
{
    setHandler("thunderbird.desktop");
    const std::filesystem::path broken = programs.put("thunderbird", "#!/no/such/interpreter\n");
    std::filesystem::permissions(broken, std::filesystem::perms::owner_all);
    installRecording("xdg-email");
    EXPECT_TRUE(mail.send(message()));
    EXPECT_EQ(started().at(0), "xdg-email");
}

TEST_F(MailHandOverTest, TriesTheNextWayWhenAProgramEndsWithAnError)
{
    setHandler("thunderbird.desktop");
    install("thunderbird", "exit 1");
    installRecording("xdg-email");
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->file, std::filesystem::path{});
    EXPECT_EQ(started().at(0), "xdg-email");
    EXPECT_FALSE(std::filesystem::exists(awkward / "TALLYHOOP.EML")) << "another way was tried";
}

TEST_F(MailHandOverTest, OpensAMessageFileWhenXdgEmailFindsNoClient)
{
    setHandler("org.gnome.Evolution.desktop");
    install("xdg-email", "exit 3");
    installRecording("gio");
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->file, awkward / "TALLYHOOP.EML");
    EXPECT_EQ(sent->trouble, "");
    EXPECT_EQ(started().at(0), "gio");
}

TEST_F(MailHandOverTest, LeavesAClientRunningThatTakesLongAndCountsItAsOneThatHasTheMessage)
{
    const std::string gate = (programs.path() / "gate").native();
    ASSERT_EQ(mkfifo(gate.c_str(), 0600), 0);
    setHandler("thunderbird.desktop");
    install("thunderbird", "read go < '" + gate + "'\nprintf 'still here\\0END\\0' > '" + pipeName() + "'\nexit 1");
    installRecording("xdg-email");
    {
        MailHandOver hasty{DataFolder{awkward}, std::chrono::milliseconds{50}};
        const Result<ui::HandedOver> sent = hasty.send(message());
        ASSERT_TRUE(sent);
        EXPECT_EQ(sent->file, std::filesystem::path{});
        EXPECT_TRUE(nothingStarted());
    }
    const int out = ::open(gate.c_str(), O_RDWR | O_CLOEXEC); // both ends, so that it does not wait
    ASSERT_EQ(::write(out, "go\n", 3), 3);
    EXPECT_EQ(started(), Arguments{"still here"}) << "it was killed";
    ::close(out);
}

TEST_F(MailHandOverTest, KeepsTheMessageInAFileWhenNothingCanTakeIt)
{
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->file, awkward / "TALLYHOOP.EML");
    EXPECT_EQ(sent->trouble, "No program was found that opens message files.");
    EXPECT_NE(scratch.get("O'Brien, J 100% f\xC3\xBCr/TALLYHOOP.EML").find("X-Unsent: 1"), std::string::npos);
}

TEST_F(MailHandOverTest, SaysWhatEveryProgramAnsweredThatWasTried)
{
    setHandler("thunderbird.desktop");
    install("thunderbird", "exit 4");
    install("xdg-email", "exit 3");
    install("gio", "exit 2");
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->trouble, "thunderbird ended with the error 4.\r\n"
                             "xdg-email ended with the error 3.\r\n"
                             "gio ended with the error 2.");
}

TEST_F(MailHandOverTest, TakesACrashForARefusal)
{
    install("gio", "kill -KILL $$");
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->trouble, "gio has crashed.");
}

TEST_F(MailHandOverTest, NamesTheFilesWhenNotEvenAMessageFileCanBeWritten)
{
    std::filesystem::create_directories(awkward / "TALLYHOOP.EML" / "in the way");
    const Result<ui::HandedOver> sent = mail.send(message());
    ASSERT_FALSE(sent);
    EXPECT_EQ(sent.failure().message, "The message could not be handed to a mail program.\r\n"
                                      "Is a directory\r\n\r\n"
                                      "You can attach the files yourself:\r\n\r\n"
                                      "RPTOPT1.TXT\r\nRPTOPT7.TXT\r\n\r\n"
                                      "They are in the folder " +
                                          scratch.path().native() + "/O'Brien, J 100% f\xFCr");
    EXPECT_EQ(scratch.get("O'Brien, J 100% f\xC3\xBCr/RPTOPT1.TXT"), "first\r\n");
}

TEST_F(MailHandOverTest, DoesNotSendAMessageWithAReportMissing)
{
    setHandler("thunderbird.desktop");
    installRecording("thunderbird");
    const ui::MailMessage incomplete = message();
    std::filesystem::remove(awkward / "RPTOPT7.TXT");
    const Result<ui::HandedOver> sent = mail.send(incomplete);
    ASSERT_FALSE(sent);
    EXPECT_NE(sent.failure().message.find("RPTOPT7.TXT is not there."), std::string::npos);
    EXPECT_TRUE(nothingStarted());
}

TEST_F(MailHandOverTest, HandsTenThousandRecipientsOverInAFile)
{
    // One argument of a program holds 128 KiB at most.
    setHandler("thunderbird.desktop");
    installRecording("thunderbird");
    installRecording("xdg-email");
    installRecording("gio");
    EXPECT_TRUE(mail.send(toThousands()));
    EXPECT_EQ(started(), (Arguments{"gio", "open", (awkward / "TALLYHOOP.EML").native()}));
}

TEST_F(MailHandOverTest, SaysThatAMessageIsTooLongWhenNothingOpensItsFile)
{
    setHandler("thunderbird.desktop");
    installRecording("thunderbird");
    const Result<ui::HandedOver> sent = mail.send(toThousands());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->trouble, "The message is too long for the command line of a mail program.\r\n"
                             "No program was found that opens message files.");
    EXPECT_TRUE(nothingStarted());
}

} // namespace
} // namespace tallyhoop::qt
