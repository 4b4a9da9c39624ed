#include "app/persistence/json/JsonWriter.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QVariant>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

constexpr qsizetype indentWidth = 4;
constexpr qsizetype smallestGrowth = 1024;
/** Text is escaped in pieces, so that a long one does not reserve room for its worst case. */
constexpr qsizetype pieceLength = 4096;
constexpr qsizetype longestEscape = 6;
constexpr qsizetype blockLength = 16;
constexpr qsizetype longestInteger = 20;
/** Whole numbers up to here are exact as a double, and are written with all their digits. */
constexpr double largestExactInteger = 9007199254740992.0;

constexpr std::array<bool, 128> plainCharacters = [] {
    std::array<bool, 128> plain{};
    for (std::size_t character = 0x20; character < plain.size(); ++character)
        plain[character] = character != '"' && character != '\\';
    return plain;
}();

bool isPlain(char16_t unit)
{
    return unit < plainCharacters.size() && plainCharacters[unit];
}

/** Whether a whole block is plain: without branches, so that the compiler takes all of it at once. */
bool isPlainBlock(const char16_t* block)
{
    unsigned short unusual = 0;
    for (qsizetype index = 0; index < blockLength; ++index) {
        const char16_t unit = block[index];
        unusual = static_cast<unsigned short>(
            unusual | (unit < 0x20) | (unit >= 0x80) | (unit == u'"') | (unit == u'\\'));
    }
    return unusual == 0;
}

char byteOf(unsigned bits)
{
    return static_cast<char>(static_cast<unsigned char>(bits));
}

char* appendUnicodeEscape(char* cursor, char16_t unit)
{
    constexpr char digits[] = "0123456789abcdef";
    *cursor++ = '\\';
    *cursor++ = 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *cursor++ = digits[(unit >> shift) & 0xf];
    return cursor;
}

char shortEscapeOf(char16_t unit)
{
    switch (unit) {
    case u'"':
        return '"';
    case u'\\':
        return '\\';
    case u'\b':
        return 'b';
    case u'\f':
        return 'f';
    case u'\n':
        return 'n';
    case u'\r':
        return 'r';
    case u'\t':
        return 't';
    default:
        return '\0';
    }
}

/** Writes one character that is not plain and moves the source behind it. A lone surrogate is escaped. */
char* appendUnusual(char* cursor, const char16_t*& source, const char16_t* sourceEnd)
{
    const char16_t unit = *source++;
    if (const char escape = shortEscapeOf(unit)) {
        *cursor++ = '\\';
        *cursor++ = escape;
    } else if (unit < 0x20) {
        cursor = appendUnicodeEscape(cursor, unit);
    } else if (unit < 0x800) {
        *cursor++ = byteOf(0xc0u | (unit >> 6));
        *cursor++ = byteOf(0x80u | (unit & 0x3fu));
    } else if (!QChar::isSurrogate(unit)) {
        *cursor++ = byteOf(0xe0u | (unit >> 12));
        *cursor++ = byteOf(0x80u | ((unit >> 6) & 0x3fu));
        *cursor++ = byteOf(0x80u | (unit & 0x3fu));
    } else if (QChar::isHighSurrogate(unit) && source != sourceEnd && QChar::isLowSurrogate(*source)) {
        const char32_t character = QChar::surrogateToUcs4(unit, *source++);
        *cursor++ = byteOf(0xf0u | (character >> 18));
        *cursor++ = byteOf(0x80u | ((character >> 12) & 0x3fu));
        *cursor++ = byteOf(0x80u | ((character >> 6) & 0x3fu));
        *cursor++ = byteOf(0x80u | (character & 0x3fu));
    } else {
        cursor = appendUnicodeEscape(cursor, unit);
    }
    return cursor;
}

} // namespace

void JsonWriter::key(QLatin1StringView name)
{
    startKey();
    appendQuoted(name);
    finishKey();
}

void JsonWriter::key(QStringView name)
{
    startKey();
    appendQuoted(name);
    finishKey();
}

void JsonWriter::writeText(QStringView text)
{
    startElement();
    appendQuoted(text);
}

void JsonWriter::writeText(QLatin1StringView text)
{
    startElement();
    appendQuoted(text);
}

void JsonWriter::writeInteger(qint64 number)
{
    startElement();
    reserve(longestInteger);
    m_cursor = std::to_chars(m_cursor, m_limit, number).ptr;
}

void JsonWriter::writeDouble(double number)
{
    if (!std::isfinite(number)) {
        writeInteger(0);
    } else if (std::abs(number) <= largestExactInteger && std::trunc(number) == number) {
        writeInteger(static_cast<qint64>(number));
    } else {
        startElement();
        const QByteArray digits = QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
        appendLiteral(digits.constData(), digits.size());
    }
}

void JsonWriter::writeBool(bool value)
{
    startElement();
    value ? appendLiteral("true", 4) : appendLiteral("false", 5);
}

void JsonWriter::writeValue(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        writeBool(value.toBool());
        break;
    case QJsonValue::Double:
        // Only the variant tells whether Qt holds an exact integer, which may lie beyond what a double can
        // say.
        if (const QVariant number = value.toVariant(); number.typeId() == QMetaType::LongLong)
            writeInteger(number.toLongLong());
        else
            writeDouble(value.toDouble());
        break;
    case QJsonValue::String:
        writeText(value.toString());
        break;
    case QJsonValue::Array: {
        beginArray();
        const QJsonArray array = value.toArray();
        for (const QJsonValue& element : array)
            writeValue(element);
        endArray();
        break;
    }
    case QJsonValue::Object: {
        beginObject();
        const QJsonObject object = value.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
            key(member.key());
            writeValue(member.value());
        }
        endObject();
        break;
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        startElement();
        appendLiteral("null", 4);
        break;
    }
}

void JsonWriter::begin(char bracket)
{
    startElement();
    reserve(2);
    *m_cursor++ = bracket;
    *m_cursor++ = '\n';
    ++m_depth;
    m_isFirst = true;
}

void JsonWriter::end(char bracket)
{
    --m_depth;
    reserve(3 + m_depth * indentWidth);
    if (!m_isFirst)
        *m_cursor++ = '\n';
    appendIndent();
    *m_cursor++ = bracket;
    m_isFirst = false;
    if (m_depth > 0)
        return;
    *m_cursor++ = '\n';
    m_output.resize(m_cursor - m_output.constData());
    m_cursor = nullptr;
    m_limit = nullptr;
    m_isFirst = true;
}

/** Separates a value from what stands before it; behind a key or at the top nothing is needed. */
void JsonWriter::startElement()
{
    if (m_hasKey || m_depth == 0) {
        m_hasKey = false;
        return;
    }
    reserve(2 + m_depth * indentWidth);
    if (!m_isFirst) {
        *m_cursor++ = ',';
        *m_cursor++ = '\n';
    }
    m_isFirst = false;
    appendIndent();
}

void JsonWriter::startKey()
{
    startElement();
    m_hasKey = true;
}

void JsonWriter::finishKey()
{
    appendLiteral(": ", 2);
}

void JsonWriter::appendLiteral(const char* literal, qsizetype length)
{
    reserve(length);
    std::memcpy(m_cursor, literal, static_cast<std::size_t>(length));
    m_cursor += length;
}

/** The room has been reserved by the caller. */
void JsonWriter::appendIndent()
{
    const qsizetype width = m_depth * indentWidth;
    std::memset(m_cursor, ' ', static_cast<std::size_t>(width));
    m_cursor += width;
}

void JsonWriter::appendQuoted(QStringView text)
{
    reserve(text.size() + 2);
    *m_cursor++ = '"';
    const char16_t* source = text.utf16();
    const char16_t* const sourceEnd = source + text.size();
    while (source != sourceEnd) {
        const char16_t* const pieceEnd = source + std::min<qsizetype>(sourceEnd - source, pieceLength);
        reserve((pieceEnd - source) * longestEscape);
        char* cursor = m_cursor;
        // A surrogate pair may end one unit behind the piece; its four bytes fit into the room of one escape.
        while (source < pieceEnd) {
            if (pieceEnd - source >= blockLength && isPlainBlock(source)) {
                std::transform(source, source + blockLength, cursor, [](char16_t unit) {
                    return static_cast<char>(unit);
                });
                source += blockLength;
                cursor += blockLength;
                continue;
            }
            if (isPlain(*source))
                *cursor++ = static_cast<char>(*source++);
            else
                cursor = appendUnusual(cursor, source, sourceEnd);
        }
        m_cursor = cursor;
    }
    reserve(1);
    *m_cursor++ = '"';
}

void JsonWriter::appendQuoted(QLatin1StringView text)
{
    const auto isPlainLetter = [](char letter) { return isPlain(static_cast<unsigned char>(letter)); };
    if (!std::all_of(text.begin(), text.end(), isPlainLetter)) {
        appendQuoted(QString(text));
        return;
    }
    reserve(text.size() + 2);
    *m_cursor++ = '"';
    std::memcpy(m_cursor, text.data(), static_cast<std::size_t>(text.size()));
    m_cursor += text.size();
    *m_cursor++ = '"';
}

void JsonWriter::reserve(qsizetype length)
{
    if (m_limit - m_cursor >= length && m_cursor)
        return;
    const qsizetype used = m_cursor ? m_cursor - m_output.constData() : m_output.size();
    m_output.resize(std::max({used + length, used * 2, m_output.capacity(), smallestGrowth}));
    m_cursor = m_output.data() + used;
    m_limit = m_output.data() + m_output.size();
}

} // namespace tw::app::persistence
