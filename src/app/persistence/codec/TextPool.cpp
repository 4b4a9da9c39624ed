#include "app/persistence/codec/TextPool.h"

#include <QHashFunctions>

namespace tw::app::persistence {

namespace {

/** Longer texts, such as bodies and descriptions, seldom occur twice; ids have 36. */
constexpr qsizetype longestShared = 40;

} // namespace

QString TextPool::textOf(const JsonNode& node)
{
    const QByteArrayView utf8 = node.utf8();
    if (utf8.isEmpty() || utf8.size() > longestShared)
        return node.text();
    Known& known = m_known[qHash(utf8) % m_known.size()];
    if (known.utf8 != utf8)
        known = {utf8.toByteArray(), node.text()};
    return known.text;
}

} // namespace tw::app::persistence
