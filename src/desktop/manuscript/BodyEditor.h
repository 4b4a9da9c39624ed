#pragma once

#include "core/document/Document.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/TextFinder.h"

#include <QTextEdit>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::manuscript {

/** Where typewriter scrolling keeps the cursor's line, from the top; of the window's height. */
inline constexpr qreal heldLine = 0.45;

/** To the left and to the right alike, in pixels. */
struct SheetMargins
{
    int sheet = 0; ///< Of desk beside the sheet.
    int text = 0;  ///< Beside the text.
};
[[nodiscard]] SheetMargins sheetMargins(const PageStyle& style, int available);

/**
 * A sheet of paper on which the body of one document is edited: a column of text in the middle of the desk,
 * generous lines, a zoom apart from the font. How the body is shown is the subclasses' matter. Undo belongs
 * to the project, not to this widget; whoever uses it carries edits to the project (see TypingBursts).
 */
class BodyEditor : public QTextEdit
{
    Q_OBJECT

public:
    BodyEditor(theme::ThemeManager& themes, QWidget* parent);
    ~BodyEditor() override;

    /** As high as its text from now on, without margins above and below: whoever holds it scrolls. */
    void setPartOfLongerText();

    [[nodiscard]] const PageStyle& pageStyle() const { return m_style; }
    void setPageStyle(const PageStyle& style);

    /**
     * Shows the body, by the smallest edit of what is shown already, so that cursor, selection and scroll
     * position stay where they are. Never emits edited().
     */
    virtual void applyBody(const core::document::DocumentBody& body) = 0;
    /** The body with everything typed up to now. Works on what changed since the last call alone. */
    [[nodiscard]] virtual core::document::DocumentBody currentBody() = 0;
    /** Words of the body as it is shown. Counts what changed since the last call alone. */
    [[nodiscard]] virtual qint64 words() = 0;
    [[nodiscard]] virtual qint64 selectedWords() const;

    /** The cursor's line keeps its place in the window, and the text moves. */
    void setTypewriterScrolling(bool isOn);

    /** Marks what a search found; empty for none. */
    void setFoundPlaces(const std::vector<FoundPlace>& places);
    /** Replaces the selected text, which keeps the style of its first character. */
    void replaceText(QTextCursor& selection, const QString& text);

signals:
    /** The writer changed something. */
    void edited();
    /** A paragraph was begun, joined or removed. */
    void paragraphEnded();
    void focusLeft();
    /** Ctrl and the wheel: one step larger (1) or smaller (-1). */
    void zoomStepRequested(int step);

protected:
    /** While one lives, changes of the document are none of the writer's. */
    class Applying
    {
    public:
        explicit Applying(BodyEditor& editor)
            : m_editor(editor)
        {
            ++m_editor.m_applying;
        }
        ~Applying() { --m_editor.m_applying; }
        Applying(const Applying&) = delete;
        Applying& operator=(const Applying&) = delete;

    private:
        BodyEditor& m_editor;
    };

    [[nodiscard]] bool isApplying() const { return m_applying > 0; }
    [[nodiscard]] const theme::ThemeManager& themes() const { return m_themes; }
    /** The line height in percent of the font's own, as block formats take it. */
    [[nodiscard]] qreal lineHeightPercent() const;
    /** Width of the column of text, in pixels. */
    [[nodiscard]] qreal columnWidth() const;

    /** Sets everything that depends on the page's style; the font is set already. */
    virtual void takeUpStyle() = 0;
    virtual void takeUpTheme();
    /** Selections that are drawn beside the found places. */
    void setQuietRanges(const QList<ExtraSelection>& ranges);
    /** What lies on the sheet below the text; `clip` in the viewport's coordinates. */
    virtual void paintSheet(QPainter& painter, const QRect& clip);
    void layOutColumn();

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void noteChange(int position, int removed, int added);
    void holdCursorLine();
    void showMarks();

    theme::ThemeManager& m_themes;
    PageStyle m_style;
    int m_applying = 0;
    bool m_isPart = false;
    QList<ExtraSelection> m_quietRanges;
    QList<ExtraSelection> m_foundPlaces;
    bool m_isTypewriter = false;
    /** The desk to the left and right of the sheet, in pixels. */
    int m_sheetMargin = 0;
};

} // namespace tw::desktop::manuscript
