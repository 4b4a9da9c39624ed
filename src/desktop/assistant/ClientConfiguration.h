#pragma once

#include <QString>
#include <QStringList>

namespace tw::desktop::assistant {

/** The forms in which assistants want to be told of a server. */
enum class ClientForm
{
    /** JSON, "mcpServers": most assistants with a window. */
    ServersByName,
    /** JSON, "servers" with a "type": editors for code. */
    TypedServers,
    /** TOML, "[mcp_servers.name]": assistants in a terminal. */
    Toml,
    /** The command by itself, quoted for a shell. */
    CommandLine,
};

/** A server that an assistant starts. */
struct ServerCommand
{
    /** Short, of small letters, digits and hyphens. */
    QString name;
    QString program;
    QStringList arguments;
};

/** A name for the server of a project: what is left of its title, or "vellory". */
[[nodiscard]] QString serverNameFor(const QString& projectName);

/** What to put into the settings of an assistant, ready to be pasted. */
[[nodiscard]] QString clientConfiguration(ClientForm form, const ServerCommand& command);

/** The companion executable beside the program, or its bare name when it is not there. */
[[nodiscard]] QString companionProgram(const QString& applicationFolder);

} // namespace tw::desktop::assistant
