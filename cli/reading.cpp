// cli/reading.cpp - each fault is reported with the name of its file.
#include "cli/reading.h"

#include "files/file_names.h"
#include "files/pool_files.h"
#include "files/setup_file.h"

#include <utility>

namespace tallyhoop::cli {

namespace {

void reportTrouble(Session& session, const FileTrouble& trouble)
{
    if (trouble.file == session.folder().folder())
        session.fault(kNotListed + trouble.failure.message);
    else
        session.faultIn(shown(trouble.file.filename()), trouble.failure.message);
}

} // namespace

Field readField(Session& session)
{
    ReadField read = tallyhoop::readField(session.folder());
    if (read.trouble)
        session.faultIn(file_name::kSetup, read.trouble->message);
    else if (!read.isWhole)
        session.faultIn(file_name::kSetup, kFieldNotWhole);
    return std::move(read.value);
}

std::vector<FolderFile> listSelections(Session& session)
{
    Read<std::vector<FolderFile>> listed = session.folder().list(file_name::kSelectionExtension);
    if (listed.trouble)
        session.fault(kNotListed + listed.trouble->message);
    return std::move(listed.value);
}

std::optional<OpenedPool> openPool(Session& session)
{
    if (!session.folder().exists(file_name::kSetup)) {
        session.faultIn(file_name::kSetup, kNoField);
        return std::nullopt;
    }
    ReadPool read = readPoolInSteps(session.folder(), goOn);
    if (!read.isFieldWhole && !read.isFieldDamaged)
        session.faultIn(file_name::kSetup, kFieldNotWhole);
    for (const FileTrouble& trouble : read.troubles)
        reportTrouble(session, trouble);
    OpenedPool opened = openedPool(std::move(read));
    if (opened.pool.entries.empty()) {
        session.fault(kNoPlayers);
        return std::nullopt;
    }
    return opened;
}

Read<Prizes> readPrizes(Session& session)
{
    Read<Prizes> read = tallyhoop::readPrizes(session.folder());
    if (read.trouble)
        session.fault(read.trouble->message);
    return read;
}

void ReportingWatcher::fileIsDamaged(const std::filesystem::path& file, const Failure& trouble)
{
    m_damaged.insert(shown(file.filename()));
    m_session.faultIn(shown(file.filename()), trouble.message);
}

void ReportingWatcher::listIsFaulty(const Failure& fault) { m_session.fault(fault.message); }

bool ReportingWatcher::watch(const std::string&, std::size_t, const std::function<void(const Step&)>& work)
{
    work(goOn);
    return true;
}

} // namespace tallyhoop::cli
