#pragma once

#include <QTextEdit>

class QSettings;

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::manuscript {

/** How the page is set. */
struct PageStyle
{
    QString fontFamily;
    qreal fontPointSize = 13;
    /** 1.0 is the font's own size; apart from the font, as a magnifying glass. */
    qreal zoom = 1.0;
    /** Width of the column, in characters of running text. */
    int columnCharacters = 66;
    /** Of the font's size. */
    qreal lineHeight = 1.5;

    friend bool operator==(const PageStyle&, const PageStyle&) = default;
};

/** Between what a style may be; what lies outside is brought in. */
struct PageLimits
{
    static constexpr qreal smallestFont = 6;
    static constexpr qreal largestFont = 72;
    static constexpr int narrowest = 30;
    static constexpr int widest = 120;
    static constexpr qreal tightest = 1.0;
    static constexpr qreal loosest = 3.0;
};

/**
 * How the user wants pages set: "editor/fontFamily", "editor/fontSize", "editor/pageWidth",
 * "editor/lineHeight", "editor/zoom".
 */
[[nodiscard]] PageStyle pageStyleFrom(const QSettings& settings);
/** Keeps all of it but the zoom, which has its own keys. */
void storePageStyle(QSettings& settings, const PageStyle& style);
/** Back to how pages came. */
void forgetPageStyle(QSettings& settings);
/** Makes pages larger or smaller by so many steps, within sensible limits; none changes nothing. */
void stepPageZoom(QSettings& settings, int steps);

/**
 * A sheet of paper for Markdown text: a column of text in the middle, generous lines, the
 * marks of the markup shown quietly. Holds plain text; undo belongs to the project, not to this widget.
 */
class MarkdownPage final : public QTextEdit
{
    Q_OBJECT

public:
    MarkdownPage(theme::ThemeManager& themes, QWidget* parent);

    void setPageStyle(const PageStyle& style);

    /**
     * Makes the text this one by the smallest edit, so that cursor and scroll position stay where they are.
     * Emits nothing but the document's own signals.
     */
    void applyText(const QString& text);

signals:
    void focusLeft();
    /** Ctrl and the wheel: one step larger (1) or smaller (-1). */
    void zoomStepRequested(int step);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void applyTheme();
    void layOutColumn();
    void formatLines();

    theme::ThemeManager& m_themes;
    PageStyle m_style;
    /** The desk to the left and right of the sheet, in pixels. */
    int m_sheetMargin = 0;
};

} // namespace tw::desktop::manuscript
