#include "core/document/markup/Blocks.h"
#include "core/document/markup/BlockWriter.h"
#include "support/MarkdownBodies.h"

#include <gtest/gtest.h>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

QString kindText(const Block& block)
{
    switch (block.kind) {
    case BlockKind::Paragraph:
        return u"p"_s;
    case BlockKind::Heading:
        return u"h%1"_s.arg(block.level);
    case BlockKind::Rule:
        return u"rule"_s;
    case BlockKind::BulletItem:
        return u"ul%1 %2"_s.arg(block.level).arg(block.marker);
    case BlockKind::NumberedItem:
        return u"ol%1 %2"_s.arg(block.level).arg(block.marker);
    case BlockKind::Quotation:
        return u"q%1"_s.arg(block.level);
    case BlockKind::Code:
        return u"code %1 %2"_s.arg(block.marker, block.label);
    case BlockKind::Table:
        return u"table"_s;
    case BlockKind::FootnoteDefinition:
        return u"note %1"_s.arg(block.label);
    }
    Q_UNREACHABLE();
}

QString cellsText(const Table& table)
{
    QStringList rows;
    for (const ColumnAlignment column : table.columns)
        rows.append(QString(QChar(u"-lcr"[static_cast<int>(column)])));
    for (const auto& row : table.rows)
        rows.append(QStringList(row.begin(), row.end()).join(u'|'));
    return rows.join(u'/');
}

/** "h1(Title) p(text{.tw indent=2})": the blocks of a body in one line. */
QString outline(const QString& body)
{
    QStringList texts;
    for (const Block& block : parseBlocks(body).list) {
        const QString content = block.kind == BlockKind::Table ? cellsText(block.table) : block.text;
        texts.append(kindText(block) + u'(' + content + writeBlockAttributes(block.attributes) + u')');
    }
    return texts.join(u' ').replace(u'\n', u'/');
}

QString putTogether(const QString& body)
{
    const Blocks blocks = parseBlocks(body);
    QString text = body.first(blocks.leadLength);
    for (const Block& block : blocks.list) {
        EXPECT_EQ(block.start, text.size());
        text += body.mid(block.start, block.length) + body.mid(block.start + block.length, block.gapLength);
        for (const BlockLine& line : block.lines) {
            const qsizetype end = block.text.indexOf(u'\n', line.inText);
            const QString lineText = block.text.mid(line.inText, end < 0 ? -1 : end - line.inText);
            EXPECT_EQ(body.mid(line.inBody, lineText.size()), lineText);
        }
    }
    return text;
}

/** The body with every block written anew. */
QString rewritten(const QString& body)
{
    const Blocks blocks = parseBlocks(body);
    QString text = body.first(blocks.leadLength);
    for (const Block& block : blocks.list)
        text += writeBlock(block) + body.mid(block.start + block.length, block.gapLength);
    return text;
}

bool saysTheSame(const QString& left, const QString& right)
{
    const Blocks first = parseBlocks(left);
    const Blocks second = parseBlocks(right);
    return std::ranges::equal(first.list, second.list, isSameContent);
}

QStringList sampleBodies()
{
    QStringList bodies = test::oddMarkdownBodies();
    test::MarkdownBodies random(20261122);
    for (int count = 0; count < 500; ++count)
        bodies.append(random.body());
    return bodies;
}

} // namespace

TEST(BlocksTest, linesAreRecognisedByTheirPatterns)
{
    const struct
    {
        QString body;
        QString expected;
    } cases[] = {
        {u"# One\n###### Six  \n#\tTab"_s, u"h1(One) h6(Six  ) h1(Tab)"_s},
        {u"#\n#x\n####### seven\n # x"_s, u"p(#/#x/####### seven/ # x)"_s},
        {u"***\n- - -\n *_-\n--\n"_s, u"rule() rule() rule() p(--)"_s},
        {u"- a\n* b\n+ c\n-d"_s, u"ul0 -(a) ul0 *(b) ul0 +(c) p(-d)"_s},
        {u"1. a\n  12) b\n1.c"_s, u"ol0 1.(a) ol1 12)(b) p(1.c)"_s},
        {u"- a\n  more\n  - b\n    - c\n - d\n\nx"_s, u"ul0 -(a/more) ul1 -(b) ul2 -(c) ul0 -(d) p(x)"_s},
        {u"- a\nb"_s, u"ul0 -(a) p(b)"_s},
        {u"> a\n>b\n>> c\n>\n> d"_s, u"q1(a/b) q2(c) q1(d)"_s},
        {u"```cpp x\n# no\n\n````"_s, u"code ``` cpp x(# no/)"_s},
        {u"~~~\n```\n~~~ \nx"_s, u"code ~~~ (```) p(x)"_s},
        {u"|a|b\n|:-|-:|\n|c\\|d|\nx"_s, u"table(l/r/a|b/c|d) p(x)"_s},
        {u"text\na | b\n:-: | ---\n1 | 2"_s, u"p(text) table(c/-/a|b/1|2)"_s},
        {u"a | b\nc | d"_s, u"p(a | b/c | d)"_s},
        {u"a | b\n---"_s, u"p(a | b) rule()"_s},
        {u"[^a b]: text\n    more\nend"_s, u"note a b(text/more) p(end)"_s},
        {u"[^a] x\nTitle\n====="_s, u"p([^a] x/Title/=====)"_s},
        {u"a\r\nb\rc\n\r\nd"_s, u"p(a/b/c) p(d)"_s},
        {u"a {.tw align=center}\n\n# b {.tw pagebreak}\n- c {.tw indent=1}"_s,
         u"p(a{.tw align=center}) h1(b{.tw pagebreak}) ul0 -(c{.tw indent=1})"_s},
        {u"{.tw pagebreak}\n\n[a]{.tw u}\n\na{.tw indent=1}"_s,
         u"p({.tw pagebreak}) p([a]{.tw u}) p(a{.tw indent=1})"_s},
        {u"a {.tw indent=1} b"_s, u"p(a {.tw indent=1} b)"_s},
    };
    for (const auto& sample : cases)
        EXPECT_EQ(outline(sample.body), sample.expected) << sample.body.toStdString();
}

TEST(BlocksTest, everyCharacterBelongsToOneBlock)
{
    for (const QString& body : sampleBodies())
        EXPECT_TRUE(putTogether(body) == body) << body.left(300).toStdString();
}

TEST(BlocksTest, aBlockWrittenAnewReadsTheSame)
{
    for (const QString& body : sampleBodies()) {
        const QString again = rewritten(body);
        EXPECT_TRUE(saysTheSame(body, again)) << body.left(300).toStdString() << "\n--- became\n"
                                              << again.left(300).toStdString() << "\n"
                                              << outline(body).left(500).toStdString() << "\n"
                                              << outline(again).left(500).toStdString();
    }
}

TEST(BlocksTest, blocksTheEditorMakesReadAsThemselves)
{
    Block block;
    block.text = u" leads {.tw x"_s;
    const struct
    {
        Block block;
        QString expected;
    } cases[] = {
        {{.kind = BlockKind::Heading, .level = 2, .text = u"a\\\nb"_s, .attributes = {.pageBreak = true}},
         u"## a b {.tw pagebreak}"_s},
        {{.kind = BlockKind::Paragraph, .attributes = {.style = u"Letter \"home\"}"_s}},
         u"{.tw style=\"Letter home\"}"_s},
        {{.kind = BlockKind::NumberedItem, .level = 1, .marker = u"3."_s, .text = u"a\nb"_s},
         u"    3. a\n       b"_s},
        {{.kind = BlockKind::Quotation, .level = 2, .text = u"a\nb"_s}, u">> a\n>> b"_s},
        {{.kind = BlockKind::Quotation, .level = 1}, u">"_s},
        {{.kind = BlockKind::Code, .label = u"txt"_s, .text = u"a\n```\n````"_s},
         u"`````txt\na\n```\n````\n`````"_s},
        {{.kind = BlockKind::Code, .marker = u"~~~"_s, .label = u"~x"_s}, u"~~~ ~x\n~~~"_s},
        {{.kind = BlockKind::BulletItem, .text = u"  a"_s}, u"- &#32; a"_s},
        {{.kind = BlockKind::Table,
          .table = {{ColumnAlignment::Center}, {{u"a"_s, u"b"_s}, {u"x|y"_s, QString()}}}},
         u"| a | b |\n| :-: | --- |\n| x\\|y | |"_s},
    };
    for (const auto& sample : cases) {
        EXPECT_EQ(writeBlock(sample.block), sample.expected);
        EXPECT_EQ(parseBlocks(sample.expected).list.size(), 1U) << sample.expected.toStdString();
    }
}

TEST(BlocksTest, hostileTextsAreReadInOnePass)
{
    // None of these would end in a lifetime if any line were looked at once for every other.
    constexpr qsizetype many = 200'000;
    for (const QString& piece :
         {u">\n"_s, u"|\n"_s, u"- \n"_s, u"a|b\n"_s, u" {.tw}"_s, u"}{.tw "_s, u"`\n"_s, u"```\n~~~\n"_s,
          u"[^\n"_s, u"\t- a\n"_s, u"> \\\n"_s, u"1"_s}) {
        const QString body = piece.repeated(many / piece.size());
        const Blocks blocks = parseBlocks(body);
        ASSERT_FALSE(blocks.list.empty());
        EXPECT_EQ(
            blocks.list.back().start + blocks.list.back().length + blocks.list.back().gapLength, body.size());
    }
}

} // namespace tw::core::document::markup
