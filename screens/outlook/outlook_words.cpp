// screens/outlook/outlook_words.cpp - the sentences themselves.
#include "screens/outlook/outlook_words.h"

#include "base/text.h"
#include "screens/outlook/outlook_rows.h"

#include <cmath>
#include <fmt/format.h>
#include <new>

namespace tallyhoop {

std::string captionOf(ChanceKind kind)
{
    switch (kind) {
    case ChanceKind::BySeed:
        return "By seed";
    case ChanceKind::AsPicked:
        return "As picked";
    case ChanceKind::Alike:
        break;
    }
    return "All alike";
}

std::string explanationOf(ChanceKind kind)
{
    switch (kind) {
    case ChanceKind::BySeed:
        return captionOf(kind) + ": a team seeded a beats one seeded b with the chance b / (a + b).";
    case ChanceKind::AsPicked:
        return captionOf(kind) + ": the more players picked a team to win this game, the likelier; each has one more.";
    case ChanceKind::Alike:
        break;
    }
    return captionOf(kind) + ": every outcome counts the same, as if each game were the toss of a coin.";
}

std::string sentencesOf(std::span<const std::string> lines) { return joined(lines, ". ") + "."; }

std::string basisInShort(const OutlookBasis& basis)
{
    if (basis.openGames == 0)
        return sentencesOf(basisInWords(basis));
    switch (basis.source) {
    case ChanceSource::Forecast:
        return fmt::format("{}: forecast from {} samples, seed {}; standard error at most {}.",
                           captionOf(basis.chances), basis.samples, basis.seed, errorInWords(basis.error));
    case ChanceSource::Counted:
        return fmt::format("{}: {} outcomes left, every one counted.", captionOf(basis.chances),
                           std::uint64_t{1} << basis.openGames);
    case ChanceSource::None:
        break;
    }
    return "Nothing is counted yet: only what is proven is known.";
}

std::string workingWords(double fraction)
{
    return fmt::format("Working: {} %.", static_cast<int>(std::floor(100 * fraction)));
}

std::string troubleInWords(const std::exception_ptr& trouble)
{
    try {
        std::rethrow_exception(trouble);
    } catch (const std::bad_alloc&) {
        return "there is not enough memory";
    } catch (const std::exception& known) {
        return known.what();
    } catch (...) {
        return "no reason is known";
    }
}

std::string countedWords(std::uint64_t first, std::uint64_t outcomes)
{
    return fmt::format("First in {} of {} outcomes, alone or together with others.", first, outcomes);
}

std::string decidedWords(bool isSupposed)
{
    return isSupposed ? "Every game has a winner, entered or supposed." : "All games are played.";
}

std::string provenWords(Prospect prospect, std::size_t openGames)
{
    switch (prospect) {
    case Prospect::Clinched:
        return "Nobody can come ahead any more.";
    case Prospect::Alive:
        return fmt::format("One way for the {} open games to end is known in which the player is first.", openGames);
    case Prospect::Out:
    case Prospect::Open:
        break;
    }
    return explanationOf(prospect);
}

std::string gameText(const OpenGame& game) { return game.round.empty() ? game.upper + " - " + game.lower : game.round; }

std::string rootFor(const OpenGame& game, double swing)
{
    if (std::abs(swing) < kLeastSwing)
        return "-";
    return swing > 0 ? game.upper : game.lower;
}

std::string whenText(const OpenGame& game) { return game.isNext ? "next" : "later"; }

std::string swingText(const GameWeight& weight) { return fmt::format("{:.1f}", weight.swing); }

std::string weightText(const GameWeight& weight) { return withError(swingText(weight), weight.error); }

} // namespace tallyhoop
