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

class KnownFiles
{
public:
    /// Notes what the file holds now, also that it is not there. To be called before the file is read for a screen:
    /// what changes in between is then noticed.
    void note(const std::filesystem::path& file);

    /// Whether replacing the file by these bytes would undo what somebody else has done to it: it was changed or
    /// created since it was noted. Not so for a file that was never noted, that has vanished, or that holds these very
    /// bytes.
    bool wouldUndoChanges(const std::filesystem::path& file, std::string_view bytes) const;

    /// Replaces a file, or creates it, as a whole, and notes what it holds from then on; on a failure it is as it was.
    Result<Done> replace(const std::filesystem::path& file, std::string_view bytes);

private:
    struct Content {
        bool isThere = false;
        std::string bytes; ///< empty also when the file cannot be read

        friend bool operator==(const Content&, const Content&) = default;
    };
    struct Known {
        std::filesystem::path file;
        Content content;
    };

    static Content contentOf(const std::filesystem::path& file);
    void note(const std::filesystem::path& file, Content content);

    std::vector<Known> m_known; ///< one entry for each file
};

} // namespace tallyhoop
