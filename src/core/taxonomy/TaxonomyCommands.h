#pragma once

#include "core/project/Project.h"
#include "core/undo/Command.h"

#include <optional>
#include <vector>

namespace tw::core::taxonomy {

/**
 * Common to the edits of one category: finds it by id when it runs, keeps it as it was, and puts it back.
 * Does nothing, both ways, when the category is gone.
 */
class EditCategoryCommand : public undo::Command
{
public:
    void redo() final;
    void undo() final;

protected:
    EditCategoryCommand(project::Project& project, CategoryId categoryId);

    virtual void change(Category& category) const = 0;

private:
    project::Project& m_project;
    CategoryId m_categoryId;
    std::optional<Category> m_oldCategory;
};

class AddCategoryCommand final : public undo::Command
{
public:
    AddCategoryCommand(project::Project& project, Category category);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    Category m_category;
    bool m_applied = false;
};

/**
 * Removes a category. Its subcategories and entities move up to its parent; under an entity, the
 * subcategories hang on that entity and the entities become uncategorised.
 */
class RemoveCategoryCommand final : public undo::Command
{
public:
    RemoveCategoryCommand(project::Project& project, CategoryId categoryId);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    CategoryId m_categoryId;
    std::optional<Category> m_removed;
    std::vector<CategoryId> m_promotedCategories;
    std::vector<ContentId> m_promotedEntities;
};

class RenameCategoryCommand final : public EditCategoryCommand
{
public:
    RenameCategoryCommand(project::Project& project, CategoryId categoryId, QString name);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    QString m_name;
};

/** Moves a category under a category, or to the top level; it leaves the entity it hung under. */
class ReparentCategoryCommand final : public EditCategoryCommand
{
public:
    ReparentCategoryCommand(
        project::Project& project, CategoryId categoryId, CategoryId newParentId, qint32 sortIndex);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    CategoryId m_newParentId;
    qint32 m_sortIndex;
};

/** Hangs a category under an entity; nothing crosses from there until it is asked for. */
class ReparentCategoryToEntityCommand final : public EditCategoryCommand
{
public:
    ReparentCategoryToEntityCommand(project::Project& project, CategoryId categoryId, ContentId entityId);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    ContentId m_entityId;
};

/** Which of a category's lists of field keys. */
enum class CategoryKeyList : qint32
{
    Inherited = 0,
    Excluded = 1,
};

class SetCategoryKeyListCommand final : public EditCategoryCommand
{
public:
    SetCategoryKeyListCommand(
        project::Project& project, CategoryId categoryId, CategoryKeyList list, QStringList keys);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    CategoryKeyList m_list;
    QStringList m_keys;
};

/** Inserts a field at a position, clamped to the number of fields. */
class AddFieldCommand final : public EditCategoryCommand
{
public:
    AddFieldCommand(project::Project& project, CategoryId categoryId, Field field, std::size_t index);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    Field m_field;
    std::size_t m_index;
};

/** Removes the definition; the values of entities stay and are hidden. */
class RemoveFieldCommand final : public EditCategoryCommand
{
public:
    RemoveFieldCommand(project::Project& project, CategoryId categoryId, QString key);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    QString m_key;
};

/** Moves a field to a position among the category's own fields, clamped to their number. */
class MoveFieldCommand final : public EditCategoryCommand
{
public:
    MoveFieldCommand(project::Project& project, CategoryId categoryId, QString key, std::size_t index);
    [[nodiscard]] QString text() const override;

private:
    void change(Category& category) const override;

    QString m_key;
    std::size_t m_index;
};

} // namespace tw::core::taxonomy
