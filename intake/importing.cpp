// intake/importing.cpp - the selections first, several at a time, then the player list once.
#include "intake/importing.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_backup.h"
#include "files/replace_file.h"
#include "files/selection_file.h"
#include "intake/import_summary.h"
#include "intake/players_here.h"
#include "intake/review_words.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <unordered_map>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kChangedMeanwhile = "The file has been changed since the review.";
constexpr const char* kStopped = "The import was stopped before.";

namespace fs = std::filesystem;

/// What becomes of a row: the folder where what it replaced is kept, empty where that is not wanted. Nothing is also
/// "not begun".
using Written = std::optional<Result<fs::path>>;

/// @param now for the name of the folder
Result<fs::path> keepWhatIsDamaged(const ReviewRow& row, std::chrono::local_seconds now)
{
    if (!row.isDamagedHere)
        return fs::path{};
    Result<fs::path> kept = backUpFile(row.file, now);
    if (kept)
        return kept;
    return Failure{"What is here could not be kept first: " + joined(linesOf(kept.failure().message), ": ")};
}

Result<fs::path> writeRow(const ReviewRow& row, std::chrono::local_seconds now)
{
    bool isChanged = false;
    const auto mayReplace = [&] {
        isChanged = !KnownFiles::contentOf(row.file).isSameAs(row.seen);
        return !isChanged;
    };
    if (row.effect == Effect::Identical)
        return mayReplace() ? Result<fs::path>{fs::path{}} : Failure{kChangedMeanwhile};
    if (row.isDamagedHere && !mayReplace())
        return Failure{kChangedMeanwhile};
    Result<fs::path> kept = keepWhatIsDamaged(row, now);
    if (!kept)
        return kept;
    const Result<Done> written = replaceFile(row.file, bytesToWrite(row.handedIn), mayReplace);
    if (written)
        return kept;
    std::error_code ignored;
    if (!kept->empty())
        fs::remove_all(*kept, ignored); // the file itself is still there
    return isChanged ? Failure{kChangedMeanwhile} : written.failure();
}

/// Writes rows, several at a time. The caller's thread counts what is done and asks whether to go on: a row is begun
/// only as long as no more than there are writers have not been counted, so that being stopped leaves few to wait for.
class WritingAtOnce
{
public:
    WritingAtOnce(const Review& review, std::span<const std::size_t> rows, std::chrono::local_seconds now,
                  std::size_t writers)
        : m_review{review}, m_rows{rows}, m_now{now}, m_written(rows.size()), m_mayBegin{std::min(writers, rows.size())}
    {
    }

    /// @returns what became of each row, in their order
    std::vector<Written> write(const Step& step)
    {
        std::vector<std::jthread> threads = begun();
        for (std::size_t counted = 0; counted < m_rows.size(); ++counted) {
            if (threads.empty())
                m_written[counted] = writeRow(m_review.rows[m_rows[counted]], m_now);
            else
                waitUntilDone(counted + 1);
            if (!step())
                break;
            letOneMoreBegin();
        }
        threads.clear(); // each finishes the row that it is at
        return std::move(m_written);
    }

private:
    /// @returns none when one row at a time is wanted
    std::vector<std::jthread> begun()
    {
        std::vector<std::jthread> threads;
        if (m_mayBegin <= 1)
            return threads;
        threads.reserve(m_mayBegin);
        try {
            while (threads.size() < threads.capacity())
                threads.emplace_back([this](const std::stop_token& stop) {
                    while (writeNext(stop))
                        ;
                });
        } catch (const std::system_error&) {
            // The system has no more of them. Those that there are do it all.
        }
        return threads;
    }

    /// @returns false when there is nothing left to begin with
    bool writeNext(const std::stop_token& stop)
    {
        std::unique_lock lock{m_mutex};
        m_mayGoOn.wait(lock, stop, [this] { return m_next < m_mayBegin; });
        if (stop.stop_requested())
            return false;
        const std::size_t next = m_next++;
        lock.unlock();
        m_written[next] = writeRow(m_review.rows[m_rows[next]], m_now);
        lock.lock();
        ++m_done;
        m_isDone.notify_one();
        return true;
    }

    void waitUntilDone(std::size_t rows)
    {
        std::unique_lock lock{m_mutex};
        m_isDone.wait(lock, [&] { return m_done >= rows; });
    }

    void letOneMoreBegin()
    {
        const std::lock_guard lock{m_mutex};
        m_mayBegin = std::min(m_mayBegin + 1, m_rows.size());
        m_mayGoOn.notify_one();
    }

    const Review& m_review;
    std::span<const std::size_t> m_rows;
    std::chrono::local_seconds m_now;
    std::vector<Written> m_written; ///< each element is one thread's
    std::mutex m_mutex;             ///< for all that follows
    std::size_t m_mayBegin;         ///< how many rows may have been begun by now
    std::size_t m_next = 0;
    std::size_t m_done = 0;
    std::condition_variable_any m_mayGoOn;
    std::condition_variable m_isDone;
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

/// @returns whether the address that was given does not fit into the player list, but that of the mail does
bool needsSender(const ReviewRow& row)
{
    const std::string& given = row.handedIn.email;
    return !given.empty() && recordedAddress(given).empty() && !recordedAddress(row.handedIn.origin.sender).empty();
}

NewPlayer playerWithAddress(const ReviewRow& row)
{
    NewPlayer player = playerOf(row);
    player.email = needsSender(row) ? row.handedIn.origin.sender : row.handedIn.email;
    return player;
}

/// @returns the players of all selections whose file names are cut in the player list, when there are such among the
///          rows: two of them may look the same there
std::vector<NewPlayer> playersWithCutNames(const Review& review, std::span<const std::size_t> rows,
                                           const DataFolder& folder)
{
    std::vector<NewPlayer> players;
    if (std::ranges::none_of(rows, [&](std::size_t row) { return PlayersHere::isCut(review.rows[row].fileName); }))
        return players;
    for (const FolderFile& file : folder.files(file_name::kSelectionExtension)) {
        if (!PlayersHere::isCut(file.name))
            continue;
        const Entry entry = readSelectionFile(file.path, {}).value;
        players.push_back({entry.name + "," + entry.initials, file.name, {}});
    }
    return players;
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
    PlayersHere players{readPlayerNames(folder), playersWithCutNames(review, rows, folder)};
    for (const std::size_t row : rows) {
        const NewPlayer player = playerWithAddress(review.rows[row]);
        const bool isAlike = players.find(player) != nullptr;
        if (!players.add(player))
            continue;
        ++outcome.playersAdded;
        if (isAlike)
            outcome.playersAlike.push_back(player.name);
        if (needsSender(review.rows[row]))
            outcome.playersWithSender.push_back(player.name);
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
    outcome.playersAlike.clear();
    outcome.playersWithSender.clear();
    outcome.playersWithoutAddress.clear();
    outcome.playerListTrouble = isChanged ? "Another program has just changed it." : written.failure().message;
}

} // namespace

ImportOutcome importTicked(const Review& review, const DataFolder& folder, std::chrono::local_seconds now,
                           const Step& step, std::size_t writers)
{
    ImportOutcome outcome;
    const std::vector<std::size_t> rows = rowsToWrite(review, outcome);
    const std::vector<Written> written = WritingAtOnce{review, rows, now, writers}.write(step);
    std::vector<std::size_t> imported;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!written[i] || !*written[i]) {
            outcome.notWritten.push_back({rows[i], written[i] ? written[i]->failure().message : kStopped});
            continue;
        }
        imported.push_back(rows[i]);
        if (const fs::path& backup = **written[i]; !backup.empty())
            outcome.kept.push_back({rows[i], backup});
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
