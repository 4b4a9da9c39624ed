#include "bench/Measurement.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

namespace {

double secondsOf(const Timed& timed)
{
    timed.prepare();
    QElapsedTimer timer;
    timer.start();
    timed.work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

/** Two digits that say something, also of a ratio far below 1. */
QString figure(double ratio)
{
    return ratio < 0.1 ? QString::number(ratio, 'g', 2) : QString::number(ratio, 'f', 2);
}

} // namespace

Comparison compare(const Runs& runs, const Timed& reference, const Timed& measured)
{
    std::vector<Comparison> pairs;
    for (int repetition = 0; repetition <= runs.repetitions; ++repetition) {
        const double referenceTime = secondsOf(reference);
        pairs.push_back({secondsOf(measured), referenceTime});
    }
    pairs.erase(pairs.begin());
    if (runs.counted == Counted::MiddlePair) {
        std::ranges::sort(pairs, {}, &Comparison::ratio);
        return pairs[pairs.size() / 2];
    }
    return {
        std::ranges::min(pairs, {}, &Comparison::measured).measured,
        std::ranges::min(pairs, {}, &Comparison::reference).reference};
}

void ResultTable::addTitle(const QString& title)
{
    std::printf("\n%s\n", qUtf8Printable(title));
    std::fflush(stdout);
}

void ResultTable::addTimes(
    const QString& what, const QString& reference, const Comparison& times, std::optional<double> aim)
{
    const QString amounts =
        u"%1 ms : %2 ms"_s.arg(times.measured * 1e3, 9, 'f', 2).arg(times.reference * 1e3, 9, 'f', 2);
    addLine(what, reference, amounts, times.ratio(), aim);
}

void ResultTable::addSizes(
    const QString& what, const QString& reference, const Comparison& sizes, std::optional<double> aim)
{
    const QString amounts =
        u"%1 MB : %2 MB"_s.arg(sizes.measured / 1e6, 9, 'f', 2).arg(sizes.reference / 1e6, 9, 'f', 2);
    addLine(what, reference, amounts, sizes.ratio(), aim);
}

void ResultTable::addLine(
    const QString& what, const QString& reference, const QString& amounts, double ratio,
    std::optional<double> aim)
{
    const bool isReached = !aim || ratio <= *aim;
    m_areAimsReached = m_areAimsReached && isReached;
    const QString verdict =
        aim ? u"  aim %1%2"_s.arg(figure(*aim), isReached ? QString() : u"  MISSED"_s) : QString();
    const QString line = u"  %1 %2 %3  ratio %4%5"_s.arg(what, -39)
                             .arg(reference, -39)
                             .arg(amounts)
                             .arg(figure(ratio), 6)
                             .arg(verdict);
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

} // namespace tw::bench
