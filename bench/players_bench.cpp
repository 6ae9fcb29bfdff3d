// bench/players_bench.cpp - the player list and the e-mail dialog with 1,000 and 10,000 players: opening, and one key.
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "files/player_names_file.h"
#include "screens/players/email_screen.h"
#include "screens/players/players_screen.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

/// A folder with a list of this many players, gone with the benchmark.
class Pool
{
public:
    explicit Pool(std::int64_t players)
    {
        std::filesystem::create_directories(m_path);
        std::vector<PlayerRecord> records;
        for (std::int64_t i = 0; i < players; ++i) {
            // Scattered, so that the screens have something to sort.
            const std::string name = "Player" + std::to_string(i * 7919 % players) + ",X";
            records.push_back({name, name + ".THC", name + "@example.org", "555-0100"});
        }
        if (!folder.write("PLAYERNAMES.CSV", playerNamesFile(records)))
            std::abort(); // there would be nothing to measure
    }
    ~Pool() { std::filesystem::remove_all(m_path); }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

private:
    std::filesystem::path m_path = std::filesystem::temp_directory_path() / "tallyhoop-bench-players";

public:
    DataFolder folder{m_path};
    test::FakePlatform platform;
    test::FakeScreens screens;
};

void OpenPlayerList(benchmark::State& state)
{
    Pool pool{state.range(0)};
    for (auto step : state) {
        (void)step;
        std::optional<SavedPlayer> saved;
        const Field field = defaultField();
        PlayersScreen names{pool.folder, pool.platform.services, pool.screens, saved, field};
        names.load();
        benchmark::DoNotOptimize(names.lstNames.rows.size());
    }
}

void OpenEmail(benchmark::State& state)
{
    Pool pool{state.range(0)};
    for (auto step : state) {
        (void)step;
        MailDraft draft;
        EmailScreen mail{pool.folder, pool.platform.services, pool.screens, draft};
        mail.load();
        benchmark::DoNotOptimize(mail.lstPlayerNames.rows.size());
    }
}

/// The last of all names, so that every row is looked at.
void TypeOneKey(benchmark::State& state)
{
    Pool pool{state.range(0)};
    MailDraft draft;
    EmailScreen mail{pool.folder, pool.platform.services, pool.screens, draft};
    mail.load();
    for (auto step : state) {
        (void)step;
        mail.txtEntry.text = "Player999";
        mail.txtEntry.selectionStart = 9;
        benchmark::DoNotOptimize(mail.keyPressed(mail.txtEntry, {ui::Key::Character, '9'}));
    }
}

BENCHMARK(OpenPlayerList)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenEmail)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeOneKey)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tallyhoop
