// tests/faults/screen_writer.h - what all writers on a screen have in common.
#pragma once

#include "faults/writers.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tallyhoop::test {

template <class ScreenKindOfWriter>
class ScreenWriter : public Writer
{
public:
    using Writer::Writer;
    std::string onScreen() const override { return textOf(*screen); }

protected:
    std::unique_ptr<ScreenKindOfWriter> screen;

    template <class... Arguments>
    void open(Arguments&&... arguments)
    {
        screen = std::make_unique<ScreenKindOfWriter>(folder, platform.services, screens,
                                                      std::forward<Arguments>(arguments)...);
        screen->load();
        screen->showState();
    }

    void answerIfAsked(std::optional<ui::Answer> answer)
    {
        if (answer)
            platform.dialogs.answer(*answer);
    }
};

template <class Kind>
std::unique_ptr<Writer> opened(const std::filesystem::path& folder)
{
    return std::make_unique<Kind>(folder);
}

} // namespace tallyhoop::test
