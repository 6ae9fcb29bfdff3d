// app/pool_in_documents.cpp - the question, and the copy.
#include "app/pool_in_documents.h"

#include "base/reason.h"
#include "base/text.h"
#include "files/file_names.h"

#include <string>
#include <system_error>
#include <vector>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

constexpr const char* kProgram = "tallyhoop.exe";
constexpr const char* kFolder = "Tallyhoop";
constexpr const char* kCaption = "A FOLDER FOR THE POOL";

/// What is installed beside the libraries.
constexpr const char* kFiles[] = {"tallyhoop-cli.exe", file_name::kDemoInstaller, file_name::kHelp, "LICENSE.TXT"};

/// A folder of the program, and the extension of what is installed in it.
struct Part {
    const char* folder; ///< empty = the program's own
    const char* extension;
};
constexpr Part kParts[] = {{"", ".DLL"}, {"platforms", ".DLL"}, {"styles", ".DLL"}, {"licences", ".TXT"}};

Result<Done> copyFile(const DataFolder& from, const DataFolder& to, const std::string& name)
{
    const Result<std::string> bytes = from.read(name);
    if (!bytes)
        return Failure{joinLines({from.shownPathOf(name), bytes.failure().message})};
    const Result<std::string> there = to.read(name);
    if (there && *there == *bytes)
        return Done{}; // it may be running
    if (const Result<Done> written = to.write(name, *bytes); !written)
        return Failure{joinLines({to.shownPathOf(name), written.failure().message})};
    return Done{};
}

Result<Done> copyAll(const char* extension, const DataFolder& from, const DataFolder& to)
{
    std::error_code error;
    fs::create_directories(to.folder(), error);
    if (error)
        return Failure{joinLines({shown(to.folder()), reasonOf(error)})};
    const Read<std::vector<FolderFile>> files = from.list(extension);
    if (files.trouble)
        return Failure{joinLines({shown(from.folder()), files.trouble->message})};
    for (const FolderFile& file : files.value) {
        if (Result<Done> copied = copyFile(from, to, file.name); !copied)
            return copied;
    }
    return Done{};
}

std::string offer(const DataFolder& program, const fs::path& folder)
{
    return joinLines({"Tallyhoop keeps a pool in its own folder, and may not write into it:", shown(program.folder()),
                      " ", "Shall a folder be made for the pool, with a copy of Tallyhoop that starts there?",
                      shown(folder)});
}

} // namespace

bool needsAnotherFolder(const DataFolder& program)
{
    return !program.exists(file_name::kSetup) && !program.checkWritable();
}

Result<Done> copyProgram(const DataFolder& from, const DataFolder& to)
{
    for (const auto& [folder, extension] : kParts) {
        const DataFolder part{from.folder() / folder};
        std::error_code ignored;
        if (!fs::is_directory(part.folder(), ignored))
            continue;
        if (Result<Done> copied = copyAll(extension, part, DataFolder{to.folder() / folder}); !copied)
            return copied;
    }
    std::vector<std::string> names;
    for (const char* const name : kFiles) {
        if (from.exists(name))
            names.emplace_back(name);
    }
    if (!to.exists(file_name::kTeamNames) && from.exists(file_name::kTeamNames))
        names.emplace_back(file_name::kTeamNames);
    names.emplace_back(kProgram); // last: where it is, all that it needs is
    for (const std::string& name : names) {
        if (Result<Done> copied = copyFile(from, to, name); !copied)
            return copied;
    }
    return Done{};
}

std::optional<fs::path> offerFolderInDocuments(const DataFolder& program, const fs::path& documents,
                                               const VersionOf& versionOf, ui::Dialogs& dialogs)
{
    if (documents.empty())
        return std::nullopt;
    const DataFolder folder{documents / kFolder};
    const bool isThere = folder.exists(kProgram);
    if (isThere && needsAnotherFolder(folder)) // it is this one, or would only start itself again
        return std::nullopt;
    if (isThere && versionOf(program.pathTo(kProgram)) <= versionOf(folder.pathTo(kProgram)))
        return folder.pathTo(kProgram); // an upgrade is not taken back
    if (!isThere && dialogs.show({kCaption, offer(program, folder.folder()), ui::Buttons::OkCancel,
                                  ui::Icon::Question}) != ui::Answer::Ok)
        return std::nullopt;
    if (const Result<Done> copied = copyProgram(program, folder); !copied) {
        dialogs.show({kCaption, joinLines({"The copy of Tallyhoop could not be made:", copied.failure().message}),
                      ui::Buttons::Ok, ui::Icon::Critical});
        return std::nullopt;
    }
    return folder.pathTo(kProgram);
}

} // namespace tallyhoop
