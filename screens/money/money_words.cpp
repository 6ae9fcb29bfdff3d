// screens/money/money_words.cpp - sums in sentences.
#include "screens/money/money_words.h"

#include "base/numbers.h"
#include "base/text.h"
#include "files/file_names.h"
#include "reports/outlook_rows.h"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>

namespace tallyhoop {

namespace {

Money times(Money fee, std::size_t players) { return {fee.cents * static_cast<std::int64_t>(players)}; }

} // namespace

std::vector<ui::GridColumn> feeColumns()
{
    using ui::Alignment;
    return {{"Paid", Alignment::Centre, 6, false, true},
            {"Player", Alignment::Left, 26, true},
            {"Selection", Alignment::Left, 26},
            {"Owes", Alignment::Right, 12}};
}

std::vector<std::string> feeCells(const Entry& player, bool hasPaid, Money fee)
{
    return {hasPaid ? ui::kTicked : ui::kNotTicked, asOneLine(nameInRow(player)), asOneLine(player.fileName),
            hasPaid || fee == Money{} ? std::string{} : moneyInWords(fee)};
}

std::string explanationOf(TieRule rule)
{
    switch (rule) {
    case TieRule::Nearest:
        return "Of players with equal points the one whose predicted total is nearest to the real one is ahead.";
    case TieRule::NotOver:
        return "The nearest prediction that does not go over the real total is ahead; those that do come after.";
    case TieRule::Share:
        break;
    }
    return "Players with equal points share their places, and the prizes for these.";
}

std::string furtherPrizesInWords(std::size_t prizes)
{
    if (prizes == 0)
        return {};
    return fmt::format("and {} for further places, as in {}", counted(prizes, "prize", "prizes"), file_name::kPrizes);
}

std::string feesInWords(Money fee, std::size_t paid, std::size_t players)
{
    if (players == 0)
        return "There are no players yet.";
    const std::string count = fmt::format("{} of {}", paid, counted(players, "player", "players"));
    if (fee == Money{})
        return count + " ticked; there is no entry fee.";
    return fmt::format("{} paid: {} received, {} owed.", count, moneyInWords(times(fee, paid)),
                       moneyInWords(times(fee, players - paid)));
}

std::string purseInWords(const Purse& purse)
{
    const Money prizes = std::accumulate(purse.prizes.begin(), purse.prizes.end(), Money{});
    std::string words = fmt::format("Fees {}: kept back {}, prizes {}", moneyInWords(purse.fees),
                                    moneyInWords(purse.keptBack), moneyInWords(prizes));
    if (purse.left < Money{})
        return words + ", from elsewhere " + moneyInWords(Money{} - purse.left) + ".";
    return words + ", left " + moneyInWords(purse.left) + ".";
}

std::string totalInWords(const std::optional<Entry>& results, TieRule rule)
{
    if (rule == TieRule::Share)
        return "The predicted totals do not count.";
    const std::string total = results ? withoutOuterBlanks(results->finalPoints) : std::string{};
    return total.empty() ? "The total of the final is entered with the results." : "Total of the final: " + total + ".";
}

} // namespace tallyhoop
