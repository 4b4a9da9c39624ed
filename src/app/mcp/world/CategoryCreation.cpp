#include "app/codex/CategoryEdits.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/mcp/world/CategoryPlace.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;

namespace {

Field summaryField()
{
    Field field;
    field.key = u"summary"_s;
    field.label = u"Summary"_s;
    return field;
}

QString createdText(const Category& category, const GivenPlace& place)
{
    if (!place.entityId.isNull()) {
        return u"Created category '%1' under the entity '%2'. It starts with NO inherited properties -- "
               "nothing crosses an entity boundary by default; name what it should take with "
               "update_category's \"inherited\"."_s.arg(category.name, place.name);
    }
    if (!place.parentId.isNull())
        return u"Created category '%1' under '%2'."_s.arg(category.name, place.name);
    return u"Created category '%1'."_s.arg(category.name);
}

McpToolResult createCategory(ToolContext& context, const ToolArguments& arguments)
{
    const Project& project = context.workspace.project();
    if (arguments.text(u"name").trimmed().isEmpty())
        return McpToolResult::failure(u"create_category needs a non-empty \"name\"."_s);
    const auto name = readNewName(arguments, u"name");
    if (!name)
        return McpToolResult::failure(name.message());
    if (isCategoryNameTaken(project, name.value()))
        return McpToolResult::failure(u"Category '%1' already exists."_s.arg(name.value()));
    const auto place = readCategoryPlace(context.workspace, arguments);
    if (!place)
        return McpToolResult::failure(place.message());

    Category category;
    category.id = CategoryId::create();
    category.name = name.value();
    category.parentId = place.value().parentId;
    category.parentEntityId = place.value().entityId;
    category.sortIndex = codex::sortIndexAtEnd(project, category.parentId, category.parentEntityId);
    // What comes from the parent serves here as well.
    const Schema above = core::entity::schemaOfCategory(project, category.parentId);
    if (!core::entity::findField(above, summaryField().key))
        category.fields = {summaryField()};
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: create category"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::taxonomy::AddCategoryCommand>(
            context.workspace.projectForEdit(), category));
        return McpToolResult::success(createdText(category, place.value()));
    });
}

} // namespace

Tool createCategoryTool()
{
    return {
        .access = ToolAccess::Changing,
        .title = u"Create a category"_s,
        .spec =
            {u"create_category"_s,
             u"Creates a codex category (with a standard Summary field). \"name\" is needed and must be new. "
             "Without a place it stands at the top level; \"parent\" puts it under another category, all of "
             "whose properties it inherits (the Summary with them); \"parent_entity\" hangs it under one "
             "entity of the project -- the cities of one kingdom rather than cities in general -- where it "
             "inherits nothing until update_category names what it takes. Pass at most one of the two. Add "
             "further properties with add_field, entities with create_entity."_s,
             makeObjectSchema(
                 {{u"name"_s, textProperty(u"The new category's name."_s)},
                  {u"parent"_s, textProperty(u"The category to put it under."_s)},
                  {u"parent_entity"_s, textProperty(u"The entity to hang it under."_s)}},
                 {u"name"_s})},
        .refusedByHandler = {u"name"_s},
        .handler = createCategory,
    };
}

} // namespace tw::app::mcp
