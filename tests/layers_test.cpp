// tests/layers_test.cpp - who may include whom: every #include of the program against one table.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

using Rooms = std::set<std::string>;

const Rooms kCore = {"base", "pool", "files", "intake", "reports", "output", "ui", "screens", "demo", "cli"};

/// What each room may include beside itself.
const std::map<std::string, Rooms> kMayInclude = {
    {"base", {}},
    {"pool", {"base"}},
    {"files", {"pool", "base"}},
    {"intake", {"files", "pool", "base"}},
    {"reports", {"pool", "base"}},
    {"output", {"reports", "files", "pool", "base"}},
    {"demo", {"files", "pool", "base"}},
    {"ui", {"base"}},
    {"screens", {"ui", "output", "reports", "demo", "intake", "files", "pool", "base"}},
    {"qt", {"screens", "ui", "output", "reports", "demo", "intake", "files", "pool", "base"}},
    {"cli", {"output", "reports", "intake", "files", "pool", "base"}},
    {"app", {"qt", "screens", "ui", "output", "reports", "demo", "intake", "files", "pool", "base"}},
};

struct Include {
    std::string file;   ///< who includes, as "room/file.h"
    std::string target; ///< the text between the quotes or brackets
    bool isSystem = false;
};

/// @returns the room of a path such as "pool/position.h" or "qt/views/x.h"; empty when it has no folder
std::string roomOf(const std::string& path)
{
    const std::size_t slash = path.find('/');
    return slash == std::string::npos ? std::string{} : path.substr(0, slash);
}

std::optional<Include> includeOf(const std::string& file, std::string_view line)
{
    const auto skipBlanks = [&line] { line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size())); };
    skipBlanks();
    if (!line.starts_with('#'))
        return std::nullopt;
    line.remove_prefix(1);
    skipBlanks();
    if (!line.starts_with("include"))
        return std::nullopt;
    line.remove_prefix(std::string_view{"include"}.size());
    skipBlanks();
    const bool isSystem = line.starts_with('<');
    if (!isSystem && !line.starts_with('"'))
        return std::nullopt;
    line.remove_prefix(1);
    return Include{file, std::string{line.substr(0, line.find(isSystem ? '>' : '"'))}, isSystem};
}

/// Qt's headers begin with "Q" or are in a folder of theirs.
bool isForWindowsOnly(const std::string& target) { return target.starts_with('Q'); }

/// Mails are written by the windows and read by the intake.
bool isForMails(const std::string& target) { return target.starts_with("gmime") || target.starts_with("glib"); }

/// @returns what is wrong with an include, nothing when it is allowed
std::optional<std::string> complaintAbout(const Include& include)
{
    const std::string room = roomOf(include.file);
    const std::string words = include.file + " includes " + include.target;
    if (include.isSystem) {
        if (kCore.contains(room) && isForWindowsOnly(include.target))
            return words;
        if (kCore.contains(room) && room != "intake" && isForMails(include.target))
            return words;
        return room == "ui" && include.target.starts_with("fmt/") ? std::optional{words} : std::nullopt;
    }
    const std::string targetRoom = roomOf(include.target);
    if (room == "qt" && !kMayInclude.contains(targetRoom))
        return std::nullopt; // what the build generates for a file of that room
    if (targetRoom == room || kMayInclude.at(room).contains(targetRoom))
        return std::nullopt;
    return words;
}

bool isSource(const fs::path& file) { return file.extension() == ".h" || file.extension() == ".cpp"; }

std::vector<Include> includesIn(const fs::path& root)
{
    std::vector<Include> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator{root}) {
        if (!entry.is_regular_file() || !isSource(entry.path()))
            continue;
        const std::string name = entry.path().lexically_relative(root.parent_path()).generic_string();
        std::ifstream stream{entry.path()};
        for (std::string line; std::getline(stream, line);)
            if (std::optional<Include> include = includeOf(name, line))
                found.push_back(std::move(*include));
    }
    return found;
}

TEST(Layers, AreKeptByEveryInclude)
{
    const fs::path source = TALLYHOOP_SOURCE_DIR;
    for (const auto& [room, mayInclude] : kMayInclude)
        for (const Include& include : includesIn(source / room))
            if (const std::optional<std::string> complaint = complaintAbout(include))
                ADD_FAILURE() << *complaint;
}

TEST(Layers, AreLookedAtWhereSourcesAre)
{
    const fs::path source = TALLYHOOP_SOURCE_DIR;
    for (const auto& [room, mayInclude] : kMayInclude)
        EXPECT_GT(includesIn(source / room).size(), 10u) << room;
}

TEST(Layers, RefuseAnIncludeInTheOtherDirection)
{
    EXPECT_TRUE(complaintAbout({"base/text.cpp", "pool/position.h", false}));
    EXPECT_TRUE(complaintAbout({"pool/moves.cpp", "files/setup_file.h", false}));
    EXPECT_TRUE(complaintAbout({"ui/screen.h", "pool/position.h", false}));
    EXPECT_TRUE(complaintAbout({"reports/standings.h", "screens/screens.h", false}));
    EXPECT_TRUE(complaintAbout({"screens/board/board_screen.cpp", "qt/desk.h", false}));
    EXPECT_TRUE(complaintAbout({"qt/desk.cpp", "app/wiring.h", false}));
    EXPECT_TRUE(complaintAbout({"pool/moves.cpp", "moves.h", false})) << "names start at the top folder";
}

TEST(Layers, RefuseWindowsInTheCore)
{
    EXPECT_TRUE(complaintAbout({"base/text.cpp", "QString", true}));
    EXPECT_TRUE(complaintAbout({"reports/standings.cpp", "QtCore/QString", true}));
    EXPECT_TRUE(complaintAbout({"ui/control.h", "fmt/format.h", true}));
    EXPECT_TRUE(complaintAbout({"intake/mail_parts.cpp", "QString", true}));
    EXPECT_TRUE(complaintAbout({"files/data_folder.cpp", "gmime/gmime.h", true}));
    EXPECT_FALSE(complaintAbout({"intake/mail_library.h", "gmime/gmime.h", true}));
    EXPECT_FALSE(complaintAbout({"qt/desk.cpp", "QWidget", true}));
    EXPECT_FALSE(complaintAbout({"base/numbers.cpp", "fmt/format.h", true}));
    EXPECT_FALSE(complaintAbout({"qt/views/board_view.cpp", "screens/board/board_geometry.h", false}));
}

TEST(Layers, RecogniseAnInclude)
{
    EXPECT_EQ(includeOf("a", "#include \"pool/position.h\" // why")->target, "pool/position.h");
    EXPECT_EQ(includeOf("a", "  # include <QString>")->target, "QString");
    EXPECT_TRUE(includeOf("a", "#include <QString>")->isSystem);
    EXPECT_FALSE(includeOf("a", "// #include <QString>"));
    EXPECT_FALSE(includeOf("a", "#include kHeader"));
    EXPECT_FALSE(includeOf("a", ""));
}

} // namespace
} // namespace tallyhoop
