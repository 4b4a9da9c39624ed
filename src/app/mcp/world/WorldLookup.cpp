#include "app/mcp/world/WorldLookup.h"

#include "app/mcp/registry/CategoryFinder.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

QStringList objectTypeNames()
{
    QStringList names;
    for (const ContentKind kind : core::content::allContentKinds)
        names.append(core::content::contentKindName(kind));
    return names;
}

} // namespace

QJsonObject objectTypeProperty(const QString& description)
{
    return choiceProperty(description, objectTypeNames(), Default::None);
}

Result<std::optional<ContentKind>> readObjectType(const ToolArguments& arguments)
{
    const QString name = arguments.text(u"type").trimmed().toLower();
    if (name.isEmpty())
        return std::optional<ContentKind>();
    if (const auto kind = core::content::contentKindFromName(name))
        return kind;
    if (const auto kind = kindOfWord(name))
        return kind;
    return Failure{u"Unknown object type '%1'; use one of: %2."_s.arg(
        arguments.text(u"type"), objectTypeNames().join(u", "_s))};
}

Result<FoundObject> findOfType(
    const Workspace& workspace, const ToolArguments& arguments, QStringView subject, Purpose purpose)
{
    const auto kind = readObjectType(arguments);
    if (!kind)
        return Failure{kind.message()};
    const QString word = kind.value() ? QString(kindWord(*kind.value())) : u"object"_s;
    return resolveSubject(workspace, arguments, subject, word, purpose);
}

Result<FoundCategory> findCategoryToRead(const Workspace& workspace, const QString& name)
{
    const Project* project = &workspace.project();
    const workspace::MountedLibrary* from = nullptr;
    if (categoriesNamed(*project, name).empty()) {
        for (const workspace::MountedLibrary& library : workspace.libraries()) {
            if (categoriesNamed(*library.project, name).empty())
                continue;
            project = library.project.get();
            from = &library;
            break;
        }
    }
    const auto id = chooseCategory(*project, name);
    if (!id)
        return Failure{id.message()};
    return FoundCategory{project->taxonomy().category(id.value()), project, from};
}

Result<const Category*> findCategoryForChange(const Workspace& workspace, const QString& name)
{
    const auto found = findCategoryToRead(workspace, name);
    if (!found)
        return Failure{found.message()};
    if (found.value().library)
        return Failure{mountedNotEdited(found.value().category->name, found.value().library->name)};
    return found.value().category;
}

codex::ObjectScope assistantScope(const Workspace& workspace)
{
    codex::ObjectScope scope;
    for (const workspace::MountedLibrary& library : workspace.libraries())
        scope.libraries.push_back(library.project.get());
    scope.isHidden = [](const core::content::ContentObject& object) { return object.isAiExcluded(); };
    return scope;
}

QString shownName(const core::content::ContentObject& object)
{
    const QString name = core::content::objectName(object);
    return name.isEmpty() ? object.id().toString() : name;
}

QString entityText(const Workspace& workspace, const ContentId& id)
{
    const Entity* entity = workspace.project().findAs<Entity>(id);
    for (const workspace::MountedLibrary& library : workspace.libraries()) {
        if (!entity)
            entity = library.project->findAs<Entity>(id);
    }
    if (!entity)
        return u"(missing)"_s;
    return entity->isAiExcluded() ? u"(an entity excluded from AI)"_s : entity->name();
}

QString valueText(const Workspace& workspace, const Field& field, const QString& value)
{
    if (field.type == FieldType::Date) {
        bool isInstant = false;
        const qint64 instant = value.toLongLong(&isInstant);
        return isInstant ? dateText(workspace.project(), instant) : value;
    }
    if (field.type != FieldType::Reference)
        return value;
    QStringList names;
    for (const QString& line : value.split(u'\n', Qt::SkipEmptyParts)) {
        const ContentId id = ContentId::fromString(line.trimmed());
        names.append(id.isNull() ? line : entityText(workspace, id));
    }
    return names.join(u", "_s);
}

Result<void> checkHolders(const Project& project, const std::set<ContentId>& holders, const QString& change)
{
    for (const ContentId& id : holders) {
        const auto* const object = project.find(id);
        if (object->isAiExcluded()) {
            return Failure{
                u"Something that is excluded from AI would have to be changed to %1, so tools cannot do it. "
                "Ask the writer to do it in the desktop app."_s.arg(change)};
        }
        if (object->isLocked())
            return Failure{locked(shownName(*object))};
    }
    return {};
}

QString quotedList(const QStringList& names)
{
    QStringList quoted;
    for (const QString& name : names)
        quoted.append(u"'%1'"_s.arg(name));
    return quoted.join(u", "_s);
}

Result<QString> readNewName(const ToolArguments& arguments, QStringView argument)
{
    const QString name = arguments.text(argument).trimmed();
    if (const auto checked = checkNameText(name); !checked)
        return Failure{checked.message()};
    return name;
}

} // namespace tw::app::mcp
