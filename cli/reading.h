// cli/reading.h - the files of the pool, read with their faults reported.
#pragma once

#include "cli/session.h"
#include "files/prizes_file.h"
#include "output/opened_pool.h"
#include "output/report_making.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tallyhoop::cli {

/// The fault of a folder of which no player is known.
inline constexpr const char* kNoPlayers = "There is no selection that can be read: nothing was made.";

/// The faults of a setup file, whose name comes before them.
inline constexpr const char* kNoField = "It is not there: the field was never saved.";
inline constexpr const char* kFieldNotWhole = "It cannot be read, or not whole.";

/// The beginning of the fault of a folder that cannot be listed.
inline constexpr const char* kNotListed = "The selections cannot be listed, or not all of them: ";

/// @returns the field; the default one where there is none, or none that can be read
Field readField(Session& session);

/// @returns every player's file, in list order
std::vector<FolderFile> listSelections(Session& session);

/// @returns the field, the results and the entries of which something is known; nothing, and the fault is reported,
///          without a field or without such entries
std::optional<OpenedPool> openPool(Session& session);

/// @returns the prizes, or those that could be read; none where there are none
Read<Prizes> readPrizes(Session& session);

/// Reports damaged files while reports are made.
class ReportingWatcher : public ReportWatcher
{
public:
    explicit ReportingWatcher(Session& session) : m_session{session} {}

    void fileIsDamaged(const std::filesystem::path& file, const Failure& trouble) override;
    void listIsFaulty(const Failure& fault) override;

    /// Whether a file of this bare name was damaged.
    bool hasReported(const std::string& file) const { return m_damaged.contains(file); }

    bool watch(const std::string& what, std::size_t steps, const std::function<void(const Step&)>& work) override;

private:
    Session& m_session;
    std::set<std::string> m_damaged;
};

} // namespace tallyhoop::cli
