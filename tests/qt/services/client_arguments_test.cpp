// tests/qt/services/client_arguments_test.cpp - the arguments that pass a message to a client, byte for byte.
#include "qt/services/client_arguments.h"

#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using Arguments = std::vector<std::string>;

TEST(FileUrl, EncodesCharactersThatWouldEndAnArgument)
{
    EXPECT_EQ(fileUrl("/home/O'Brien, J/100% f\xC3\xBCr alle/RPTOPT1.TXT"),
              "file:///home/O%27Brien%2C%20J/100%25%20f%C3%BCr%20alle/RPTOPT1.TXT");
}

TEST(ThunderbirdArguments, AreOneComposeArgument)
{
    EXPECT_EQ(thunderbirdArguments({.recipients = {"a@example.org", "b@example.org"},
                                    .subject = "It's round 2, ok",
                                    .body = "Hi, all\r\n<b>100%</b>",
                                    .files = {"/pool/RPTOPT1.TXT", "/pool/RPTOPT7.TXT"}}),
              (Arguments{"-compose", "to='a@example.org,b@example.org',subject=It%27s%20round%202%2C%20ok,"
                                     "body=Hi%2C%20all%0D%0A%3Cb%3E100%25%3C%2Fb%3E,format=text,"
                                     "attachment='file:///pool/RPTOPT1.TXT,file:///pool/RPTOPT7.TXT'"}));
}

TEST(ThunderbirdArguments, LeaveOutEmptyParts)
{
    EXPECT_EQ(thunderbirdArguments({}), (Arguments{"-compose", "subject=,body=,format=text"}));
}

TEST(ThunderbirdArguments, QuoteAnApostropheInAnAddressByItsPlace)
{
    const auto recipientPart = [](const Arguments& recipients) {
        const std::string compose = thunderbirdArguments({.recipients = recipients, .subject = {}, .body = {}}).at(1);
        return compose.substr(0, compose.find(",subject="));
    };
    EXPECT_EQ(recipientPart({"o'brien@example.org"}), "to='o'brien@example.org'");
    // An apostrophe before a comma, or at the end, would end the value.
    EXPECT_EQ(recipientPart({"odd'", "b@x.org"}), "to=odd%27%2Cb%40x.org");
    EXPECT_EQ(recipientPart({"b@x.org", "odd'"}), "to=b%40x.org%2Codd%27");
}

TEST(XdgEmailArguments, AttachEachFileAndPutTheRestIntoOneAddress)
{
    EXPECT_EQ(
        xdgEmailArguments({.recipients = {"o'brien@example.org", "zo\xC3\xAB, x@example.org"},
                           .subject = "100% ok",
                           .body = "Hi\r\nall",
                           .files = {"/O'Brien, J/RPTOPT1.TXT", "/pool/RPTOPT2.TXT"}}),
        (Arguments{"--utf8", "--attach", "/O'Brien, J/RPTOPT1.TXT", "--attach", "/pool/RPTOPT2.TXT",
                   "mailto:o%27brien@example.org,zo%C3%AB%2C%20x@example.org?subject=100%25%20ok&body=Hi%0D%0Aall"}));
}

TEST(XdgEmailArguments, CannotBeTakenForOptions)
{
    EXPECT_EQ(xdgEmailArguments({.recipients = {"--attach", "-x"}, .subject = "--body", .body = {}}),
              (Arguments{"--utf8", "mailto:--attach,-x?subject=--body"}));
}

} // namespace
} // namespace tallyhoop::qt
