#pragma once

#include <QJsonObject>
#include <QString>

namespace tw::app::mcp {

/** What a model is told about a tool. */
struct McpToolSpec
{
    /** Lower-case words joined by underscores. */
    QString name;
    /** Prose for the model: what the tool does, its defaults and limits, what it refuses, what to call first.
     */
    QString description;
    /** A JSON Schema of the arguments object; see Schema.h. */
    QJsonObject inputSchema;
};

} // namespace tw::app::mcp
