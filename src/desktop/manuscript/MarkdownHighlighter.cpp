#include "desktop/manuscript/MarkdownHighlighter.h"

#include "desktop/theme/ThemeManager.h"

#include <QTextDocument>

#include <array>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array headingScales{1.6, 1.35, 1.2, 1.1, 1.05, 1.0};

/** The level of an ATX heading, 0 for none. */
int headingLevel(const QString& text)
{
    int level = 0;
    while (level < text.size() && text[level] == u'#')
        ++level;
    const bool isHeading = level >= 1 && level <= 6 && level < text.size() && text[level] == u' ';
    return isHeading ? level : 0;
}

/** "***", "* * *", "---": a break between scenes. */
bool isBreak(QStringView text)
{
    QChar mark;
    int marks = 0;
    for (const QChar character : text) {
        if (character.isSpace())
            continue;
        if ((character != u'*' && character != u'-' && character != u'_') || (marks > 0 && character != mark))
            return false;
        mark = character;
        ++marks;
    }
    return marks >= 3;
}

} // namespace

MarkdownHighlighter::MarkdownHighlighter(theme::ThemeManager& themes, QTextDocument* document)
    : QSyntaxHighlighter(document)
    , m_themes(themes)
{
    connect(&themes, &theme::ThemeManager::themeChanged, this, [this] {
        takeUpTheme();
        rehighlight();
    });
    takeUpTheme();
}

void MarkdownHighlighter::takeUpTheme()
{
    m_quiet.setForeground(m_themes.theme().color(theme::Role::QuietInk));
}

void MarkdownHighlighter::highlightBlock(const QString& text)
{
    if (highlightLine(text))
        return;
    highlightEmphasis(text);
    highlightReferences(text);
}

bool MarkdownHighlighter::highlightLine(const QString& text)
{
    if (const int level = headingLevel(text); level > 0) {
        QTextCharFormat heading;
        heading.setFontWeight(QFont::Bold);
        const qreal size = document()->defaultFont().pointSizeF();
        heading.setFontPointSize(size * headingScales[static_cast<std::size_t>(level) - 1]);
        setFormat(0, static_cast<int>(text.size()), heading);
        QTextCharFormat mark = heading;
        mark.setForeground(m_quiet.foreground());
        setFormat(0, level, mark);
        return true;
    }
    if (isBreak(text)) {
        setFormat(0, static_cast<int>(text.size()), m_quiet);
        return true;
    }
    if (text.startsWith(u'>'))
        setFormat(0, 1, m_quiet);
    return false;
}

void MarkdownHighlighter::highlightEmphasis(const QString& text)
{
    // One pass: a run of stars or underscores opens at a word's start, and the next run of the same mark at a
    // word's end closes it.
    qsizetype openAt = -1;
    qsizetype openLength = 0;
    QChar openMark;
    for (qsizetype index = 0; index < text.size();) {
        const QChar character = text[index];
        if (character == u'\\') {
            index += 2;
            continue;
        }
        if (character != u'*' && character != u'_') {
            ++index;
            continue;
        }
        qsizetype length = 1;
        while (index + length < text.size() && text[index + length] == character)
            ++length;
        const bool canClose = index > 0 && !text[index - 1].isSpace();
        const bool canOpen = index + length < text.size() && !text[index + length].isSpace();
        if (openAt >= 0 && character == openMark && length >= openLength && canClose) {
            QTextCharFormat format;
            if (openLength != 2)
                format.setFontItalic(true);
            if (openLength >= 2)
                format.setFontWeight(QFont::Bold);
            setFormat(static_cast<int>(openAt), static_cast<int>(index + openLength - openAt), format);
            setFormat(static_cast<int>(openAt), static_cast<int>(openLength), m_quiet);
            setFormat(static_cast<int>(index), static_cast<int>(openLength), m_quiet);
            openAt = -1;
        } else if (openAt < 0 && canOpen && length <= 3) {
            openAt = index;
            openLength = length;
            openMark = character;
        }
        index += length;
    }
}

void MarkdownHighlighter::highlightReferences(const QString& text)
{
    for (qsizetype start = text.indexOf("[^"_L1); start >= 0; start = text.indexOf("[^"_L1, start + 2)) {
        const qsizetype end = text.indexOf(u']', start);
        if (end < 0)
            return;
        QTextCharFormat reference = m_quiet;
        reference.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        setFormat(static_cast<int>(start), static_cast<int>(end - start + 1), reference);
    }
}

} // namespace tw::desktop::manuscript
