// tests/fakes/no_progress.h - for long work that nobody watches and nobody cancels.
#pragma once

#include "ui/platform.h"

namespace tallyhoop::test {

class NoProgress : public ui::Progress
{
public:
    void begin(const std::string&, int) override {}
    bool advance(int) override { return true; }
    void end() override {}
};

} // namespace tallyhoop::test
