#include "desktop/codex/CategoryProperties.h"

#include "core/taxonomy/TaxonomyCommands.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::Failure;
using core::Result;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::CategoryKeyList;
using core::taxonomy::Field;
using core::taxonomy::FieldList;
using core::taxonomy::FieldType;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CategoryProperties", text);
}

bool holdsKey(const FieldList& fields, QStringView key)
{
    return core::taxonomy::findField(fields, key) != fields.end();
}

bool holdsKeysOnce(const FieldList& fields)
{
    std::set<QString> keys;
    return std::ranges::all_of(fields, [&keys](const Field& field) { return keys.insert(field.key).second; });
}

/**
 * Turns the fields of a category into others by commands, keeping those that stay as they are: removes what
 * goes or is edited, then fills place after place.
 */
void applyFields(shell::ProjectSession& session, const CategoryId& id, const FieldList& fields)
{
    Project& project = session.projectForCommands();
    FieldList present = project.taxonomy().category(id)->fields;
    // Which of two fields with one key an edit meant cannot be told, so such a list is replaced.
    const bool isClear = holdsKeysOnce(present) && holdsKeysOnce(fields);
    const auto stays = [&](const Field& field) {
        return isClear && std::ranges::find(fields, field) != fields.end();
    };
    for (const Field& field : present) {
        if (!stays(field))
            session.apply(std::make_unique<core::taxonomy::RemoveFieldCommand>(project, id, field.key));
    }
    std::erase_if(present, [&stays](const Field& field) { return !stays(field); });
    for (std::size_t index = 0; index < fields.size(); ++index) {
        const Field& field = fields[index];
        if (index < present.size() && present[index] == field)
            continue;
        const auto place = present.begin() + static_cast<std::ptrdiff_t>(index);
        const auto known = std::find(place, present.end(), field);
        if (known == present.end()) {
            session.apply(std::make_unique<core::taxonomy::AddFieldCommand>(project, id, field, index));
            present.insert(place, field);
        } else {
            session.apply(std::make_unique<core::taxonomy::MoveFieldCommand>(project, id, field.key, index));
            std::rotate(place, known, std::next(known));
        }
    }
}

} // namespace

CategoryProperties propertiesOf(const Category& category)
{
    return {category.fields, category.inheritedKeys, category.excludedKeys};
}

Result<void> checkFieldBeside(const Field& field, const FieldList& others)
{
    if (auto checked = core::taxonomy::checkField(field); !checked)
        return checked;
    if (holdsKey(others, field.key)) {
        return Failure{
            translated(QT_TRANSLATE_NOOP(
                           "CategoryProperties",
                           "There is another property with the key “%1” here. Give this one another name."))
                .arg(field.key)};
    }
    if (field.type == FieldType::Choice && field.options.isEmpty()) {
        return Failure{translated(QT_TRANSLATE_NOOP(
            "CategoryProperties",
            "A choice needs something to choose from. Write one choice on each line."))};
    }
    return {};
}

QString overrideNotice(const Project& project, const Field& field, const Schema& fromAbove)
{
    const ResolvedField* const above = core::entity::findField(fromAbove, field.key);
    if (!above)
        return {};
    const Category* const source = project.taxonomy().category(above->definedBy);
    if (!source) {
        return translated(QT_TRANSLATE_NOOP(
                              "CategoryProperties",
                              "“%1” already comes from above. This category gets its own version."))
            .arg(above->field.displayName());
    }
    return translated(
               QT_TRANSLATE_NOOP(
                   "CategoryProperties",
                   "“%1” already comes from the category “%2”. This category and what is beneath it get "
                   "their own version."))
        .arg(above->field.displayName(), source->name);
}

void applyCategoryProperties(
    shell::ProjectSession& session, const CategoryId& id, const CategoryProperties& properties)
{
    const auto step = session.macro(translated(QT_TRANSLATE_NOOP("CategoryProperties", "Edit properties")));
    Project& project = session.projectForCommands();
    const Category* const category = project.taxonomy().category(id);
    if (!category)
        return;
    const CategoryProperties present = propertiesOf(*category);
    applyFields(session, id, properties.fields);
    const auto setKeys = [&](CategoryKeyList list, const QStringList& keys, const QStringList& presentKeys) {
        if (keys != presentKeys) {
            session.apply(
                std::make_unique<core::taxonomy::SetCategoryKeyListCommand>(project, id, list, keys));
        }
    };
    setKeys(CategoryKeyList::Inherited, properties.inheritedKeys, present.inheritedKeys);
    setKeys(CategoryKeyList::Excluded, properties.excludedKeys, present.excludedKeys);
}

} // namespace tw::desktop::codex
