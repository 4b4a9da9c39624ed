#pragma once

#include "desktop/proofreading/BlockFindings.h"

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
    void paintBlock(QPainter& painter, const QTextBlock& block, const QPointF& origin) const;
    /** The word under the writer's hands is no mistake yet. */
    [[nodiscard]] bool isBeingWritten(const QTextBlock& block, const ProseFinding& finding) const;

    const theme::ThemeManager& m_themes;
    QTextEdit& m_editor;
    const BlockFindings& m_findings;
    /** The paragraph with a word that is being written; -1 for none. */
    int m_writtenBlock = -1;
};

} // namespace tw::desktop::proofreading
