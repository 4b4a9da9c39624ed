#include "core/taxonomy/TaxonomyCommands.h"

#include "core/entity/Entity.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::core::taxonomy {

namespace {

QString label(const char* text)
{
    return QCoreApplication::translate("UndoCommand", text);
}

void insertField(FieldList& fields, Field field, std::size_t index)
{
    const auto place = static_cast<std::ptrdiff_t>(std::min(index, fields.size()));
    fields.insert(fields.begin() + place, std::move(field));
}

} // namespace

EditCategoryCommand::EditCategoryCommand(project::Project& project, CategoryId categoryId)
    : m_project(project)
    , m_categoryId(categoryId)
{}

void EditCategoryCommand::redo()
{
    m_oldCategory.reset();
    if (!m_project.taxonomy().category(m_categoryId))
        return;
    Category& category = *m_project.taxonomyForEdit().categoryForEdit(m_categoryId);
    m_oldCategory = category;
    change(category);
}

void EditCategoryCommand::undo()
{
    if (m_oldCategory)
        m_project.taxonomyForEdit().insert(*std::exchange(m_oldCategory, std::nullopt));
}

AddCategoryCommand::AddCategoryCommand(project::Project& project, Category category)
    : m_project(project)
    , m_category(std::move(category))
{}

void AddCategoryCommand::redo()
{
    m_applied = !m_project.taxonomy().category(m_category.id);
    if (m_applied)
        m_project.taxonomyForEdit().insert(m_category);
}

void AddCategoryCommand::undo()
{
    if (m_applied)
        m_project.taxonomyForEdit().remove(m_category.id);
    m_applied = false;
}

QString AddCategoryCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Add category"));
}

RemoveCategoryCommand::RemoveCategoryCommand(project::Project& project, CategoryId categoryId)
    : m_project(project)
    , m_categoryId(categoryId)
{}

void RemoveCategoryCommand::redo()
{
    m_removed.reset();
    const Category* const category = m_project.taxonomy().category(m_categoryId);
    if (!category)
        return;
    m_removed = *category;
    Taxonomy& taxonomy = m_project.taxonomyForEdit();
    m_promotedCategories = taxonomy.childrenOf(m_categoryId);
    for (const CategoryId& id : m_promotedCategories) {
        Category& child = *taxonomy.categoryForEdit(id);
        child.parentId = m_removed->parentId;
        child.parentEntityId = m_removed->parentEntityId;
    }
    m_promotedEntities.clear();
    for (content::ContentObject* const object : m_project.objectsOfKind(content::ContentKind::Entity)) {
        auto* const entity = static_cast<entity::Entity*>(object);
        if (entity->categoryId() != m_categoryId)
            continue;
        m_promotedEntities.push_back(entity->id());
        entity->setCategoryId(m_removed->parentId);
        entity->touch();
    }
    taxonomy.remove(m_categoryId);
}

void RemoveCategoryCommand::undo()
{
    if (!m_removed)
        return;
    Taxonomy& taxonomy = m_project.taxonomyForEdit();
    taxonomy.insert(*std::exchange(m_removed, std::nullopt));
    for (const CategoryId& id : m_promotedCategories) {
        if (Category* const child = taxonomy.categoryForEdit(id)) {
            child->parentId = m_categoryId;
            child->parentEntityId = {};
        }
    }
    for (const ContentId& id : m_promotedEntities) {
        if (auto* const entity = m_project.findAsForEdit<entity::Entity>(id)) {
            entity->setCategoryId(m_categoryId);
            entity->touch();
        }
    }
}

QString RemoveCategoryCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Remove category"));
}

RenameCategoryCommand::RenameCategoryCommand(project::Project& project, CategoryId categoryId, QString name)
    : EditCategoryCommand(project, categoryId)
    , m_name(std::move(name))
{}

void RenameCategoryCommand::change(Category& category) const
{
    category.name = m_name;
}

QString RenameCategoryCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Rename category"));
}

ReparentCategoryCommand::ReparentCategoryCommand(
    project::Project& project, CategoryId categoryId, CategoryId newParentId, qint32 sortIndex)
    : EditCategoryCommand(project, categoryId)
    , m_newParentId(newParentId)
    , m_sortIndex(sortIndex)
{}

void ReparentCategoryCommand::change(Category& category) const
{
    category.parentId = m_newParentId;
    category.parentEntityId = {};
    category.sortIndex = m_sortIndex;
}

QString ReparentCategoryCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Move category"));
}

ReparentCategoryToEntityCommand::ReparentCategoryToEntityCommand(
    project::Project& project, CategoryId categoryId, ContentId entityId)
    : EditCategoryCommand(project, categoryId)
    , m_entityId(entityId)
{}

void ReparentCategoryToEntityCommand::change(Category& category) const
{
    category.parentId = {};
    category.parentEntityId = m_entityId;
    category.inheritedKeys.clear();
}

QString ReparentCategoryToEntityCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Move category under entity"));
}

SetCategoryKeyListCommand::SetCategoryKeyListCommand(
    project::Project& project, CategoryId categoryId, CategoryKeyList list, QStringList keys)
    : EditCategoryCommand(project, categoryId)
    , m_list(list)
    , m_keys(std::move(keys))
{}

void SetCategoryKeyListCommand::change(Category& category) const
{
    (m_list == CategoryKeyList::Inherited ? category.inheritedKeys : category.excludedKeys) = m_keys;
}

QString SetCategoryKeyListCommand::text() const
{
    return m_list == CategoryKeyList::Inherited
               ? label(QT_TRANSLATE_NOOP("UndoCommand", "Set inherited properties"))
               : label(QT_TRANSLATE_NOOP("UndoCommand", "Set excluded properties"));
}

AddFieldCommand::AddFieldCommand(
    project::Project& project, CategoryId categoryId, Field field, std::size_t index)
    : EditCategoryCommand(project, categoryId)
    , m_field(std::move(field))
    , m_index(index)
{}

void AddFieldCommand::change(Category& category) const
{
    insertField(category.fields, m_field, m_index);
}

QString AddFieldCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Add field"));
}

RemoveFieldCommand::RemoveFieldCommand(project::Project& project, CategoryId categoryId, QString key)
    : EditCategoryCommand(project, categoryId)
    , m_key(std::move(key))
{}

void RemoveFieldCommand::change(Category& category) const
{
    if (const auto index = indexOfField(category, m_key))
        category.fields.erase(category.fields.begin() + static_cast<std::ptrdiff_t>(*index));
}

QString RemoveFieldCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Remove field"));
}

MoveFieldCommand::MoveFieldCommand(
    project::Project& project, CategoryId categoryId, QString key, std::size_t index)
    : EditCategoryCommand(project, categoryId)
    , m_key(std::move(key))
    , m_index(index)
{}

void MoveFieldCommand::change(Category& category) const
{
    const auto index = indexOfField(category, m_key);
    if (!index)
        return;
    const auto place = category.fields.begin() + static_cast<std::ptrdiff_t>(*index);
    Field field = std::move(*place);
    category.fields.erase(place);
    insertField(category.fields, std::move(field), m_index);
}

QString MoveFieldCommand::text() const
{
    return label(QT_TRANSLATE_NOOP("UndoCommand", "Move field"));
}

} // namespace tw::core::taxonomy
