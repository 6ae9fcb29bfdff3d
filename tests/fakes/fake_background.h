// tests/fakes/fake_background.h - background work that is done when the test says so.
#pragma once

#include "ui/background.h"

#include <utility>

namespace tallyhoop::test {

class FakeBackground : public ui::Background
{
public:
    bool isThere = true; ///< the system has something that does the work
    int begun = 0;

    bool run(Slice slice, Failed failed) override
    {
        if (!isThere)
            return false;
        ++begun;
        m_slice = std::move(slice);
        m_failed = std::move(failed);
        return true;
    }
    void abandon() override { m_slice = {}; }

    /// Does one slice. @returns whether there is more to do
    bool doSlice(const Step& step = goOn)
    {
        try {
            if (m_slice && !m_slice(step))
                m_slice = {};
        } catch (...) {
            fail(std::current_exception());
        }
        return static_cast<bool>(m_slice);
    }

    /// As if a slice had thrown this.
    void fail(const std::exception_ptr& trouble)
    {
        m_slice = {};
        m_failed(trouble);
    }

    void doAll()
    {
        while (doSlice())
            ;
    }

private:
    Slice m_slice;
    Failed m_failed;
};

} // namespace tallyhoop::test
