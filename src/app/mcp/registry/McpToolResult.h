#pragma once

#include <QString>

#include <utility>

namespace tw::app::mcp {

/** The whole answer of a tool call: one text for the model, success or failure alike. A failed call changed
 * nothing. */
struct McpToolResult
{
    bool ok = false;
    QString text;

    [[nodiscard]] static McpToolResult success(QString text) { return {true, std::move(text)}; }
    [[nodiscard]] static McpToolResult failure(QString text) { return {false, std::move(text)}; }

    friend bool operator==(const McpToolResult&, const McpToolResult&) = default;
};

} // namespace tw::app::mcp
