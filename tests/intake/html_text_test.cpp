// tests/intake/html_text_test.cpp - mails that are web pages.
#include "intake/html_text.h"

#include "intake/entry_text.h"
#include "intake/field_2000.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(TextOfHtml, LeavesTagsOutAndBreaksLinesWhereTheyDo)
{
    EXPECT_EQ(textOfHtml("<p>One<b>two</b></p><div>three<br/>four</div>"), "\nOnetwo\n\nthree\nfour\n");
    EXPECT_EQ(textOfHtml("a\r\nb"), "a  b") << "line ends of the source are blanks";
}

TEST(TextOfHtml, DecodesEntities)
{
    EXPECT_EQ(textOfHtml("St. John&#8217;s &amp; A&#x26;M&nbsp;&lt;x&gt; &Eacute &unknown; &"),
              "St. John\xE2\x80\x99s & A&M\xC2\xA0<x> &Eacute &unknown; &");
    EXPECT_EQ(textOfHtml("&#0;&#x1F600;&#xD800;&#99999999999;"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD&#99999999999;")
        << "never a question mark: a name may have one";
    EXPECT_EQ(textOfHtml("a&#9;b&#10;c&#13;d"), "a b c d");
}

TEST(TextOfHtml, DecodesEveryLetterByItsName)
{
    EXPECT_EQ(textOfHtml("Mu&ntilde;oz Fran&ccedil;ois &Oslash;degaard &THORN;&yuml;&Agrave;&szlig;"),
              "Mu\xC3\xB1oz Fran\xC3\xA7ois \xC3\x98"
              "degaard \xC3\x9E\xC3\xBF\xC3\x80\xC3\x9F");
    EXPECT_EQ(textOfHtml("&iexcl;&iquest;&times;&divide;&euro;&Scaron;&nbsp;&shy;"),
              "\xC2\xA1\xC2\xBF\xC3\x97\xC3\xB7\xE2\x82\xAC\xC5\xA0\xC2\xA0\xC2\xAD");
    EXPECT_EQ(textOfHtml("O&#146;Neil &#x80;"), "O\xE2\x80\x99Neil \xE2\x82\xAC") << "bytes of Windows-1252";
}

TEST(TextOfHtml, LeavesOutWhatIsNotShown)
{
    EXPECT_EQ(textOfHtml("<html><head><title>t</title><style>p{}</style></head><body>a<!-- > b -->c"
                         "<SCRIPT>Name: x</SCRIPT>d</body>"),
              "acd");
    EXPECT_EQ(textOfHtml("a<style>p{}</style>b"), "ab") << "also in the body, where mail programs put it";
    EXPECT_EQ(textOfHtml("a<script>b"), "a") << "never closed";
    EXPECT_EQ(textOfHtml("a<!-- b"), "a");
}

TEST(TextOfHtml, TakesALoneAngleBracketForItself)
{
    EXPECT_EQ(textOfHtml("1 < 2 <3"), "1 < 2 <3");
    EXPECT_EQ(textOfHtml("1 < 2<br>3"), "1 < 2\n3") << "tags that follow are tags";
    EXPECT_EQ(textOfHtml("a <b"), "a <b") << "no tag: it never ends";
    EXPECT_EQ(textOfHtml("<"), "<");
}

TEST(TextOfHtml, KeepsTagsThatNeverEnd)
{
    std::string tags;
    while (tags.size() < 1'000'000) // takes half a minute when the end of each is looked for
        tags += "<a";
    EXPECT_EQ(textOfHtml(tags), tags);
    EXPECT_EQ(textOfHtml("<b>x" + tags), "x" + tags);
}

TEST(TextOfHtml, GivesTheEntryOfAMailProgramsPage)
{
    std::string page = test::replaced(test::exampleText(), "'", "&#39;");
    page = test::replaced(page, "\xE2\x80\x99", "&rsquo;");
    page = test::replaced(page, "Miami,, FL", "Miami,,&nbsp;FL");
    page = test::replaced(page, "zoe@example.org", "<a href=\"mailto:zoe@example.org\">zoe@example.org</a>");
    page = "<html><head><style>.x{}</style></head><body dir=ltr><div>Hi,<br></div><div>" +
           test::replaced(page, "\n", "</div>\r\n<div>") + "</div></body></html>";
    const std::vector<HandedIn> read = readEntryTexts(textOfHtml(page), KnownTeams{test::field2000()}, {});
    ASSERT_EQ(read.size(), 1u);
    EXPECT_THAT(read[0].refusals, testing::IsEmpty());
    EXPECT_EQ(read[0].entry.name, "Zo\xE9 O\x92Neil");
    EXPECT_EQ(read[0].email, "zoe@example.org");
    EXPECT_EQ(read[0].entry.picks, test::upperTeamsWin());
}

} // namespace
} // namespace tallyhoop
