#pragma once

#include <QStringList>

namespace tw::app::mcp {

/** What tools changed in this session. Owned by whoever owns the server, emptied when another project opens.
 */
struct McpChangeLog
{
    /** The texts of all successful changing calls, oldest first. */
    QStringList entries;
};

} // namespace tw::app::mcp
