#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::manuscript {

/**
 * Shows Markdown as it is meant while every character stays: headings larger, emphasis slanted or bold, marks
 * and footnote references quiet. Looks at each character of a line a bounded number of times.
 */
class MarkdownHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    MarkdownHighlighter(theme::ThemeManager& themes, QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;

private:
    void takeUpTheme();
    [[nodiscard]] bool highlightLine(const QString& text);
    void highlightEmphasis(const QString& text);
    void highlightReferences(const QString& text);

    theme::ThemeManager& m_themes;
    QTextCharFormat m_quiet;
};

} // namespace tw::desktop::manuscript
