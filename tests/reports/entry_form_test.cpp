// tests/reports/entry_form_test.cpp - the bytes of the entry form; tests/pages/ has what it does in a browser.
#include "reports/entry_form/entry_form.h"

#include "pool/field.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace tallyhoop {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// TEAM1 to TEAM64, with the usual regions, points and seeds.
Field fieldOfForm()
{
    Field field = defaultField();
    field.finalized = "1";
    field.title = "Office Pool";
    return field;
}

Field fieldWithTeam(std::string_view team)
{
    Field field = fieldOfForm();
    field.teams[TeamRow{5}] = team;
    return field;
}

std::size_t timesIn(std::string_view text, std::string_view part)
{
    std::size_t times = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        ++times;
    return times;
}

/// What is between two texts; the first after the first.
std::string between(const std::string& text, std::string_view first, std::string_view last)
{
    const std::size_t begin = text.find(first) + first.size();
    return text.substr(begin, text.find(last, begin) - begin);
}

/// The data that the page's script reads.
std::string dataOf(const std::string& page) { return between(page, R"(id="field">)", "</script>"); }

TEST(EntryForm, HasTheFieldAsData)
{
    Field field = fieldOfForm();
    field.comment1 = "Five dollars\r\nby noon";

    const std::string data = dataOf(entryFormPage(field, {"organiser@example.org"}));

    EXPECT_THAT(data, StartsWith(R"({"title":"Office Pool",)"
                                 R"("regions":["West Region","Midwest Region","East Region","South Region"],)"
                                 R"("points":["1","2","4","8","12","16"],)"
                                 R"("seeds":[" 1","16"," 8"," 9"," 5","12"," 4","13"," 6","11"," 3","14"," 7","10",)"
                                 R"(" 2","15"],)"
                                 R"("seedNumbers":[1,16,8,9,5,12,4,13,6,11,3,14,7,10,2,15],)"
                                 R"("teams":["TEAM1","TEAM2",)"));
    EXPECT_THAT(data, HasSubstr(R"("TEAM63","TEAM64"],"comments":["Five dollars\u000d\u000aby noon",""],)"
                                R"("organiser":"organiser@example.org"})"));
}

TEST(EntryForm, KeepsMarkupOfATeamOutOfThePage)
{
    const std::string plain = entryFormPage(fieldOfForm(), {});

    const std::string page = entryFormPage(fieldWithTeam("</script>&\"'\\<!--"), {});

    EXPECT_THAT(dataOf(page), HasSubstr(R"("\u003c/script\u003e\u0026\u0022'\u005c\u003c!--")"));
    EXPECT_EQ(timesIn(page, "<"), timesIn(plain, "<"));
    EXPECT_EQ(timesIn(page, ">"), timesIn(plain, ">"));
}

TEST(EntryForm, KeepsMarkupOfTheTitleOutOfThePage)
{
    Field field = fieldOfForm();
    field.title = "</title>&\"<script>";

    const std::string page = entryFormPage(field, {});

    EXPECT_EQ(between(page, "<title>", "</title>"), "&#60;/title&#62;&#38;&#34;&#60;script&#62;");
    EXPECT_EQ(timesIn(page, "<"), timesIn(entryFormPage(fieldOfForm(), {}), "<"));
}

TEST(EntryForm, IsUtf8)
{
    // In Windows-1252: e with acute, euro, a raised quote, and the one byte of a control without a character.
    const std::string data = dataOf(entryFormPage(fieldWithTeam("Montr\xE9"
                                                                "al \x80 \x92 \x81"),
                                                  {}));

    EXPECT_THAT(data, HasSubstr("\"Montr\xC3\xA9"
                                "al \xE2\x82\xAC \xE2\x80\x99 \\u0081\""));
}

TEST(EntryForm, WritesControlsAsEscapes)
{
    using namespace std::string_view_literals;

    const std::string data = dataOf(entryFormPage(fieldWithTeam("a\0b\tc\x7F"sv), {}));

    EXPECT_THAT(data, HasSubstr(R"("a\u0000b\u0009c\u007f")"));
}

TEST(EntryForm, TakesThePlacesOfTheTemplateForTextInAField)
{
    Field field = fieldWithTeam("@TITLE@");
    field.title = "@FIELD@";

    const std::string page = entryFormPage(field, {});

    EXPECT_EQ(between(page, "<title>", "</title>"), "@FIELD@");
    EXPECT_THAT(dataOf(page), HasSubstr(R"("@TITLE@")"));
    EXPECT_THAT(dataOf(page), StartsWith(R"({"title":"@FIELD@")"));
}

TEST(EntryForm, ForbidsRequestsBeforeAnythingElse)
{
    const std::string page = entryFormPage(fieldOfForm(), {});

    const std::size_t policy = page.find(R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; )");
    EXPECT_LT(policy, page.find("<script"));
    EXPECT_LT(policy, page.find("<style"));
    EXPECT_LT(policy, page.find("<link"));
    EXPECT_THAT(page, HasSubstr("form-action 'none'"));
    EXPECT_THAT(page, Not(HasSubstr("unsafe-")));
}

TEST(EntryForm, RefersToNothingElsewhere)
{
    const std::string page = entryFormPage(fieldOfForm(), {});

    for (const std::string_view reference : {"http:", "https:", "//cdn", "url(", "@import", " src=", "fetch("})
        EXPECT_EQ(timesIn(page, reference), 0U) << reference;
}

TEST(EntryForm, HasNoPlaceOfTheTemplateLeft)
{
    const std::string page = entryFormPage(fieldOfForm(), {});

    for (const std::string_view place : {"@TITLE@", "@FIELD@", "@STYLE@", "@SCRIPT@", "@STYLE_HASH@", "@SCRIPT_HASH@"})
        EXPECT_EQ(timesIn(page, place), 0U) << place;
}

TEST(EntryForm, IsShorterThan120KilobytesWithTheLongestComments)
{
    constexpr std::size_t kLongestComment = 4000; // that can be typed
    Field field = fieldOfForm();
    for (std::string& team : field.teams.values)
        team = "A university with a rather long name";
    for (std::string* comment : {&field.comment1, &field.comment2})
        comment->assign(kLongestComment, '<'); // six bytes each

    EXPECT_LT(entryFormPage(field, {}).size(), 120'000U);
}

TEST(EntryForm, IsTheSameForTheSameField)
{
    EXPECT_EQ(entryFormPage(fieldOfForm(), {"a@b.c"}), entryFormPage(fieldOfForm(), {"a@b.c"}));
    EXPECT_NE(entryFormPage(fieldOfForm(), {"a@b.c"}), entryFormPage(fieldOfForm(), {}));
}

} // namespace
} // namespace tallyhoop
