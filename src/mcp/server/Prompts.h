#pragma once

#include "core/foundation/Result.h"

#include <QJsonArray>
#include <QJsonObject>

/** Requests that a person may begin a conversation with. */
namespace tw::mcp::server {

/** The entries of prompts/list. */
[[nodiscard]] QJsonArray listPrompts();

/** {"description", "messages"}. Fails for an unknown prompt, and without an argument that it needs. */
[[nodiscard]] core::Result<QJsonObject> getPrompt(const QString& name, const QJsonObject& arguments);

} // namespace tw::mcp::server
