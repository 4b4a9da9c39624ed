#include "app/mcp/world/OwnedField.h"

#include "app/codex/FieldKeys.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::taxonomy::Category;
using core::taxonomy::Field;

Result<const Field*> findOwnField(
    const workspace::Workspace& workspace, const Category& category, const QString& name,
    const QString& instead)
{
    if (const Field* const own = codex::findFieldNamed(category.fields, name))
        return own;
    const auto& project = workspace.project();
    const core::entity::Schema schema = core::entity::schemaOfCategory(project, category.id);
    const auto* const inherited = codex::findFieldNamed(schema, name);
    if (!inherited)
        return Failure{u"'%1' has no field '%2'."_s.arg(category.name, name)};
    const QString label = inherited->field.displayName();
    const Category* const source = project.taxonomy().category(inherited->definedBy);
    if (!source) {
        return Failure{u"Field '%1' is inherited from an entity's own properties; change it there with "
                       "entity_property."_s.arg(label)};
    }
    return Failure{u"Field '%1' is inherited; %2 '%3'."_s.arg(label, instead, source->name)};
}

} // namespace tw::app::mcp
