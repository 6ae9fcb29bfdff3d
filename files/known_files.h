// files/known_files.h - what files held when a screen took them: so that a screen can ask before somebody else's
// changes are replaced.
//
// Two programs can work in one folder, and people have editors. Contents are compared, not times: a copied folder has
// new times, and two saves can fall into one tick of the clock.
#pragma once

#include "base/result.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// What is at the place of a file.
struct FileContent {
    bool isThere = false;             ///< also when nobody can tell
    std::optional<Failure> trouble{}; ///< why it cannot be read
    std::string bytes;                ///< empty also when it cannot be read

    bool isSameAs(const FileContent& other) const;
};

class KnownFiles
{
public:
    /// Reads what is there now.
    static FileContent contentOf(const std::filesystem::path& file);

    /// Notes what the file holds now, also that it is not there. To be called before the file is read for a screen:
    /// what changes in between is then noticed.
    void note(const std::filesystem::path& file);

    /// Notes that the file as it was noted was not understood, or not whole: a screen shows only a part of it.
    void noteDamage(const std::filesystem::path& file);

    /// Whether replacing what is there now by these bytes would undo what somebody else has done to the file: it was
    /// changed or created since it was noted. Not so for a file that was never noted, that has vanished, that holds
    /// these very bytes, or of which nobody can tell because it cannot be read.
    bool wouldUndoChanges(const std::filesystem::path& file, const FileContent& now, std::string_view bytes) const;

    /// Whether replacing what is there now would lose what no screen has shown: it cannot be read, or is the damaged
    /// file that was noted.
    bool wouldLoseUnread(const std::filesystem::path& file, const FileContent& now) const;

    enum class Replaced { Yes, No, ChangedMeanwhile };
    struct Outcome {
        Replaced replaced = Replaced::Yes;
        Failure failure{}; ///< when it is No: the file is as it was
    };

    /// Replaces a file, or creates it, as a whole, and notes what it holds from then on.
    /// @param seen what was there when that was decided. When somebody else has changed it since, nothing is replaced
    Outcome replace(const std::filesystem::path& file, std::string_view bytes, const FileContent& seen);

private:
    struct Known {
        std::filesystem::path file;
        FileContent content;
        bool isDamaged = false;
    };

    void note(const std::filesystem::path& file, FileContent content);
    const Known* find(const std::filesystem::path& file) const;

    std::vector<Known> m_known; ///< one entry for each file
};

} // namespace tallyhoop
