#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace tw::core::foundation {

/** The failing half of a Result: one finished, user-readable sentence that says what to do next. */
struct Failure
{
    QString message;
};

/**
 * The outcome of an operation that may fail for reasons outside the program (files, arguments, input):
 * a value, or a message. Never thrown. Reading the value of a failure is a programmer error.
 */
template <class T>
class [[nodiscard]] Result
{
public:
    Result(T value)
        : m_outcome(std::in_place_index<0>, std::move(value))
    {}
    Result(Failure failure)
        : m_outcome(std::in_place_index<1>, std::move(failure))
    {}

    [[nodiscard]] bool isOk() const { return m_outcome.index() == 0; }
    [[nodiscard]] explicit operator bool() const { return isOk(); }

    [[nodiscard]] const T& value() const& { return std::get<0>(m_outcome); }
    [[nodiscard]] T& value() & { return std::get<0>(m_outcome); }
    [[nodiscard]] T&& value() && { return std::get<0>(std::move(m_outcome)); }

    /** The failure's message; empty on success. */
    [[nodiscard]] QString message() const { return isOk() ? QString() : std::get<1>(m_outcome).message; }

private:
    std::variant<T, Failure> m_outcome;
};

template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Failure failure)
        : m_failure(std::move(failure))
    {}

    [[nodiscard]] bool isOk() const { return !m_failure.has_value(); }
    [[nodiscard]] explicit operator bool() const { return isOk(); }
    [[nodiscard]] QString message() const { return m_failure ? m_failure->message : QString(); }

private:
    std::optional<Failure> m_failure;
};

} // namespace tw::core::foundation

namespace tw::core {

using foundation::Failure;
using foundation::Result;

} // namespace tw::core
