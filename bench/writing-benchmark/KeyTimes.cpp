#include "bench/writing-benchmark/KeyTimes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QKeyEvent>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

namespace tw::bench {

namespace {

constexpr int uncounted = 20;
constexpr int wordLength = 6;

class PaintWatch final : public QObject
{
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

    bool isPainted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

double KeyTimes::quantile(double share) const
{
    std::vector<double> sorted = times;
    std::ranges::sort(sorted);
    const auto index = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size()))) - 1;
    return sorted[std::min(index, sorted.size() - 1)];
}

KeyTimes timeKeys(QTextEdit& edit, int keys)
{
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(edit.document()->characterCount() / 2);
    cursor.movePosition(QTextCursor::EndOfBlock);
    edit.setTextCursor(cursor);
    edit.ensureCursorVisible();
    QCoreApplication::processEvents();
    PaintWatch watch(*edit.viewport());
    KeyTimes result;
    for (int index = 0; index < keys + uncounted; ++index) {
        const bool isBlank = index % wordLength == wordLength - 1;
        QKeyEvent press(
            QEvent::KeyPress, isBlank ? Qt::Key_Space : Qt::Key_E, Qt::NoModifier,
            isBlank ? QStringLiteral(" ") : QStringLiteral("e"));
        watch.isPainted = false;
        QElapsedTimer clock;
        clock.start();
        QApplication::sendEvent(&edit, &press);
        while (!watch.isPainted)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        if (index >= uncounted)
            result.times.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    return result;
}

} // namespace tw::bench
