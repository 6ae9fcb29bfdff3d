// tests/qt/hostile_names_mail_test.cpp - hostile names in what mail clients are started with.
#include "hostile/hostile_names.h"
#include "qt/services/client_arguments.h"

#include <QByteArray>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace tallyhoop::qt {
namespace {

using tallyhoop::test::HostileName;

/// What a client finds in its composing argument: a value in apostrophes is taken as it is and ends at an apostrophe
/// before a comma or the end; a bare value ends at a comma and is percent-decoded.
std::map<std::string, std::string> composed(const std::string& argument)
{
    std::map<std::string, std::string> found;
    for (std::size_t at = 0; at < argument.size();) {
        const std::size_t equals = argument.find('=', at);
        if (equals == std::string::npos)
            break;
        const std::string key = argument.substr(at, equals - at);
        EXPECT_FALSE(found.contains(key)) << key;
        if (argument.compare(equals + 1, 1, "'") == 0) {
            const std::size_t end = std::min(argument.find("',", equals + 2), argument.size() - 1);
            found[key] = argument.substr(equals + 2, end - equals - 2);
            at = end + 2;
        } else {
            const std::size_t end = std::min(argument.find(',', equals), argument.size());
            found[key] = QByteArray::fromPercentEncoding(
                             QByteArray::fromStdString(argument.substr(equals + 1, end - equals - 1)))
                             .toStdString();
            at = end + 1;
        }
    }
    return found;
}

class HostileNamesInMail : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    OutgoingMail mail() const
    {
        return outgoing({.recipients = {hostileName(), "a@example.org"},
                         .subject = hostileName(),
                         .body = hostileName(),
                         .placeholders = 0,
                         .attachments = {{"/pool of one's own,'/RPTOPT1.TXT", 0}}});
    }
};

TEST_P(HostileNamesInMail, ReachThunderbirdAsOneArgumentUnchanged)
{
    const OutgoingMail sent = mail();
    const std::vector<std::string> arguments = thunderbirdArguments(sent);
    ASSERT_EQ(arguments.size(), 2u);
    EXPECT_EQ(arguments[0], "-compose");
    const std::map<std::string, std::string> found = composed(arguments[1]);
    EXPECT_EQ(found.size(), 5u);
    EXPECT_EQ(found.at("to"), sent.recipients[0] + ",a@example.org");
    EXPECT_EQ(found.at("subject"), sent.subject);
    EXPECT_EQ(found.at("body"), sent.body);
    EXPECT_EQ(found.at("format"), "text");
    EXPECT_EQ(found.at("attachment"), "file:///pool%20of%20one%27s%20own%2C%27/RPTOPT1.TXT");
}

TEST_P(HostileNamesInMail, ReachXdgEmailAsOneAddressAndNeverAsAnOption)
{
    const OutgoingMail sent = mail();
    const std::vector<std::string> arguments = xdgEmailArguments(sent);
    ASSERT_EQ(arguments.size(), 4u);
    EXPECT_EQ(arguments[0], "--utf8");
    EXPECT_EQ(arguments[1], "--attach");
    EXPECT_EQ(arguments[2], "/pool of one's own,'/RPTOPT1.TXT");
    const std::string& address = arguments[3];
    EXPECT_TRUE(address.starts_with("mailto:"));
    EXPECT_EQ(address.find_first_of(" \"'`$;|<>\\\n\r"), std::string::npos) << "a shell would interpret it";
    const std::size_t subject = address.find("?subject=");
    const std::size_t body = address.find("&body=");
    ASSERT_NE(body, std::string::npos);
    const auto decoded = [&](std::size_t from, std::size_t to) {
        return QByteArray::fromPercentEncoding(QByteArray::fromStdString(address.substr(from, to - from)))
            .toStdString();
    };
    EXPECT_EQ(decoded(7, subject), sent.recipients[0] + ",a@example.org");
    EXPECT_EQ(decoded(subject + 9, body), sent.subject);
    EXPECT_EQ(decoded(body + 6, address.size()), sent.body);
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInMail, testing::ValuesIn(tallyhoop::test::hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
