// qt/views/setup_view.h - the setup screen's page: four regions as on the board, list and payoffs at the side.
#pragma once

#include "qt/page.h"
#include "screens/setup/setup_screen.h"

class QLayout;

namespace tallyhoop::qt {

class SetupView : public Page
{
public:
    SetupView(SetupScreen& setup, Desk& desk);

private:
    QLayout* titleRow();
    QWidget* region(int region);
    QLayout* regions();
    QLayout* comments();
    QWidget* teamNames();
    QWidget* payoffs();
    QLayout* side();

    SetupScreen& m_setup;
};

} // namespace tallyhoop::qt
