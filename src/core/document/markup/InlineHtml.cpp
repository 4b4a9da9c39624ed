#include "core/document/markup/InlineHtml.h"

#include "core/document/markup/SafeValues.h"

#include <algorithm>
#include <vector>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Tag
{
    QString opening;
    QString closing;

    friend bool operator==(const Tag&, const Tag&) = default;
};

QString styleAttribute(const QStringList& declarations)
{
    return declarations.isEmpty() ? QString() : u" style=\"%1\""_s.arg(declarations.join(u';'));
}

QString titleAttribute(const QString& title)
{
    return title.isEmpty() ? QString() : u" title=\"%1\""_s.arg(escapedForHtml(title));
}

void addAttributeTags(std::vector<Tag>& tags, const InlineAttributes& attributes)
{
    QStringList declarations;
    if (const QString color = safeColor(attributes.color); !color.isEmpty())
        declarations.append(u"color:"_s + color);
    if (const QString color = safeColor(attributes.background); !color.isEmpty())
        declarations.append(u"background-color:"_s + color);
    if (const QString family = safeFontFamily(attributes.font); !family.isEmpty())
        declarations.append(u"font-family:'%1'"_s.arg(escapedForHtml(family)));
    if (attributes.size > 0)
        declarations.append(u"font-size:%1pt"_s.arg(attributes.size));
    if (attributes.underline)
        declarations.append(u"text-decoration:underline"_s);
    if (!declarations.isEmpty())
        tags.push_back({u"<span"_s + styleAttribute(declarations) + u'>', u"</span>"_s});
    if (attributes.superscript)
        tags.push_back({u"<sup>"_s, u"</sup>"_s});
    if (attributes.subscript)
        tags.push_back({u"<sub>"_s, u"</sub>"_s});
}

/** Outermost first. */
std::vector<Tag> tagsOf(const Run& run)
{
    std::vector<Tag> tags;
    const RunStyle& style = run.style;
    // A reference is a link itself.
    if (const QString target = safeLinkTarget(style.link);
        !target.isEmpty() && run.kind != RunKind::FootnoteReference) {
        tags.push_back(
            {u"<a href=\""_s + escapedForHtml(target) + u'"' + titleAttribute(style.linkTitle) + u'>',
             u"</a>"_s});
    }
    addAttributeTags(tags, style.attributes);
    if (style.strikethrough)
        tags.push_back({u"<del>"_s, u"</del>"_s});
    if (style.bold)
        tags.push_back({u"<strong>"_s, u"</strong>"_s});
    if (style.italic)
        tags.push_back({u"<em>"_s, u"</em>"_s});
    if (style.code)
        tags.push_back({u"<code>"_s, u"</code>"_s});
    return tags;
}

QString imageHtml(const Run& run)
{
    const QString source = safeLinkTarget(run.target);
    if (source.isEmpty())
        return escapedForHtml(run.text);
    return u"<img src=\""_s + escapedForHtml(source) + u"\" alt=\""_s + escapedForHtml(run.text) + u'"' +
           (run.style.link.isEmpty() ? titleAttribute(run.style.linkTitle) : QString()) + u'>';
}

} // namespace

QString escapedForHtml(const QString& text)
{
    QString escaped = text.toHtmlEscaped();
    escaped.replace(u'\'', u"&#39;"_s);
    return escaped.replace(u'\0', QChar(QChar::ReplacementCharacter));
}

QString blockAttributesForHtml(const BlockAttributes& attributes)
{
    QStringList declarations;
    if (const QString alignment = safeAlignment(attributes.align); !alignment.isEmpty())
        declarations.append(u"text-align:"_s + alignment);
    if (attributes.spacing > 0)
        declarations.append(u"line-height:"_s + QString::number(attributes.spacing));
    if (attributes.indent > 0)
        declarations.append(u"margin-left:%1em"_s.arg(attributes.indent));
    if (attributes.pageBreak)
        declarations.append(u"page-break-before:always"_s);
    const QString style = attributes.style.isEmpty()
                              ? QString()
                              : u" data-tw-style=\""_s + escapedForHtml(attributes.style) + u'"';
    return styleAttribute(declarations) + style;
}

QString footnoteAnchor(const QString& label)
{
    // Characters that no id or address holds stand as their numbers between full stops, so that no two labels
    // share an anchor.
    QString anchor;
    for (const QChar character : label) {
        if (character.isLetterOrNumber() || character == u'_' || character == u'-')
            anchor += character;
        else
            anchor += u'.' + QString::number(character.unicode(), 16) + u'.';
    }
    return anchor;
}

QString InlineHtml::referenceTo(const QString& label)
{
    const int count = ++m_counts[label];
    if (count == 1)
        m_references.append(label);
    const QString anchor = footnoteAnchor(label);
    // No anchor has an odd number of full stops.
    const QString id = u"fnref-"_s + anchor + (count > 1 ? u'.' + QString::number(count) : QString());
    return u"<sup class=\"footnote-ref\" id=\"%1\"><a href=\"#fn-%2\">%3</a></sup>"_s.arg(
        id, anchor, escapedForHtml(label));
}

QString InlineHtml::render(QStringView inlineMarkdown)
{
    QString html;
    std::vector<Tag> open;
    const auto closeTo = [&](std::size_t count) {
        for (; open.size() > count; open.pop_back())
            html += open.back().closing;
    };
    for (const Run& run : parseInline(inlineMarkdown)) {
        const std::vector<Tag> tags = tagsOf(run);
        closeTo(static_cast<std::size_t>(std::ranges::mismatch(open, tags).in1 - open.begin()));
        for (std::size_t index = open.size(); index < tags.size(); ++index) {
            html += tags[index].opening;
            open.push_back(tags[index]);
        }
        switch (run.kind) {
        case RunKind::Text:
            html += escapedForHtml(run.text);
            break;
        case RunKind::Image:
            html += imageHtml(run);
            break;
        case RunKind::FootnoteReference:
            html += referenceTo(run.text);
            break;
        case RunKind::SoftBreak:
            html += u'\n';
            break;
        case RunKind::HardBreak:
            html += u"<br>\n"_s;
            break;
        }
    }
    closeTo(0);
    return html;
}

} // namespace tw::core::document::markup
