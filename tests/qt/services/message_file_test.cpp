// tests/qt/services/message_file_test.cpp - the message file of each writer, read back by another program's parser.
#include "qt/services/gmime_message.h"
#include "qt/services/message_writing.h"

#include "fakes/scratch_folder.h"

#include <QProcess>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace tallyhoop::qt {
namespace {

// Prints a name and a value in hexadecimal on each line.
constexpr const char* kReader = R"(
import email, email.policy, sys
message = email.message_from_binary_file(sys.stdin.buffer, policy=email.policy.default)
def show(name, value):
    print(name, (value if isinstance(value, bytes) else str(value).encode('utf-8')).hex() or '-')
show('defects', [d for part in message.walk() for d in part.defects])
show('unsent', message['X-Unsent'])
show('mime', message['MIME-Version'])
show('subject', message['Subject'])
show('to', '|'.join(a.addr_spec + '=' + a.display_name for a in message['To'].addresses) if message['To'] else '')
for number, part in enumerate(message.iter_parts()):
    show('type%d' % number, part.get_content_type())
    show('charset%d' % number, part.get_content_charset())
    show('encoding%d' % number, part['Content-Transfer-Encoding'])
    show('disposition%d' % number, part.get_content_disposition())
    show('file%d' % number, part.get_filename())
    show('bytes%d' % number, part.get_payload(decode=True))
)";

/// What writes the message.
struct NamedWriter {
    const char* name;
    MessageWriter write;
};

void PrintTo(const NamedWriter& writer, std::ostream* out) { *out << writer.name; }

class MessageFile : public testing::TestWithParam<NamedWriter>
{
protected:
    static std::string written(const OutgoingMail& mail, const std::vector<AttachedText>& attachments = {})
    {
        return *GetParam().write(mail, attachments);
    }

    void read(const std::string& message)
    {
        QProcess python;
        python.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), QString::fromLatin1(kReader)});
        python.write(message.data(), static_cast<qint64>(message.size()));
        python.closeWriteChannel();
        ASSERT_TRUE(python.waitForFinished(20000)) << python.errorString().toStdString();
        ASSERT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
        std::istringstream lines{python.readAllStandardOutput().toStdString()};
        for (std::string name, hex; lines >> name >> hex;)
            found[name] = hex == "-" ? "" : QByteArray::fromHex(hex.c_str()).toStdString();
        EXPECT_EQ(found["defects"], "[]");
    }

    std::map<std::string, std::string> found;
};

std::vector<std::string> linesOf(const std::string& bytes)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = bytes.find("\r\n", start);
        EXPECT_NE(end, std::string::npos) << "the last line has no end";
        lines.push_back(bytes.substr(start, end - start));
        start = end == std::string::npos ? bytes.size() : end + 2;
    }
    return lines;
}

TEST_P(MessageFile, CarriesEverythingUnchanged)
{
    const std::string report = std::string{"Standings\r\n\x0C\r\nZo\xEB \x80 lone\n\0end", 29} + std::string(500, 'x');
    const std::string empty;
    read(written({.recipients = {"o'brien@example.org", "js@example.org"},
                  .subject = "It's round 2, 100% ok",
                  .body = "Hi, all\r\n\r\n<b>\xC3\xBC</b>\r\n.\r\nFrom me",
                  .files = {}},
                 {{"RPTOPT1.TXT", report}, {"RPTOPT7.TXT", empty}}));
    EXPECT_EQ(found["unsent"], "1");
    EXPECT_EQ(found["mime"], "1.0");
    EXPECT_EQ(found["subject"], "It's round 2, 100% ok");
    EXPECT_EQ(found["to"], "o'brien@example.org=|js@example.org=");
    EXPECT_EQ(found["type0"], "text/plain");
    EXPECT_EQ(found["charset0"], "utf-8");
    EXPECT_EQ(found["bytes0"], "Hi, all\r\n\r\n<b>\xC3\xBC</b>\r\n.\r\nFrom me");
    EXPECT_EQ(found["type1"], "text/plain");
    EXPECT_EQ(found["charset1"], "windows-1252");
    EXPECT_EQ(found["encoding1"], "base64");
    EXPECT_EQ(found["disposition1"], "attachment");
    EXPECT_EQ(found["file1"], "RPTOPT1.TXT");
    EXPECT_EQ(found["bytes1"], report);
    EXPECT_EQ(found["file2"], "RPTOPT7.TXT");
    EXPECT_EQ(found["bytes2"], "");
    EXPECT_FALSE(found.contains("type3"));
}

TEST_P(MessageFile, CallsAPageAPage)
{
    const std::string page = "<!DOCTYPE html><title>Zo\xC3\xAB</title>\n";
    read(written({.recipients = {"js@example.org"}, .subject = "s", .body = "Hi", .files = {}},
                 {{"ENTRYFORM.HTML", page}, {"my form.html", page}, {"HTML", page}}));
    for (const std::string part : {"1", "2"}) {
        EXPECT_EQ(found["type" + part], "text/html");
        EXPECT_EQ(found["charset" + part], "utf-8");
        EXPECT_EQ(found["disposition" + part], "attachment");
        EXPECT_EQ(found["bytes" + part], page);
    }
    EXPECT_EQ(found["file1"], "ENTRYFORM.HTML");
    EXPECT_EQ(found["type3"], "text/plain");
}

TEST_P(MessageFile, EncodesALongSubjectInUtf8WordsOfWholeCharacters)
{
    std::string subject = "x"; // so that a cut after a fixed number of bytes would hit the middle of a character
    for (int i = 0; i < 60; ++i)
        subject += "\xC3\xBC";
    const std::string message = written({.recipients = {}, .subject = subject, .body = {}, .files = {}});
    EXPECT_NE(message.find("Subject: =?UTF-8?B?"), std::string::npos) << message.substr(0, 400);
    for (const std::string& line : linesOf(message))
        EXPECT_LE(line.size(), 76u) << line;
    read(message);
    EXPECT_EQ(found["subject"], subject);
}

TEST_P(MessageFile, KeepsASubjectThatLooksEncodedOrHasBlanksAroundIt)
{
    for (const std::string subject : {"=?UTF-8?B?aGk=?=", " two  blanks  ", "100%n =?x"}) {
        read(written({.recipients = {}, .subject = subject, .body = {}, .files = {}}, std::vector<AttachedText>{}));
        EXPECT_EQ(found["subject"], subject);
    }
}

TEST_P(MessageFile, TakesNamesWithTheirAddressesAndSeveralAtOnce)
{
    read(written({.recipients = {"\"Smith, J\" <js@example.org>", "Zo\xC3\xAB M <zoe@example.org>",
                                 "a@example.org, b@example.org"},
                  .subject = {},
                  .body = {},
                  .files = {}},
                 std::vector<AttachedText>{}));
    EXPECT_EQ(found["to"], "js@example.org=Smith, J|zoe@example.org=Zo\xC3\xAB M|a@example.org=|b@example.org=");
}

TEST_P(MessageFile, HasCrLfShortBase64LinesAndABoundaryOfItsOwn)
{
    const std::string tricky = "--=-boundary\r\n.\r\n--\r\n";
    std::string report;
    for (int i = 0; i < 200; ++i)
        report += tricky;
    const std::string message = written({.recipients = {"a@x.org"}, .subject = "s", .body = tricky, .files = {}},
                                        {{"RPTOPT1.TXT", report}, {"RPTOPT2.TXT", "y"}});
    std::size_t lineFeeds = 0;
    for (std::size_t i = 0; i < message.size(); ++i)
        if (message[i] == '\n') {
            ++lineFeeds;
            ASSERT_TRUE(i > 0 && message[i - 1] == '\r') << "lone line feed at " << i;
        }
    const std::vector<std::string> lines = linesOf(message);
    EXPECT_EQ(lines.size(), lineFeeds);

    const std::size_t at = message.find("boundary=\"") + 10;
    const std::string boundary = message.substr(at, message.find('"', at) - at);
    int delimiters = 0;
    for (const std::string& line : lines) {
        EXPECT_LE(line.size(), 76u) << line;
        delimiters += line.starts_with("--" + boundary) ? 1 : 0;
        const bool base64 = line.size() > 70 && line.find(' ') == std::string::npos;
        EXPECT_TRUE(!base64 || line.size() <= 76) << line;
    }
    EXPECT_EQ(delimiters, 4) << "three parts and the end";
    read(message);
    EXPECT_EQ(found["bytes1"], report);
}

TEST_P(MessageFile, ReadsItsAttachmentsFromTheirFiles)
{
    const test::ScratchFolder scratch;
    const std::filesystem::path file = scratch.put("RPTOPT3.TXT", "a report\r\n");
    const Result<std::string> message =
        messageFile({.recipients = {}, .subject = {}, .body = {}, .files = {file}}, GetParam().write);
    ASSERT_TRUE(message);
    read(*message);
    EXPECT_EQ(found["file1"], "RPTOPT3.TXT");
    EXPECT_EQ(found["bytes1"], "a report\r\n");
}

TEST_P(MessageFile, FailsWhenAnAttachmentCannotBeRead)
{
    const test::ScratchFolder scratch;
    EXPECT_FALSE(messageFile({.recipients = {}, .subject = {}, .body = {}, .files = {scratch.path() / "RPTOPT3.TXT"}},
                             gmimeMessage));
}

TEST_P(MessageFile, NamesAttachmentsInAnyLanguageAndLength)
{
    const std::string accents = "Zo\xC3\xAB's \xE2\x82\xAC.TXT"; // with the euro sign
    std::string longName;
    for (int i = 0; i < 100; ++i)
        longName += "\xC3\xBC";
    longName += ".HTML";
    for (const std::string& name : {accents, longName, std::string{"a \"b\" \\c.TXT"}}) {
        const std::string message =
            written({.recipients = {}, .subject = "s", .body = {}, .files = {}}, {{name, "a report"}});
        for (const std::string& line : linesOf(message))
            EXPECT_LE(line.size(), 78u) << line;
        read(message);
        EXPECT_EQ(found["file1"], name);
        EXPECT_EQ(found["bytes1"], "a report");
    }
}

INSTANTIATE_TEST_SUITE_P(Each, MessageFile,
                         testing::Values(NamedWriter{"Gmime", gmimeMessage},
                                         NamedWriter{"WithoutGmime", writtenMessage}),
                         [](const auto& values) { return values.param.name; });

} // namespace
} // namespace tallyhoop::qt
