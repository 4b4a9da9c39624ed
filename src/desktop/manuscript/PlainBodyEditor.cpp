#include "desktop/manuscript/PlainBodyEditor.h"

#include "core/document/markup/BodyWords.h"

#include <QMimeData>
#include <QTextBlock>
#include <QUrl>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::document::DocumentBody;

namespace {

/** How the line of a block ends in the body. */
class LineEnd final : public QTextBlockUserData
{
public:
    explicit LineEnd(QString end)
        : text(std::move(end))
    {}

    const QString text;
};

} // namespace

PlainBodyEditor::PlainBodyEditor(theme::ThemeManager& themes, QWidget* parent)
    : BodyEditor(themes, parent)
{
    setAcceptRichText(false);
}

void PlainBodyEditor::applyBody(const DocumentBody& body)
{
    m_format = body.format;
    QString text = body.text;
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    applyText(text);
    keepLineEnds(body.text);
}

void PlainBodyEditor::keepLineEnds(const QString& body)
{
    const qsizetype returns = body.count(u'\r');
    const qsizetype pairs = body.count("\r\n"_L1);
    m_lineEnd = pairs > 0 ? u"\r\n"_s : u"\n"_s;
    m_hasMixedLineEnds = returns != pairs || (pairs > 0 && body.count(u'\n') != pairs);
    if (!m_hasMixedLineEnds)
        return;
    qsizetype position = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && position < body.size();
         block = block.next()) {
        while (position < body.size() && body[position] != u'\n' && body[position] != u'\r')
            ++position;
        const bool isPair = QStringView(body).sliced(position).startsWith("\r\n"_L1);
        block.setUserData(new LineEnd(body.mid(position, isPair ? 2 : 1)));
        position += isPair ? 2 : 1;
    }
}

DocumentBody PlainBodyEditor::currentBody()
{
    QString text = plainText();
    if (!m_hasMixedLineEnds)
        return {m_lineEnd == u"\n" ? text : text.replace(u'\n', m_lineEnd), m_format};
    text.clear();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        text += block.text();
        const auto* const end = static_cast<const LineEnd*>(block.userData());
        if (block.next().isValid())
            text += end ? end->text : m_lineEnd;
    }
    return {text, m_format};
}

QString PlainBodyEditor::plainText() const
{
    // toPlainText() would make blanks of the spaces that do not break.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text;
}

qint64 PlainBodyEditor::words()
{
    return core::document::markup::countBodyWords(plainText());
}

qint64 PlainBodyEditor::selectedWords() const
{
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return core::document::markup::countBodyWords(text);
}

void PlainBodyEditor::applyText(const QString& text)
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

bool PlainBodyEditor::canInsertFromMimeData(const QMimeData* source) const
{
    // Files belong to the window, which opens projects.
    const QList<QUrl> urls = source->urls();
    return source->hasText() && (urls.isEmpty() || !urls.constFirst().isLocalFile());
}

void PlainBodyEditor::insertFromMimeData(const QMimeData* source)
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
