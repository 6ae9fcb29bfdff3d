// tests/fuzz/targets.h - everything that is fuzzed, run on arbitrary bytes, with what must hold whatever they are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tallyhoop::fuzz {

/// What does not hold that should; nothing when all is well.
using Complaint = std::optional<std::string>;

/// Runs one part of the program on bytes.
using Target = Complaint (*)(std::string_view bytes);

/// @name The readers of data files: the bytes are the file.
/// @{
Complaint setup(std::string_view bytes);
Complaint selection(std::string_view bytes);
Complaint players(std::string_view bytes);
Complaint teams(std::string_view bytes);
Complaint settings(std::string_view bytes);
/// @}

/// @name The readers of what is handed in: the bytes are the text, the table, the page, the mail.
/// @{
Complaint entry_text(std::string_view bytes);
Complaint entry_table(std::string_view bytes);
Complaint html_text(std::string_view bytes);
Complaint mail(std::string_view bytes); ///< linked only where the mail library is
/// @}

/// Scores one bracket against another, and compares with a slower scorer.
/// @param bytes lines separated by LF: six payoffs, the tie-breaker, 127 picks, 127 results; missing ones are empty
Complaint scoring(std::string_view bytes);

/// Counts who can still be first in a pool, and compares with scoring every outcome.
/// @param bytes a pool as decodePool() takes it; of many open games or players only some are used
Complaint outlook(std::string_view bytes);

/// @name The reports: the bytes are a pool as decodePool() takes it.
/// @{
Complaint standings(std::string_view bytes);
Complaint player_listing(std::string_view bytes);
Complaint team_selection_summary(std::string_view bytes);
Complaint team_selection_detail(std::string_view bytes);
Complaint player_selection_detail(std::string_view bytes);
Complaint results_by_player(std::string_view bytes);
Complaint results_by_team(std::string_view bytes);
/// @}

/// Types into a box that searches a list.
/// @param bytes lines separated by LF: the text in the box, the keys, then the rows of the list
Complaint list_search(std::string_view bytes);

/// Writes a message as a file and reads it again. Linked only where the mail library is.
/// @param bytes sections separated by byte 1E: recipients, one a line; the subject; the text; then the bytes
///              of each report
Complaint message_file(std::string_view bytes);

} // namespace tallyhoop::fuzz
