// reports/score_list.h - the list of all scores: its columns and cells, and how it is printed.
#pragma once

#include "pool/scoring.h"

#include <array>
#include <chrono>
#include <span>
#include <string>
#include <vector>

namespace tallyhoop {

enum class ScoreColumn { FileName, PlayerName, Score, Maximum, WinningPick };

/// In the order in which they come first.
inline constexpr std::array kScoreColumns{ScoreColumn::FileName, ScoreColumn::PlayerName, ScoreColumn::Score,
                                          ScoreColumn::Maximum, ScoreColumn::WinningPick};

const char* headingOf(ScoreColumn column);

/// @returns what a cell shows
std::string cellOf(const PlayerScore& score, ScoreColumn column);

/// @returns a date in English, whatever the computer's language, such as "5-March-01"
std::string shortDate(std::chrono::year_month_day day);

/// @param rows as many cells each as there are headings
/// @returns the printed lines: a title with the date, the headings, and the rows
std::vector<std::string> scoreListLines(const std::vector<std::string>& headings,
                                        std::span<const std::vector<std::string>> rows,
                                        std::chrono::year_month_day day);

} // namespace tallyhoop
