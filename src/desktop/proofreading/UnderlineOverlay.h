#pragma once

#include "desktop/proofreading/BlockFindings.h"
#include "desktop/proofreading/UnderlinePatterns.h"

#include <QWidget>

class QPainter;
class QTextBlock;
class QTextEdit;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::proofreading {

/** Where the visible text of an editor begins and ends, by number of paragraph. */
struct VisibleBlocks
{
    int first = 0;
    int last = 0;
};
[[nodiscard]] VisibleBlocks visibleBlocks(const QTextEdit& editor);

/**
 * Draws lines under what was found, on a pane of glass before the text: formats and layout of the document
 * stay untouched, and nothing is laid out again. Mouse and keyboard go through it.
 */
class UnderlineOverlay final : public QWidget
{
    Q_OBJECT

public:
    /** A child of the editor's viewport. All of them must outlive it. */
    UnderlineOverlay(const theme::ThemeManager& themes, QTextEdit& editor, const BlockFindings& findings);

    /** What was found in the paragraph is different now. */
    void updateBlock(int number);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void coverViewport();
    void followCursor();
    /** With its top left corner at `origin`, as far as it lies in `clip`. */
    void paintBlock(QPainter& painter, const QTextBlock& block, const QPointF& origin, const QRectF& clip);
    /** Of the cursor; -1 while nobody writes. */
    [[nodiscard]] int writtenPosition() const;

    const theme::ThemeManager& m_themes;
    QTextEdit& m_editor;
    const BlockFindings& m_findings;
    UnderlinePatterns m_patterns;
    /** The paragraph with a word that is being written; -1 for none. */
    int m_writtenBlock = -1;
};

} // namespace tw::desktop::proofreading
