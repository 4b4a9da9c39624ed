#include "desktop/proofreading/UnderlinePatterns.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace tw::desktop::proofreading {

namespace {

constexpr QSize paperSize(60, 20);
constexpr QRect band(10, 7, 31, 7);

QImage drawn(UnderlinePatterns& patterns, Underline line, qreal pixelRatio)
{
    QImage paper(paperSize * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    paper.setDevicePixelRatio(pixelRatio);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    patterns.draw(painter, line, Qt::red, 10.4, 40.2, 10);
    return paper;
}

/** Columns with ink, and whether all of it lies in the band. */
std::pair<int, bool> inkOf(const QImage& paper)
{
    const QRect inside(band.topLeft() * paper.devicePixelRatio(), band.size() * paper.devicePixelRatio());
    int columns = 0;
    bool isInside = true;
    for (int x = 0; x < paper.width(); ++x) {
        bool hasInk = false;
        for (int y = 0; y < paper.height(); ++y) {
            if (paper.pixelColor(x, y) == Qt::white)
                continue;
            hasInk = true;
            isInside = isInside && inside.contains(x, y);
        }
        columns += hasInk;
    }
    return {columns, isInside};
}

} // namespace

TEST(UnderlinePatternsTest, drawsFromEndToEndAndNothingBeside)
{
    UnderlinePatterns patterns;
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
        const auto [wave, isWaveInside] = inkOf(drawn(patterns, Underline::Wave, ratio));
        EXPECT_NEAR(wave, 30 * ratio, 3 * ratio) << ratio;
        EXPECT_TRUE(isWaveInside) << ratio;
        const auto [dots, areDotsInside] = inkOf(drawn(patterns, Underline::Dots, ratio));
        EXPECT_GT(dots, 0) << ratio;
        EXPECT_LT(dots, wave) << ratio;
        EXPECT_TRUE(areDotsInside) << ratio;
    }
}

} // namespace tw::desktop::proofreading
