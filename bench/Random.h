#pragma once

#include "core/foundation/Id.h"

#include <QtGlobal>

#include <random>
#include <vector>

namespace tw::bench {

/**
 * Random numbers from a seed, the same on every machine: the distributions of the standard library may differ
 * between its makers, so only its engine is used.
 */
class Random
{
public:
    explicit Random(quint64 seed)
        : m_engine(seed)
    {}

    /** From 0 to `limit` - 1; the limit is above 0. */
    [[nodiscard]] qint64 below(qint64 limit)
    {
        return static_cast<qint64>(m_engine() % static_cast<quint64>(limit));
    }
    /** Both ends included. */
    [[nodiscard]] qint64 between(qint64 first, qint64 last) { return first + below(last - first + 1); }
    [[nodiscard]] int count(int fewest, int most) { return static_cast<int>(between(fewest, most)); }
    [[nodiscard]] bool chance(int percent) { return below(100) < percent; }
    /** From 0 up to 1, with three decimals. */
    [[nodiscard]] double fraction() { return static_cast<double>(below(1000)) / 1000.0; }

    template <class Element>
    [[nodiscard]] const Element& oneOf(const std::vector<Element>& elements)
    {
        return elements[static_cast<std::size_t>(below(std::ssize(elements)))];
    }

    /** A random UUID of version 4. */
    template <class Id>
    [[nodiscard]] Id id()
    {
        const quint64 first = m_engine();
        const quint64 second = m_engine();
        const auto byte = [second](int index) { return static_cast<uchar>(second >> (index * 8)); };
        return Id(QUuid(
            static_cast<uint>(first), static_cast<ushort>(first >> 32),
            static_cast<ushort>(0x4000 | (first >> 48 & 0x0fff)), static_cast<uchar>(0x80 | (byte(0) & 0x3f)),
            byte(1), byte(2), byte(3), byte(4), byte(5), byte(6), byte(7)));
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace tw::bench
