#include "app/persistence/codec/TextPool.h"

#include <algorithm>

namespace tw::app::persistence {

namespace {

/** Longer texts, such as bodies and descriptions, seldom occur twice; ids have 36. */
constexpr qsizetype longestShared = 40;

/** Spreads short texts well enough for a table in which a clash only costs some memory. */
std::size_t slotOf(QByteArrayView bytes)
{
    std::size_t hash = static_cast<std::size_t>(bytes.size());
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
    return hash ^ (hash >> 29);
}

} // namespace

QString TextPool::textOf(const JsonNode& node)
{
    const QByteArrayView utf8 = node.utf8();
    if (utf8.isEmpty() || utf8.size() > longestShared)
        return node.text();
    Known& known = m_known[slotOf(utf8) % m_known.size()];
    if (known.utf8 != utf8)
        known = {utf8.toByteArray(), node.text()};
    return known.text;
}

} // namespace tw::app::persistence
