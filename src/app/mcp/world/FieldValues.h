// The values and definitions of codex fields as tool calls give them.
#pragma once

#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/ToolArguments.h"
#include "app/workspace/Workspace.h"
#include "core/entity/Schema.h"
#include "core/foundation/Result.h"

namespace tw::app::mcp {

/**
 * What is stored for a value that a caller writes: names of entities (one, or several parted by line breaks
 * or commas) become references, dates of the calendar instants. Fails with what the field takes when the text
 * does not suit it.
 */
[[nodiscard]] core::Result<QString> readFieldValue(
    const workspace::Workspace& workspace, const core::taxonomy::Field& field, const QString& text);

/** References to several entities. */
[[nodiscard]] core::Result<QString> readReferences(
    const workspace::Workspace& workspace, const core::taxonomy::Field& field, const QStringList& names);

/** "Unknown field type '%1'; ..." for any other word; `byDefault` when there is none. */
[[nodiscard]] core::Result<core::taxonomy::FieldType> readFieldType(
    const ToolArguments& arguments, core::taxonomy::FieldType byDefault);

/** The category of "reference_category"; null when it is absent. */
[[nodiscard]] core::Result<core::CategoryId> readReferenceCategory(
    const workspace::Workspace& workspace, const ToolArguments& arguments);

/** The "type" argument of a field; readFieldType() refuses other words. */
[[nodiscard]] QJsonObject fieldTypeProperty(const QString& description, Default byDefault);

/** The names without blanks around them, blank ones and repetitions. */
[[nodiscard]] QStringList tidied(const QStringList& texts);

} // namespace tw::app::mcp
