// tests/faults/writers.h - every command that writes a file, one press away from it.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "faults/faults.h"
#include "files/data_folder.h"
#include "pool/field.h"
#include "pool/scoring.h"
#include "screens/hand_overs.h"
#include "ui/screen.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// A screen over a folder with a pool, filled in so that nothing but the disk can stop it.
class Writer
{
public:
    explicit Writer(const std::filesystem::path& folderPath) : folder{folderPath} {}
    virtual ~Writer() = default;

    /// Presses what a person presses.
    /// @param mayReplace the answer when somebody else has changed the file; nothing = that is not asked
    virtual void save(std::optional<ui::Answer> mayReplace = {}) = 0;

    /// @returns everything a person reads on the screen; empty when there is none
    virtual std::string onScreen() const = 0;

    /// Drops what was said and loaded until now; the test is about what follows.
    void forgetOpening()
    {
        platform.dialogs.shown.clear();
        screens.loads.clear();
        screens.unloads.clear();
    }

    DataFolder folder;
    FakePlatform platform;
    FakeScreens screens;
    Field field;
    std::optional<SavedPlayer> savedPlayer;
    std::optional<PlayerScore> listedPlayer;
    bool folderTroubleSaid = false;
    std::vector<std::filesystem::path> droppedFiles;
    MailDraft draft;
    FakeBoard board;
};

struct WriterKind {
    const char* name;
    const char* file;    ///< the file it writes
    const char* newText; ///< is in the new file only
    bool replaces;       ///< there is an old one in the pool
    bool asks;           ///< asks before somebody else's changes are replaced
    std::unique_ptr<Writer> (*open)(const std::filesystem::path& folder);

    /// The messages shown when the file cannot be written.
    std::vector<ui::Message> (*trouble)(const std::filesystem::path& folder, const Fault& fault);
};

inline void PrintTo(const WriterKind& kind, std::ostream* out) { *out << kind.name; }

const std::vector<WriterKind>& allWriters();

/// Fills a folder with a finalized pool of four players, a team list, older reports and an older annotated copy.
void putPool(const ScratchFolder& folder);

/// @returns the folder's files, hidden ones too, name and content; a subfolder as a name that ends with a slash
std::vector<std::pair<std::string, std::string>> filesIn(const std::filesystem::path& folder);

/// @returns what a screen shows: the texts, rows and selected rows of its controls
std::string textOf(const ui::Screen& screen);

} // namespace tallyhoop::test
