#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <bit>
#include <cmath>
#include <random>

namespace tw::app::persistence {

/** Values of every shape that JSON has, from an explicit seed. */
class RandomJson
{
public:
    explicit RandomJson(std::uint64_t seed)
        : m_random(seed)
    {}

    QJsonObject object(int depth)
    {
        QJsonObject object;
        for (int count = below(6); count > 0; --count)
            object.insert(text(below(12)), value(depth));
        return object;
    }

    QString text(qsizetype length)
    {
        static constexpr char16_t ranges[][2] = {{u' ', u'~'},    {u'a', u'z'},  {0, 0x1f},
                                                 {0x20, 0x80},    {0x80, 0x900}, {0xd7f0, 0xe010},
                                                 {0xfff0, 0xffff}};
        QString text;
        while (text.size() < length) {
            const auto& range = ranges[below(std::size(ranges))];
            for (int run = below(20); run >= 0; --run) {
                const int unit = range[0] + below(range[1] - range[0] + 1);
                text.append(QChar(static_cast<char16_t>(unit)));
            }
        }
        return text;
    }

    double number() { return std::bit_cast<double>(m_random()); }

private:
    int below(std::size_t limit) { return static_cast<int>(m_random() % limit); }
    int below(int limit) { return below(static_cast<std::size_t>(limit)); }

    QJsonValue value(int depth)
    {
        switch (below(depth > 0 ? 9 : 6)) {
        case 0:
            return below(2) == 1;
        case 1:
            return QJsonValue::Null;
        case 2:
            return static_cast<qint64>(m_random() >> below(64));
        case 3:
            return std::isfinite(number()) ? std::ldexp(below(100'000) - 50'000, below(80) - 40) : 0.5;
        case 4:
        case 5:
            return text(below(40));
        case 6:
            return object(depth - 1);
        default: {
            QJsonArray array;
            for (int count = below(6); count > 0; --count)
                array.append(value(depth - 1));
            return array;
        }
        }
    }

    std::mt19937_64 m_random;
};

} // namespace tw::app::persistence
