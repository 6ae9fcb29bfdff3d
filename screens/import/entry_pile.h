// screens/import/entry_pile.h - the entries that were handed in so far, and which of them are to be written.
#pragma once

#include "base/step.h"
#include "intake/importing.h"
#include "intake/review.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace tallyhoop {

class EntryPile
{
public:
    /// Both outlive it.
    EntryPile(const DataFolder& folder, const Field& field) : m_folder{folder}, m_field{field} {}

    const Review& review() const { return m_review; }
    std::size_t size() const { return m_review.rows.size(); }
    std::size_t ticked() const;

    /// Puts entries after those that are there, and holds all of them against the folder as it is now. Ticks that were
    /// set or taken away stay as they are, but a tick is taken away when the player has handed in again.
    /// @returns false when the work was stopped: then nothing has changed
    bool add(std::vector<HandedIn> entries, const Step& step = goOn);

    void setTicked(std::size_t row, bool isTicked);

    /// Ticks every complete entry that would change something, doubtful ones not; of several for one file the latest.
    /// @returns how many were left out for being doubtful
    std::size_t tickAllComplete();
    void untickAll();

    struct Imported {
        ImportOutcome outcome;
        std::vector<std::filesystem::path> files; ///< that hold what was handed in now
    };

    /// Writes what is ticked. What was written leaves the pile; the others are held against the folder once more.
    /// @param now local time
    Imported import(std::chrono::local_seconds now, const Step& step = goOn);

    void clear();

private:
    void decideAgain(std::size_t known);

    const DataFolder& m_folder;
    const Field& m_field;
    Review m_review;
    std::vector<std::optional<bool>> m_decided; ///< what a person has decided on each row; nothing = nothing yet
};

} // namespace tallyhoop
