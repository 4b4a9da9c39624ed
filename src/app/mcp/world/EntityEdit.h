#pragma once

#include "app/mcp/registry/ToolArguments.h"
#include "app/workspace/Workspace.h"
#include "core/entity/Schema.h"
#include "core/foundation/Result.h"

namespace tw::app::mcp {

/** What an entity holds beside its name and category: the part that create_entity and update_entity share. */
struct EntityContent
{
    core::entity::FieldValues values;
    core::entity::TimedValues timedValues;
    core::entity::Lifespan lifespan;
    QStringList aliases;
    core::content::NameSet tags;
};

[[nodiscard]] EntityContent contentOf(const core::entity::Entity& entity);

/**
 * The content with what the arguments give ("fields", "references", "aliases", "tags", "birth", "death",
 * "timed_values") put into it; what they leave out stays. Fails with the first thing that cannot be: an
 * unknown or fixed field, a value that does not suit, a reference to what is not there.
 */
[[nodiscard]] core::Result<EntityContent> editedContent(
    const workspace::Workspace& workspace, const core::entity::Schema& schema, const QString& entityName,
    EntityContent content, const ToolArguments& arguments);

/** The arguments above as schema properties. */
[[nodiscard]] QJsonObject entityContentProperties();

/** What to say of an entity that ends before it begins, with a blank before it; empty for any other. */
[[nodiscard]] QString lifespanNote(const core::entity::Lifespan& lifespan);

/** The required fields that an entity leaves empty, as a sentence with a blank before it; empty when there
 * are none. */
[[nodiscard]] QString missingFieldsText(
    const core::entity::Schema& schema, const core::entity::FieldValues& values);

} // namespace tw::app::mcp
