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
    const std::size_t hash = qHash(encoded);
    Slot& slot = m_slots[hash % m_slots.size()];
    if (slot.hash != hash || !node.isText(QStringView(slot.text)))
        slot = {hash, node.text()};
    return slot.text;
}

} // namespace tw::app::persistence
