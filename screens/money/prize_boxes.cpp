// screens/money/prize_boxes.cpp - amounts and shares as people type them.
#include "screens/money/prize_boxes.h"

#include "base/text.h"
#include "screens/money/money_words.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr int kLongestAmount = 12; ///< characters
constexpr const char* kFeeFault = "The entry fee has to be an amount, such as 10 or 12.50.";
constexpr const char* kKeptBackFault = "What is kept back has to be an amount, such as 12.50, or a share, such as 5 %.";

bool isEmpty(const ui::TextBox& box) { return withoutOuterBlanks(box.text).empty(); }

/// @returns the text of a box for a prize that is nothing: an empty box is easier to read
std::string textOf(const Prize& prize) { return prize == Prize{Money{}} ? std::string{} : prizeInWords(prize); }

std::string prizeFault(std::size_t box)
{
    return "The prize for place " + std::to_string(box + 1) +
           " has to be an amount, such as 12.50, or a share, such as 60 %.";
}

} // namespace

PrizeBoxes::PrizeBoxes(ui::Screen* owner)
    : lblEntryFee{owner, "lblEntryFee", "Entry fee of each player:"},
      txtEntryFee{owner, "txtEntryFee"},
      lblKeptBack{owner, "lblKeptBack", "Kept back:"},
      txtKeptBack{owner, "txtKeptBack"},
      lblPlace{owner, "lblPlace"},
      txtPrize{owner, "txtPrize"},
      lblAmount{owner, "lblAmount"},
      lblMorePrizes{owner, "lblMorePrizes"},
      lblTies{owner, "lblTies", "Equal points:"},
      optTies{owner, "optTies"}
{
    optTies[TieRule::Nearest].caption = "Near&est prediction";
    optTies[TieRule::NotOver].caption = "Nearest &not over the total";
    optTies[TieRule::Share].caption = "Places are s&hared";
    explain();
}

void PrizeBoxes::explain()
{
    txtEntryFee.spokenName = "Entry fee of each player";
    txtEntryFee.explanation = "What each player pays: an amount, such as 10 or 12.50; empty = nothing.";
    txtKeptBack.spokenName = "Kept back";
    txtKeptBack.explanation = "What is not given out as prizes: an amount, or a share of all fees, such as 5 %.";
    txtEntryFee.maxLength = txtKeptBack.maxLength = kLongestAmount;
    for (std::size_t i = 0; i < kPrizeBoxes; ++i) {
        const std::string place = std::to_string(i + 1);
        lblPlace[i].text = "Place " + place + ":";
        txtPrize[i].spokenName = "Prize for place " + place;
        txtPrize[i].explanation = "An amount, such as 50, or a share of what is left for shares, such as 60 %.";
        txtPrize[i].maxLength = kLongestAmount;
    }
    for (const TieRule rule : {TieRule::Nearest, TieRule::NotOver, TieRule::Share})
        optTies[rule].explanation = explanationOf(rule);
}

void PrizeBoxes::fill(const PrizeTable& table)
{
    txtEntryFee.text = textOf(table.entryFee);
    txtKeptBack.text = textOf(table.keptBack);
    for (std::size_t i = 0; i < kPrizeBoxes; ++i)
        txtPrize[i].text = i < table.prizes.size() ? textOf(table.prizes[i]) : std::string{};
    const std::size_t shown = std::min(table.prizes.size(), kPrizeBoxes);
    m_further.assign(table.prizes.begin() + static_cast<std::ptrdiff_t>(shown), table.prizes.end());
    ui::selectOption(optTies, static_cast<std::size_t>(table.ties));
    const auto nothing = std::ranges::count(m_further, Prize{Money{}});
    lblMorePrizes.text = furtherPrizesInWords(m_further.size() - static_cast<std::size_t>(nothing));
    lblMorePrizes.visible = !m_further.empty();
}

std::optional<BoxFault> PrizeBoxes::read(PrizeTable& table)
{
    table = {};
    for (const TieRule rule : {TieRule::Nearest, TieRule::NotOver, TieRule::Share})
        if (optTies[rule].selected)
            table.ties = rule;
    std::optional<BoxFault> fault;
    if (const std::optional<Money> fee = moneyOf(txtEntryFee.text))
        table.entryFee = *fee;
    else if (!isEmpty(txtEntryFee))
        fault = {&txtEntryFee, kFeeFault};
    if (const std::optional<Prize> kept = prizeOf(txtKeptBack.text))
        table.keptBack = *kept;
    else if (!isEmpty(txtKeptBack) && !fault)
        fault = {&txtKeptBack, kKeptBackFault};
    const std::optional<BoxFault> ofPrizes = readPlaces(table);
    return fault ? fault : ofPrizes;
}

std::optional<BoxFault> PrizeBoxes::readPlaces(PrizeTable& table)
{
    std::optional<BoxFault> fault;
    for (std::size_t i = 0; i < kPrizeBoxes; ++i) {
        const std::optional<Prize> prize = prizeOf(txtPrize[i].text);
        if (!prize && !isEmpty(txtPrize[i]) && !fault)
            fault = {&txtPrize[i], prizeFault(i)};
        table.prizes.push_back(prize.value_or(Money{}));
    }
    table.prizes.insert(table.prizes.end(), m_further.begin(), m_further.end());
    while (!table.prizes.empty() && table.prizes.back() == Prize{Money{}})
        table.prizes.pop_back();
    if (const std::optional<Failure> tooMuch = faultOf(table); tooMuch && !fault)
        fault = {lastShare(), tooMuch->message};
    return fault;
}

/// @returns the box of the last share, where a sum that is too large can be corrected; the first box without one
ui::TextBox* PrizeBoxes::lastShare()
{
    ui::TextBox* box = &txtPrize[0];
    for (std::size_t i = 0; i < kPrizeBoxes; ++i)
        if (txtPrize[i].text.find('%') != std::string::npos)
            box = &txtPrize[i];
    return box;
}

std::vector<std::string> PrizeBoxes::entered() const
{
    std::vector<std::string> all{txtEntryFee.text, txtKeptBack.text};
    for (std::size_t i = 0; i < kPrizeBoxes; ++i)
        all.push_back(txtPrize[i].text);
    for (std::size_t i = 0; i < kTieRules; ++i)
        all.emplace_back(optTies[i].selected ? "1" : "");
    return all;
}

void PrizeBoxes::showAmounts(const std::optional<Purse>& purse)
{
    for (std::size_t i = 0; i < kPrizeBoxes; ++i) {
        const bool wins = purse && i < purse->prizes.size() && !isEmpty(txtPrize[i]);
        lblAmount[i].text = wins ? moneyInWords(purse->prizes[i]) : std::string{};
    }
}

} // namespace tallyhoop
