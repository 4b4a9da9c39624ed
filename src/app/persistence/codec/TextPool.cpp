#include "app/persistence/codec/TextPool.h"

#include <QHashFunctions>

namespace tw::app::persistence {

namespace {

/** Longer texts, such as names, sentences and ids, seldom occur twice within reach of the table. */
constexpr qsizetype longestShared = 24;

} // namespace

QString TextPool::textOf(const JsonNode& node)
{
    const QByteArrayView utf8 = node.utf8();
    if (utf8.isEmpty() || utf8.size() > longestShared)
        return node.text();
    const std::size_t hash = qHash(utf8);
    Known& known = m_known[hash % m_known.size()];
    if (known.hash != hash || known.utf8 != utf8)
        known = {hash, utf8.toByteArray(), node.text()};
    return known.text;
}

} // namespace tw::app::persistence
