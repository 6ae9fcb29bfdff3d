// tests/screens/money/money_fixture.h - the screen of fees and prizes over the four players.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "reports/four_players.h"
#include "screens/money/money_screen.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

namespace tallyhoop::test {

struct MoneyFixture : testing::Test {
    MoneyFixture()
    {
        opened.pool.field = defaultField();
        opened.pool.field.title = "Office Pool 2001";
        opened.pool.field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "16"}};
        opened.pool.entries = fourPlayers();
        opened.pool.results = fourPlayersResults();
    }

    MoneyScreen& open()
    {
        screen.emplace(folder, opened, platform.services, screens);
        screen->load();
        screen->showState();
        return *screen;
    }

    void putFile(std::initializer_list<std::string_view> lines) const { scratch.put("PRIZES.CSV", crlf(lines)); }

    static void type(ui::TextBox& box, std::string text)
    {
        box.text = std::move(text);
        box.screen.showState();
    }

    const std::string& news() const { return screen->news().text; }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    OpenedPool opened;
    std::optional<MoneyScreen> screen;
};

} // namespace tallyhoop::test
