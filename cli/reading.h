// cli/reading.h - the files of the pool, read with their faults told.
#pragma once

#include "cli/session.h"
#include "files/prizes_file.h"
#include "output/opened_pool.h"
#include "output/report_making.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::cli {

/// @returns the field; the default one where there is none, or none that can be read
Field readField(Session& session);

/// @returns every player's file, in list order
std::vector<FolderFile> listSelections(Session& session);

/// @returns the field, the results and the entries of which something is known
OpenedPool openPool(Session& session);

/// @returns the prizes, or those that could be read; none where there are none
Read<Prizes> readPrizes(Session& session);

/// Tells why there is no report.
void tell(Session& session, const ReportRefusal& refusal);

/// Tells of damaged files while reports are made.
class TellingWatcher : public ReportWatcher
{
public:
    explicit TellingWatcher(Session& session) : m_session{session} {}

    void fileIsDamaged(const std::filesystem::path& file, const Failure& trouble) override;
    void listIsFaulty(const Failure& fault) override;
    bool watch(const std::string& what, std::size_t steps, const std::function<void(const Step&)>& work) override;

private:
    Session& m_session;
};

} // namespace tallyhoop::cli
