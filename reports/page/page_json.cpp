// reports/page/page_json.cpp - the page's data as JSON; data.js reads it.
#include "reports/page/page_json.h"

#include "base/windows1252.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <string_view>

namespace tallyhoop {

namespace {

using Json = nlohmann::ordered_json;

template <class Texts>
Json textsOf(const Texts& texts)
{
    Json list = Json::array();
    for (const std::string& text : texts)
        list.push_back(toUtf8(text));
    return list;
}

Json jsonOf(const PagePlayer& player)
{
    return {{"name", toUtf8(player.name)},     {"file", toUtf8(player.file)}, {"total", toUtf8(player.finalPoints)},
            {"byRound", player.pointsByRound}, {"possible", player.possible}, {"place", player.place},
            {"picks", player.picks.values}};
}

Json jsonOf(const PagePlayerOutlook& player)
{
    Json json{{"first", toUtf8(player.first)},
              {"share", toUtf8(player.share)},
              {"verdict", player.verdict},
              {"best", player.best},
              {"worst", player.worst}};
    if (player.sharePercent)
        json["percent"] = *player.sharePercent;
    if (!player.firstAlone.empty()) {
        json["alone"] = player.firstAlone;
        json["shared"] = player.firstShared;
    }
    return json;
}

/// A chart shows no more than a thousandth of a percent.
Json jsonOf(const PageRoadPoint& point)
{
    constexpr double kParts = 100'000;
    Json shares = Json::array();
    for (const double share : point.shares)
        shares.push_back(std::round(share * kParts) / kParts);
    Json json{{"round", point.round}, {"now", point.isNow}, {"shares", std::move(shares)}};
    if (!point.error.empty())
        json["error"] = point.error;
    return json;
}

Json jsonOf(const PageFinalRow& row)
{
    return {{"place", toUtf8(row.place)}, {"name", toUtf8(row.name)},   {"points", toUtf8(row.points)},
            {"total", toUtf8(row.total)}, {"prize", toUtf8(row.prize)}, {"last", row.isLast},
            {"off", toUtf8(row.off)},     {"player", row.player}};
}

Json jsonOf(const PageFinalPair& pair)
{
    const PairInWords& words = pair.words;
    return {{"place", toUtf8(words.place)},        {"lower", toUtf8(words.lower)},   {"upTo", toUtf8(words.upTo)},
            {"tiedAt", toUtf8(words.tiedAt)},      {"higher", toUtf8(words.higher)}, {"from", toUtf8(words.from)},
            {"players", {pair.lower, pair.higher}}};
}

template <class Values>
Json listOf(const Values& values)
{
    Json list = Json::array();
    for (const auto& value : values)
        list.push_back(jsonOf(value));
    return list;
}

Json jsonOf(const PageOutlook& outlook)
{
    return {{"outcomes", outlook.outcomes},       {"exact", outlook.exact},
            {"chances", toUtf8(outlook.chances)}, {"basis", textsOf(outlook.basis)},
            {"players", listOf(outlook.players)}, {"road", listOf(outlook.road)}};
}

/// What could end the script element, or begin markup in it, occurs in texts alone.
std::string withoutMarkup(std::string_view json)
{
    std::string safe;
    safe.reserve(json.size());
    for (const char character : json) {
        switch (character) {
        case '<':
            safe += "\\u003c";
            break;
        case '>':
            safe += "\\u003e";
            break;
        case '&':
            safe += "\\u0026";
            break;
        default:
            safe += character;
        }
    }
    return safe;
}

} // namespace

std::string jsonOf(const PoolPage& page)
{
    Json json{{"title", toUtf8(page.title)},      {"comments", textsOf(page.comments)},
              {"regions", textsOf(page.regions)}, {"points", page.points},
              {"seeds", textsOf(page.seeds)},     {"seedNumbers", page.seedNumbers},
              {"names", textsOf(page.names)},     {"teams", page.teams.values},
              {"results", page.results.values},   {"players", listOf(page.players)}};
    if (page.outlook)
        json["outlook"] = jsonOf(*page.outlook);
    if (page.finalSheet)
        json["final"] = {{"notes", textsOf(page.finalSheet->notes)},
                         {"rows", listOf(page.finalSheet->rows)},
                         {"pairsNotes", textsOf(page.finalSheet->pairsNotes)},
                         {"pairs", listOf(page.finalSheet->pairs)}};
    constexpr bool kAscii = true;
    return withoutMarkup(json.dump(-1, ' ', kAscii));
}

} // namespace tallyhoop
