#pragma once

#include "app/persistence/json/JsonTree.h"

#include <QByteArray>
#include <QString>

#include <array>

namespace tw::app::persistence {

/**
 * Makes equal texts share their memory: field keys, tags, statuses, colours and ids stand in thousands of
 * objects of a large project. Remembers a limited number, of which the latest stay, so that texts seen once
 * cost nothing later. Lives as long as a load takes and belongs to one thread at a time.
 */
class TextPool
{
public:
    /** The text of a node, in the memory of an equal one where that is at hand. */
    [[nodiscard]] QString textOf(const JsonNode& node);

private:
    struct Known
    {
        std::size_t hash = 0; ///< Of `utf8`: most clashes show here.
        QByteArray utf8;
        QString text;
    };

    std::array<Known, 4096> m_known;
};

} // namespace tw::app::persistence
