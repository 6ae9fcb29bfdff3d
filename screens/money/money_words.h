// screens/money/money_words.h - the sentences of the screen of fees and prizes, and the cells of its table.
#pragma once

#include "pool/entry.h"
#include "pool/prizes/prize_table.h"
#include "ui/control.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

enum class FeeColumn { Paid, Player, Selection, Owes };

std::vector<ui::GridColumn> feeColumns();
std::vector<std::string> feeCells(const Entry& player, bool hasPaid, Money fee);

std::string explanationOf(TieRule rule);

/// @returns such as "and 2 prizes for further places, as in PRIZES.CSV"; empty for none
std::string furtherPrizesInWords(std::size_t prizes);

/// @returns who has paid, and what it comes to
std::string feesInWords(Money fee, std::size_t paid, std::size_t players);

/// @returns where the fees go
std::string purseInWords(const Purse& purse);

/// @returns the total of the final as the results have it, and what it is for
std::string totalInWords(const std::optional<Entry>& results, TieRule rule);

} // namespace tallyhoop
