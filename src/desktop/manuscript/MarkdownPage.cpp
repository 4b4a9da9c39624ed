#include "desktop/manuscript/MarkdownPage.h"

#include "desktop/manuscript/MarkdownHighlighter.h"

namespace tw::desktop::manuscript {

MarkdownPage::MarkdownPage(theme::ThemeManager& themes, QWidget* parent)
    : PlainBodyEditor(themes, parent)
{
    new MarkdownHighlighter(themes, document());
}

void MarkdownPage::takeUpStyle()
{
    const Applying guard(*this);
    QTextBlockFormat format;
    format.setLineHeight(lineHeightPercent(), QTextBlockFormat::ProportionalHeight);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

} // namespace tw::desktop::manuscript
