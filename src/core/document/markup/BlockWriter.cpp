#include "core/document/markup/BlockWriter.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/LinePatterns.h"
#include "core/document/markup/TableRows.h"

#include <QList>

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columnsPerLevel = 4;

bool isItem(BlockKind kind)
{
    return kind == BlockKind::BulletItem || kind == BlockKind::NumberedItem;
}

QString withAttributes(const Block& block)
{
    const QString group = writeBlockAttributes(block.attributes);
    return group.isEmpty() || block.text.isEmpty() ? block.text + group : block.text + u' ' + group;
}

/** For blocks whose marker takes all blanks after it. */
QString withMarkedBlank(QString text)
{
    if (!text.isEmpty() && isBlank(text.front()))
        text.replace(0, 1, u"&#%1;"_s.arg(text.front().unicode()));
    return text;
}

/** The lines of the text one after another, where a block has but one. */
QString inOneLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'\n') {
            // What makes the line end a hard break has no meaning without it.
            if (line.endsWith(u'\\'))
                line.chop(1);
            line += u' ';
        } else {
            line += character;
        }
    }
    return line;
}

QString withLinePrefix(QString text, const QString& prefix)
{
    return text.replace(u'\n', u'\n' + prefix);
}

QString writeItem(const Block& block)
{
    const int indent = block.indent >= 0 ? block.indent : columnsPerLevel * block.level;
    const QString marker = block.marker.isEmpty() ? u"-"_s : block.marker;
    const QString blanks(indent, u' ');
    return blanks + marker + u' ' +
           withLinePrefix(withMarkedBlank(withAttributes(block)), blanks + QString(marker.size() + 1, u' '));
}

QString writeQuotation(const Block& block)
{
    const QString text = withAttributes(block);
    const QString marks(std::clamp(block.level, 1, deepestLevel), u'>');
    return text.isEmpty() ? marks : marks + u' ' + withLinePrefix(text, marks + u' ');
}

QString writeFootnote(const Block& block)
{
    QString label = block.label;
    label.remove(u']').replace(u'\n', u' ');
    return u"[^"_s + label + u"]: "_s +
           withLinePrefix(withMarkedBlank(withAttributes(block)), QString(columnsPerLevel, u' '));
}

QString writeCode(const Block& block)
{
    QString fence = block.marker.isEmpty() ? u"```"_s : block.marker;
    // No line of the code may end it.
    for (const QStringView line : QStringView(block.text).split(u'\n')) {
        if (closesFence(line, fence))
            fence = QString(matchFence(line)->fence.size() + 1, fence.front());
    }
    const QString code = block.text.isEmpty() ? QString() : block.text + u'\n';
    QString label = inOneLine(block.label);
    // One that goes on with the mark of the fence would lengthen it.
    if (label.startsWith(fence.front()))
        label.prepend(u' ');
    return fence + label + u'\n' + code + fence;
}

} // namespace

QString writeBlock(const Block& block)
{
    switch (block.kind) {
    case BlockKind::Paragraph:
        return withAttributes(block);
    case BlockKind::Heading:
        return QString(block.level, u'#') + u' ' + withMarkedBlank(inOneLine(withAttributes(block)));
    case BlockKind::Rule:
        return u"---"_s;
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
        return writeItem(block);
    case BlockKind::Quotation:
        return writeQuotation(block);
    case BlockKind::Code:
        return writeCode(block);
    case BlockKind::Table:
        return writeTable(block.table);
    case BlockKind::FootnoteDefinition:
        return writeFootnote(block);
    }
    Q_UNREACHABLE();
}

int lineEndsBetween(BlockKind upper, BlockKind lower)
{
    return isItem(upper) && isItem(lower) ? 1 : 2;
}

} // namespace tw::core::document::markup
