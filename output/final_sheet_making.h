// output/final_sheet_making.h - the sheet that ends the season, made of a pool and its prizes.
#pragma once

#include "output/opened_pool.h"
#include "pool/prizes/prize_table.h"
#include "reports/final_sheet.h"
#include "reports/page/pool_page.h"

#include <optional>

namespace tallyhoop {

/// @param prizesTrouble why the table is not whole; nothing = it is
/// @returns the sheet by the results as entered, with what was not read among its remarks; a failure without results,
///          without players, before the last four are known, and when a number does not fit 16 bits
Result<FinalSheet> makeFinalSheet(const OpenedPool& opened, const PrizeTable& table,
                                  const std::optional<Failure>& prizesTrouble = {});

/// @returns the same for the pool's page
PageFinalSheet pageFinalSheetOf(const FinalSheet& sheet);

} // namespace tallyhoop
