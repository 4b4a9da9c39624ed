#pragma once

#include "core/content/ContentObject.h"

#include <QStringList>

#include <vector>

namespace tw::core::chart {

struct ChartSeries
{
    QString name;
    std::vector<double> values;

    friend bool operator==(const ChartSeries&, const ChartSeries&) = default;
};

/** Everything of a chart that one edit changes. */
struct ChartDetails
{
    QString title;
    /** "bar", "line", "area", "pie"; an unknown name survives and is drawn as bars. */
    QString chartKind = QStringLiteral("bar");
    QStringList categories;
    std::vector<ChartSeries> series;
    QString valueAxisTitle;
    QString categoryAxisTitle;

    friend bool operator==(const ChartDetails&, const ChartDetails&) = default;
};

class Chart final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Chart;

    Chart(ContentId id, ChartDetails details);
    ~Chart() override;

    [[nodiscard]] const ChartDetails& details() const { return m_details; }
    void setDetails(ChartDetails details) { m_details = std::move(details); }

    friend bool operator==(const Chart& left, const Chart& right);

private:
    ChartDetails m_details;
};

} // namespace tw::core::chart
