// screens/outlook/road_words.cpp - one player from time to time, or a few players now.
#include "screens/outlook/road_words.h"

#include "reports/outlook_words.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <numeric>

namespace tallyhoop {

namespace {

constexpr std::size_t kLeaders = 3;

std::string uncapitalized(std::string words)
{
    words.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(words.front())));
    return words;
}

std::string shareAt(const RoadPoint& point, std::size_t player)
{
    return percentInWords(100 * point.chances[player].share) + (point.samples > 0 ? " % (forecast)" : " %");
}

std::string roadOf(std::size_t player, const RoadPicture& picture)
{
    const std::size_t missing = picture.times.size() - picture.points.size();
    std::string words;
    for (std::size_t i = 0; i < picture.points.size(); ++i)
        words +=
            (i == 0 ? "" : ", ") + uncapitalized(picture.times[missing + i]) + " " + shareAt(picture.points[i], player);
    return words;
}

std::string leadersNow(const RoadPicture& picture)
{
    const RoadPoint& now = picture.points.back();
    std::vector<std::size_t> players(std::min(now.chances.size(), picture.names.size()));
    std::iota(players.begin(), players.end(), std::size_t{0});
    std::ranges::stable_sort(players, std::greater{}, [&](std::size_t player) { return now.chances[player].share; });
    std::string words = "now";
    for (std::size_t i = 0; i < std::min(players.size(), kLeaders); ++i)
        words += (i == 0 ? ": " : ", ") + picture.names[players[i]] + " " + shareAt(now, players[i]);
    return words;
}

} // namespace

std::string roadInWords(const RoadPicture& picture)
{
    const bool isChosen = picture.chosen && *picture.chosen < picture.names.size();
    const std::string whose = isChosen ? picture.names[*picture.chosen] : "The road";
    if (picture.points.empty())
        return whose + ": not known yet";
    return whose + ": " + (isChosen ? roadOf(*picture.chosen, picture) : leadersNow(picture));
}

} // namespace tallyhoop
