// demo/sample_brackets.h - the brackets of the four sample players, so different that every report has something to
// show.
#pragma once

#include "demo/sample_tournament.h"

namespace tallyhoop::demo {

/// The better seed wins every game.
const Winners& favouritesBracket();

/// Upsets everywhere; nothing is left to win.
const Winners& upsetLoversBracket();

/// The champion and the final as they came.
const Winners& rightChampionsBracket();

/// Left half finished: no champion, and one side of the bracket mostly empty.
const Winners& incompleteBracket();

} // namespace tallyhoop::demo
