#include "core/document/markup/InlineWriter.h"

#include "core/document/markup/Characters.h"
#include "core/document/markup/LinePatterns.h"
#include "core/document/markup/LinkTargets.h"
#include "core/document/markup/TextEscaping.h"

#include <algorithm>
#include <array>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Emphasis
{
    bool RunStyle::*style;
    QLatin1StringView mark;
};

/** Outermost first. */
constexpr std::array emphases = {
    Emphasis{&RunStyle::strikethrough, "~~"_L1},
    Emphasis{&RunStyle::bold, "**"_L1},
    Emphasis{&RunStyle::italic, "*"_L1},
};

bool hasEmphasis(const RunStyle& style)
{
    return std::ranges::any_of(
        emphases, [&style](const Emphasis& emphasis) { return style.*emphasis.style; });
}

/** What a run links to; nothing when it is no link. */
LinkTarget linkOf(const Run& run)
{
    return run.style.link.isEmpty() ? LinkTarget() : LinkTarget{run.style.link, run.style.linkTitle};
}

class InlineWriter
{
public:
    InlineWriter(std::span<const Run> runs, Care care)
        : m_runs(runs)
        , m_care(care)
    {}

    [[nodiscard]] QString run();

private:
    [[nodiscard]] bool isAutolink(std::size_t index) const;
    void writeRun(const Run& run);
    void writeText(const Run& run);
    void openBracket();
    void openLink(const RunStyle& style);
    void closeLink();
    void openMarks(const RunStyle& style);
    /** Closes the marks that do not hold for what follows and all that were set after them. */
    void closeMarks(const RunStyle& next);
    void closeAll();
    void writeBreak(RunKind kind);
    /** Takes what would start a block from the line that ends here. */
    void endLine();
    void escapeLine(QStringView line);
    void appendText(const QString& text);

    [[nodiscard]] bool isStrict() const { return m_care == Care::Strict; }
    [[nodiscard]] bool isInLink() const { return !m_link.target.isEmpty(); }

    std::span<const Run> m_runs;
    Care m_care;
    QString m_result;
    LinkTarget m_link;
    std::vector<Emphasis> m_open;
    qsizetype m_lineStart = 0;
    /** The first character of the line that is text and no markup; -1 for none. */
    qsizetype m_lineText = -1;
    bool m_isFirstLine = true;
};

QString InlineWriter::run()
{
    for (std::size_t index = 0; index < m_runs.size(); ++index) {
        if (isAutolink(index)) {
            closeAll();
            m_result += u'<' + m_runs[index].text + u'>';
        } else {
            writeRun(m_runs[index]);
        }
    }
    closeAll();
    endLine();
    return std::move(m_result);
}

bool InlineWriter::isAutolink(std::size_t index) const
{
    const Run& run = m_runs[index];
    const LinkTarget link = linkOf(run);
    RunStyle style;
    style.link = run.style.link;
    if (run.kind != RunKind::Text || link.target.isEmpty() || run.style != style ||
        (index > 0 && linkOf(m_runs[index - 1]) == link) ||
        (index + 1 < m_runs.size() && linkOf(m_runs[index + 1]) == link))
        return false;
    const QString text = u'<' + run.text + u'>';
    const Autolink autolink = readAutolink(text, 0);
    return autolink.end == text.size() && autolink.target == link;
}

void InlineWriter::writeRun(const Run& run)
{
    if (run.kind == RunKind::SoftBreak || run.kind == RunKind::HardBreak) {
        writeBreak(run.kind);
        return;
    }
    if (const LinkTarget link = linkOf(run); link != m_link) {
        closeAll();
        openLink(run.style);
    }
    closeMarks(run.style);
    if (run.kind == RunKind::FootnoteReference) {
        openMarks(run.style);
        openBracket();
        m_result += u'^' + run.text + u']';
    } else if (run.kind == RunKind::Image) {
        openMarks(run.style);
        const QString title = run.style.link.isEmpty() ? run.style.linkTitle : QString();
        m_result += u'!';
        m_result +=
            u'[' + escapedText(run.text, Place::LinkText, m_care) + u']' + writeLinkTail({run.target, title});
    } else {
        writeText(run);
    }
}

void InlineWriter::writeText(const Run& run)
{
    // A code span that begins a line might be taken for the fence of a block.
    const bool isApart =
        isStrict() && (hasEmphasis(run.style) || (run.style.code && m_result.size() == m_lineStart));
    const QString group = writeInlineAttributes(run.style.attributes);
    // The text of a group ends at the first bracket, which code cannot avoid.
    const bool hasBrackets = (isApart && !(run.style.code && run.text.contains(u']'))) || !group.isEmpty();
    if (!isApart)
        openMarks(run.style);
    if (hasBrackets)
        openBracket();
    if (isApart)
        openMarks(run.style);
    const Place place = hasBrackets ? Place::GroupText : isInLink() ? Place::LinkText : Place::Text;
    if (run.style.code) {
        m_result += codeSpan(run.text);
    } else {
        QStringView text = run.text;
        QString leading;
        QString trailing;
        if (isApart) {
            // White space beside a mark would make it text.
            if (text.front().isSpace()) {
                leading = u"&#%1;"_s.arg(text.front().unicode());
                text = text.sliced(1);
            }
            if (!text.isEmpty() && text.back().isSpace()) {
                trailing = u"&#%1;"_s.arg(text.back().unicode());
                text.chop(1);
            }
        }
        appendText(leading + escapedText(text, place, m_care) + trailing);
    }
    if (isApart)
        closeMarks({});
    if (hasBrackets)
        m_result += u']' + (group.isEmpty() ? groupStart.toString() + u'}' : group);
}

void InlineWriter::appendText(const QString& text)
{
    if (m_lineText < 0) {
        const qsizetype first = skip(text, 0, isBlank);
        if (first < text.size())
            m_lineText = m_result.size() + first;
    }
    m_result += text;
}

void InlineWriter::openBracket()
{
    // An exclamation mark before it would make it an image's.
    if (m_result.endsWith(u'!'))
        m_result.insert(m_result.size() - 1, u'\\');
    m_result += u'[';
}

void InlineWriter::openLink(const RunStyle& style)
{
    if (style.link.isEmpty())
        return;
    m_link = {style.link, style.linkTitle};
    openBracket();
}

void InlineWriter::closeLink()
{
    if (isInLink())
        m_result += u']' + writeLinkTail(m_link);
    m_link = {};
}

void InlineWriter::openMarks(const RunStyle& style)
{
    for (const Emphasis& emphasis : emphases) {
        const bool isOpen = std::ranges::any_of(
            m_open, [&emphasis](const Emphasis& open) { return open.style == emphasis.style; });
        if (style.*emphasis.style && !isOpen) {
            m_result += emphasis.mark;
            m_open.push_back(emphasis);
        }
    }
}

void InlineWriter::closeMarks(const RunStyle& next)
{
    const auto ended =
        std::ranges::find_if(m_open, [&next](const Emphasis& emphasis) { return !(next.*emphasis.style); });
    while (m_open.end() != ended && !m_open.empty()) {
        const bool isLast = m_open.end() - 1 == ended;
        m_result += m_open.back().mark;
        m_open.pop_back();
        if (isLast)
            return;
    }
}

void InlineWriter::closeAll()
{
    closeMarks({});
    closeLink();
}

void InlineWriter::writeBreak(RunKind kind)
{
    closeAll();
    if (kind == RunKind::HardBreak)
        m_result += u'\\';
    endLine();
    m_result += u'\n';
    m_lineStart = m_result.size();
    m_lineText = -1;
    m_isFirstLine = false;
}

void InlineWriter::endLine()
{
    const QStringView line = QStringView(m_result).sliced(m_lineStart);
    const bool isSeparator = !m_isFirstLine && isTableSeparator(line);
    if (!isSeparator && !startsBlock(line))
        return;
    escapeLine(line);
}

void InlineWriter::escapeLine(QStringView line)
{
    const auto item = matchItem(line);
    if (matchFence(line)) {
        // Nothing but a code span begins like this. A blank keeps it from being taken for a fence.
        m_result.insert(m_lineStart, u' ');
    } else if (item && item->isNumbered) {
        const qsizetype marker = item->marker.data() - line.data() + item->marker.size() - 1;
        m_result.insert(m_lineStart + marker, u'\\');
    } else if (m_lineText >= 0) {
        m_result.insert(m_lineText, u'\\');
    }
}

} // namespace

QString writeInline(std::span<const Run> runs)
{
    const std::vector<Run> canonical = canonicalRuns(runs);
    QString text = InlineWriter(canonical, Care::Usual).run();
    // Marks beside punctuation and beside each other do not always mean what they were set for.
    if (parseInline(text) != canonical)
        text = InlineWriter(canonical, Care::Strict).run();
    return text;
}

} // namespace tw::core::document::markup
