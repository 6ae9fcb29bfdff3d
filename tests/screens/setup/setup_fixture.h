// tests/screens/setup/setup_fixture.h - a setup screen in a folder of its own, worked by a person without windows.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/setup/setup_screen.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

namespace tallyhoop::test {

/// A list of nine teams in alphabetical order.
inline std::string smallTeamList()
{
    return crlf(
        {"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas", "LSU", "Ohio", "Texas", "*END*"});
}

/// The folder, the fakes and the screen. loaded() makes and loads it, after the test has put its files there.
class SetupFixture : public ::testing::Test
{
protected:
    ScratchFolder files;
    DataFolder folder = files.folder();
    FakePlatform computer;
    FakeScreens screens;
    modTallyhoop state;
    std::unique_ptr<SetupScreen> made;

    FakeDialogs& dialogs() { return computer.dialogs; }

    SetupScreen& loaded(Opening opening = Opening::Plain)
    {
        if (!files.has("NCAALIST.THS"))
            files.put("NCAALIST.THS", smallTeamList());
        return loadedAsIs(opening);
    }

    SetupScreen& loadedAsIs(Opening opening = Opening::Plain)
    {
        made = std::make_unique<SetupScreen>(folder, computer.services, state, screens, opening);
        screens.open.insert(ScreenKind::Setup);
        made->load();
        settleFocus();
        return *made;
    }

    /// Reports a moved focus as the windows do: first who lost it, then who got it.
    void settleFocus()
    {
        if (made->focused == m_reported)
            return;
        if (m_reported != nullptr)
            made->lostFocus(*m_reported);
        m_reported = made->focused;
        if (m_reported != nullptr)
            made->gotFocus(*m_reported);
    }

    void focus(ui::Control& control)
    {
        made->focused = &control;
        settleFocus();
    }

    /// @returns whether the screen dealt with the key
    bool press(ui::Key key)
    {
        const bool consumed = made->keyPressed(*made->focused, ui::KeyPress{key});
        settleFocus();
        return consumed;
    }

    bool type(char character)
    {
        const bool consumed = made->keyPressed(*made->focused, ui::KeyPress{ui::Key::Character, character});
        settleFocus();
        return consumed;
    }

    void type(std::string_view text)
    {
        for (const char character : text)
            type(character);
    }

    void click(ui::Command& command)
    {
        made->focused = &command;
        settleFocus();
        command.click();
        settleFocus();
    }

    /// The mouse presses a row of the list.
    void pressRow(int row)
    {
        focus(made->lstTeamNames);
        made->lstTeamNames.selected = row;
        made->lstTeamNames.pressed();
    }

    /// Types into a box that takes any text.
    void edit(ui::TextBox& box, const std::string& text)
    {
        focus(box);
        box.text = text;
        if (box.edited)
            box.edited();
    }

    std::vector<std::string> teams(std::size_t first, std::size_t count) const
    {
        std::vector<std::string> texts;
        for (std::size_t i = first; i < first + count; ++i)
            texts.push_back(made->txtRegion[i].text);
        return texts;
    }

private:
    ui::Control* m_reported = nullptr;
};

} // namespace tallyhoop::test
