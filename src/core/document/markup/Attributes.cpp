#include "core/document/markup/Attributes.h"

#include "core/document/markup/Characters.h"

#include <algorithm>
#include <cmath>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int significantDigits = 6;

enum class Quoting
{
    Always,
    /** Only where the value would read as several words. */
    WhenNeeded,
};

/** Collects the words of a group. */
class GroupWriter
{
public:
    void addFlag(bool isSet, QLatin1StringView name)
    {
        if (isSet)
            m_words += u' ' + name;
    }

    void addNumber(qint32 value, QLatin1StringView key)
    {
        if (value > 0)
            m_words += u' ' + key + u'=' + QString::number(value);
    }

    void addFactor(double value, QLatin1StringView key)
    {
        if (value > 0 && std::isfinite(value))
            m_words += u' ' + key + u'=' + QString::number(value, 'g', significantDigits);
    }

    void addText(const QString& value, QLatin1StringView key, Quoting quoting)
    {
        QString text;
        text.reserve(value.size());
        for (const QChar character : value) {
            if (isLineEnd(character))
                text += u' ';
            else if (character != u'"' && character != u'}')
                text += character;
        }
        if (text.isEmpty())
            return;
        const bool isQuoted = quoting == Quoting::Always ||
                              std::ranges::any_of(text, [](QChar character) { return character.isSpace(); });
        m_words += u' ' + key + u'=' + (isQuoted ? u'"' + text + u'"' : text);
    }

    [[nodiscard]] QString group() const { return groupStart.toString() + m_words + u'}'; }

private:
    QString m_words;
};

struct Word
{
    QStringView key;
    QStringView value;
    bool hasValue = false;
};

Word readWord(QStringView word)
{
    const qsizetype sign = word.indexOf(u'=');
    if (sign < 0)
        return {word, {}, false};
    QStringView value = word.sliced(sign + 1);
    if (value.size() >= 2 && value.front() == u'"' && value.back() == u'"')
        value = value.sliced(1, value.size() - 2);
    return {word.first(sign), value, true};
}

/** Hands over the words of a group; white space inside double quotes parts none. */
template <class Take>
void forEachWord(QStringView group, Take take)
{
    qsizetype start = 0;
    bool isQuoted = false;
    for (qsizetype index = 0; index <= group.size(); ++index) {
        const bool isEnd = index == group.size();
        if (!isEnd && group[index] == u'"')
            isQuoted = !isQuoted;
        if (!isEnd && (isQuoted || !group[index].isSpace()))
            continue;
        if (index > start)
            take(readWord(group.sliced(start, index - start)));
        start = index + 1;
    }
}

/** Without what could not be written again: lone quotes, and line ends, which would part the line it stands
 * in. */
QString readText(QStringView text)
{
    QString value = text.toString();
    return value.replace(u'\n', u' ').remove(u'"');
}

double readFactor(QStringView text)
{
    const double value = text.toDouble();
    return std::isfinite(value) ? std::max(value, 0.0) : 0.0;
}

qint32 readCount(QStringView text)
{
    return std::max(text.toInt(), 0);
}

} // namespace

std::vector<SourceRange> findGroups(QStringView text)
{
    std::vector<SourceRange> groups;
    for (qsizetype start = text.indexOf(groupStart); start >= 0;) {
        const qsizetype brace = text.indexOf(u'}', start + groupStart.size());
        if (brace < 0)
            break;
        groups.push_back({start, brace + 1});
        start = text.indexOf(groupStart, brace + 1);
    }
    return groups;
}

QString writeBlockAttributes(const BlockAttributes& attributes)
{
    if (attributes.isEmpty())
        return {};
    GroupWriter writer;
    writer.addText(attributes.align, "align"_L1, Quoting::WhenNeeded);
    writer.addFactor(attributes.spacing, "spacing"_L1);
    writer.addNumber(attributes.indent, "indent"_L1);
    writer.addText(attributes.style, "style"_L1, Quoting::Always);
    writer.addFlag(attributes.pageBreak, "pagebreak"_L1);
    return writer.group();
}

QString writeInlineAttributes(const InlineAttributes& attributes)
{
    if (attributes.isEmpty())
        return {};
    GroupWriter writer;
    writer.addText(attributes.color, "color"_L1, Quoting::WhenNeeded);
    writer.addText(attributes.background, "bg"_L1, Quoting::WhenNeeded);
    writer.addText(attributes.font, "font"_L1, Quoting::Always);
    writer.addNumber(attributes.size, "size"_L1);
    writer.addFlag(attributes.underline, "u"_L1);
    writer.addFlag(attributes.superscript, "sup"_L1);
    writer.addFlag(attributes.subscript, "sub"_L1);
    return writer.group();
}

BlockAttributes readBlockAttributes(QStringView group)
{
    BlockAttributes attributes;
    forEachWord(group, [&attributes](const Word& word) {
        if (!word.hasValue)
            attributes.pageBreak |= word.key == "pagebreak"_L1;
        else if (word.key == "align"_L1)
            attributes.align = readText(word.value);
        else if (word.key == "spacing"_L1)
            attributes.spacing = readFactor(word.value);
        else if (word.key == "indent"_L1)
            attributes.indent = readCount(word.value);
        else if (word.key == "style"_L1)
            attributes.style = readText(word.value);
    });
    return attributes;
}

InlineAttributes readInlineAttributes(QStringView group)
{
    InlineAttributes attributes;
    forEachWord(group, [&attributes](const Word& word) {
        if (!word.hasValue) {
            attributes.underline |= word.key == "u"_L1;
            attributes.superscript |= word.key == "sup"_L1;
            attributes.subscript |= word.key == "sub"_L1;
        } else if (word.key == "color"_L1) {
            attributes.color = readText(word.value);
        } else if (word.key == "bg"_L1) {
            attributes.background = readText(word.value);
        } else if (word.key == "font"_L1) {
            attributes.font = readText(word.value);
        } else if (word.key == "size"_L1) {
            attributes.size = readCount(word.value);
        }
    });
    return attributes;
}

} // namespace tw::core::document::markup
