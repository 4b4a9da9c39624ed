#include "app/persistence/codec/TextPool.h"

#include <QHashFunctions>

namespace tw::app::persistence {

namespace {

/** Longer texts, such as names, sentences and ids, seldom occur twice within reach of the table. */
constexpr qsizetype longestShared = 24;

} // namespace

QString TextPool::textOf(const JsonNode& node)
{
    const QByteArrayView encoded = node.encodedText();
    if (encoded.isEmpty() || encoded.size() > longestShared)
        return node.text();
    QString& text = m_texts[qHash(encoded) % m_texts.size()];
    if (!node.isText(QStringView(text)))
        text = node.text();
    return text;
}

} // namespace tw::app::persistence
