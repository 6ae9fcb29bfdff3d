// cli/check.cpp - every file of the pool, one after the other, held against what a save in the windows asks for.
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "cli/reading.h"
#include "cli/verbs.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/pool_files.h"
#include "files/prizes_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "files/team_name_list_file.h"
#include "intake/game_words.h"
#include "pool/entry_check.h"
#include "pool/faults.h"
#include "pool/field_check.h"

#include <utility>
#include <variant>

namespace tallyhoop::cli {

namespace {

std::string inQuotes(const std::string& name) { return "\"" + name + "\""; }

std::string rowWords(const Field& field, TeamRow row)
{
    const auto number = static_cast<std::size_t>(regionOf(row));
    std::string region = withoutOuterBlanks(field.regionTitles.at(number));
    if (region.empty())
        region = "Region " + std::to_string(number + 1);
    return region + ", row " + std::to_string(rowInRegion(row) + 1);
}

struct FieldFaultWords {
    const Field& field;

    std::string operator()(const BlankTeam& fault) const { return rowWords(field, fault.row) + " has no team."; }
    std::string operator()(const BlankTitle&) const { return "The pool has no title."; }
    std::string operator()(const BlankRegionTitle& fault) const
    {
        return "Region " + std::to_string(fault.region + 1) + " has no title.";
    }
    std::string operator()(const BadPayoff& fault) const
    {
        return "The points of round " + std::to_string(fault.round) + " are not 1 to 99.";
    }
};

const char* wordsOf(EntryFault fault)
{
    switch (fault) {
    case EntryFault::Initials:
        return "The initials are missing.";
    case EntryFault::Name:
        return "The name is missing.";
    case EntryFault::FinalPoints:
        break;
    }
    return "The total of the final is not 50 to 250.";
}

const char* wordsOf(RecordFault fault)
{
    switch (fault) {
    case RecordFault::TooLong:
        return "is too long";
    case RecordFault::TooShort:
        return "is too short";
    case RecordFault::BadFormat:
    case RecordFault::None:
        break;
    }
    return "has not the format of a record";
}

std::string teamWords(const std::string& team) { return team.empty() ? "no team" : inQuotes(team); }

/// @returns which team a row has instead of the field's
std::string otherTeamWords(const Field& field, TeamRow row, const std::string& team)
{
    return rowWords(field, row) + " has " + teamWords(team) + ", the field has " + teamWords(field.teams[row]) + ".";
}

class Check
{
public:
    explicit Check(Session& session) : m_session{session} {}

    void run()
    {
        checkNames();
        checkField();
        checkResults();
        checkSelections();
        checkPlayerList();
        checkOtherFiles();
        m_session.writeText(counted(m_files, "file", "files") + " read, " + counted(m_faults, "fault", "faults") +
                            ".\r\n");
    }

private:
    void report(const std::string& fault)
    {
        ++m_faults;
        m_session.fault(fault);
    }

    void report(const std::string& file, const std::string& fault) { report(file + ": " + fault); }

    /// @returns whether the file is there
    bool begins(const char* name)
    {
        const bool isThere = m_session.folder().exists(name);
        m_files += isThere ? 1 : 0;
        return isThere;
    }

    /// One of them is read, and nobody sees which.
    void checkNames()
    {
        for (const char* name : {file_name::kSetup, file_name::kResults, file_name::kTeamNames, file_name::kPlayerNames,
                                 file_name::kPrizes, file_name::kSettings})
            if (const std::vector<std::string> spellings = m_session.folder().spellingsOf(name); spellings.size() > 1)
                report(name, "There are several of this name: " + joined(spellings, ", ") + ".");
    }

    void checkField()
    {
        if (!begins(file_name::kSetup)) {
            report(file_name::kSetup, kNoField);
            return;
        }
        ReadField read = tallyhoop::readField(m_session.folder());
        if (read.trouble)
            report(file_name::kSetup, read.trouble->message);
        else if (!read.isWhole)
            report(file_name::kSetup, kFieldNotWhole);
        m_field = std::move(read.value);
        if (!m_field.isFinalized())
            return;
        for (const FieldFault& fault : fieldFaults(m_field))
            report(file_name::kSetup, std::visit(FieldFaultWords{m_field}, fault));
        for (const RepeatedTeam& team : repeatedTeams(m_field))
            report(file_name::kSetup,
                   counted(team.rows.size(), "row", "rows") + " have the team " + inQuotes(team.name) + ".");
    }

    void checkResults()
    {
        if (!begins(file_name::kResults))
            return;
        const Read<Entry> read =
            readSelectionFile(m_session.folder().pathTo(file_name::kResults), startingBracket(m_field));
        checkEntry(file_name::kResults, read, EntryKind::Results);
    }

    void checkSelections()
    {
        const Read<std::vector<FolderFile>> listed = m_session.folder().list(file_name::kSelectionExtension);
        if (listed.trouble)
            report(kNotListed + listed.trouble->message);
        m_files += listed.value.size();
        readSelections(listed.value, startingBracket(m_field), [this](const FolderFile& file, const Read<Entry>& read) {
            checkEntry(file.name, read, EntryKind::Player);
            return true;
        });
    }

    void checkEntry(const std::string& file, const Read<Entry>& read, EntryKind kind)
    {
        if (read.trouble) {
            report(file, read.trouble->message);
            return;
        }
        for (const EntryFault fault : entryFaults(read.value, kind))
            report(file, wordsOf(fault));
        if (m_field.isFinalized())
            checkPicks(file, read.value.picks, kind);
    }

    void checkPicks(const std::string& file, const Bracket& picks, EntryKind kind)
    {
        std::size_t missing = 0;
        for (const Fault& fault : faultsOf(picks, m_field)) {
            const std::string& team = picks.at(fault.position);
            if (fault.kind == FaultKind::NoPick)
                ++missing;
            else if (fault.kind == FaultKind::OtherTeam)
                report(file, otherTeamWords(m_field, *teamRowOf(fault.position), team));
            else
                report(file, inQuotes(team) + " does not play in " + gameWords(m_field, *gameOf(fault.position)) + ".");
        }
        if (missing > 0 && kind == EntryKind::Player)
            report(file, counted(missing, "game", "games") + " of 63 without a pick.");
    }

    void checkPlayerList()
    {
        if (!begins(file_name::kPlayerNames))
            return;
        const Result<std::string> bytes = m_session.folder().read(file_name::kPlayerNames);
        if (!bytes) {
            report(file_name::kPlayerNames, bytes.failure().message);
            return;
        }
        const std::vector<std::string> lines = linesOf(*bytes);
        for (std::size_t line = 0; line < lines.size(); ++line)
            if (const RecordFault fault = faultOf(lines[line]); fault != RecordFault::None)
                report(file_name::kPlayerNames, "Record " + std::to_string(line + 1) + " " + wordsOf(fault) + ".");
    }

    void checkOtherFiles()
    {
        if (begins(file_name::kTeamNames))
            if (const auto names = readTeamNames(m_session.folder()); !names)
                report(file_name::kTeamNames, names.failure().message);
        if (begins(file_name::kPrizes))
            for (const Failure& fault : readPrizesFaults(m_session.folder()))
                report(fault.message);
        if (begins(file_name::kSettings))
            if (const auto bytes = m_session.folder().read(file_name::kSettings); !bytes)
                report(file_name::kSettings, bytes.failure().message);
    }

    Session& m_session;
    Field m_field = defaultField();
    std::size_t m_files = 0;
    std::size_t m_faults = 0;
};

} // namespace

void check(Session& session) { Check{session}.run(); }

} // namespace tallyhoop::cli
