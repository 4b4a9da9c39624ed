#pragma once

#include <QString>

namespace tw::mcp::server {

/** All tools with their arguments, as the page docs/tools.md: Markdown, made of the same tables that clients
 * are told. */
[[nodiscard]] QString toolReference();

} // namespace tw::mcp::server
