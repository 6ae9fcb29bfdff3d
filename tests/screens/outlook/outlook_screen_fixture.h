// tests/screens/outlook/outlook_screen_fixture.h - the outlook of a small pool, worked out slice by slice.
#pragma once

#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "pool/outlook/final_pool.h"
#include "screens/outlook/outlook_screen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop::test {

struct OutlookScreenTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    OpenedPool opened{.pool = finalPool()};
    Pool& pool = opened.pool;
    FakeBackground* background = nullptr;
    std::unique_ptr<OutlookScreen> screen;

    void openBeforeAnyWork()
    {
        auto fake = std::make_unique<FakeBackground>();
        background = fake.get();
        screen = std::make_unique<OutlookScreen>(folder, opened, platform.services, screens, std::move(fake));
        screen->load();
        screen->showState();
    }

    void open()
    {
        openBeforeAnyWork();
        workItOut();
    }

    /// Does as much as it takes to know all about one open game, and little of the road.
    void workItOut()
    {
        for (int slice = 0; slice < 30; ++slice)
            background->doSlice();
        screen->showState();
    }

    std::vector<std::string> column(OutlookColumn column) const
    {
        std::vector<std::string> cells;
        for (const auto& row : screen->grdPlayers.rows)
            cells.push_back(row.at(static_cast<std::size_t>(column)));
        return cells;
    }

    void choose(const std::string& name, OutlookColumn pressed = OutlookColumn::Player)
    {
        const std::vector<std::string> names = column(OutlookColumn::Player);
        const auto row = static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
        screen->grdPlayers.cellPressed(row, static_cast<std::size_t>(pressed));
        screen->showState();
    }

    void suppose(Position position)
    {
        screen->pressPosition(position);
        workItOut();
    }

    void pressHeading(OutlookColumn heading)
    {
        screen->grdPlayers.columnPressed(static_cast<std::size_t>(heading));
        screen->grdPlayers.columnReleased(static_cast<std::size_t>(heading));
        screen->showState();
    }
};

} // namespace tallyhoop::test
