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

/** An edit whose cursor stands at the end of a paragraph in the middle of its text. */
class WatchedEdit
{
public:
    explicit WatchedEdit(QTextEdit& edit)
        : m_edit(edit)
        , m_watch(*edit.viewport())
    {
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(edit.document()->characterCount() / 2);
        cursor.movePosition(QTextCursor::EndOfBlock);
        edit.setTextCursor(cursor);
        edit.ensureCursorVisible();
        QCoreApplication::processEvents();
    }

    /** Milliseconds until the letter was painted. */
    double type(QKeyEvent press)
    {
        m_watch.isPainted = false;
        QElapsedTimer clock;
        clock.start();
        QApplication::sendEvent(&m_edit, &press);
        while (!m_watch.isPainted)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        return static_cast<double>(clock.nsecsElapsed()) / 1e6;
    }

private:
    QTextEdit& m_edit;
    PaintWatch m_watch;
};

QKeyEvent keyAt(int index)
{
    const bool isBlank = index % wordLength == wordLength - 1;
    return QKeyEvent(
        QEvent::KeyPress, isBlank ? Qt::Key_Space : Qt::Key_E, Qt::NoModifier,
        isBlank ? QStringLiteral(" ") : QStringLiteral("e"));
}

} // namespace

double KeyTimes::quantile(double share) const
{
    std::vector<double> sorted = times;
    std::ranges::sort(sorted);
    const auto index = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size()))) - 1;
    return sorted[std::min(index, sorted.size() - 1)];
}

std::pair<KeyTimes, KeyTimes> timeKeys(QTextEdit& first, QTextEdit& second, int keys)
{
    WatchedEdit watchedFirst(first);
    WatchedEdit watchedSecond(second);
    std::pair<KeyTimes, KeyTimes> results;
    for (int index = 0; index < keys + uncounted; ++index) {
        const double firstTime = watchedFirst.type(keyAt(index));
        const double secondTime = watchedSecond.type(keyAt(index));
        if (index < uncounted)
            continue;
        results.first.times.push_back(firstTime);
        results.second.times.push_back(secondTime);
    }
    return results;
}

} // namespace tw::bench
