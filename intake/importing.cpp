// intake/importing.cpp - the selections first, several at a time, then the player list once.
#include "intake/importing.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/replace_file.h"
#include "intake/import_summary.h"
#include "intake/players_here.h"

#include <algorithm>
#include <atomic>
#include <optional>
#include <system_error>
#include <thread>
#include <unordered_map>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kChangedMeanwhile = "The file has been changed since the review.";
constexpr const char* kStopped = "The import was stopped before.";

/// What becomes of a row: nothing is also "not begun".
using Written = std::optional<Result<Done>>;

Result<Done> writeRow(const ReviewRow& row)
{
    bool isChanged = false;
    const auto mayReplace = [&] {
        isChanged = !KnownFiles::contentOf(row.file).isSameAs(row.seen);
        return !isChanged;
    };
    if (row.effect == Effect::Identical)
        return mayReplace() ? Result<Done>{Done{}} : Failure{kChangedMeanwhile};
    Result<Done> written = replaceFile(row.file, bytesToWrite(row.handedIn), mayReplace);
    return isChanged ? Result<Done>{Failure{kChangedMeanwhile}} : written;
}

/// Writes rows, several at a time; the thread of the caller is one of those that write, and the one that is asked to
/// stop.
class WritingAtOnce
{
public:
    WritingAtOnce(const Review& review, std::span<const std::size_t> rows)
        : m_review{review}, m_rows{rows}, m_written(rows.size())
    {
    }

    /// @returns what became of each row, in their order
    std::vector<Written> write(const Step& step, std::size_t writers)
    {
        {
            std::vector<std::jthread> threads; // they end before what is below is read
            try {
                while (threads.size() + 1 < std::min(writers, m_rows.size()))
                    threads.emplace_back([this] {
                        while (writeNext())
                            ;
                    });
            } catch (const std::system_error&) {
                // The system has no more of them. The caller writes what is left.
            }
            while (writeNext())
                if (!step())
                    m_next = m_rows.size();
        }
        return std::move(m_written);
    }

private:
    /// @returns false when there is nothing left to begin with
    bool writeNext()
    {
        const std::size_t next = m_next++;
        if (next >= m_rows.size())
            return false;
        m_written[next] = writeRow(m_review.rows[m_rows[next]]);
        return true;
    }

    const Review& m_review;
    std::span<const std::size_t> m_rows;
    std::vector<Written> m_written; ///< each element is one thread's
    std::atomic<std::size_t> m_next = 0;
};

/// @returns the ticked rows, one for each file; the others for it are noted as not written
std::vector<std::size_t> rowsToWrite(const Review& review, ImportOutcome& outcome)
{
    std::unordered_map<std::string, std::size_t> chosen;
    for (std::size_t i = 0; i < review.rows.size(); ++i) {
        const ReviewRow& row = review.rows[i];
        if (!row.isTicked || row.effect == Effect::Refused)
            continue;
        const auto [known, isFirst] = chosen.emplace(upperCase(row.fileName), i);
        if (isFirst)
            continue;
        const bool isLatest = !row.later || review.rows[known->second].later == i;
        const std::size_t passedOver = isLatest ? std::exchange(known->second, i) : i;
        outcome.notWritten.push_back(
            {passedOver, "Row " + std::to_string(known->second + 1) + " is for the same file."});
    }
    std::vector<std::size_t> rows;
    rows.reserve(chosen.size());
    for (const auto& [name, row] : chosen)
        rows.push_back(row);
    std::ranges::sort(rows);
    return rows;
}

/// Adds the players of the rows to the list, and writes it if that changes it.
void addPlayers(const Review& review, std::span<const std::size_t> rows, const DataFolder& folder,
                ImportOutcome& outcome)
{
    const std::filesystem::path list = folder.pathTo(file_name::kPlayerNames);
    const FileContent seen = KnownFiles::contentOf(list);
    if (seen.trouble || annotatedCopy(linesOf(seen.bytes))) {
        outcome.playerListTrouble = seen.trouble ? seen.trouble->message : "There are faulty records in it.";
        return;
    }
    PlayersHere players{readPlayerNames(folder)};
    for (const std::size_t row : rows) {
        const HandedIn& handedIn = review.rows[row].handedIn;
        const NewPlayer player{handedIn.entry.name + "," + handedIn.entry.initials, review.rows[row].fileName,
                               handedIn.email};
        if (!players.add(player))
            continue;
        ++outcome.playersAdded;
        if (!player.email.empty() && recordedAddress(player.email).empty())
            outcome.playersWithoutAddress.push_back(player.name);
    }
    if (outcome.playersAdded == 0)
        return;
    bool isChanged = false;
    const auto mayReplace = [&] {
        isChanged = !KnownFiles::contentOf(list).isSameAs(seen);
        return !isChanged;
    };
    const Result<Done> written = replaceFile(list, playerNamesFile(players.sorted()), mayReplace);
    if (written)
        return;
    outcome.playersAdded = 0;
    outcome.playersWithoutAddress.clear();
    outcome.playerListTrouble = isChanged ? "Another program has just changed it." : written.failure().message;
}

} // namespace

ImportOutcome importTicked(const Review& review, const DataFolder& folder, const Step& step, std::size_t writers)
{
    ImportOutcome outcome;
    const std::vector<std::size_t> rows = rowsToWrite(review, outcome);
    const std::vector<Written> written = WritingAtOnce{review, rows}.write(step, writers);
    std::vector<std::size_t> imported;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!written[i] || !*written[i]) {
            outcome.notWritten.push_back({rows[i], written[i] ? written[i]->failure().message : kStopped});
            continue;
        }
        imported.push_back(rows[i]);
        const Effect effect = review.rows[rows[i]].effect;
        ++(effect == Effect::New         ? outcome.created
           : effect == Effect::Identical ? outcome.unchanged
                                         : outcome.replaced);
    }
    std::ranges::sort(outcome.notWritten, {}, &NotWritten::row);
    if (!imported.empty())
        addPlayers(review, imported, folder, outcome);
    outcome.summary = summaryOf(review, outcome);
    return outcome;
}

} // namespace tallyhoop
