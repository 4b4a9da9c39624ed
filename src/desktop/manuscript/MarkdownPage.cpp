#include "desktop/manuscript/MarkdownPage.h"

#include "core/document/WordCount.h"
#include "desktop/manuscript/MarkdownHighlighter.h"

#include <QMimeData>
#include <QTextBlock>
#include <QUrl>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::document::DocumentBody;

MarkdownPage::MarkdownPage(theme::ThemeManager& themes, QWidget* parent)
    : BodyEditor(themes, parent)
{
    setAcceptRichText(false);
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

void MarkdownPage::applyBody(const DocumentBody& body)
{
    m_format = body.format;
    m_hasCarriageReturns = body.text.contains("\r\n"_L1);
    QString text = body.text;
    if (m_hasCarriageReturns)
        text.replace("\r\n"_L1, "\n"_L1);
    applyText(text);
}

DocumentBody MarkdownPage::currentBody()
{
    QString text = plainText();
    if (m_hasCarriageReturns)
        text.replace("\n"_L1, "\r\n"_L1);
    return {text, m_format};
}

QString MarkdownPage::plainText() const
{
    // toPlainText() would make blanks of the spaces that do not break.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text;
}

qint64 MarkdownPage::words()
{
    return core::document::countWords(plainText());
}

void MarkdownPage::applyText(const QString& text)
{
    const Applying guard(*this);
    const QString present = plainText();
    if (present == text)
        return;
    if (present.isEmpty() || text.isEmpty()) {
        setPlainText(text);
        takeUpStyle();
        layOutColumn();
        return;
    }
    const auto [presentDiffers, textDiffers] =
        std::mismatch(present.cbegin(), present.cend(), text.cbegin(), text.cend());
    const qsizetype start = presentDiffers - present.cbegin();
    qsizetype tail = 0;
    while (tail < std::min(present.size(), text.size()) - start &&
           present[present.size() - 1 - tail] == text[text.size() - 1 - tail])
        ++tail;
    QTextCursor edit(document());
    edit.beginEditBlock();
    edit.setPosition(static_cast<int>(start));
    edit.setPosition(static_cast<int>(present.size() - tail), QTextCursor::KeepAnchor);
    edit.insertText(text.mid(start, text.size() - tail - start));
    edit.endEditBlock();
}

bool MarkdownPage::canInsertFromMimeData(const QMimeData* source) const
{
    // Files belong to the window, which opens projects.
    const QList<QUrl> urls = source->urls();
    return source->hasText() && (urls.isEmpty() || !urls.constFirst().isLocalFile());
}

void MarkdownPage::insertFromMimeData(const QMimeData* source)
{
    if (!source->hasText())
        return;
    QString text = source->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    textCursor().insertText(text);
    ensureCursorVisible();
}

} // namespace tw::desktop::manuscript
