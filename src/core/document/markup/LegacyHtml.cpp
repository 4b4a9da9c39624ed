#include "core/document/markup/LegacyHtml.h"

#include "core/document/markup/BlockWriter.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/HtmlTokenizer.h"
#include "core/document/markup/InlineWriter.h"
#include "core/document/markup/LegacyStyles.h"
#include "core/document/markup/SafeValues.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Elements in each other that are kept apart; deeper ones count as part of those around them. */
constexpr std::size_t deepestElements = 256;

template <std::size_t Count>
bool isOneOf(const QString& name, const QLatin1StringView (&names)[Count])
{
    return std::ranges::any_of(names, [&name](QLatin1StringView known) { return name == known; });
}

bool isBlockElement(const QString& name)
{
    static constexpr QLatin1StringView names[] = {
        "p"_L1,    "div"_L1,     "center"_L1, "section"_L1, "article"_L1,    "header"_L1, "footer"_L1,
        "main"_L1, "address"_L1, "dl"_L1,     "dt"_L1,      "dd"_L1,         "figure"_L1, "body"_L1,
        "html"_L1, "form"_L1,    "h1"_L1,     "h2"_L1,      "h3"_L1,         "h4"_L1,     "h5"_L1,
        "h6"_L1,   "li"_L1,      "ul"_L1,     "ol"_L1,      "blockquote"_L1, "pre"_L1,    "table"_L1,
        "tr"_L1,   "td"_L1,      "th"_L1,     "caption"_L1, "thead"_L1,      "tbody"_L1};
    return isOneOf(name, names);
}

int headingLevel(const QString& name)
{
    return name.size() == 2 && name[0] == u'h' && name[1] >= u'1' && name[1] <= u'6' ? name[1].digitValue()
                                                                                     : 0;
}

class Converter
{
public:
    explicit Converter(QStringView html)
        : m_tokenizer(html)
    {}

    [[nodiscard]] QString run();

private:
    struct Element
    {
        QString name;
        RunStyle style;
        BlockAttributes attributes;
    };
    struct List
    {
        bool isNumbered = false;
        int count = 0;
    };

    void open(const HtmlToken& tag);
    void close(const QString& name);
    void openBlock(const HtmlToken& tag);
    void closeBlock(const QString& name);
    void addText(const QString& text);
    void addImage(const HtmlToken& tag);
    void openTable();
    void endCell();
    void endTable();
    /** Writes the text gathered so far as a block of the kind that the elements around it say. */
    void endBlock();
    void write(const Block& block);
    [[nodiscard]] RunStyle style() const { return m_elements.empty() ? RunStyle() : m_elements.back().style; }
    [[nodiscard]] bool isInTable() const { return m_tableDepth > 0; }

    HtmlTokenizer m_tokenizer;
    QString m_result;
    BlockKind m_lastKind = BlockKind::Paragraph;
    std::vector<Element> m_elements;
    std::vector<Run> m_runs;
    std::vector<List> m_lists;
    Table m_table;
    int m_tableDepth = 0;
    int m_quotationDepth = 0;
    int m_heading = 0;
    int m_preDepth = 0;
    /** The next block is the beginning of an item. */
    bool m_startsItem = false;
};

QString Converter::run()
{
    while (true) {
        const HtmlToken token = m_tokenizer.next();
        switch (token.kind) {
        case HtmlToken::Kind::End:
            if (isInTable())
                endTable();
            endBlock();
            return std::move(m_result);
        case HtmlToken::Kind::Text:
            addText(token.text);
            break;
        case HtmlToken::Kind::Opening:
            open(token);
            break;
        case HtmlToken::Kind::Closing:
            close(token.text);
            break;
        }
    }
}

void Converter::open(const HtmlToken& tag)
{
    if (tag.text == "br"_L1) {
        m_runs.push_back({RunKind::HardBreak, {}, {}, {}});
        return;
    }
    if (tag.text == "img"_L1) {
        addImage(tag);
        return;
    }
    if (tag.text == "hr"_L1) {
        endBlock();
        if (!isInTable())
            write({.kind = BlockKind::Rule});
        return;
    }
    const bool isBlock = isBlockElement(tag.text);
    if (isBlock)
        openBlock(tag);
    if (m_elements.size() == deepestElements)
        return;
    // What a page sets for everything is no formatting of the writer's.
    const bool isPage = tag.text == "body"_L1 || tag.text == "html"_L1;
    m_elements.push_back(
        {tag.text, isPage ? RunStyle() : styleWithin(tag, style()),
         isBlock ? blockAttributesOf(tag) : BlockAttributes()});
}

void Converter::close(const QString& name)
{
    if (isBlockElement(name))
        closeBlock(name);
    const auto last = std::ranges::find(m_elements.rbegin(), m_elements.rend(), name, &Element::name);
    if (last != m_elements.rend())
        m_elements.erase(last.base() - 1, m_elements.end());
}

void Converter::openBlock(const HtmlToken& tag)
{
    endBlock();
    const QString& name = tag.text;
    if (name == "ul"_L1 || name == "ol"_L1) {
        if (m_lists.size() <= deepestLevel)
            m_lists.push_back({name == "ol"_L1, 0});
    } else if (name == "li"_L1) {
        m_startsItem = true;
    } else if (name == "blockquote"_L1) {
        ++m_quotationDepth;
    } else if (name == "pre"_L1) {
        ++m_preDepth;
    } else if (name == "table"_L1) {
        openTable();
    } else if (name == "tr"_L1 && m_tableDepth == 1) {
        m_table.rows.emplace_back();
    }
    m_heading = headingLevel(name);
}

void Converter::closeBlock(const QString& name)
{
    if ((name == "td"_L1 || name == "th"_L1) && m_tableDepth == 1)
        endCell();
    endBlock();
    m_heading = 0;
    if ((name == "ul"_L1 || name == "ol"_L1) && !m_lists.empty())
        m_lists.pop_back();
    else if (name == "li"_L1)
        m_startsItem = false;
    else if (name == "blockquote"_L1 && m_quotationDepth > 0)
        --m_quotationDepth;
    else if (name == "pre"_L1 && m_preDepth > 0)
        --m_preDepth;
    else if (name == "table"_L1 && isInTable())
        endTable();
}

void Converter::addText(const QString& text)
{
    if (m_preDepth > 0 && !isInTable()) {
        m_runs.push_back({RunKind::Text, text, {}, style()});
        return;
    }
    QString words;
    words.reserve(text.size());
    const bool isAfterSpace =
        m_runs.empty() || (m_runs.back().kind == RunKind::Text && m_runs.back().text.endsWith(u' '));
    for (const QChar character : text) {
        if (!isBlank(character) && !isLineEnd(character))
            words += character;
        else if (words.isEmpty() ? !isAfterSpace : words.back() != u' ')
            words += u' ';
    }
    if (!words.isEmpty())
        m_runs.push_back({RunKind::Text, words, {}, style()});
}

void Converter::addImage(const HtmlToken& tag)
{
    const QString description = tag.attribute("alt"_L1);
    const QString source = safeLinkTarget(tag.attribute("src"_L1));
    if (!source.isEmpty())
        m_runs.push_back({RunKind::Image, description, source, style()});
    else if (!description.isEmpty())
        m_runs.push_back({RunKind::Text, description, {}, style()});
}

void Converter::openTable()
{
    if (m_tableDepth++ == 0)
        m_table = {};
}

void Converter::endCell()
{
    if (m_table.rows.empty())
        m_table.rows.emplace_back();
    m_table.rows.back().push_back(writeInline(m_runs));
    m_runs.clear();
}

void Converter::endTable()
{
    if (!m_runs.empty())
        endCell();
    if (--m_tableDepth > 0)
        return;
    std::erase_if(m_table.rows, [](const auto& row) { return row.empty(); });
    if (!m_table.rows.empty())
        write({.kind = BlockKind::Table, .table = std::move(m_table)});
    m_table = {};
}

void Converter::endBlock()
{
    if (isInTable()) {
        // Paragraphs of a cell stand one after another in its one line.
        if (!m_runs.empty())
            m_runs.push_back({RunKind::Text, u" "_s, {}, {}});
        return;
    }
    const std::vector<Run> runs = std::exchange(m_runs, {});
    Block block;
    for (const Element& element : m_elements) {
        if (!element.attributes.isEmpty())
            block.attributes = element.attributes;
    }
    if (m_preDepth > 0) {
        for (const Run& run : runs)
            block.text += run.kind == RunKind::HardBreak ? u"\n"_s : run.text;
        block.text = block.text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        block.kind = BlockKind::Code;
    } else {
        std::vector<Run> trimmed = canonicalRuns(runs);
        // Blanks at the edges come from how the source was set, not from the writer.
        if (!trimmed.empty() && trimmed.front().kind == RunKind::Text && !trimmed.front().style.code)
            trimmed.front().text = trimmed.front().text.sliced(skip(trimmed.front().text, 0, isBlank));
        if (!trimmed.empty() && trimmed.back().kind == RunKind::Text && !trimmed.back().style.code)
            while (trimmed.back().text.endsWith(u' '))
                trimmed.back().text.chop(1);
        block.text = writeInline(trimmed);
    }
    if (QStringView(block.text).trimmed().isEmpty())
        return;
    if (block.kind == BlockKind::Code)
        block.attributes = {};
    else if (m_startsItem && !m_lists.empty()) {
        List& list = m_lists.back();
        block.kind = list.isNumbered ? BlockKind::NumberedItem : BlockKind::BulletItem;
        block.level = static_cast<int>(m_lists.size()) - 1;
        block.marker = list.isNumbered ? QString::number(++list.count) + u'.' : u"-"_s;
        m_startsItem = false;
    } else if (m_heading > 0) {
        block.kind = BlockKind::Heading;
        block.level = m_heading;
    } else if (m_quotationDepth > 0) {
        block.kind = BlockKind::Quotation;
        block.level = std::min(m_quotationDepth, deepestLevel);
    }
    write(block);
}

void Converter::write(const Block& block)
{
    if (!m_result.isEmpty())
        m_result += QString(lineEndsBetween(m_lastKind, block.kind), u'\n');
    m_result += writeBlock(block);
    m_lastKind = block.kind;
}

} // namespace

QString htmlToMarkdown(QStringView html)
{
    return Converter(html).run();
}

QString markdownOf(const DocumentBody& body)
{
    return body.format == BodyFormat::Html ? htmlToMarkdown(body.text) : body.text;
}

} // namespace tw::core::document::markup
