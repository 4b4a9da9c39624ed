#include "core/document/markup/HtmlRenderer.h"

#include "core/document/markup/Blocks.h"
#include "core/document/markup/InlineHtml.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

class HtmlRenderer
{
public:
    [[nodiscard]] QString render(const Blocks& blocks, const HtmlOptions& options)
    {
        for (const Block& block : blocks.list)
            write(block);
        closeLists(0);
        writeFootnotes(options);
        return std::move(m_html);
    }

private:
    struct OpenList
    {
        bool isNumbered = false;
        int level = 0;
    };
    struct Definition
    {
        QString label;
        QString text;
    };

    void write(const Block& block);
    void writeItem(const Block& block);
    void writeQuotation(const Block& block);
    void writeCode(const Block& block);
    void writeTable(const Table& table);
    void writeCells(const Table& table, std::size_t row, const QString& tag);
    void writeFootnotes(const HtmlOptions& options);
    /** Closes lists until `count` are open. */
    void closeLists(std::size_t count);

    QString m_html;
    InlineHtml m_inline;
    std::vector<OpenList> m_lists;
    std::vector<Definition> m_definitions;
};

QString listTag(bool isNumbered)
{
    return isNumbered ? u"ol"_s : u"ul"_s;
}

void HtmlRenderer::write(const Block& block)
{
    const bool isItem = block.kind == BlockKind::BulletItem || block.kind == BlockKind::NumberedItem;
    if (!isItem && block.kind != BlockKind::FootnoteDefinition)
        closeLists(0);
    switch (block.kind) {
    case BlockKind::Paragraph:
        m_html +=
            u"<p%1>%2</p>\n"_s.arg(blockAttributesForHtml(block.attributes), m_inline.render(block.text));
        break;
    case BlockKind::Heading:
        m_html += u"<h%1%2>%3</h%1>\n"_s.arg(
            QString::number(block.level), blockAttributesForHtml(block.attributes),
            m_inline.render(block.text));
        break;
    case BlockKind::Rule:
        m_html += u"<hr>\n"_s;
        break;
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
        writeItem(block);
        break;
    case BlockKind::Quotation:
        writeQuotation(block);
        break;
    case BlockKind::Code:
        writeCode(block);
        break;
    case BlockKind::Table:
        writeTable(block.table);
        break;
    case BlockKind::FootnoteDefinition:
        m_definitions.push_back({block.label, block.text});
        break;
    }
}

void HtmlRenderer::closeLists(std::size_t count)
{
    for (; m_lists.size() > count; m_lists.pop_back())
        m_html += u"</li>\n</%1>\n"_s.arg(listTag(m_lists.back().isNumbered));
}

void HtmlRenderer::writeItem(const Block& block)
{
    const bool isNumbered = block.kind == BlockKind::NumberedItem;
    std::size_t kept = m_lists.size();
    while (kept > 0 &&
           (m_lists[kept - 1].level > block.level ||
            (m_lists[kept - 1].level == block.level && m_lists[kept - 1].isNumbered != isNumbered)))
        --kept;
    closeLists(kept);
    if (!m_lists.empty() && m_lists.back().level == block.level) {
        m_html += u"</li>\n"_s;
    } else {
        m_html += (m_lists.empty() ? u"<%1>\n"_s : u"\n<%1>\n"_s).arg(listTag(isNumbered));
        m_lists.push_back({isNumbered, block.level});
    }
    m_html += u"<li%1>%2"_s.arg(blockAttributesForHtml(block.attributes), m_inline.render(block.text));
}

void HtmlRenderer::writeQuotation(const Block& block)
{
    m_html += u"<blockquote>\n"_s.repeated(block.level);
    m_html += u"<p%1>%2</p>\n"_s.arg(blockAttributesForHtml(block.attributes), m_inline.render(block.text));
    m_html += u"</blockquote>\n"_s.repeated(block.level);
}

void HtmlRenderer::writeCode(const Block& block)
{
    const QString attribute =
        block.label.isEmpty() ? QString() : u" class=\"language-"_s + escapedForHtml(block.label) + u'"';
    m_html += u"<pre><code%1>%2</code></pre>\n"_s.arg(attribute, escapedForHtml(block.text));
}

void HtmlRenderer::writeCells(const Table& table, std::size_t row, const QString& tag)
{
    static constexpr std::array alignments = {""_L1, "left"_L1, "center"_L1, "right"_L1};
    const std::vector<QString>& cells = table.rows[row];
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const ColumnAlignment alignment =
            column < table.columns.size() ? table.columns[column] : ColumnAlignment::Default;
        const QString style =
            alignment == ColumnAlignment::Default
                ? QString()
                : u" style=\"text-align:%1\""_s.arg(alignments[static_cast<std::size_t>(alignment)]);
        m_html += u"<%1%2>%3</%1>\n"_s.arg(tag, style, m_inline.render(cells[column]));
    }
}

void HtmlRenderer::writeTable(const Table& table)
{
    m_html += u"<table>\n<thead>\n<tr>\n"_s;
    writeCells(table, 0, u"th"_s);
    m_html += u"</tr>\n</thead>\n<tbody>\n"_s;
    for (std::size_t row = 1; row < table.rows.size(); ++row) {
        m_html += u"<tr>\n"_s;
        writeCells(table, row, u"td"_s);
        m_html += u"</tr>\n"_s;
    }
    m_html += u"</tbody>\n</table>\n"_s;
}

void HtmlRenderer::writeFootnotes(const HtmlOptions& options)
{
    QSet<QString> defined;
    for (const Definition& definition : m_definitions)
        defined.insert(definition.label);
    const QSet<QString> referred(m_inline.references().begin(), m_inline.references().end());
    for (const Footnote& footnote : options.footnotes) {
        if (referred.contains(footnote.id) && !defined.contains(footnote.id))
            m_definitions.push_back({footnote.id, footnote.text});
    }
    if (m_definitions.empty())
        return;
    m_html += u"<section class=\"footnotes\">\n<ol>\n"_s;
    for (const Definition& definition : m_definitions) {
        m_html +=
            u"<li id=\"fn-%1\"><p>%2 <a href=\"#fnref-%1\" class=\"footnote-backref\">\u21a9</a></p></li>\n"_s
                .arg(footnoteAnchor(definition.label), m_inline.render(definition.text));
    }
    m_html += u"</ol>\n</section>\n"_s;
}

} // namespace

QString renderHtml(QStringView body, const HtmlOptions& options)
{
    return HtmlRenderer().render(parseBlocks(body), options);
}

} // namespace tw::core::document::markup
