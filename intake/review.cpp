// intake/review.cpp - each entry by itself first, then those that are for the same file.
#include "intake/review.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/settings_file.h"
#include "intake/entry_refusals.h"
#include "intake/known_teams.h"
#include "intake/players_here.h"
#include "intake/review_words.h"
#include "pool/filled_in.h"

#include <algorithm>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace tallyhoop {

namespace {

/// The selections of a folder, and those that an import adds, by the look of their names: a telephone writes another
/// apostrophe than a keyboard, and O'Brien must not become two players. Names are only found by their look; what is
/// written stays as it was typed, for the form saves the very same.
class SelectionsHere
{
public:
    explicit SelectionsHere(const DataFolder& folder) : m_folder{folder.folder()}
    {
        for (FolderFile& file : folder.files(file_name::kSelectionExtension))
            m_files[lookOf(file.name)].push_back(std::move(file));
    }

    /// @returns the file of this name; when there is none of exactly this name, one in any case of its letters, or else
    ///          one that looks alike; otherwise a new one, which is there from then on
    FolderFile fileOf(const std::string& name)
    {
        std::vector<FolderFile>& alike = m_files[lookOf(name)];
        if (const auto exact = std::ranges::find(alike, name, &FolderFile::name); exact != alike.end())
            return *exact;
        const auto same =
            std::ranges::find_if(alike, [&](const FolderFile& file) { return equalFolded(file.name, name); });
        if (same != alike.end())
            return *same;
        if (alike.empty())
            alike.push_back({name, m_folder / nativeName(name)});
        return alike.front();
    }

private:
    static std::string lookOf(std::string_view name) { return upperCase(withoutUnsafeCharacters(canonicalOf(name))); }

    std::filesystem::path m_folder;
    std::unordered_map<std::string, std::vector<FolderFile>> m_files;
};

/// What all entries are held against.
struct Standards {
    const Field& field;
    SelectionsHere selections;
    PlayersHere players;
    bool canAddPlayers = true;
    int results = 0;                 ///< games that have been decided
    std::vector<std::string> common; ///< why nothing is taken at all
    bool isDemo = false;             ///< nothing new is taken, as on the board
};

int differentPicks(const Bracket& left, const Bracket& right)
{
    return static_cast<int>(std::ranges::count_if(
        gamePositions(), [&](Position position) { return left.at(position) != right.at(position); }));
}

int resultsIn(const DataFolder& folder, const Field& field)
{
    if (!folder.exists(file_name::kResults))
        return 0;
    return gamesFilledIn(readSelectionFile(folder.pathTo(file_name::kResults), startingBracket(field)).value.picks);
}

std::vector<std::string> commonReasons(const Field& field)
{
    std::vector<std::string> reasons;
    if (!field.isFinalized())
        reasons.emplace_back("The field is not finalized yet.");
    return reasons;
}

/// @returns why nothing can be written to a place, when there is something else than a file; otherwise empty
std::string obstacleAt(const std::filesystem::path& file, const std::string& name)
{
    std::error_code ignored;
    const std::filesystem::file_status there = std::filesystem::status(file, ignored);
    if (std::filesystem::is_directory(there))
        return "There is a folder of the name " + name + ".";
    if (std::filesystem::is_other(there))
        return "What has the name " + name + " is no file, but a device or the like.";
    return {};
}

std::string playerListTrouble(const FileContent& list)
{
    if (list.trouble)
        return "the player list cannot be read";
    return annotatedCopy(linesOf(list.bytes)) ? "there are faulty records in the player list" : std::string{};
}

/// What is there is read only now, and compared again when it is replaced.
void compareWithFile(ReviewRow& row, const Bracket& like)
{
    row.seen = KnownFiles::contentOf(row.file);
    if (!row.seen.isThere)
        return;
    row.effect = row.seen.bytes == bytesToWrite(row.handedIn) ? Effect::Identical : Effect::Replaces;
    const Read<Entry> here = readSelection(row.seen.bytes, like);
    row.isDamagedHere = row.seen.trouble || here.trouble;
    row.differentPicks = differentPicks(here.value.picks, row.handedIn.entry.picks);
}

void warn(ReviewRow& row, const PlayersHere& players)
{
    const std::string otherFile = otherFileWarning(row, players);
    const std::string otherAddress = otherAddressWarning(row, players);
    row.warning = otherFile.empty() ? otherAddress : otherFile;
    const bool isSomebodyElses = row.effect == Effect::Replaces && (row.isDamagedHere || !otherAddress.empty());
    row.isDoubtful = isSomebodyElses || !otherFile.empty();
}

ReviewRow refusedRow(HandedIn handedIn, std::string reason)
{
    ReviewRow row;
    row.handedIn = std::move(handedIn);
    row.picks = gamesFilledIn(row.handedIn.entry.picks);
    row.effect = Effect::Refused;
    row.reasons.push_back(std::move(reason));
    return row;
}

ReviewRow rowOf(HandedIn handedIn, Standards& standards)
{
    ReviewRow row;
    row.handedIn = std::move(handedIn);
    row.picks = gamesFilledIn(row.handedIn.entry.picks);
    row.reasons = refusalsOf(row.handedIn, standards.field);
    row.reasons.insert(row.reasons.end(), standards.common.begin(), standards.common.end());
    if (!row.reasons.empty()) {
        row.effect = Effect::Refused;
        return row;
    }
    const Entry& entry = row.handedIn.entry;
    const std::string& given = row.handedIn.fileName;
    FolderFile file = standards.selections.fileOf(given.empty() ? proposedFileName(entry.name, entry.initials) : given);
    row.fileName = std::move(file.name);
    row.file = std::move(file.path);
    if (std::string obstacle = obstacleAt(row.file, row.fileName); !obstacle.empty())
        return refusedRow(std::move(row.handedIn), std::move(obstacle));
    row.isLate = standards.results > 0;
    row.addsPlayer = standards.canAddPlayers && standards.players.find(playerOf(row)) == nullptr;
    compareWithFile(row, entry.picks);
    if (standards.isDemo && row.effect == Effect::New)
        return refusedRow(std::move(row.handedIn), "The demo pool takes no new selections.");
    warn(row, standards.players);
    row.isTicked = row.isWorthWriting() && !row.isLate && !row.isDoubtful;
    return row;
}

/// @returns whether the second row, which comes after the first, was handed in later
bool isLater(const ReviewRow& first, const ReviewRow& second)
{
    const std::optional<std::int64_t>& before = first.handedIn.origin.date;
    const std::optional<std::int64_t>& after = second.handedIn.origin.date;
    return !before || !after || *before <= *after;
}

/// @returns the latest row among those that match; nothing when none does
template <typename Matches>
std::optional<std::size_t> latestOf(const std::vector<ReviewRow>& rows, const std::vector<std::size_t>& among,
                                    Matches matches)
{
    std::optional<std::size_t> latest;
    for (const std::size_t i : among)
        if (matches(rows[i]) && (!latest || isLater(rows[*latest], rows[i])))
            latest = i;
    return latest;
}

/// A later one that is here already must not leave an earlier one to replace it.
std::optional<std::size_t> latestToTick(const std::vector<ReviewRow>& rows, const std::vector<std::size_t>& among)
{
    return latestOf(rows, among, [](const ReviewRow& row) { return row.isComplete() && !row.isDoubtful; });
}

void tickOnly(std::vector<ReviewRow>& rows, const std::vector<std::size_t>& among, std::optional<std::size_t> ticked)
{
    for (const std::size_t i : among)
        rows[i].isTicked = i == ticked;
}

void groupByFile(Review& review)
{
    std::unordered_map<std::string, std::size_t> numbers;
    for (std::size_t i = 0; i < review.rows.size(); ++i) {
        ReviewRow& row = review.rows[i];
        if (row.effect == Effect::Refused)
            continue;
        row.fileNumber = numbers.emplace(upperCase(row.fileName), review.files.size()).first->second;
        review.files.resize(std::max(review.files.size(), row.fileNumber + 1));
        review.files[row.fileNumber].push_back(i);
    }
}

/// Notes in each row the latest one for its file, and leaves one tick at most.
void findRepeated(Review& review)
{
    groupByFile(review);
    for (const std::vector<std::size_t>& sameFile : review.files) {
        const std::optional<std::size_t> latest =
            latestOf(review.rows, sameFile, [](const ReviewRow&) { return true; });
        const std::optional<std::size_t> chosen = latestToTick(review.rows, sameFile);
        const bool isTicked = chosen && review.rows[*chosen].isTicked;
        tickOnly(review.rows, sameFile, isTicked ? chosen : std::nullopt);
        for (const std::size_t i : sameFile)
            if (i != latest)
                review.rows[i].later = latest;
    }
}

} // namespace

Review reviewOf(std::vector<HandedIn> handedIn, const DataFolder& folder, const Field& field, const Step& step)
{
    Review review;
    review.playerListTrouble = playerListTrouble(KnownFiles::contentOf(folder.pathTo(file_name::kPlayerNames)));
    Standards standards{field,
                        SelectionsHere{folder},
                        PlayersHere{readPlayerNames(folder)},
                        review.playerListTrouble.empty(),
                        resultsIn(folder, field),
                        commonReasons(field),
                        demoModeIsOn(folder)};
    review.resultsHere = standards.results;
    review.rows.reserve(handedIn.size());
    for (HandedIn& entry : handedIn) {
        review.rows.push_back(rowOf(std::move(entry), standards));
        if (!step())
            break;
    }
    findRepeated(review);
    for (ReviewRow& row : review.rows)
        row.words = wordsOf(row, review.rows);
    review.summary = summaryOf(review);
    return review;
}

void setTicked(Review& review, std::size_t row, bool isTicked)
{
    ReviewRow& chosen = review.rows.at(row);
    if (chosen.effect == Effect::Refused)
        return;
    if (isTicked)
        tickOnly(review.rows, review.files[chosen.fileNumber], row);
    chosen.isTicked = isTicked;
}

std::size_t tickAllComplete(Review& review)
{
    for (const std::vector<std::size_t>& sameFile : review.files)
        if (const auto latest = latestToTick(review.rows, sameFile); latest && review.rows[*latest].isWorthWriting())
            tickOnly(review.rows, sameFile, latest);
    return static_cast<std::size_t>(std::ranges::count_if(
        review.rows, [](const ReviewRow& row) { return row.isWorthWriting() && row.isDoubtful && !row.isTicked; }));
}

std::string bytesToWrite(const HandedIn& handedIn)
{
    Entry entry = handedIn.entry;
    entry.initials = upperCase(entry.initials);
    return selectionFile(entry);
}

} // namespace tallyhoop
