#include "core/project/NameIndex.h"

#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"

namespace tw::core::project {

using content::ContentObject;
using content::foldedName;

namespace {

std::vector<ContentId> idsUnder(const QHash<QString, std::set<ContentId>>& lists, QStringView name)
{
    const auto list = lists.constFind(foldedName(name));
    if (list == lists.constEnd())
        return {};
    return {list->begin(), list->end()};
}

} // namespace

std::vector<ContentId> NameIndex::named(QStringView name) const
{
    return idsUnder(m_byName, name);
}

std::vector<ContentId> NameIndex::aliased(QStringView alias) const
{
    return idsUnder(m_byAlias, alias);
}

NameIndex::Names NameIndex::namesOf(const ContentObject& object)
{
    Names names{foldedName(content::objectName(object)), {}};
    if (const auto* entity = content::objectCast<entity::Entity>(&object)) {
        for (const QString& alias : entity->aliases())
            names.aliases.append(foldedName(alias));
    }
    return names;
}

void NameIndex::update(const ContentId& id, const ContentObject* object)
{
    const auto filed = m_filed.constFind(id);
    if (filed != m_filed.constEnd()) {
        takeOut(m_byName, filed->name, id);
        for (const QString& alias : filed->aliases)
            takeOut(m_byAlias, alias, id);
        m_filed.erase(filed);
    }
    if (!object)
        return;
    const Names names = namesOf(*object);
    file(m_byName, names.name, id);
    for (const QString& alias : names.aliases)
        file(m_byAlias, alias, id);
    m_filed.insert(id, names);
}

void NameIndex::file(IdsByName& lists, const QString& name, const ContentId& id)
{
    if (!name.isEmpty())
        lists[name].insert(id);
}

void NameIndex::takeOut(IdsByName& lists, const QString& name, const ContentId& id)
{
    const auto list = lists.find(name);
    if (list == lists.end())
        return;
    list->erase(id);
    if (list->empty())
        lists.erase(list);
}

} // namespace tw::core::project
