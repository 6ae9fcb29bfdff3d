// reports/outlook_words.cpp - the sentences, and how numbers are written in them.
#include "reports/outlook_words.h"

#include "base/numbers.h"
#include "pool/position.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace tallyhoop {

namespace {

constexpr double kEverything = 100 * (1 - 1e-12); ///< percent: sums of chances are rounded
constexpr double kSmallestChange = 0.05;          ///< percent: less rounds to 0.0
constexpr int kMostDecimals = 16;
constexpr const char* kPlusMinus = " \xB1";
constexpr std::size_t kMostNamed = 12;
constexpr std::size_t kLine = 75;

/// @returns whether a percentage written with so many decimals looks like nothing or everything, and is neither
bool looksCertain(double percent, const std::string& text, int decimals)
{
    return (percent > 0 && text == fmt::format("{:.{}f}", 0.0, decimals)) ||
           (percent < kEverything && text == fmt::format("{:.{}f}", 100.0, decimals));
}

/// Adds a list to lines, in as many as it takes.
void addList(std::vector<std::string>& lines, std::string begin, const std::vector<std::string>& items)
{
    std::string line = std::move(begin);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string item = " " + items[i] + (i + 1 < items.size() ? "," : "");
        if (i > 0 && line.size() + item.size() > kLine) {
            lines.push_back(line);
            line = " ";
        }
        line += item;
    }
    if (!items.empty())
        lines.push_back(line);
}

} // namespace

OutlookBasis basisOf(ChanceKind chances, std::size_t openGames, const OutlookFigures& figures)
{
    OutlookBasis basis{chances, openGames, figures.source, figures.samples};
    if (!figures.errors.empty())
        basis.error = 100 * std::ranges::max(figures.errors);
    return basis;
}

std::string chancesInWords(ChanceKind chances)
{
    switch (chances) {
    case ChanceKind::BySeed:
        return "by seed, the better seed wins more often";
    case ChanceKind::AsPicked:
        return "as this pool picked, the team with more picks wins more often";
    case ChanceKind::Alike:
        break;
    }
    return "all outcomes alike";
}

std::vector<std::string> basisInWords(const OutlookBasis& basis)
{
    if (basis.openGames == 0)
        return {basis.isSupposed ? "No game is open: these are the places if it ends so"
                                 : "No game is open: these are the final places"};
    const std::string games = counted(basis.openGames, "open game", "open games");
    std::vector<std::string> words{"Chances: " + chancesInWords(basis.chances)};
    switch (basis.source) {
    case ChanceSource::None:
        words.push_back("Nothing is counted yet of " + games + ": only what is proven is known");
        break;
    case ChanceSource::Counted:
        words.push_back(fmt::format("Counted: all {} outcomes of {}", std::uint64_t{1} << basis.openGames, games));
        break;
    case ChanceSource::Forecast:
        words.push_back(fmt::format("Forecast: {} samples of {}, seed {}", basis.samples, games, basis.seed));
        words.push_back("Standard error of the share: at most " + errorInWords(basis.error) + " percentage points");
        break;
    }
    return words;
}

std::vector<std::string> whatIfInWords(const Bracket& entered, const Bracket& supposed)
{
    std::vector<std::string> winners;
    std::vector<std::string> takenBack;
    for (const Position game : gamePositions()) {
        if (supposed.at(game) == entered.at(game))
            continue;
        const bool isSupposed = !supposed.isEmpty(game);
        (isSupposed ? winners : takenBack)
            .push_back(fmt::format("{} (round {})", (isSupposed ? supposed : entered).at(game), roundOf(game)));
    }
    if (winners.empty() && takenBack.empty())
        return {};
    std::string differences = counted(winners.size(), "supposed winner", "supposed winners");
    if (!takenBack.empty())
        differences += fmt::format(", {} taken back", takenBack.size());
    std::vector<std::string> lines{"What if: " + differences + "; these are not the results as entered"};
    if (winners.size() + takenBack.size() <= kMostNamed) {
        addList(lines, "Supposed:", winners);
        addList(lines, "Taken back:", takenBack);
    }
    return lines;
}

std::string verdictInWords(Prospect verdict)
{
    switch (verdict) {
    case Prospect::Clinched:
        return "Clinched";
    case Prospect::Alive:
        return "Alive";
    case Prospect::Out:
        return "Out";
    case Prospect::Open:
        break;
    }
    return "Open";
}

std::string placeInWords(const PlaceBetween& place)
{
    return place.isExact() ? std::to_string(place.least) : fmt::format("{}-{}", place.least, place.most);
}

std::string percentInWords(double percent)
{
    const std::string words = fmt::format("{:.1f}", percent);
    if (looksCertain(percent, words, 1))
        return percent < 50 ? "<0.1" : ">99.9";
    return words;
}

std::string percentAsNumber(double percent)
{
    int decimals = 1;
    std::string text = fmt::format("{:.1f}", percent);
    while (looksCertain(percent, text, decimals) && decimals < kMostDecimals)
        text = fmt::format("{:.{}f}", percent, ++decimals);
    return text;
}

std::string errorInWords(double percent)
{
    constexpr double kRounding = 1e-9; // of what is meant as a whole number of hundredths
    return fmt::format("{:.2f}", std::ceil(std::max(percent * 100 - kRounding, 0.0)) / 100);
}

std::string withError(const std::string& figure, double error)
{
    return error > 0 ? figure + kPlusMinus + errorInWords(error) : figure;
}

std::string changeInWords(double percent)
{
    return std::abs(percent) < kSmallestChange ? "0.0" : fmt::format("{:+.1f}", percent);
}

} // namespace tallyhoop
