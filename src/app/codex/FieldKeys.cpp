#include "app/codex/FieldKeys.h"

#include <algorithm>

namespace tw::app::codex {

using core::entity::Entity;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::Field;
using core::taxonomy::FieldList;

namespace {

bool holdsKey(const FieldList& fields, QStringView key)
{
    return core::taxonomy::findField(fields, key) != fields.end();
}

template <class List, class FieldOf>
auto findNamed(const List& list, const QString& name, FieldOf fieldOf) -> decltype(&*list.begin())
{
    const QString wanted = name.trimmed();
    const auto isCalled = [&](const auto& text) { return text.compare(wanted, Qt::CaseInsensitive) == 0; };
    auto found = std::ranges::find_if(
        list, [&](const auto& entry) { return isCalled(std::invoke(fieldOf, entry).displayName()); });
    if (found == list.end()) {
        found = std::ranges::find_if(
            list, [&](const auto& entry) { return isCalled(std::invoke(fieldOf, entry).key); });
    }
    return found == list.end() ? nullptr : &*found;
}

} // namespace

Schema fieldsFromAbove(const Project& project, const Category& category)
{
    if (const auto* const entity = project.findAs<Entity>(category.parentEntityId))
        return core::entity::schemaOfEntity(project, *entity);
    return core::entity::schemaOfCategory(project, category.parentId);
}

QString keyFromLabel(QStringView label)
{
    QString key;
    bool startsWord = false;
    for (const QChar character : label) {
        if (!character.isLetterOrNumber() && !character.isMark() && !character.isSurrogate()) {
            startsWord = !key.isEmpty();
            continue;
        }
        key += startsWord ? character.toUpper() : key.isEmpty() ? character.toLower() : character;
        startsWord = false;
    }
    return key;
}

QString keyForNewField(const QString& label, const FieldList& fields, const Schema& fromAbove)
{
    const QString name = label.trimmed();
    const QString suggested = keyFromLabel(name);
    if (suggested.isEmpty())
        return {};
    const auto isSame = [&](const ResolvedField& resolved) {
        return resolved.field.displayName().compare(name, Qt::CaseInsensitive) == 0 &&
               !holdsKey(fields, resolved.field.key);
    };
    if (const auto above = std::ranges::find_if(fromAbove, isSame); above != fromAbove.end())
        return above->field.key;
    const auto isTaken = [&](const QString& key) {
        return holdsKey(fields, key) || core::entity::findField(fromAbove, key) != nullptr;
    };
    QString key = suggested;
    for (int number = 2; isTaken(key); ++number)
        key = suggested + QString::number(number);
    return key;
}

const ResolvedField* findFieldNamed(const Schema& schema, const QString& name)
{
    return findNamed(schema, name, &ResolvedField::field);
}

const Field* findFieldNamed(const FieldList& fields, const QString& name)
{
    return findNamed(fields, name, std::identity());
}

} // namespace tw::app::codex
