// qt/screen_host.h - loads and unloads screens: in the frame's stack, in a window beside it, or modally.
//
// It knows no screen by name: app/ makes each, with its view.
#pragma once

#include "qt/desk.h"
#include "qt/main_frame.h"
#include "qt/page.h"
#include "screens/screens.h"

#include <functional>
#include <memory>
#include <vector>

namespace tallyhoop::qt {

enum class Placement {
    Stacked,   ///< a page of the main frame
    OwnWindow, ///< a window of its own beside the frame, owned by it
    Modal,     ///< a dialog; load() returns when it has closed
};

/// A screen that was made to be loaded, the page that shows it, and where that goes.
struct MadeScreen {
    Placement placement{};
    std::unique_ptr<ui::Screen> screen;
    std::unique_ptr<Page> page;
};

class ScreenHost : public Screens
{
public:
    /// Handles the frame's close button: endProgram(), unless something is modal.
    ScreenHost(Desk& desk, MainFrame& frame);
    ~ScreenHost() override;
    ScreenHost(const ScreenHost&) = delete;
    ScreenHost& operator=(const ScreenHost&) = delete;

    /// Makes a screen of this kind; set before the first is loaded.
    std::function<MadeScreen(ScreenKind kind)> make;

    /// As in Screens; inside or outside of a command. The model's load() runs when its page exists, before it is shown.
    void load(ScreenKind kind, const std::string& news = {}) override;
    void unload(ScreenKind kind) override;
    bool isLoaded(ScreenKind kind) const override;
    void bringToFront(ScreenKind kind) override;
    void endProgram() override;

    /// @returns the model, nullptr when it is not loaded (parked ones are not)
    ui::Screen* screen(ScreenKind kind) const;
    template <class Kind>
    Kind* find(ScreenKind kind) const
    {
        return static_cast<Kind*>(screen(kind));
    }
    Page* page(ScreenKind kind) const;

    /// Called when endProgram() has unloaded everything; the default quits the application.
    std::function<void()> ended;

private:
    struct Loaded {
        ScreenKind kind{};
        Placement placement{};
        std::unique_ptr<ui::Screen> screen;
        std::unique_ptr<QWidget> window; ///< the page, or the dialog around it
        Page* page = nullptr;
        bool unloading = false;
    };

    Loaded* loaded(ScreenKind kind) const;
    bool isStill(ScreenKind kind, const ui::Screen& screen) const;
    void show(Loaded& one);
    void runModal(Loaded& one);
    void takeApart(Loaded& gone);
    void showLastStacked();

    Desk& m_desk;
    MainFrame& m_frame;
    std::vector<std::unique_ptr<Loaded>> m_loaded; ///< in order of loading
};

} // namespace tallyhoop::qt
