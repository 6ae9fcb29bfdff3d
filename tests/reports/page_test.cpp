// tests/reports/page_test.cpp - the bytes of the pool's page; tests/pages/ has what it does in a browser.
#include "pool/picks.h"
#include "reports/counted_outlook.h"
#include "reports/four_players.h"
#include "reports/page/pool_page.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace tallyhoop {
namespace {

using Json = nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::size_t occurrencesOf(std::string_view part, std::string_view text)
{
    std::size_t times = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        ++times;
    return times;
}

/// The four players, whose teams are those of the field.
Pool fourPlayersPool()
{
    Pool pool;
    pool.field = defaultField();
    pool.field.title = "Office Pool";
    for (const TeamRow row : allTeamRows())
        pool.field.teams[row] = test::teamName(regionOf(row), rowInRegion(row) + 1);
    pool.results = test::fourPlayersResults();
    pool.entries = test::fourPlayers();
    return pool;
}

std::string poolPageFor(const Pool& pool, std::optional<PageOutlook> outlook = {})
{
    return poolPage(*poolPageOf(pool, std::move(outlook)));
}

/// The text that the page's script reads.
std::string textOfPoolData(const std::string& page)
{
    constexpr std::string_view kBegin = R"(id="pool">)";
    const std::size_t begin = page.find(kBegin) + kBegin.size();
    return page.substr(begin, page.find("</script>", begin) - begin);
}

Json dataIn(const std::string& page) { return Json::parse(textOfPoolData(page)); }

/// Everybody's outlook by the results of the four players, counted.
PageOutlook countedOutlook(const Pool& pool)
{
    const Contest contest{pool.results->picks, picksOf(pool.entries), test::kUsualPayoffs};
    const OutlookFigures figures = test::countedFigures(pool.entries, pool.results->picks);
    const FirstOutlook counted = countFirsts(contest);
    return pageOutlookOf(basisOf(ChanceKind::Alike, 3, figures), test::countedRows(pool.entries, pool.results->picks),
                         &counted);
}

TEST(PoolPage, HasTheFieldAndTheResultsInNumbersOfTeams)
{
    Pool pool = fourPlayersPool();
    pool.field.comment1 = "Five dollars\r\nby noon";

    const Json data = dataIn(poolPageFor(pool));

    EXPECT_EQ(data["title"], "Office Pool");
    EXPECT_EQ(data["comments"], Json::parse(R"(["Five dollars\r\nby noon",""])"));
    EXPECT_EQ(data["regions"], Json::parse(R"(["West Region","Midwest Region","East Region","South Region"])"));
    EXPECT_EQ(data["points"], Json::parse("[1,2,4,8,12,16]"));
    EXPECT_EQ(data["seedNumbers"], Json::parse("[1,16,8,9,5,12,4,13,6,11,3,14,7,10,2,15]"));
    EXPECT_EQ(data["seeds"][0], " 1");
    EXPECT_EQ(data["names"][0], "");
    EXPECT_EQ(data["names"][1], "CEDAR RAPIDS");
    EXPECT_EQ(data["names"].size(), 65U);
    EXPECT_EQ(data["teams"][0], 1);
    EXPECT_EQ(data["teams"][63], 64);
    EXPECT_EQ(data["results"].size(), 127U);
    EXPECT_EQ(data["results"][30], 1);  // the West's winner is its first row
    EXPECT_EQ(data["results"][61], 17); // the Midwest's likewise
    EXPECT_EQ(data["results"][126], 0); // nobody yet
}

TEST(PoolPage, HasEverybodysPointsByRound)
{
    const Json players = dataIn(poolPageFor(fourPlayersPool()))["players"];

    // Adams has picked the upper rows everywhere, as it came: 32 games of 1 point, 16 of 2, 8 of 4, 4 of 8; and has the
    // first semi-final, the second and the final (12, 12, 16) still ahead.
    EXPECT_EQ(players[0]["name"], "AB, Adams");
    EXPECT_EQ(players[0]["file"], "Adams_AB.THC");
    EXPECT_EQ(players[0]["total"], "150");
    EXPECT_EQ(players[0]["byRound"], Json::parse("[32,32,32,32,0,0]"));
    EXPECT_EQ(players[0]["possible"], 128 + 40);
    EXPECT_EQ(players[0]["place"], 1);
    EXPECT_EQ(players[0]["picks"].size(), 127U);
    EXPECT_EQ(players[0]["picks"][126], 1);
    // Baker has the lower rows of the West, so 8 + 4 + 2 + 1 games less. Of Baker's finals OLD HARBOR, SALT LAKE and
    // SALT LAKE all are still in.
    EXPECT_EQ(players[1]["byRound"], Json::parse("[24,24,24,24,0,0]"));
    EXPECT_EQ(players[1]["possible"], 96 + 40);
    EXPECT_EQ(players[1]["place"], 2);
    // Clark has picked nothing.
    EXPECT_EQ(players[2]["byRound"], Json::parse("[0,0,0,0,0,0]"));
    EXPECT_EQ(players[2]["possible"], 0);
    EXPECT_EQ(players[2]["place"], 4);
    // Dunn has as many points as Baker.
    EXPECT_EQ(players[3]["place"], 2);
}

TEST(PoolPage, HasATeamThatNoResultKnowsUnderANumberOfItsOwn)
{
    Pool pool = fourPlayersPool();
    pool.entries[1].picks.put(kChampion, "NOBODY U.");

    const Json data = dataIn(poolPageFor(pool));

    EXPECT_EQ(data["players"][1]["picks"][126], 65);
    EXPECT_EQ(data["names"][65], "NOBODY U.");
}

TEST(PoolPage, BeginsWithTheFieldWhenThereAreNoResults)
{
    Pool pool = fourPlayersPool();
    pool.results.reset();

    const Json data = dataIn(poolPageFor(pool));

    EXPECT_EQ(data["results"][0], 1);
    EXPECT_EQ(data["results"][16], 0);
    EXPECT_EQ(data["players"][0]["byRound"], Json::parse("[0,0,0,0,0,0]"));
}

TEST(PoolPage, IsRefusedWhenTheRoundsPointsAreTooLarge)
{
    Pool pool = fourPlayersPool();
    pool.field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "99999"}};

    EXPECT_FALSE(poolPageOf(pool));
}

TEST(PoolPage, HasTheOutlookInTheWordsOfTheOutlook)
{
    const Pool pool = fourPlayersPool();

    const Json outlook = dataIn(poolPageFor(pool, countedOutlook(pool)))["outlook"];

    // Adams leads by 32. Baker catches up with 40 when OLD HARBOR, SALT LAKE and SALT LAKE win; Dunn, who shares the
    // first two winners with Adams, gains no more than the 16 of the final.
    EXPECT_EQ(outlook["outcomes"], "8");
    EXPECT_EQ(outlook["exact"], true);
    EXPECT_EQ(outlook["chances"], "all outcomes alike");
    EXPECT_EQ(outlook["basis"][1], "Counted: all 8 outcomes of 3 open games");
    EXPECT_EQ(outlook["players"][0],
              Json::parse(R"({"first":"87.5","share":"87.5","percent":87.5,"verdict":"Alive","best":"1","worst":"2",)"
                          R"("alone":"7","shared":"0"})"));
    EXPECT_EQ(outlook["players"][1]["alone"], "1");
    EXPECT_EQ(outlook["players"][3]["verdict"], "Out");
    EXPECT_EQ(outlook["road"], Json::array());
}

TEST(PoolPage, HasNoWaysWhereNothingIsCounted)
{
    const std::vector<Entry> players = test::fourPlayers();
    OutlookFigures figures;
    figures.prospects = unknownProspects(players.size());
    const auto rows =
        outlookRows(players, standingsBy(players, test::fourPlayersResults().picks, test::kUsualPayoffs), figures);

    const PageOutlook outlook = pageOutlookOf(basisOf(ChanceKind::BySeed, 63, figures), rows);

    EXPECT_EQ(outlook.outcomes, "9223372036854775808"); // 2 to the power of 63
    EXPECT_FALSE(outlook.exact);
    EXPECT_EQ(outlook.players[0].firstAlone, "");
    EXPECT_EQ(outlook.players[0].first, "");
    EXPECT_EQ(outlook.players[0].verdict, "Open");
    EXPECT_EQ(outlook.players[0].worst, "1-4");
    const Json first = dataIn(poolPageFor(fourPlayersPool(), outlook))["outlook"]["players"][0];
    EXPECT_FALSE(first.contains("alone"));
    EXPECT_FALSE(first.contains("percent"));
}

TEST(PoolPage, HasTheRoadWithThousandthsOfAPercentAndTheErrorOfForecasts)
{
    RoadPoint start{0, false, 63, 1000, {{0, 0, 0.123456789}, {0, 0, 1}}, {0.0021, 0.0013}};
    RoadPoint now{2, true, 15, 0, {{0, 0, 0}, {0, 0, 1}}, {0, 0}};
    PageOutlook outlook = pageOutlookOf({}, {}, nullptr, std::vector{start, now});

    const Json road = dataIn(poolPageFor(fourPlayersPool(), outlook))["outlook"]["road"];

    EXPECT_EQ(road, Json::parse(R"([{"round":0,"now":false,"shares":[0.12346,1.0],"error":"0.21"},)"
                                R"({"round":2,"now":true,"shares":[0.0,1.0]}])"));
}

TEST(PoolPage, HasTheFinalSheetWhenThereIsOne)
{
    PoolPage page = *poolPageOf(fourPlayersPool());
    EXPECT_FALSE(dataIn(poolPage(page)).contains("final"));

    page.finalSheet = PageFinalSheet{{"The total is 150."},
                                     {{"1", "AB, Adams", "168", "150", "$ 40.00", false, "-4", 3}},
                                     {"Ties"},
                                     {{{"2", "Baker", "173", "174", "Dunn", "175"}, 1, 2}}};

    EXPECT_EQ(
        dataIn(poolPage(page))["final"],
        Json::parse(R"({"notes":["The total is 150."],"rows":[{"place":"1","name":"AB, Adams","points":"168",)"
                    R"("total":"150","prize":"$ 40.00","last":false,"off":"-4","player":3}],"pairsNotes":["Ties"],)"
                    R"("pairs":[{"place":"2","lower":"Baker","upTo":"173","tiedAt":"174",)"
                    R"("higher":"Dunn","from":"175","players":[1,2]}]})"));
}

TEST(PoolPage, KeepsMarkupOutOfThePageWhereverItIs)
{
    constexpr const char* kHostile = "</script><!--<script>&\"'\\";
    const Pool plain = fourPlayersPool();
    Pool pool = plain;
    pool.field.title = kHostile;
    pool.field.comment1 = pool.field.comment2 = kHostile;
    pool.field.regionTitles[2] = kHostile;
    pool.field.teams[TeamRow{5}] = kHostile;
    pool.field.seeds[3] = kHostile;
    pool.entries[0].name = pool.entries[0].initials = kHostile;
    pool.entries[0].fileName = pool.entries[0].finalPoints = kHostile;
    pool.entries[1].picks.put(kChampion, kHostile);
    PoolPage shown = *poolPageOf(pool);
    shown.finalSheet = PageFinalSheet{{kHostile},
                                      {{kHostile, kHostile, kHostile, kHostile, kHostile, true, kHostile}},
                                      {kHostile},
                                      {{kHostile, kHostile, kHostile, kHostile, kHostile, kHostile}}};

    const std::string page = poolPage(shown);

    EXPECT_EQ(occurrencesOf("<", page), occurrencesOf("<", poolPageFor(plain)));
    EXPECT_EQ(occurrencesOf(">", page), occurrencesOf(">", poolPageFor(plain)));
    const Json data = dataIn(page);
    EXPECT_EQ(data["title"], kHostile);
    EXPECT_EQ(data["players"][0]["total"], kHostile);
    EXPECT_EQ(data["final"]["rows"][0]["prize"], kHostile);
}

TEST(PoolPage, HasAnyByteAsAnEscapeOrAsItsCharacter)
{
    std::string every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    Pool pool = fourPlayersPool();
    pool.entries[0].name = every;

    const std::string page = poolPageFor(pool);

    for (const char character : textOfPoolData(page))
        ASSERT_TRUE(character >= ' ' && character < 0x7F);
    const std::string name = dataIn(page)["players"][0]["name"];
    EXPECT_THAT(name, HasSubstr("\xE2\x82\xAC"));           // 80: the euro
    EXPECT_THAT(name, HasSubstr("\xC2\x81"));               // 81: the control of the same number
    EXPECT_THAT(name, HasSubstr(std::string{"\0\x01", 2})); // what no text should hold
}

TEST(PoolPage, TakesThePlacesOfTheTemplateForTextInAPool)
{
    Pool pool = fourPlayersPool();
    pool.field.title = "@POOL@";
    pool.entries[0].name = "@TITLE@";

    const std::string page = poolPageFor(pool);

    EXPECT_THAT(page, HasSubstr("<title>@POOL@</title>"));
    EXPECT_EQ(dataIn(page)["players"][0]["name"], "AB, @TITLE@");
}

TEST(PoolPage, ForbidsRequestsBeforeAnythingElse)
{
    const std::string page = poolPageFor(fourPlayersPool());

    const std::size_t policy =
        page.find(R"(<meta http-equiv="Content-Security-Policy" content="default-src 'none'; script-src 'sha256-)");
    EXPECT_LT(policy, page.find("<script"));
    EXPECT_LT(policy, page.find("<style"));
    EXPECT_LT(policy, page.find("<link"));
    EXPECT_THAT(page, Not(HasSubstr("unsafe-")));
}

TEST(PoolPage, RefersToNothingElsewhere)
{
    std::string page = poolPageFor(fourPlayersPool());
    // The name of the drawings' language is written like an address, and is none.
    constexpr std::string_view kDrawings = "'http://www.w3.org/2000/svg'";
    ASSERT_EQ(occurrencesOf(kDrawings, page), 1U);
    page.replace(page.find(kDrawings), kDrawings.size(), "");

    for (const std::string_view reference :
         {"http:", "https:", "//cdn", "url(", "@import", " src=", "fetch(", "innerHTML"})
        EXPECT_EQ(occurrencesOf(reference, page), 0U) << reference;
}

TEST(PoolPage, HasNoPlaceOfTheTemplateLeft)
{
    const std::string page = poolPageFor(fourPlayersPool());

    for (const std::string_view place : {"@TITLE@", "@POOL@", "@STYLE@", "@SCRIPT@", "@STYLE_HASH@", "@SCRIPT_HASH@"})
        EXPECT_EQ(occurrencesOf(place, page), 0U) << place;
}

/// The size of the page of so many players with long names, with an outlook and a road of six stages.
std::size_t sizeWith(std::size_t players)
{
    Pool pool = fourPlayersPool();
    Entry entry = test::fourPlayers()[3];
    entry.name = "A Player With a Rather Long Name Indeed";
    entry.fileName = "A Player With a Rather Long Name Indeed_EF.THC";
    pool.entries.assign(players, entry);
    const PagePlayerOutlook player{"1073741823",       "1073741824", "<0.1",   "<0.1",
                                   0.0123456789012345, "Clinched",   "1-1000", "1-1000"};
    const PageRoadPoint point{1, false, std::vector<double>(players, 0.12345)};
    const PageOutlook outlook{"2147483648",         true, "all outcomes alike", {}, std::vector(players, player),
                              std::vector(6, point)};
    return poolPageFor(pool, outlook).size();
}

TEST(PoolPage, IsShorterThan400KilobytesWith100Players) { EXPECT_LT(sizeWith(100), 400'000U); }

TEST(PoolPage, IsShorterThan3MegabytesWith1000Players) { EXPECT_LT(sizeWith(1000), 3'000'000U); }

} // namespace
} // namespace tallyhoop
