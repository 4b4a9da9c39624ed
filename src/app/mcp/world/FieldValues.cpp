#include "app/mcp/world/FieldValues.h"

#include "app/codex/ValueConversion.h"
#include "app/mcp/registry/CategoryFinder.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/world/WorldLookup.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

/** A field may take only the entities of one category and of what lies beneath it; libraries have their own.
 */
Result<void> checkReferenceCategory(const Workspace& workspace, const Field& field, const FoundObject& found)
{
    const auto& project = workspace.project();
    const auto* const wanted = project.taxonomy().category(field.referenceCategory);
    const auto& entity = static_cast<const Entity&>(*found.object);
    if (!wanted || found.library || core::entity::isCategoryBeneath(project, entity.categoryId(), wanted->id))
        return {};
    return Failure{u"'%1' is not in the category '%2', to which the field '%3' refers."_s.arg(
        entity.name(), wanted->name, field.displayName())};
}

QString whatIsTaken(const Field& field)
{
    switch (field.type) {
    case FieldType::Number:
        return u"a number such as \"3\" or \"2.5\""_s;
    case FieldType::Boolean:
        return u"true or false"_s;
    case FieldType::Choice:
        return u"one of: %1"_s.arg(field.options.join(u", "_s));
    case FieldType::Text:
    case FieldType::Url:
    case FieldType::Date:
    case FieldType::Reference:
        break;
    }
    return u"text"_s;
}

} // namespace

Result<QString> readReferences(const Workspace& workspace, const Field& field, const QStringList& names)
{
    QStringList ids;
    for (const QString& name : tidied(names)) {
        const auto found = resolveByName(workspace, name, u"entity"_s, Purpose::Refer);
        if (!found)
            return Failure{found.message()};
        if (auto checked = checkReferenceCategory(workspace, field, found.value()); !checked)
            return Failure{checked.message()};
        const QString id = found.value().object->id().toString();
        if (!ids.contains(id))
            ids.append(id);
    }
    return ids.join(u'\n');
}

namespace {

/** Several names are parted by line breaks, or by commas as answers print them. */
Result<QString> readReferenceText(const Workspace& workspace, const Field& field, const QString& text)
{
    auto lines = readReferences(workspace, field, text.split(u'\n'));
    if (lines || !text.contains(u','))
        return lines;
    // A name may hold a comma itself, and what is wrong with the whole says more than what is with a part.
    auto parts = readReferences(workspace, field, QString(text).replace(u'\n', u',').split(u','));
    return parts ? parts : lines;
}

} // namespace

Result<QString> readFieldValue(const Workspace& workspace, const Field& field, const QString& text)
{
    if (text.trimmed().isEmpty())
        return QString();
    if (field.type == FieldType::Reference)
        return readReferenceText(workspace, field, text);
    if (field.type == FieldType::Date) {
        const auto instant = readDate(workspace.project(), text);
        if (!instant)
            return Failure{instant.message()};
        return QString::number(instant.value());
    }
    const auto stored = codex::ValueConversion(workspace.project()).stored(field, text);
    if (!stored) {
        return Failure{u"'%1' does not suit the %2 field '%3', which takes %4."_s.arg(
            text, core::taxonomy::fieldTypeName(field.type), field.displayName(), whatIsTaken(field))};
    }
    return *stored;
}

namespace {

QStringList fieldTypeNames()
{
    return {u"text"_s, u"number"_s, u"boolean"_s, u"date"_s, u"reference"_s, u"choice"_s, u"url"_s};
}

} // namespace

QJsonObject fieldTypeProperty(const QString& description, Default byDefault)
{
    return choiceProperty(description, fieldTypeNames(), byDefault);
}

Result<FieldType> readFieldType(const ToolArguments& arguments, FieldType byDefault)
{
    const QString name = arguments.text(u"type").trimmed().toLower();
    if (name.isEmpty())
        return byDefault;
    if (const auto type = core::taxonomy::fieldTypeFromName(name))
        return *type;
    return Failure{u"Unknown field type '%1'; use one of: %2."_s.arg(
        arguments.text(u"type"), fieldTypeNames().join(u", "_s))};
}

Result<CategoryId> readReferenceCategory(const Workspace& workspace, const ToolArguments& arguments)
{
    const QString name = arguments.text(u"reference_category").trimmed();
    if (name.isEmpty())
        return CategoryId();
    return resolveCategory(workspace, name);
}

QStringList tidied(const QStringList& texts)
{
    QStringList result;
    for (const QString& text : texts) {
        const QString trimmed = text.trimmed();
        if (!trimmed.isEmpty() && !result.contains(trimmed))
            result.append(trimmed);
    }
    return result;
}

} // namespace tw::app::mcp
