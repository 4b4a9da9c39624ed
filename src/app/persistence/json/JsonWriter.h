#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QStringView>

namespace tw::app::persistence {

/**
 * Writes JSON in the order in which it is told to, byte for byte in the indented form of QJsonDocument, which
 * itself can only sort keys. Appends to a byte array of the caller's, which may be reused and must outlive
 * the writer; its content is complete whenever an outermost object or array has been closed. The caller keeps
 * begin and end calls balanced and writes a key before every value of an object.
 */
class JsonWriter
{
public:
    explicit JsonWriter(QByteArray& output)
        : m_output(output)
    {}

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    void key(QLatin1StringView name);
    void key(QStringView name);

    void writeText(QStringView text);
    void writeText(QLatin1StringView text);
    void writeInteger(qint64 number);
    /** What JSON cannot hold, infinities and not-a-number, is written as 0. */
    void writeDouble(double number);
    void writeBool(bool value);
    /** A value with everything in it, its objects' keys in the sorted order in which Qt keeps them. */
    void writeValue(const QJsonValue& value);

private:
    void begin(char bracket);
    void end(char bracket);
    void startElement();
    void startKey();
    void finishKey();
    void appendLiteral(const char* literal, qsizetype length);
    void appendIndent();
    void appendQuoted(QStringView text);
    void appendQuoted(QLatin1StringView text);
    void reserve(qsizetype length);

    QByteArray& m_output;
    char* m_cursor = nullptr; ///< Where the next byte goes; null between two documents.
    char* m_limit = nullptr;  ///< One past the last byte that can be written without growing.
    qsizetype m_depth = 0;
    bool m_isFirst = true; ///< Nothing has been written yet in the innermost object or array.
    bool m_hasKey = false; ///< A key stands waiting for its value.
};

} // namespace tw::app::persistence
