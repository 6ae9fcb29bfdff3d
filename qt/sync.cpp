// qt/sync.cpp - runs what keeps widgets and model in sync, in the order in which it was added.
#include "qt/sync.h"

namespace tallyhoop::qt {

void Sync::onPull(std::function<void()> take) { m_pulls.push_back(std::move(take)); }

void Sync::onPush(std::function<void()> apply)
{
    const Pushing pushing{*this};
    apply();
    m_pushes.push_back(std::move(apply));
}

void Sync::pull()
{
    for (const auto& take : m_pulls)
        take();
}

void Sync::push()
{
    const Pushing pushing{*this};
    for (const auto& apply : m_pushes)
        apply();
}

} // namespace tallyhoop::qt
