// ui/screen.cpp - what a screen does unless it says otherwise, and finding its controls.
#include "ui/screen.h"

#include <algorithm>
#include <utility>

namespace tallyhoop::ui {

Screen::Screen(std::string screenName, std::string screenCaption)
    : name{std::move(screenName)}, caption{std::move(screenCaption)}
{
}

void Screen::say(std::string sentence)
{
    if (sentence.empty() && m_news.text.empty())
        return;
    m_news = {std::move(sentence), m_news.number + 1};
}

bool Screen::keyPressed(Control&, const KeyPress&) { return false; }

void Screen::gotFocus(Control&) {}

void Screen::lostFocus(Control&) {}

bool Screen::pasted(TextBox&, const std::string&) { return false; }

void Screen::filesDropped(const std::vector<std::filesystem::path>&) {}

Control* Screen::controlAtTab(int tabIndex) const
{
    const auto at = std::ranges::find(m_controls, tabIndex, &Control::tabIndex);
    return at == m_controls.end() ? nullptr : *at;
}

Control* Screen::find(std::string_view controlName) const
{
    const auto at = std::ranges::find(m_controls, controlName, &Control::name);
    return at == m_controls.end() ? nullptr : *at;
}

} // namespace tallyhoop::ui
