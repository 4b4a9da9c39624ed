#include "bench/writing-benchmark/KeyTimes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QKeyEvent>
#include <QTextBlock>
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

QTextBlock blockWith(const QString& text, const QTextDocument& document)
{
    QTextBlock block = document.begin();
    while (block.isValid() && block.text() != text)
        block = block.next();
    return block;
}

/** The paragraph at the place, or the nearest that reads alike in both: what a key costs depends on its
 * length. */
std::pair<QTextBlock, QTextBlock> sharedParagraph(
    const QTextDocument& first, const QTextDocument& second, Place place)
{
    QTextBlock block = place == Place::End ? first.lastBlock() : first.findBlock(first.characterCount() / 2);
    for (; block.isValid(); block = block.previous()) {
        const QTextBlock other = block.length() > 1 ? blockWith(block.text(), second) : QTextBlock();
        if (other.isValid())
            return {block, other};
    }
    qFatal("The texts have no paragraph in common");
}

/** An edit whose cursor stands at the end of a paragraph. */
class WatchedEdit
{
public:
    WatchedEdit(QTextEdit& edit, const QTextBlock& paragraph)
        : m_edit(edit)
        , m_watch(*edit.viewport())
    {
        QTextCursor cursor(paragraph);
        cursor.movePosition(QTextCursor::EndOfBlock);
        edit.setTextCursor(cursor);
        edit.ensureCursorVisible();
        QCoreApplication::processEvents();
    }

    /** The key is pressed in so many milliseconds. Gives those from then on until the letter was painted. */
    double type(QKeyEvent press, double rest)
    {
        QElapsedTimer clock;
        clock.start();
        const auto elapsed = [&clock] { return static_cast<double>(clock.nsecsElapsed()) / 1e6; };
        while (elapsed() < rest)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        m_watch.isPainted = false;
        QApplication::sendEvent(&m_edit, &press);
        while (!m_watch.isPainted)
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        return elapsed() - rest;
    }

private:
    QTextEdit& m_edit;
    PaintWatch m_watch;
};

bool beginsWord(int index)
{
    return index % wordLength == 0;
}

QKeyEvent keyAt(int index)
{
    const bool isBlank = beginsWord(index + 1);
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

std::pair<KeyTimes, KeyTimes> timeKeys(QTextEdit& first, QTextEdit& second, const Typing& typing)
{
    const auto paragraphs = sharedParagraph(*first.document(), *second.document(), typing.place);
    WatchedEdit watchedFirst(first, paragraphs.first);
    WatchedEdit watchedSecond(second, paragraphs.second);
    std::pair<KeyTimes, KeyTimes> results;
    for (int index = 0; index < typing.keys + uncounted; ++index) {
        const double rest = typing.beforeWord && beginsWord(index) ? typing.beforeWord() : 0;
        const double firstTime = watchedFirst.type(keyAt(index), rest);
        const double secondTime = watchedSecond.type(keyAt(index), 0);
        if (index < uncounted)
            continue;
        results.first.times.push_back(firstTime);
        results.second.times.push_back(secondTime);
    }
    return results;
}

} // namespace tw::bench
