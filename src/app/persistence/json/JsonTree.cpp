#include "app/persistence/json/JsonTree.h"

#include "app/persistence/json/JsonRead.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringDecoder>

#include <limits>

namespace tw::app::persistence {

namespace {

constexpr int deepestNesting = 1024;
/** Integers of so few digits fit into 64 bits and need no closer look. */
constexpr qsizetype surelyFittingDigits = 18;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/** The value of a hexadecimal digit, or -1. */
int hexValue(char byte)
{
    if (isDigit(byte))
        return byte - '0';
    if (byte >= 'a' && byte <= 'f')
        return byte - 'a' + 10;
    if (byte >= 'A' && byte <= 'F')
        return byte - 'A' + 10;
    return -1;
}

/** What an escape of one letter stands for. As in Qt, a letter without a meaning stands for itself. */
char16_t escapedCharacter(char letter)
{
    switch (letter) {
    case 'b':
        return u'\b';
    case 'f':
        return u'\f';
    case 'n':
        return u'\n';
    case 'r':
        return u'\r';
    case 't':
        return u'\t';
    default:
        return static_cast<unsigned char>(letter);
    }
}

/** Decodes a text that the parser has found well-formed. */
QString decoded(QByteArrayView bytes)
{
    // No character has more units in UTF-16 than bytes here. A mark at the start of a text is part of it.
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* end = text.data();
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    while (!bytes.isEmpty()) {
        const qsizetype escape = bytes.indexOf('\\');
        end = decoder.appendToBuffer(end, bytes.first(escape < 0 ? bytes.size() : escape));
        if (escape < 0)
            break;
        const char letter = bytes.at(escape + 1);
        bytes = bytes.sliced(escape + 2);
        if (letter != 'u') {
            *end++ = QChar(escapedCharacter(letter));
            continue;
        }
        unsigned unit = 0;
        for (const char digit : bytes.first(4))
            unit = unit * 16 + static_cast<unsigned>(hexValue(digit));
        *end++ = QChar(static_cast<char16_t>(unit));
        bytes = bytes.sliced(4);
    }
    text.truncate(end - text.constData());
    return text;
}

bool isAscii(QByteArrayView bytes)
{
    unsigned char all = 0;
    for (const char byte : bytes)
        all |= static_cast<unsigned char>(byte);
    return all < 0x80;
}

} // namespace

class JsonTree::Parser
{
public:
    Parser(QByteArrayView bytes, std::vector<Node>& nodes)
        : m_begin(bytes.data())
        , m_cursor(bytes.data())
        , m_end(bytes.data() + bytes.size())
        , m_nodes(nodes)
    {}

    bool run()
    {
        constexpr QByteArrayView byteOrderMark("\xef\xbb\xbf");
        if (QByteArrayView(m_cursor, m_end).startsWith(byteOrderMark))
            m_cursor += byteOrderMark.size();
        skipBlanks();
        if (m_cursor == m_end || *m_cursor != '{' || !parseValue(1))
            return false;
        skipBlanks();
        return m_cursor == m_end;
    }

private:
    void skipBlanks()
    {
        while (m_cursor != m_end &&
               (*m_cursor == ' ' || *m_cursor == '\n' || *m_cursor == '\t' || *m_cursor == '\r'))
            ++m_cursor;
    }

    bool take(char byte)
    {
        skipBlanks();
        if (m_cursor == m_end || *m_cursor != byte)
            return false;
        ++m_cursor;
        return true;
    }

    std::size_t addNode(Type type)
    {
        m_nodes.push_back({static_cast<quint32>(m_cursor - m_begin), 0, 0, type, true});
        return m_nodes.size() - 1;
    }

    void closeNode(std::size_t index)
    {
        m_nodes[index].length = static_cast<quint32>(m_cursor - m_begin) - m_nodes[index].start;
        m_nodes[index].next = static_cast<quint32>(m_nodes.size());
    }

    bool parseValue(int depth)
    {
        skipBlanks();
        if (m_cursor == m_end)
            return false;
        switch (*m_cursor) {
        case '{':
            return parseContainer(Type::Object, '}', depth);
        case '[':
            return parseContainer(Type::Array, ']', depth);
        case '"':
            return parseText();
        case 'n':
            return parseLiteral("null", Type::Null);
        case 't':
            return parseLiteral("true", Type::True);
        case 'f':
            return parseLiteral("false", Type::False);
        default:
            return parseNumber();
        }
    }

    bool parseContainer(Type type, char closing, int depth)
    {
        if (depth > deepestNesting)
            return false;
        const std::size_t node = addNode(type);
        ++m_cursor;
        if (!take(closing)) {
            do {
                if (type == Type::Object && (!parseKey() || !take(':')))
                    return false;
                if (!parseValue(depth + 1))
                    return false;
            } while (take(','));
            if (!take(closing))
                return false;
        }
        closeNode(node);
        return true;
    }

    bool parseKey()
    {
        skipBlanks();
        return m_cursor != m_end && *m_cursor == '"' && parseText();
    }

    bool parseText()
    {
        ++m_cursor;
        const std::size_t node = addNode(Type::Text);
        const qsizetype quote = QByteArrayView(m_cursor, m_end).indexOf('"');
        if (quote < 0)
            return false;
        const bool hasEscape = QByteArrayView(m_cursor, quote).contains('\\');
        if (!hasEscape)
            m_cursor += quote;
        else if (!skipEscapedText())
            return false;
        closeNode(node);
        const QByteArrayView text(m_begin + m_nodes[node].start, m_cursor);
        const bool hasOnlyAscii = isAscii(text);
        m_nodes[node].isPlain = hasOnlyAscii && !hasEscape;
        ++m_cursor;
        return hasOnlyAscii || text.isValidUtf8();
    }

    /** Moves to the quotation mark behind a text in which backslashes stand. */
    bool skipEscapedText()
    {
        for (; m_cursor != m_end && *m_cursor != '"'; ++m_cursor) {
            if (*m_cursor == '\\' && !skipEscape())
                return false;
        }
        return m_cursor != m_end;
    }

    /** Leaves the cursor on the escape's last byte. */
    bool skipEscape()
    {
        if (++m_cursor == m_end || static_cast<signed char>(*m_cursor) < 0)
            return false;
        if (*m_cursor != 'u')
            return true;
        for (int digit = 0; digit < 4; ++digit) {
            if (++m_cursor == m_end || hexValue(*m_cursor) < 0)
                return false;
        }
        return true;
    }

    bool parseLiteral(QByteArrayView literal, Type type)
    {
        if (!QByteArrayView(m_cursor, m_end).startsWith(literal))
            return false;
        const std::size_t node = addNode(type);
        m_cursor += literal.size();
        closeNode(node);
        return true;
    }

    void skipDigits()
    {
        while (m_cursor != m_end && isDigit(*m_cursor))
            ++m_cursor;
    }

    bool parseNumber()
    {
        const std::size_t node = addNode(Type::Number);
        const char* const start = m_cursor;
        if (*m_cursor == '-')
            ++m_cursor;
        const char* const firstDigit = m_cursor;
        if (m_cursor != m_end && *m_cursor == '0')
            ++m_cursor;
        else
            skipDigits();
        const bool isShortInteger =
            m_cursor != firstDigit && m_cursor - firstDigit <= surelyFittingDigits &&
            (m_cursor == m_end || (*m_cursor != '.' && *m_cursor != 'e' && *m_cursor != 'E'));
        if (!isShortInteger && m_cursor != m_end && *m_cursor == '.') {
            ++m_cursor;
            skipDigits();
        }
        if (!isShortInteger && m_cursor != m_end && (*m_cursor == 'e' || *m_cursor == 'E')) {
            ++m_cursor;
            if (m_cursor != m_end && (*m_cursor == '-' || *m_cursor == '+'))
                ++m_cursor;
            skipDigits();
        }
        closeNode(node);
        bool isNumber = isShortInteger;
        if (!isNumber)
            static_cast<void>(QByteArrayView(start, m_cursor).toDouble(&isNumber));
        return isNumber;
    }

    const char* const m_begin;
    const char* m_cursor;
    const char* const m_end;
    std::vector<Node>& m_nodes;
};

bool JsonTree::parse(QByteArrayView bytes)
{
    m_bytes = bytes;
    m_nodes.clear();
    return bytes.size() <= std::numeric_limits<qint32>::max() && Parser(bytes, m_nodes).run();
}

JsonNode JsonTree::root() const
{
    return JsonNode(*this, 0);
}

QString JsonNode::text() const
{
    if (!isText())
        return {};
    return node().isPlain ? QString::fromLatin1(slice()) : decoded(slice());
}

QByteArrayView JsonNode::digits() const
{
    return isNumber() ? slice() : QByteArrayView();
}

QByteArrayView JsonNode::encodedText() const
{
    return isText() ? slice() : QByteArrayView();
}

bool JsonNode::isText(QStringView expected) const
{
    if (!isText())
        return false;
    return node().isPlain ? QLatin1StringView(slice()) == expected : text() == expected;
}

bool JsonNode::isText(QLatin1StringView expected) const
{
    if (!isText())
        return false;
    if (node().isPlain)
        return slice() == QByteArrayView(expected.data(), expected.size());
    return text() == expected;
}

JsonNode JsonNode::value(QLatin1StringView key) const
{
    JsonNode found;
    forEachMember([&](const JsonNode& name, const JsonNode& value) {
        if (name.isText(key))
            found = value;
    });
    return found;
}

QJsonValue JsonNode::toJsonValue() const
{
    if (!exists() || isNull())
        return QJsonValue::Null;
    switch (node().type) {
    case JsonTree::Type::Number: {
        // An exact integer stays one, whatever its size.
        bool isInteger = false;
        const qint64 integer = digits().toByteArray().toLongLong(&isInteger);
        return isInteger ? QJsonValue(integer) : QJsonValue(readDouble(*this).value_or(0.0));
    }
    case JsonTree::Type::Text:
        return text();
    case JsonTree::Type::Array: {
        QJsonArray array;
        forEachElement([&](const JsonNode& element) { array.append(element.toJsonValue()); });
        return array;
    }
    case JsonTree::Type::Object: {
        QJsonObject object;
        forEachMember([&](const JsonNode& key, const JsonNode& value) {
            object.insert(key.text(), value.toJsonValue());
        });
        return object;
    }
    default:
        return isTrue();
    }
}

} // namespace tw::app::persistence
