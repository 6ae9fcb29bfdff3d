// base/result.h - a failure is a value that carries words fit for a message box.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace tallyhoop {

/// Why something did not work, in words fit for a message box (Windows-1252 bytes).
struct Failure {
    std::string message;
};

/// The value of an operation that succeeds without producing anything.
struct Done {
    friend bool operator==(Done, Done) = default;
};

/// Either the value of an operation or the reason why there is none.
template <class T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_outcome{std::in_place_index<0>, std::move(value)} {}
    Result(Failure failure) : m_outcome{std::in_place_index<1>, std::move(failure)} {}

    explicit operator bool() const { return m_outcome.index() == 0; }

    /// @pre the operation succeeded
    const T& operator*() const { return std::get<0>(m_outcome); }
    const T* operator->() const { return &std::get<0>(m_outcome); }

    /// @pre the operation failed
    const Failure& failure() const { return std::get<1>(m_outcome); }

private:
    std::variant<T, Failure> m_outcome;
};

/// What a reader could read, and the trouble if there was any: readers keep what they got.
template <class T>
struct [[nodiscard]] Read {
    T value{};
    std::optional<Failure> trouble{};
};

} // namespace tallyhoop
