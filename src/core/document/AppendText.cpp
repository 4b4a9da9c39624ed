#include "core/document/AppendText.h"

#include "core/document/markup/HtmlRenderer.h"

namespace tw::core::document {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringView withoutLineEndsAround(QStringView text)
{
    while (!text.isEmpty() && (text.front() == u'\n' || text.front() == u'\r'))
        text = text.sliced(1);
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

QString appendedMarkdown(const QString& body, QStringView text)
{
    if (QStringView(body).trimmed().isEmpty())
        return text.toString();
    QString joined = body;
    while (!joined.endsWith(u"\n\n"))
        joined += u'\n';
    return joined.append(text);
}

QString appendedHtml(const QString& body, QStringView text)
{
    QString joined = body;
    const qsizetype end = joined.lastIndexOf(u"</body>", -1, Qt::CaseInsensitive);
    return joined.insert(end < 0 ? joined.size() : end, markup::renderHtml(text));
}

} // namespace

DocumentBody withAppended(const DocumentBody& body, const QString& markdown)
{
    const QStringView text = withoutLineEndsAround(markdown);
    if (body.format == BodyFormat::Html)
        return {appendedHtml(body.text, text), BodyFormat::Html};
    return {appendedMarkdown(body.text, text), BodyFormat::Markdown};
}

} // namespace tw::core::document
