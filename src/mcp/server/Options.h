#pragma once

#include "core/foundation/Result.h"
#include "mcp/server/ToolCatalogue.h"

#include <QString>

namespace tw::mcp::server {

/** What the command line asks for. */
struct Options
{
    /** A folder or a single file, as it was given. */
    QString projectPath;
    ToolChoice tools;
    /** To be printed instead of serving anything: the help or the version. Empty otherwise. */
    QString information;
};

/** `arguments` without the program's name. The message of a failure is one line. */
[[nodiscard]] core::Result<Options> readOptions(const QStringList& arguments, const QString& version);

} // namespace tw::mcp::server
