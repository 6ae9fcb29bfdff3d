// cli/json.cpp - which figure has which name.
#include "cli/json.h"

#include "base/windows1252.h"
#include "reports/standings.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>

namespace tallyhoop::cli {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kIndent = 2;

std::string fileOf(const Json& json) { return json.dump(kIndent) + "\n"; }

Json textOrNull(const std::string& text) { return text.empty() ? Json(nullptr) : Json(toUtf8(text)); }

Json numberOrNull(std::optional<int> number) { return number ? Json(*number) : Json(nullptr); }

Json textsOf(std::span<const std::string> texts)
{
    Json list = Json::array();
    for (const std::string& text : texts)
        list.push_back(toUtf8(text));
    return list;
}

const char* nameOf(ChanceKind chances)
{
    switch (chances) {
    case ChanceKind::BySeed:
        return "seeds";
    case ChanceKind::AsPicked:
        return "picks";
    case ChanceKind::Alike:
        break;
    }
    return "alike";
}

/// A selection without a name has that of its file.
const std::string& nameOf(const PlayerScore& score)
{
    return score.playerName == ", " ? score.fileName : score.playerName;
}

/// Unlike the score's, they are of games alone: the first-round rows of a damaged selection are not picked.
int badGames(const PlayerScore& score)
{
    return static_cast<int>(
        std::ranges::count_if(gamePositions(), [&](Position game) { return score.verdicts[game] == Verdict::Bad; }));
}

Json placeJson(const PlaceBetween& place)
{
    return place.isExact() ? Json(place.least) : Json::array({place.least, place.most});
}

const char* nameOf(TieRule rule)
{
    switch (rule) {
    case TieRule::NotOver:
        return "notOver";
    case TieRule::Share:
        return "share";
    case TieRule::Nearest:
        break;
    }
    return "nearest";
}

Json pairsJson(std::span<const TiedPair> pairs, std::span<const Entry> entries)
{
    Json list = Json::array();
    for (const TiedPair& pair : pairs) {
        const bool isByTotal = pair.end == TieEnd::ByTotal;
        list.push_back({{"place", pair.place},
                        {"lower", toUtf8(entries[pair.lower].fileName)},
                        {"higher", toUtf8(entries[pair.higher].fileName)},
                        {"alwaysTied", pair.end == TieEnd::AlwaysTied},
                        {"lowerUpTo", isByTotal ? Json(pair.lowerUpTo) : Json(nullptr)},
                        {"higherFrom", isByTotal ? Json(pair.higherFrom) : Json(nullptr)}});
    }
    return list;
}

/// Whole counts are strings: a number of JSON is a double for most programs, and they can be larger than that holds.
void addFirsts(Json& player, const MadeOutlook& outlook, std::size_t index)
{
    if (outlook.isExact()) {
        const FirstPlaces& firsts = outlook.firsts->players[index].all;
        player["firstAlone"] = std::to_string(firsts.alone);
        player["firstShared"] = std::to_string(firsts.outcomes() - firsts.alone);
    } else if (outlook.figures.source != ChanceSource::None) {
        const FirstChances& chances = outlook.figures.chances.players[index].all;
        player["firstAlone"] = chances.alone;
        player["firstShared"] = chances.together;
    } else {
        player["firstAlone"] = player["firstShared"] = nullptr;
    }
}

} // namespace

std::string standingsJson(std::string_view title, std::span<const PlayerScore> scores)
{
    Json players = Json::array();
    std::size_t place = 1;
    std::optional<std::int16_t> points; // of the player before
    for (const std::size_t index : standingsOrder(scores)) {
        const PlayerScore& score = scores[index];
        const int bad = badGames(score);
        if (points != score.points)
            place = players.size() + 1;
        points = score.points;
        players.push_back({{"place", place},
                           {"file", toUtf8(score.fileName)},
                           {"name", toUtf8(nameOf(score))},
                           {"points", score.points},
                           {"possible", score.maxPoints},
                           {"good", score.goodPicks},
                           {"bad", bad},
                           {"open", kGames - score.goodPicks - bad},
                           {"total", score.finalPoints == 0 ? Json(nullptr) : Json(score.finalPoints)},
                           {"champion", textOrNull(score.winningPick)}});
    }
    return fileOf({{"title", toUtf8(title)}, {"players", players}});
}

std::string finalJson(std::string_view title, const FinalSheet& sheet, std::span<const Entry> entries)
{
    Json players = Json::array();
    for (const FinalRow& row : sheet.rows)
        players.push_back({{"place", row.place},
                           {"shared", row.isShared},
                           {"last", row.isLast},
                           {"file", toUtf8(entries[row.player].fileName)},
                           {"name", toUtf8(row.name)},
                           {"points", row.points},
                           {"total", numberOrNull(row.predicted)},
                           {"off", numberOrNull(row.off)},
                           {"prize", moneyInWords(row.prize)}});
    return fileOf({{"title", toUtf8(title)},
                   {"openGames", sheet.openGames},
                   {"total", numberOrNull(sheet.total)},
                   {"fees", moneyInWords(sheet.purse.fees)},
                   {"keptBack", moneyInWords(sheet.purse.keptBack)},
                   {"left", moneyInWords(sheet.purse.left)},
                   {"ties", nameOf(sheet.rule)},
                   {"pairs", pairsJson(sheet.pairs, entries)},
                   {"remarks", textsOf(sheet.remarks)},
                   {"players", players}});
}

std::string scoresJson(std::span<const PlayerScore> scores)
{
    Json players = Json::array();
    for (const PlayerScore& score : scores)
        players.push_back({{"file", toUtf8(score.fileName)},
                           {"name", toUtf8(nameOf(score))},
                           {"points", score.points},
                           {"possible", score.maxPoints},
                           {"champion", textOrNull(score.winningPick)}});
    return fileOf({{"players", players}});
}

std::string outlookJson(const MadeOutlook& outlook, std::span<const Entry> entries)
{
    Json players = Json::array();
    for (const OutlookRow& row : outlook.rows) {
        Json player{{"file", toUtf8(entries[row.player].fileName)},
                    {"name", toUtf8(row.name)},
                    {"points", row.standing.points},
                    {"possible", row.standing.possible}};
        addFirsts(player, outlook, row.player);
        player["share"] = row.share ? Json(*row.share / 100) : Json(nullptr);
        player["best"] = placeJson(row.best);
        player["worst"] = placeJson(row.worst);
        player["verdict"] = verdictInWords(row.prospect);
        players.push_back(std::move(player));
    }
    return fileOf({{"outcomes", std::to_string(std::uint64_t{1} << outlook.basis.openGames)},
                   {"exact", outlook.isExact()},
                   {"weights", nameOf(outlook.basis.chances)},
                   {"players", players}});
}

} // namespace tallyhoop::cli
