#include "core/document/markup/CharacterSet.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/Emphasis.h"
#include "core/document/markup/Entities.h"
#include "core/document/markup/InlinePieces.h"

#include <QHash>

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Open brackets remembered at a time; with more, the outermost are text. */
constexpr std::size_t mostBrackets = 64;

/** A piece before it is known what it is part of. */
struct Node
{
    InlinePiece piece;
    int delimiter = -1;
    /** What begins after this node: an index in the tables of the result. */
    int opensLink = -1;
    int opensAttributes = -1;
    bool closesLink = false;
    bool closesAttributes = false;
};

struct Bracket
{
    std::size_t node = 0;
    qsizetype source = 0;
    /** The last mark of emphasis before it. */
    int lastDelimiter = -1;
    bool isImage = false;
    /** A link holds no link: what is around one can be none. */
    bool canBeLink = true;
};

/** The next place of a character, remembered so that looking again and again is linear. */
class NextPlace
{
public:
    NextPlace(QStringView text, QChar character)
        : m_text(text)
        , m_character(character)
    {}

    /** From `from` on, which never gets smaller; -1 when there is none. */
    [[nodiscard]] qsizetype after(qsizetype from)
    {
        if (m_place >= 0 && m_place < from)
            m_place = m_text.indexOf(m_character, from);
        return m_place;
    }

private:
    QStringView m_text;
    QChar m_character;
    qsizetype m_place = 0;
};

/** Finds where code spans end. */
class CodeSpans
{
public:
    explicit CodeSpans(QStringView text)
        : m_text(text)
    {}

    /** The first run of exactly `length` backticks from `from` on; -1 when there is none. */
    [[nodiscard]] qsizetype findEnd(qsizetype from, qsizetype length)
    {
        if (!m_isRead)
            read();
        const auto places = m_places.constFind(length);
        if (places == m_places.constEnd())
            return -1;
        const auto place = std::ranges::lower_bound(*places, from);
        return place == places->end() ? -1 : *place;
    }

private:
    void read()
    {
        m_isRead = true;
        for (qsizetype start = m_text.indexOf(u'`'); start >= 0; start = m_text.indexOf(u'`', start)) {
            const qsizetype end = skip(m_text, start, [](QChar character) { return character == u'`'; });
            m_places[end - start].push_back(start);
            start = end;
        }
    }

    QStringView m_text;
    QHash<qsizetype, std::vector<qsizetype>> m_places;
    bool m_isRead = false;
};

/** Every other character stands for itself. */
constexpr CharacterSet inlineMarks(u"\\`*_~\n\r&<[!]");

class InlineScanner
{
public:
    explicit InlineScanner(QStringView text)
        : m_text(text)
        , m_closingBrackets(text, u']')
        , m_closingBraces(text, u'}')
        , m_lineEnds(text, u'\n')
        , m_codeSpans(text)
    {}

    [[nodiscard]] InlinePieces run()
    {
        for (goToMark(); m_position < m_text.size(); goToMark())
            step();
        flush();
        m_emphasis.matchAfter(-1);
        finish();
        return std::move(m_result);
    }

private:
    void step();
    void takeEscape();
    void takeCode();
    void takeMarks();
    void takeBreak();
    void takeEntity();
    void takeAutolink();
    void openBracket();
    void closeBracket();
    [[nodiscard]] bool takeFootnote();
    [[nodiscard]] bool closeAttributes(const Bracket& bracket);
    [[nodiscard]] bool closeLink(const Bracket& bracket);
    void closeImage(const Bracket& bracket, LinkTarget target, qsizetype end);
    void finish();

    /** Makes a piece of the plain text before the present place. */
    void flush();
    /** Makes a node of the source up to `end` and goes there. */
    Node& add(RunKind kind, QString text, qsizetype end);
    /** Leaves the characters up to `end` to the plain text. */
    void leave(qsizetype end) { m_position = end; }
    void goToMark() { m_position = inlineMarks.findIn(m_text, m_position); }

    QStringView m_text;
    qsizetype m_position = 0;
    qsizetype m_plainStart = 0;
    /** The last "]" that was passed; -1 for none. */
    qsizetype m_lastClosing = -1;
    std::vector<Node> m_nodes;
    std::vector<Bracket> m_brackets;
    EmphasisMatcher m_emphasis;
    NextPlace m_closingBrackets;
    NextPlace m_closingBraces;
    NextPlace m_lineEnds;
    CodeSpans m_codeSpans;
    InlinePieces m_result;
};

void InlineScanner::flush()
{
    if (m_plainStart < m_position) {
        Node node;
        node.piece.text = m_text.sliced(m_plainStart, m_position - m_plainStart).toString();
        node.piece.sourceStart = m_plainStart;
        node.piece.sourceLength = m_position - m_plainStart;
        node.piece.textStart = m_plainStart;
        m_nodes.push_back(std::move(node));
    }
    m_plainStart = m_position;
}

Node& InlineScanner::add(RunKind kind, QString text, qsizetype end)
{
    flush();
    Node node;
    node.piece.kind = kind;
    node.piece.text = std::move(text);
    node.piece.sourceStart = m_position;
    node.piece.sourceLength = end - m_position;
    m_nodes.push_back(std::move(node));
    m_position = m_plainStart = end;
    return m_nodes.back();
}

void InlineScanner::step()
{
    switch (m_text[m_position].unicode()) {
    case u'\\':
        return takeEscape();
    case u'`':
        return takeCode();
    case u'*':
    case u'_':
    case u'~':
        return takeMarks();
    case u'\n':
    case u'\r':
        return takeBreak();
    case u'&':
        return takeEntity();
    case u'<':
        return takeAutolink();
    case u'[':
    case u'!':
        return openBracket();
    case u']':
        return closeBracket();
    default:
        ++m_position;
    }
}

void InlineScanner::takeEscape()
{
    const qsizetype next = m_position + 1;
    if (next < m_text.size() && isLineEnd(m_text[next])) {
        add(RunKind::HardBreak, {}, next);
        takeBreak();
        m_nodes.pop_back();
    } else if (next < m_text.size() && isAsciiPunctuation(m_text[next])) {
        if (m_text[next] == u']')
            m_lastClosing = next;
        add(RunKind::Text, QString(m_text[next]), next + 1);
    } else {
        leave(next);
    }
}

void InlineScanner::takeCode()
{
    const qsizetype start = skip(m_text, m_position, [](QChar character) { return character == u'`'; });
    const qsizetype fence = start - m_position;
    const qsizetype end = m_codeSpans.findEnd(start, fence);
    if (end < 0)
        return leave(start);
    QString code = m_text.sliced(start, end - start).toString();
    code.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
    qsizetype trim = 0;
    if (code.size() > 1 && code.front() == u' ' && code.back() == u' ' &&
        !std::ranges::all_of(code, [](QChar character) { return character == u' '; }))
        trim = 1;
    if (const qsizetype bracket = m_text.sliced(start, end - start).lastIndexOf(u']'); bracket >= 0)
        m_lastClosing = start + bracket;
    const bool isAsWritten = code.size() == end - start;
    InlinePiece& piece = add(RunKind::Text, code.sliced(trim, code.size() - 2 * trim), end + fence).piece;
    piece.isCode = true;
    piece.textStart = isAsWritten ? start + trim : -1;
}

void InlineScanner::takeMarks()
{
    const QChar mark = m_text[m_position];
    const qsizetype end = skip(m_text, m_position, [mark](QChar character) { return character == mark; });
    const qsizetype length = end - m_position;
    // Tildes strike in pairs; one may mean "about".
    if (mark == u'~' && length != 2)
        return leave(end);
    const int delimiter = m_emphasis.add(m_text, m_position, length);
    add(RunKind::Text, {}, end).delimiter = delimiter;
}

void InlineScanner::takeBreak()
{
    constexpr qsizetype hardBlanks = 2;
    const qsizetype lineEnd = m_position;
    while (m_position > m_plainStart && isBlank(m_text[m_position - 1]))
        --m_position;
    flush();
    const QStringView blanks = m_text.sliced(m_position, lineEnd - m_position);
    const bool isHard = blanks.size() >= hardBlanks && blanks.last(hardBlanks) == u"  ";
    const bool isPair = m_text.sliced(lineEnd).startsWith(u"\r\n");
    add(isHard ? RunKind::HardBreak : RunKind::SoftBreak, {},
        skip(m_text, lineEnd + (isPair ? 2 : 1), isBlank));
}

void InlineScanner::takeEntity()
{
    const Entity entity = readEntity(m_text.sliced(m_position));
    if (entity.length == 0)
        return leave(m_position + 1);
    add(RunKind::Text, entity.text, m_position + entity.length);
}

void InlineScanner::takeAutolink()
{
    const Autolink link = readAutolink(m_text, m_position);
    if (link.end < 0)
        return leave(m_position + 1);
    if (const qsizetype bracket = link.text.lastIndexOf(u']'); bracket >= 0)
        m_lastClosing = m_position + 1 + bracket;
    const qsizetype textStart = m_position + 1;
    InlinePiece& piece = add(RunKind::Text, link.text.toString(), link.end).piece;
    piece.link = static_cast<int>(m_result.links.size());
    piece.textStart = textStart;
    m_result.links.push_back(link.target);
}

bool InlineScanner::takeFootnote()
{
    const qsizetype label = m_position + 2;
    const qsizetype end = label < m_text.size() ? m_closingBrackets.after(label) : -1;
    if (end <= label)
        return false;
    if (const qsizetype lineEnd = m_lineEnds.after(label); lineEnd >= 0 && lineEnd < end)
        return false;
    add(RunKind::FootnoteReference, m_text.sliced(label, end - label).toString(), end + 1);
    m_lastClosing = end;
    return true;
}

void InlineScanner::openBracket()
{
    const bool isImage = m_text[m_position] == u'!';
    const qsizetype next = m_position + 1;
    const QChar following = next < m_text.size() ? m_text[next] : QChar();
    if (isImage && following != u'[')
        return leave(next);
    if (!isImage && following == u'^' && takeFootnote())
        return;
    const qsizetype source = m_position;
    add(RunKind::Text, m_text.sliced(m_position, isImage ? 2 : 1).toString(), next + (isImage ? 1 : 0))
        .piece.textStart = source;
    if (m_brackets.size() == mostBrackets)
        m_brackets.erase(m_brackets.begin());
    m_brackets.push_back({m_nodes.size() - 1, source, m_emphasis.last(), isImage, true});
}

void InlineScanner::closeBracket()
{
    const qsizetype previousClosing = m_lastClosing;
    m_lastClosing = m_position;
    if (m_brackets.empty())
        return leave(m_position + 1);
    const Bracket bracket = m_brackets.back();
    m_brackets.pop_back();
    // The text of attributes ends at the first closing bracket.
    const bool isFirst = previousClosing < bracket.source;
    if (isFirst && !bracket.isImage && closeAttributes(bracket))
        return;
    if (!closeLink(bracket))
        leave(m_position + 1);
}

bool InlineScanner::closeAttributes(const Bracket& bracket)
{
    const qsizetype start = m_position + 1;
    if (!m_text.sliced(start).startsWith(groupStart))
        return false;
    const qsizetype words = start + groupStart.size();
    const qsizetype end = m_closingBraces.after(words);
    if (end < 0)
        return false;
    const auto index = static_cast<int>(m_result.attributes.size());
    const QStringView group = m_text.sliced(words, end - words);
    m_result.attributes.push_back(readInlineAttributes(group));
    if (const qsizetype closing = group.lastIndexOf(u']'); closing >= 0)
        m_lastClosing = words + closing;
    add(RunKind::Text, {}, end + 1).closesAttributes = true;
    m_emphasis.matchAfter(bracket.lastDelimiter);
    Node& opening = m_nodes[bracket.node];
    opening.piece.text.clear();
    opening.opensAttributes = index;
    return true;
}

bool InlineScanner::closeLink(const Bracket& bracket)
{
    const qsizetype start = m_position + 1;
    if (!bracket.canBeLink || start == m_text.size() || m_text[start] != u'(')
        return false;
    LinkTail tail = readLinkTail(m_text, start);
    if (tail.end < 0)
        return false;
    if (const qsizetype closing = m_text.sliced(start, tail.end - start).lastIndexOf(u']'); closing >= 0)
        m_lastClosing = start + closing;
    if (bracket.isImage) {
        closeImage(bracket, std::move(tail.target), tail.end);
        return true;
    }
    add(RunKind::Text, {}, tail.end).closesLink = true;
    m_emphasis.matchAfter(bracket.lastDelimiter);
    Node& opening = m_nodes[bracket.node];
    opening.piece.text.clear();
    opening.opensLink = static_cast<int>(m_result.links.size());
    m_result.links.push_back(std::move(tail.target));
    for (Bracket& outer : m_brackets)
        outer.canBeLink = outer.canBeLink && outer.isImage;
    return true;
}

void InlineScanner::closeImage(const Bracket& bracket, LinkTarget target, qsizetype end)
{
    flush();
    m_emphasis.matchAfter(bracket.lastDelimiter);
    QString description;
    for (std::size_t index = bracket.node + 1; index < m_nodes.size(); ++index) {
        const Node& node = m_nodes[index];
        const InlinePiece& piece = node.piece;
        if (node.delimiter >= 0)
            description += QString(m_emphasis.at(node.delimiter).left, m_emphasis.at(node.delimiter).mark);
        else if (piece.kind == RunKind::SoftBreak || piece.kind == RunKind::HardBreak)
            description += u' ';
        else if (piece.kind != RunKind::FootnoteReference)
            description += piece.text;
    }
    m_nodes.resize(bracket.node);
    m_position = m_plainStart = bracket.source;
    add(RunKind::Image, std::move(description), end).piece.image = std::move(target);
}

void InlineScanner::finish()
{
    int bold = 0;
    int italic = 0;
    int struck = 0;
    int link = -1;
    int attributes = -1;
    for (Node& node : m_nodes) {
        InlinePiece& piece = node.piece;
        const Delimiter* const marks = node.delimiter >= 0 ? &m_emphasis.at(node.delimiter) : nullptr;
        if (marks) {
            bold -= marks->boldClosed;
            italic -= marks->italicClosed;
            struck -= marks->struckClosed;
            piece.text = QString(marks->left, marks->mark);
            piece.textStart = piece.sourceStart;
        }
        if (node.closesLink)
            link = -1;
        if (node.closesAttributes)
            attributes = -1;
        const bool isBreak = piece.kind == RunKind::SoftBreak || piece.kind == RunKind::HardBreak;
        if (isBreak || !piece.text.isEmpty() || piece.kind == RunKind::Image) {
            piece.isBold = bold > 0;
            piece.isItalic = italic > 0;
            piece.isStruck = struck > 0;
            piece.link = piece.link >= 0 ? piece.link : link;
            piece.attributes = attributes;
            m_result.list.push_back(std::move(piece));
        }
        if (marks) {
            bold += marks->boldOpened;
            italic += marks->italicOpened;
            struck += marks->struckOpened;
        }
        if (node.opensLink >= 0)
            link = node.opensLink;
        if (node.opensAttributes >= 0)
            attributes = node.opensAttributes;
    }
}

} // namespace

InlinePieces takeApart(QStringView text)
{
    return InlineScanner(text).run();
}

} // namespace tw::core::document::markup
