#pragma once

#include "desktop/manuscript/PlainBodyEditor.h"
#include "desktop/screenplay/ScreenplayFormats.h"

#include <QTextBlock>
#include <QTimer>

#include <set>

namespace tw::desktop::manuscript {
class NameCompletion;
}

namespace tw::desktop::screenplay {

/** How pages of screenplays are set, whatever the writer chose for prose; the zoom is the same. */
[[nodiscard]] manuscript::PageStyle screenplayStyle(manuscript::PageStyle style);

/**
 * A screenplay as the plain text it is, each line where its element belongs on the page. Tab goes through the
 * elements of a line, Return begins the element that usually follows. Lines that differ from the revision
 * baseline carry an asterisk in the margin.
 */
class ScreenplayPage final : public manuscript::PlainBodyEditor
{
    Q_OBJECT

public:
    ScreenplayPage(theme::ThemeManager& themes, QWidget* parent);

    /** What the cursor's line is, or will be once something stands in it. */
    [[nodiscard]] Element elementAtCursor() const;
    /**
     * Makes the cursor's line this element, rewriting it as far as that takes. False when it cannot be:
     * nobody speaks above.
     */
    bool setElement(Element element);

    /** The text as it was when the last revision was marked; empty for no marks. */
    void setRevisionBaseline(const QString& text);
    /** Numbers of the lines that carry a mark, from 0. */
    [[nodiscard]] const std::set<int>& revisedLines() const { return m_revisedLines; }
    /** Brings the marks up to the text at once; otherwise that happens in a rest. */
    void markRevisedLines();

    /** How many pages of a printed screenplay the text fills. */
    [[nodiscard]] int pages() const;

signals:
    void elementChanged(tw::core::document::screenplay::Element element);

protected:
    void takeUpStyle() override;
    void takeUpTheme() override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void noteLines(int position, int added);
    void refreshNotedLines();
    void refreshLine(QTextBlock block, bool isForced);
    void showLine(const QTextBlock& block, Element element);
    void choose(const QTextBlock& block, Element element);
    void rewrite(QTextBlock block, Element element);
    void followCursor();
    void settleChoice(const QTextBlock& block);
    [[nodiscard]] Element naturalElement(const QTextBlock& block) const;
    [[nodiscard]] bool isNameWithoutSpeech(const QTextBlock& block, Element chosen) const;
    void stepElement(int step);
    bool beginNextLine();
    void announceElement();
    void offerSpeakers();
    void completeSpeaker(const QString& name);
    [[nodiscard]] QStringList speakersFor(const QTextBlock& line) const;

    qreal m_characterWidth = 1;
    int m_firstNoted = -1;
    int m_lastNoted = -1;
    bool m_isRefreshing = false;
    Element m_announced = Element::Blank;
    /** The number of the line that the cursor was in. */
    int m_cursorLine = 0;
    QString m_baseline;
    std::set<int> m_revisedLines;
    QTimer m_revisionRest;
    /** Made when first needed. */
    manuscript::NameCompletion* m_completion = nullptr;
    /** Who speaks in the other lines, likely ones first; gathered once for a line that names a speaker. */
    QStringList m_speakers;
    int m_speakersLine = -1;
};

} // namespace tw::desktop::screenplay
