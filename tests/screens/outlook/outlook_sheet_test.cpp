// tests/screens/outlook/outlook_sheet_test.cpp - pages on which everything has room, and everybody is once.
#include "screens/outlook/outlook_sheet.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct OutlookSheetTest : testing::Test {
    OutlookSheet sheet;

    OutlookSheetTest()
    {
        sheet.heading = {"Office Pool 2001", {}, {"Chances: all outcomes alike", "Counted: all 2 outcomes"}};
        addPlayers(3);
    }

    void addPlayers(std::size_t players)
    {
        for (std::size_t i = 0; i < players; ++i) {
            OutlookRow row{.player = sheet.rows.size(), .first = 50, .share = 50};
            row.name = "P, Number" + std::to_string(sheet.rows.size());
            sheet.rows.push_back(row);
            sheet.road.names.push_back(row.name);
        }
    }

    void addGames(std::size_t games)
    {
        for (std::size_t i = 0; i < games; ++i)
            sheet.games.push_back({"Game " + std::to_string(i), "Side " + std::to_string(i), "+1.0", "2.0", "later"});
    }

    void addRoad()
    {
        sheet.road.times = {"Start", "Round 1", "Now"};
        for (std::size_t time = 0; time < 3; ++time) {
            RoadPoint point;
            point.chances.resize(sheet.rows.size(), {.share = 0.5});
            point.errors.resize(sheet.rows.size());
            sheet.road.points.push_back(point);
        }
        sheet.road.chances = "all outcomes alike";
    }

    void choose(std::size_t player)
    {
        sheet.chosen = sheet.road.chosen = player;
        sheet.chosenName = "Somebody";
        sheet.proof = "Alive. First in 1 of 2 outcomes.";
    }

    std::vector<ui::Drawing> pages() const { return drawOutlook(sheet, "5-March-01"); }

    static std::vector<std::string> texts(const ui::Drawing& page)
    {
        std::vector<std::string> texts;
        for (const ui::Caption& caption : page.captions)
            texts.push_back(caption.text);
        return texts;
    }

    static std::ptrdiff_t pagesWith(const std::vector<ui::Drawing>& pages, const std::string& text)
    {
        return std::ranges::count_if(pages, [&](const ui::Drawing& page) {
            return std::ranges::count(page.captions, text, &ui::Caption::text) > 0;
        });
    }

    static ui::Caption captionOf(const ui::Drawing& page, const std::string& text)
    {
        const auto at = std::ranges::find(page.captions, text, &ui::Caption::text);
        if (at != page.captions.end())
            return *at;
        ADD_FAILURE() << "no " << text;
        return {};
    }
};

/// The letters themselves: they are in the middle of their line.
ui::Rectangle lettersOf(const ui::Caption& caption)
{
    return {caption.place.x, caption.place.centreY() - caption.size / 2, caption.place.width, caption.size};
}

bool overlap(const ui::Rectangle& left, const ui::Rectangle& right)
{
    return left.x < right.right() && right.x < left.right() && left.y < right.bottom() && right.y < left.bottom();
}

void expectInside(const ui::Drawing& page, const ui::Rectangle& place, const std::string& what)
{
    EXPECT_GE(place.x, 0) << what;
    EXPECT_GE(place.y, 0) << what;
    EXPECT_LE(place.right(), page.width) << what;
    EXPECT_LE(place.bottom(), page.height) << what;
}

void expectRoomForEverything(const ui::Drawing& page)
{
    for (const ui::Caption& caption : page.captions) {
        expectInside(page, caption.place, caption.text);
        EXPECT_GE(caption.place.height, caption.size) << caption.text;
        EXPECT_GT(caption.place.width, 20) << caption.text;
    }
    for (const ui::Box& box : page.boxes)
        expectInside(page, box.place, "a box");
    for (const ui::Stroke& stroke : page.strokes) {
        expectInside(page, {stroke.x1, stroke.y1, 0, 0}, "a line's beginning");
        expectInside(page, {stroke.x2, stroke.y2, 0, 0}, "a line's end");
    }
    for (std::size_t i = 0; i < page.captions.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(overlap(lettersOf(page.captions[i]), lettersOf(page.captions[k])))
                << page.captions[i].text << " and " << page.captions[k].text;
}

TEST_F(OutlookSheetTest, BeginsWithWhatItIs)
{
    const std::vector<ui::Drawing> drawn = pages();
    ASSERT_THAT(drawn, SizeIs(1));
    const std::vector<std::string> first = texts(drawn.front());
    const std::vector<std::string> heading(first.begin(), first.begin() + 5);
    EXPECT_THAT(heading, ElementsAre("Office Pool 2001", "5-March-01", "Pool Outlook", "Chances: all outcomes alike",
                                     "Counted: all 2 outcomes"));
    EXPECT_EQ(captionOf(drawn.front(), "5-March-01").alignment, ui::Alignment::Right);
    EXPECT_EQ(drawn.front().width, 800);
    EXPECT_EQ(drawn.front().height, 1100);
    EXPECT_EQ(first.back(), "Page 1 of 1");
}

TEST_F(OutlookSheetTest, HasEverybodyInOneRow)
{
    addPlayers(497);
    const std::vector<ui::Drawing> drawn = pages();
    for (std::size_t player = 0; player < 500; ++player)
        EXPECT_EQ(pagesWith(drawn, "P, Number" + std::to_string(player)), 1) << player;
    EXPECT_EQ(static_cast<std::size_t>(pagesWith(drawn, "Player")), drawn.size()) << "headings on every page";
    // 1100 - 2 * 40 - 24 = 996 units: the first page has 28 + 22 + 2 * 16 + 14 + 16 above its rows, the others
    // 16 + 14 + 16. That is 884 / 16 = 55 rows, and then 950 / 16 = 59 on each: 55 + 7 * 59 = 468, and 32 more.
    EXPECT_THAT(drawn, SizeIs(9));
    EXPECT_EQ(captionOf(drawn.back(), "Page 9 of 9").alignment, ui::Alignment::Right);
    for (const ui::Drawing& page : drawn)
        expectRoomForEverything(page);
}

TEST_F(OutlookSheetTest, ShowsTheCellsOfTheTable)
{
    sheet.rows[0] = {0, "X, Ann", {2, 152, 168}, 50, 37.5, 0.26, {1, 1}, {2, 5}, Prospect::Out, std::nullopt};
    const ui::Drawing page = pages().front();
    const std::vector<std::string> all = texts(page);
    const auto name = std::ranges::find(all, "X, Ann");
    EXPECT_THAT(std::vector<std::string>(name - 1, name + 8), ElementsAre("2", "X, Ann", "152", "168", "50.0 %",
                                                                          "37.5 % \xB1"
                                                                          "0.26",
                                                                          "Out", "1", "2-5"));
    EXPECT_NE(captionOf(page, "X, Ann").colour, captionOf(page, "P, Number1").colour) << "who is out is grey";
    EXPECT_EQ(captionOf(page, "152").alignment, ui::Alignment::Right);
    EXPECT_EQ(std::ranges::count(all, "Change"), 0) << "nothing is supposed";
}

TEST_F(OutlookSheetTest, SaysOnEveryPageThatSomethingIsSupposed)
{
    addPlayers(100);
    sheet.heading.whatIf = {"What if: 1 supposed winner", "Supposed: Team 35 (round 6)"};
    sheet.rows[0].change = 4.06;
    const std::vector<ui::Drawing> drawn = pages();
    ASSERT_GT(drawn.size(), 1u);
    EXPECT_EQ(static_cast<std::size_t>(pagesWith(drawn, "What if: 1 supposed winner")), drawn.size());
    EXPECT_EQ(pagesWith(drawn, "Supposed: Team 35 (round 6)"), 1);
    EXPECT_TRUE(captionOf(drawn.back(), "What if: 1 supposed winner").bold);
    EXPECT_EQ(pagesWith(drawn, "+4.1"), 1);
    for (const ui::Drawing& page : drawn) {
        EXPECT_TRUE(std::ranges::any_of(page.boxes, [](const ui::Box& box) {
            return box.fill == ui::Colour{255, 231, 172};
        })) << "the background of what is supposed";
        expectRoomForEverything(page);
    }
}

TEST_F(OutlookSheetTest, MarksTheChosenPlayer)
{
    choose(1);
    std::swap(sheet.rows[0], sheet.rows[1]); // the table may be in another order than the pool
    const ui::Drawing page = pages().front();
    EXPECT_TRUE(captionOf(page, "P, Number1").bold);
    EXPECT_FALSE(captionOf(page, "P, Number0").bold);
    ASSERT_THAT(page.boxes, SizeIs(1));
    EXPECT_EQ(page.boxes[0].place.y, captionOf(page, "P, Number1").place.y);
    captionOf(page, "The road of Somebody, by the results as entered");
    captionOf(page, "Somebody: Alive. First in 1 of 2 outcomes.");
}

TEST_F(OutlookSheetTest, HasTheRoadBelowTheTable)
{
    addRoad();
    choose(0);
    const ui::Drawing page = pages().front();
    const double table = captionOf(page, "P, Number2").place.bottom();
    const ui::Caption about = captionOf(page, "Share of first place, all outcomes alike");
    EXPECT_GT(about.place.y, table);
    EXPECT_GT(captionOf(page, "Round 1").place.y, about.place.y);
    const auto isOfTheRoad = [&](const ui::Stroke& stroke) { return stroke.colour == RoadColours{}.chosen; };
    EXPECT_EQ(std::ranges::count_if(page.strokes, isOfTheRoad), 2) << "two steps";
    EXPECT_TRUE(std::ranges::all_of(page.strokes, [&](const ui::Stroke& stroke) {
        return !isOfTheRoad(stroke) || stroke.y1 > about.place.bottom();
    }));
    expectRoomForEverything(page);
}

TEST_F(OutlookSheetTest, SaysThatTheRoadIsNotWorkedOutYet)
{
    captionOf(pages().front(), "The road, by the results as entered");
    captionOf(pages().front(), "It is not worked out yet.");
}

TEST_F(OutlookSheetTest, BreaksThePageWhereverItHasTo)
{
    // Whatever is left of a page: rows, then 300 units of road, then games.
    addRoad();
    choose(2);
    addGames(63);
    for (std::size_t players = 3; players < 62; ++players) {
        const std::vector<ui::Drawing> drawn = pages();
        for (const ui::Drawing& page : drawn)
            expectRoomForEverything(page);
        for (std::size_t game = 0; game < 63; ++game)
            EXPECT_EQ(pagesWith(drawn, "Game " + std::to_string(game)), 1) << players << " players, game " << game;
        EXPECT_EQ(pagesWith(drawn, "Start"), 1);
        if (HasFailure())
            return;
        addPlayers(1);
        sheet.road.points.clear();
        addRoad();
    }
}

TEST_F(OutlookSheetTest, SaysWhomToRootForOnceAPlayerIsChosen)
{
    addGames(1);
    EXPECT_EQ(pagesWith(pages(), "Root for"), 0);
    EXPECT_EQ(pagesWith(pages(), "Side 0"), 0);
    EXPECT_EQ(pagesWith(pages(), "2.0"), 1);
    EXPECT_EQ(pagesWith(pages(), "later"), 1);
    EXPECT_EQ(pagesWith(pages(), "Games that matter, the next ones first"), 1);
    choose(0);
    EXPECT_EQ(pagesWith(pages(), "later"), 1);
    EXPECT_EQ(pagesWith(pages(), "Root for"), 1);
    EXPECT_EQ(pagesWith(pages(), "Side 0"), 1);
    EXPECT_EQ(pagesWith(pages(), "+1.0"), 1);
    sheet.games.clear();
    EXPECT_EQ(pagesWith(pages(), "Games that matter, the next ones first"), 0);
}

TEST_F(OutlookSheetTest, SaysWhatAForecastsDifferencesAreWorth)
{
    const std::string note = "A difference within two standard errors of the forecast counts as 0.0.";
    addGames(1);
    EXPECT_EQ(pagesWith(pages(), note), 0);
    sheet.isForecast = true;
    EXPECT_EQ(pagesWith(pages(), note), 1);
}

TEST_F(OutlookSheetTest, KeepsNamesOnOneLine)
{
    sheet.rows[0].name = "A\r\nB";
    sheet.heading.title = "Po\nol";
    EXPECT_EQ(pagesWith(pages(), "A  B"), 1);
    EXPECT_EQ(pagesWith(pages(), "Po ol"), 1);
}

} // namespace
} // namespace tallyhoop::test
