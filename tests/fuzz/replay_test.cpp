// tests/fuzz/replay_test.cpp - every file of the fuzzers' corpora through everything that is fuzzed, in every build.
#include "fuzz/targets.h"

#include "files/replace_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> corpusOf(const std::string& name)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator{fs::path{TALLYHOOP_FUZZ_CORPUS} / name})
        files.push_back(entry.path());
    return files;
}

struct Replayed {
    const char* name;
    fuzz::Target target;
    const char* corpus; ///< of its own; the reports share one
};

class Replay : public testing::TestWithParam<Replayed>
{
};

TEST_P(Replay, FindsNothingWrongWithAnyFileOfAnyCorpus)
{
    EXPECT_GE(corpusOf(GetParam().corpus).size(), 5u) << "a target without a corpus of its own";
    for (const fs::directory_entry& corpus : fs::directory_iterator{TALLYHOOP_FUZZ_CORPUS})
        for (const fs::path& file : corpusOf(corpus.path().filename().string())) {
            const Result<std::string> bytes = readFile(file);
            ASSERT_TRUE(bytes) << file;
            EXPECT_EQ(GetParam().target(*bytes), std::nullopt) << file;
        }
}

INSTANTIATE_TEST_SUITE_P(
    Of, Replay,
    testing::Values(
        Replayed{"setup", &fuzz::setup, "setup"}, Replayed{"selection", &fuzz::selection, "selection"},
        Replayed{"players", &fuzz::players, "players"}, Replayed{"teams", &fuzz::teams, "teams"},
        Replayed{"settings", &fuzz::settings, "settings"}, Replayed{"entry_text", &fuzz::entry_text, "entry_texts"},
        Replayed{"entry_table", &fuzz::entry_table, "tables"}, Replayed{"html_text", &fuzz::html_text, "entry_texts"},
        Replayed{"scoring", &fuzz::scoring, "scoring"}, Replayed{"list_search", &fuzz::list_search, "list_search"},
        Replayed{"outlook", &fuzz::outlook, "pools"}, Replayed{"standings", &fuzz::standings, "pools"},
        Replayed{"player_listing", &fuzz::player_listing, "pools"},
        Replayed{"team_selection_summary", &fuzz::team_selection_summary, "pools"},
        Replayed{"team_selection_detail", &fuzz::team_selection_detail, "pools"},
        Replayed{"player_selection_detail", &fuzz::player_selection_detail, "pools"},
        Replayed{"results_by_player", &fuzz::results_by_player, "pools"},
        Replayed{"results_by_team", &fuzz::results_by_team, "pools"}),
    [](const auto& values) { return std::string{values.param.name}; });

} // namespace
} // namespace tallyhoop
