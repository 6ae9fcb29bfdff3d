// tests/screens/players/players_screen_fixture.h - a player names screen over a scratch folder with two players in its
// list.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/players/player_file.h"
#include "screens/players/players_screen.h"

#include <gtest/gtest.h>
#include <memory>

namespace tallyhoop::test {

class PlayersScreenTest : public testing::Test
{
protected:
    PlayersScreenTest()
    {
        scratch.put("PLAYERNAMES.CSV", twoPlayers);
        scratch.put("Adams_B.THC", "bracket of Adams\r\n");
    }

    PlayersScreen& open()
    {
        screens.open.insert(ScreenKind::Players);
        screen = std::make_unique<PlayersScreen>(folder, platform.services, screens, saved, field);
        screen->load();
        screen->showState();
        return *screen;
    }

    PlayersScreen& openAfterSave(SaveKind kind, const std::string& file, const std::string& player)
    {
        saved = SavedPlayer{player, scratch.path() / file, kind};
        return open();
    }

    void select(int row)
    {
        screen->lstNames.selected = row;
        screen->lstNames.chosen();
        screen->showState();
    }

    bool closed() const { return screens.unloads == std::vector<ScreenKind>{ScreenKind::Players}; }
    bool stillOpen() const { return screens.unloads.empty(); }
    std::string written() const { return scratch.get("PLAYERNAMES.CSV"); }

    /// Makes every write of the player list fail: its temporary file's and its own place are taken.
    void blockWriting() const
    {
        std::filesystem::remove(scratch.path() / "PLAYERNAMES.CSV");
        std::filesystem::create_directory(scratch.path() / "PLAYERNAMES.CSV");
        scratch.put("PLAYERNAMES.CSV/occupied", "x");
    }

    const std::string adams = csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-0101");
    const std::string smith = csv("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102");
    const std::string twoPlayers = playerFile({adams, smith});
    const std::string adamsRow = row("Adams,B", "ADAMS_B.THC", "b@example.org", "555-0101");
    const std::string smithRow = row("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102");

    ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    FakePlatform platform;
    Field field;
    std::optional<SavedPlayer> saved;
    FakeScreens screens;
    std::unique_ptr<PlayersScreen> screen;
};

} // namespace tallyhoop::test
