// tests/fakes/fake_background.h - work beside the person that is done when the test says so.
#pragma once

#include "ui/background.h"

#include <utility>

namespace tallyhoop::test {

class FakeBackground : public ui::Background
{
public:
    bool isThere = true; ///< the system has something that does the work
    int begun = 0;

    bool run(Slice slice) override
    {
        if (!isThere)
            return false;
        ++begun;
        m_slice = std::move(slice);
        return true;
    }
    void abandon() override { m_slice = {}; }

    /// Does one slice. @returns whether there is more to do
    bool doSlice(const Step& step = goOn)
    {
        if (m_slice && !m_slice(step))
            m_slice = {};
        return static_cast<bool>(m_slice);
    }

    void doAll()
    {
        while (doSlice())
            ;
    }

private:
    Slice m_slice;
};

} // namespace tallyhoop::test
