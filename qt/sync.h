// qt/sync.h - keeps values of a screen and what widgets show in sync, in both directions.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tallyhoop::qt {

class Sync
{
public:
    /// Runs `take` with every pull: what the person did to a widget goes into the model.
    void onPull(std::function<void()> take);

    /// Runs `apply` now and with every push: what is in the model is shown.
    void onPush(std::function<void()> apply);

    /// Applies a value of the model now and whenever it differs from what was last applied.
    template <class T, class Apply>
    void follow(const T& value, Apply apply)
    {
        onPush([&value, apply = std::move(apply), applied = std::optional<T>{}]() mutable {
            if (applied && *applied == value)
                return;
            applied = value;
            apply(value);
        });
    }

    /// Keeps the widget in sync with a value that the person can change too: a change made in the widget since the last
    /// sync is pulled, a change made in the model is pushed. A widget that was not touched is never read back.
    /// @param read  () -> T, what the widget shows
    /// @param write (const T&), shows it
    template <class T, class Read, class Write>
    void mirror(T& value, Read read, Write write)
    {
        auto seen = std::make_shared<T>(read());
        onPull([&value, seen, read] {
            T now = read();
            if (now == *seen)
                return;
            *seen = now;
            value = std::move(now);
        });
        onPush([&value, seen, read, write] {
            if (!(read() == value))
                write(value);
            *seen = read();
        });
    }

    void pull();
    void push();

    /// @returns whether values are being shown now: what widgets report meanwhile was not done by the person
    bool isPushing() const { return m_pushing; }

    /// While one exists, isPushing().
    class Pushing
    {
    public:
        explicit Pushing(Sync& sync) : m_sync{sync}, m_before{std::exchange(sync.m_pushing, true)} {}
        ~Pushing() { m_sync.m_pushing = m_before; }
        Pushing(const Pushing&) = delete;
        Pushing& operator=(const Pushing&) = delete;

    private:
        Sync& m_sync;
        bool m_before;
    };

private:
    std::vector<std::function<void()>> m_pulls;
    std::vector<std::function<void()>> m_pushes;
    bool m_pushing = false;
};

} // namespace tallyhoop::qt
