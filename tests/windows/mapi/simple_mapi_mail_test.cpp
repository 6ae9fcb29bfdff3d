// tests/windows/mapi/simple_mapi_mail_test.cpp - what a mail client gets by Simple MAPI, and what becomes of a message
// when none takes it.
#include "qt/services/simple_mapi_mail.h"

#include "base/text.h"
#include "fakes/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>
#include <vector>
#include <windows.h>

namespace tallyhoop::qt {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kLogOn = "MAPILogon window 77 profile none password none flags 1 reserved 0"; // MAPI_LOGON_UI
constexpr const char* kSend = "MAPISendMailW session 4711 window 77 flags 9 reserved 0";            // and MAPI_DIALOG
constexpr const char* kLogOff = "MAPILogoff session 4711 window 77 flags 0 reserved 0";
constexpr const char* kMessageItself = "type none received none conversation none flags 0 reserved 0";

/// A client that answers as told and writes down its calls.
class SimpleMapi : public testing::Test
{
protected:
    SimpleMapi()
    {
        SetEnvironmentVariableW(L"MAPI_RECORD", (scratch.path() / "calls").c_str());
        SetEnvironmentVariableW(L"MAPI_LOGON", nullptr);
        SetEnvironmentVariableW(L"MAPI_SEND", nullptr);
    }

    static void answerLogOn(const wchar_t* code) { SetEnvironmentVariableW(L"MAPI_LOGON", code); }
    static void answerSend(const wchar_t* code) { SetEnvironmentVariableW(L"MAPI_SEND", code); }

    /// @returns a session's whole way for one message
    Result<ui::HandedOver> handOver(const ui::MailMessage& message, const fs::path& library = TALLYHOOP_MAPI_CLIENT)
    {
        SimpleMapiMail mail = session(library);
        EXPECT_TRUE(mail.signOn());
        Result<ui::HandedOver> sent = mail.send(message);
        mail.signOff();
        return sent;
    }

    SimpleMapiMail session(const fs::path& library = TALLYHOOP_MAPI_CLIENT)
    {
        return SimpleMapiMail{scratch.folder(), 77, {library, [this](const fs::path& file) {
                                                         opened.push_back(file);
                                                         return refusal;
                                                     }}};
    }

    /// @returns the calls so far
    Lines calls() const
    {
        if (!scratch.has("calls"))
            return {};
        Lines lines = split(scratch.get("calls"), '\n');
        lines.pop_back(); // what follows the last line end
        return lines;
    }

    /// @returns the calls' lines that begin like this
    Lines callsOf(const std::string& beginning) const
    {
        Lines found = calls();
        std::erase_if(found, [&](const std::string& line) { return !line.starts_with(beginning); });
        return found;
    }

    ui::MailMessage message() const
    {
        ui::MailMessage mail;
        mail.recipients = {"a@x.org"};
        mail.subject = "s";
        mail.body = "Hi          ";
        mail.placeholders = 10;
        mail.attachments = {{scratch.put("RPTOPT1.TXT", "foobar"), 4}};
        return mail;
    }

    /// The message is in its file, whole, and Windows has been asked to open it.
    void expectMessageFile(const Result<ui::HandedOver>& sent) const
    {
        ASSERT_TRUE(sent) << sent.failure().message;
        EXPECT_EQ(sent->file, scratch.path() / "TALLYHOOP.EML");
        EXPECT_EQ(opened, std::vector{sent->file});
        const std::string file = scratch.get("TALLYHOOP.EML");
        EXPECT_THAT(file, StartsWith("X-Unsent: 1\r\nTo: a@x.org\r\nSubject: s\r\n"));
        EXPECT_THAT(file, HasSubstr("\r\nSGk=\r\n")); // "Hi", without the placeholders
        EXPECT_THAT(file, HasSubstr("filename=\"RPTOPT1.TXT\""));
        EXPECT_THAT(file, HasSubstr("\r\nZm9vYmFy\r\n"));
    }

    test::ScratchFolder scratch;
    std::vector<fs::path> opened;
    std::optional<Failure> refusal; ///< of the program for message files
};

/// The record's form of a path in which only "\" is special.
std::string recorded(const fs::path& path)
{
    std::string text = "\"";
    for (const char c : path.string())
        text += c == '\\' ? std::string{"\\005C"} : std::string{c};
    return text + '"';
}

TEST_F(SimpleMapi, GetsOneMessageInASession)
{
    const Result<ui::HandedOver> sent = handOver(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->file, fs::path{}) << "the client has it";
    EXPECT_EQ(sent->progress, ui::MailProgress::Taken) << "its window is closed by now";
    EXPECT_EQ(sent->trouble, "");
    EXPECT_EQ(calls(), (Lines{kLogOn, kSend, "subject \"s\"", "text \"Hi          \"", kMessageItself,
                              "recipient class 1 name \"a@x.org\" address \"SMTP:a@x.org\" id 0 reserved 0",
                              "file position 4 path " + recorded(scratch.path() / "RPTOPT1.TXT") +
                                  " name \"RPTOPT1.TXT\" flags 0 reserved 0",
                              kLogOff}));
    EXPECT_FALSE(scratch.has("TALLYHOOP.EML"));
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(SimpleMapi, GetsTheCharactersAndNotTheBytesOfTheCodePage)
{
    ui::MailMessage mail = message();
    mail.subject = "\x80 Zo\xEB\r\nx"; // the euro sign is U+20AC
    mail.body = "\x95\r\n\\\x81          ";
    ASSERT_TRUE(handOver(mail));
    EXPECT_EQ(callsOf("subject"), Lines{"subject \"\\20AC Zo\\00EB  x\""}) << "one line";
    EXPECT_EQ(callsOf("text"), Lines{"text \"\\2022\\000D\\000A\\005C\\0081          \""});
}

TEST_F(SimpleMapi, GetsRecipientsWithNamesAndNamesToLookUp)
{
    ui::MailMessage mail = message();
    mail.recipients = {"\"Smith, J\" <js@x.org>", "Zo\xEB", "Jones, K", "a@x.org; b@x.org"};
    ASSERT_TRUE(handOver(mail));
    EXPECT_EQ(callsOf("recipient"),
              (Lines{"recipient class 1 name \"Smith, J\" address \"SMTP:js@x.org\" id 0 reserved 0",
                     "recipient class 1 name \"Zo\\00EB\" address none id 0 reserved 0",
                     "recipient class 1 name \"Jones, K\" address none id 0 reserved 0",
                     "recipient class 1 name \"a@x.org\" address \"SMTP:a@x.org\" id 0 reserved 0",
                     "recipient class 1 name \"b@x.org\" address \"SMTP:b@x.org\" id 0 reserved 0"}));
}

TEST_F(SimpleMapi, GetsNoRecipientsAndNoFilesWhenThereAreNone)
{
    ASSERT_TRUE(handOver({}));
    EXPECT_EQ(calls(), (Lines{kLogOn, kSend, "subject \"\"", "text \"\"", kMessageItself, kLogOff}));
}

TEST_F(SimpleMapi, GetsEightFilesEachAtItsPlace)
{
    ui::MailMessage mail = message();
    mail.attachments.clear();
    Lines expected;
    for (std::size_t i = 1; i <= 8; ++i) {
        const std::string name = "RPTOPT" + std::to_string(i) + ".TXT";
        mail.attachments.push_back({scratch.put(name, "x"), 3 + i});
        expected.push_back("file position " + std::to_string(3 + i) + " path " + recorded(scratch.path() / name) +
                           " name \"" + name + "\" flags 0 reserved 0");
    }
    ASSERT_TRUE(handOver(mail));
    EXPECT_EQ(callsOf("file"), expected);
}

TEST_F(SimpleMapi, GetsPathsWithAnyCharacters)
{
    const fs::path folder = scratch.path() / u8"K\u014d\u0161ice \u65e5"; // none of them is in Windows-1252
    fs::create_directory(folder);
    ASSERT_TRUE(DataFolder{folder}.write("RPTOPT1.TXT", "foobar"));
    ui::MailMessage mail = message();
    mail.attachments = {{folder / "RPTOPT1.TXT", 4}};
    ASSERT_TRUE(handOver(mail));
    const Lines files = callsOf("file");
    ASSERT_EQ(files.size(), 1u);
    EXPECT_THAT(files.front(), HasSubstr("\\005CK\\014D\\0161ice \\65E5\\005CRPTOPT1.TXT\" name \"RPTOPT1.TXT\""));
    EXPECT_THAT(files.front(), testing::Not(HasSubstr("missing"))) << "the client finds it";
}

TEST_F(SimpleMapi, IsAskedOnceForASessionAndHearsItsEnd)
{
    {
        SimpleMapiMail mail = session();
        EXPECT_FALSE(mail.isOpen());
        mail.signOff();
        EXPECT_EQ(calls(), Lines{});
        EXPECT_TRUE(mail.signOn());
        EXPECT_TRUE(mail.signOn());
        EXPECT_TRUE(mail.isOpen());
        EXPECT_EQ(calls(), Lines{kLogOn});
        mail.signOff();
        EXPECT_FALSE(mail.isOpen());
        mail.signOff();
        EXPECT_TRUE(mail.signOn());
    }
    EXPECT_EQ(calls(), (Lines{kLogOn, kLogOff, kLogOn, kLogOff})) << "the last one when the program ends";
}

TEST_F(SimpleMapi, MayHaveItsWindowClosedWithoutSending)
{
    answerSend(L"1"); // MAPI_USER_ABORT
    const Result<ui::HandedOver> sent = handOver(message());
    ASSERT_TRUE(sent);
    EXPECT_EQ(sent->file, fs::path{});
    EXPECT_EQ(sent->progress, ui::MailProgress::GivenUp);
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(SimpleMapi, MayHaveItsLogOnCancelled)
{
    answerLogOn(L"1");
    SimpleMapiMail mail = session();
    const Result<Done> signedOn = mail.signOn();
    ASSERT_FALSE(signedOn);
    EXPECT_EQ(signedOn.failure().message, "The log-on to the mail program was cancelled.");
    EXPECT_FALSE(mail.isOpen());
    EXPECT_EQ(calls(), Lines{kLogOn});
}

TEST_F(SimpleMapi, LeavesTheMessageInAFileWhenNoClientIsSetUp)
{
    answerLogOn(L"3"); // MAPI_E_LOGON_FAILURE
    const Result<ui::HandedOver> sent = handOver(message());
    expectMessageFile(sent);
    EXPECT_EQ(sent->trouble, "");
    EXPECT_EQ(calls(), Lines{kLogOn}) << "nothing is sent, and there is no session to end";
}

TEST_F(SimpleMapi, LeavesTheMessageInAFileWhenTheLibraryIsNotThere)
{
    expectMessageFile(handOver(message(), scratch.path() / "MAPI32.DLL"));
}

TEST_F(SimpleMapi, LeavesTheMessageInAFileWhenTheLibraryIsOlderThanWindows8)
{
    expectMessageFile(handOver(message(), TALLYHOOP_OLD_MAPI_CLIENT));
    EXPECT_EQ(calls(), Lines{}) << "not even a session";
}

TEST_F(SimpleMapi, LeavesTheMessageInAFileWhenTheClientFails)
{
    answerSend(L"2"); // MAPI_E_FAILURE
    const Result<ui::HandedOver> sent = handOver(message());
    expectMessageFile(sent);
    EXPECT_EQ(sent->trouble, "");
    EXPECT_EQ(callsOf("MAPI"), (Lines{kLogOn, kSend, kLogOff}));
}

/// What a person reads when nothing opens the file, either.
TEST_F(SimpleMapi, SaysWhatTheClientAnsweredWhenNothingOpensTheFile)
{
    refusal = Failure{"No program was found that opens message files."};
    const std::vector<std::pair<const wchar_t*, std::string>> answers{
        {L"2", "The mail program reported error 2."},
        {L"11", "The mail program could not attach a file."}, // MAPI_E_ATTACHMENT_NOT_FOUND
        {L"12", "The mail program could not attach a file."}, // MAPI_E_ATTACHMENT_OPEN_FAILURE
        {L"13", "The mail program could not attach a file."}, // MAPI_E_ATTACHMENT_WRITE_FAILURE
        {L"26", "The mail program reported error 26."}};      // MAPI_E_NOT_SUPPORTED
    for (const auto& [code, words] : answers) {
        opened.clear();
        answerSend(code);
        const Result<ui::HandedOver> sent = handOver(message());
        expectMessageFile(sent);
        EXPECT_EQ(sent->trouble, words + "\r\nNo program was found that opens message files.");
    }
}

TEST_F(SimpleMapi, SaysWhyThereIsNoClientWhenNothingOpensTheFile)
{
    refusal = Failure{"Nothing."};
    EXPECT_EQ(handOver(message(), scratch.path() / "MAPI32.DLL")->trouble,
              "No mail program is set up on this computer.\r\nNothing.");
    answerLogOn(L"3");
    EXPECT_EQ(handOver(message())->trouble, "The mail program did not accept the log-on.\r\nNothing.");
}

TEST_F(SimpleMapi, SendsNothingWithAReportMissing)
{
    ui::MailMessage mail = message();
    fs::remove(scratch.path() / "RPTOPT1.TXT");
    const Result<ui::HandedOver> sent = handOver(mail);
    ASSERT_FALSE(sent);
    EXPECT_THAT(sent.failure().message, HasSubstr("RPTOPT1.TXT is not there."));
    EXPECT_EQ(callsOf("MAPI"), (Lines{kLogOn, kLogOff}));
    EXPECT_FALSE(scratch.has("TALLYHOOP.EML"));
}

TEST_F(SimpleMapi, NamesTheFilesWhenNotEvenAMessageFileCanBeWritten)
{
    answerSend(L"2");
    fs::create_directories(scratch.path() / "TALLYHOOP.EML" / "in the way");
    const Result<ui::HandedOver> sent = handOver(message());
    ASSERT_FALSE(sent);
    EXPECT_THAT(sent.failure().message, StartsWith("The message could not be handed to a mail program.\r\n"
                                                   "The mail program reported error 2.\r\n"));
    EXPECT_THAT(sent.failure().message, HasSubstr("You can attach the files yourself:\r\n\r\nRPTOPT1.TXT"));
}

TEST(OpenByItsProgram, SaysWhenThereIsNone)
{
    const test::ScratchFolder scratch;
    const fs::path file = scratch.put("A.NO-PROGRAM-FOR-THIS", "x");
    const std::optional<Failure> trouble = openByItsProgram(file);
    ASSERT_TRUE(trouble);
    EXPECT_EQ(trouble->message, "No program was found that opens message files.");
}

TEST(OpenByItsProgram, SaysWhenTheFileIsNotThere)
{
    const test::ScratchFolder scratch;
    const std::optional<Failure> trouble = openByItsProgram(scratch.path() / "A.EML");
    ASSERT_TRUE(trouble);
    EXPECT_EQ(trouble->message, "No such file or directory");
}

} // namespace
} // namespace tallyhoop::qt
