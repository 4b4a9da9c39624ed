#pragma once

#include "app/spreadsheet/Function.h"

#include <tuple>
#include <type_traits>
#include <utility>

namespace tw::app::spreadsheet {

/** Longer texts are #VALUE!, so that formulas that double a text end somewhere. */
inline constexpr qsizetype mostTextCharacters = 32'767;

/** The text, or #VALUE! when it is too long. */
[[nodiscard]] CellValue boundedText(QString text);

/** #NUM! for what has no real result, #DIV/0! for zero to a power below zero. */
[[nodiscard]] CellValue powerOf(double base, double exponent);

/** An argument that was read, or the error that stands in its place. */
template <class T>
using Read = std::variant<T, CellError>;

[[nodiscard]] Read<double> readNumber(const CellValue& value);
[[nodiscard]] Read<QString> readText(const CellValue& value);
[[nodiscard]] Read<bool> readTruth(const CellValue& value);
/** Cells; one cell as a rectangle of its own, #VALUE! for a mere value. */
[[nodiscard]] Read<CellRange> readRange(const Operand& operand);

/** How a parameter of a C++ function is read from the argument of a call. */
template <class T>
struct Parameter;

template <>
struct Parameter<double>
{
    static constexpr bool isOptional = false;
    static Read<double> read(const Call& call, int index) { return readNumber(call.value(index)); }
};

template <>
struct Parameter<QString>
{
    static constexpr bool isOptional = false;
    static Read<QString> read(const Call& call, int index) { return readText(call.value(index)); }
};

template <>
struct Parameter<bool>
{
    static constexpr bool isOptional = false;
    static Read<bool> read(const Call& call, int index) { return readTruth(call.value(index)); }
};

/** Any value but an error. */
template <>
struct Parameter<CellValue>
{
    static constexpr bool isOptional = false;
    static Read<CellValue> read(const Call& call, int index)
    {
        CellValue value = call.value(index);
        if (value.isError())
            return value.error();
        return value;
    }
};

template <>
struct Parameter<CellRange>
{
    static constexpr bool isOptional = false;
    static Read<CellRange> read(const Call& call, int index) { return readRange(call.operand(index)); }
};

/** None where no argument is given. */
template <class T>
struct Parameter<std::optional<T>>
{
    static constexpr bool isOptional = true;
    static Read<std::optional<T>> read(const Call& call, int index)
    {
        if (!call.isGiven(index))
            return std::optional<T>();
        auto read = Parameter<T>::read(call, index);
        if (auto* value = std::get_if<T>(&read))
            return std::optional<T>(std::move(*value));
        return std::get<CellError>(read);
    }
};

namespace detail {

template <class... Parameters, std::size_t... Indices, class Body>
Operand runWith(const Call& call, std::index_sequence<Indices...> /*indices*/, const Body& body)
{
    [[maybe_unused]] auto arguments =
        std::tuple{Parameter<Parameters>::read(call, static_cast<int>(Indices))...};
    std::optional<CellError> error;
    [[maybe_unused]] const auto note = [&error](const auto& argument) {
        if (const auto* failed = std::get_if<CellError>(&argument); failed && !error)
            error = *failed;
    };
    (note(std::get<Indices>(arguments)), ...);
    if (error)
        return CellValue(*error);
    return body(std::get<0>(std::move(std::get<Indices>(arguments)))...);
}

template <auto body, class Signature>
struct Adapted;

template <auto body, class Returned, class... Parameters>
struct Adapted<body, Returned (*)(Parameters...)>
{
    static constexpr int most = static_cast<int>(sizeof...(Parameters));
    static constexpr int fewest = (0 + ... + (Parameter<std::decay_t<Parameters>>::isOptional ? 0 : 1));

    static Operand run(const Call& call)
    {
        return runWith<std::decay_t<Parameters>...>(
            call, std::index_sequence_for<Parameters...>(), [](auto&&... arguments) -> Operand {
                return CellValue(body(std::forward<decltype(arguments)>(arguments)...));
            });
    }
};

template <auto body, class Returned, class... Parameters>
struct Adapted<body, Returned (*)(const CellValues&, Parameters...)>
{
    static constexpr int most = static_cast<int>(sizeof...(Parameters));
    static constexpr int fewest = (0 + ... + (Parameter<std::decay_t<Parameters>>::isOptional ? 0 : 1));

    static Operand run(const Call& call)
    {
        return runWith<std::decay_t<Parameters>...>(
            call, std::index_sequence_for<Parameters...>(), [&call](auto&&... arguments) -> Operand {
                return body(call.cells(), std::forward<decltype(arguments)>(arguments)...);
            });
    }
};

} // namespace detail

/**
 * A function of a sheet made from one of C++: its parameters say how many arguments there are and what they
 * are taken for, std::optional marks those that may be left out. The first error among the arguments is the
 * result. A first parameter `const CellValues&` receives the cells that ranges point into.
 */
template <auto body>
[[nodiscard]] constexpr Function function(QLatin1String name)
{
    using Adapted = detail::Adapted<body, decltype(body)>;
    return {name, Adapted::fewest, Adapted::most, &Adapted::run};
}

/**
 * Calls visit(value) for every value of every argument from `first` on, blanks in ranges left out, until it
 * gives an error; that, or none. `isCell` tells values in cells from those written in the formula.
 */
template <class Visit>
[[nodiscard]] std::optional<CellError> visitArguments(const Call& call, int first, Visit visit)
{
    std::optional<CellError> error;
    for (int index = first; index < call.argumentCount() && !error; ++index) {
        const Operand operand = call.operand(index);
        if (const auto* value = std::get_if<CellValue>(&operand)) {
            error = visit(*value, false);
            continue;
        }
        call.cells().visit(
            std::get<CellRange>(operand), [&](CellPosition /*position*/, const CellValue& value) {
                error = visit(value, true);
                return !error;
            });
    }
    return error;
}

/** The numbers of all arguments: texts and truth values in cells are passed over, written ones are converted.
 */
template <class Visit>
[[nodiscard]] std::optional<CellError> visitNumbers(const Call& call, int first, Visit visit)
{
    return visitArguments(
        call, first, [&visit](const CellValue& value, bool isCell) -> std::optional<CellError> {
            if (isCell && !value.isNumber() && !value.isError())
                return std::nullopt;
            const CellValue number = asNumber(value);
            if (number.isError())
                return number.error();
            visit(number.number());
            return std::nullopt;
        });
}

} // namespace tw::app::spreadsheet
