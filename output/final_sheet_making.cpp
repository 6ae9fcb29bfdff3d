// output/final_sheet_making.cpp - scores everybody, and hands the scores on.
#include "output/final_sheet_making.h"

#include "base/one_line.h"
#include "files/file_names.h"
#include "pool/scoring.h"
#include "reports/final_sheet_words.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

/// As wide as the other remarks.
constexpr std::size_t kMostOfReason = 75;

std::vector<std::string> damageInWords(const Failure& trouble)
{
    std::string reason = onOneLine(trouble.message);
    if (reason.size() > kMostOfReason)
        reason.replace(kMostOfReason - 3, std::string::npos, "...");
    return {std::string{file_name::kPrizes} + " could not be read whole: these prizes are not final",
            std::move(reason)};
}

} // namespace

Result<FinalSheet> makeFinalSheet(const OpenedPool& opened, const PrizeTable& table,
                                  const std::optional<Failure>& prizesTrouble)
{
    const Pool& pool = opened.pool;
    if (!pool.results)
        return Failure{"Game results have not been entered: there is no final sheet."};
    const Result<Payoffs>& payoffs = pool.field.payoffs.points();
    if (!payoffs)
        return payoffs.failure();
    const auto scores = scoreEntries(pool.entries, pool.results->picks, *payoffs);
    if (!scores)
        return scores.failure();
    const Result<FinalSheet> made = finalSheetOf(*scores, *pool.results, table);
    if (!made)
        return made;
    FinalSheet sheet = *made;
    if (prizesTrouble)
        std::ranges::move(damageInWords(*prizesTrouble), std::back_inserter(sheet.remarks));
    std::ranges::move(unreadInWords(opened), std::back_inserter(sheet.remarks));
    return sheet;
}

PageFinalSheet pageFinalSheetOf(const FinalSheet& sheet)
{
    PageFinalSheet page;
    page.notes = finalSheetNotes(sheet);
    page.rows.reserve(sheet.rows.size());
    for (const FinalRow& row : sheet.rows)
        page.rows.push_back({placeInWords(row), row.name, std::to_string(row.points),
                             row.predicted ? std::to_string(*row.predicted) : std::string{}, prizeInWords(row),
                             row.isLast, offInWords(row), row.player});
    page.pairsNotes = pairsNotes(sheet);
    std::vector<PairInWords> words = pairsInWords(sheet);
    page.pairs.reserve(words.size());
    for (std::size_t i = 0; i < words.size(); ++i)
        page.pairs.push_back({std::move(words[i]), sheet.pairs[i].lower, sheet.pairs[i].higher});
    return page;
}

} // namespace tallyhoop
