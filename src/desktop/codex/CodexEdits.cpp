#include "desktop/codex/CodexEdits.h"

#include "app/codex/CategoryEdits.h"
#include "core/content/ContentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::codex {

using core::CategoryId;
using core::ContentId;
using core::Result;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using core::taxonomy::ReparentCategoryCommand;
using core::taxonomy::ReparentCategoryToEntityCommand;
using shell::ProjectSession;

namespace {

QString label(const char* text)
{
    return QCoreApplication::translate("CodexEdits", text);
}

CategoryParent parentOf(const Category& category)
{
    return category.parentEntityId.isNull() ? CategoryParent{category.parentId, {}}
                                            : CategoryParent{{}, category.parentEntityId};
}

std::vector<CategoryId> siblingsUnder(const Project& project, const CategoryParent& parent)
{
    return parent.entityId.isNull() ? project.taxonomy().childrenOf(parent.categoryId)
                                    : project.taxonomy().childrenUnderEntity(parent.entityId);
}

/** Puts categories under a category, before a sibling, and numbers those that stand otherwise anew. */
void placeUnderCategory(
    ProjectSession& session, const std::vector<CategoryId>& ids, const CategoryId& parentId,
    const CategoryId& beforeId)
{
    Project& project = session.projectForCommands();
    const auto isMoved = [&ids](const CategoryId& id) { return std::ranges::find(ids, id) != ids.end(); };
    std::vector<CategoryId> order = siblingsUnder(project, {parentId, {}});
    // The anchor must stay where it is: the first sibling from there on that is not itself on the move.
    auto anchor = std::ranges::find(order, beforeId);
    while (anchor != order.end() && isMoved(*anchor))
        ++anchor;
    const CategoryId anchorId = anchor == order.end() ? CategoryId() : *anchor;
    std::erase_if(order, isMoved);
    order.insert(std::ranges::find(order, anchorId), ids.begin(), ids.end());

    for (std::size_t index = 0; index < order.size(); ++index) {
        const Category& category = *project.taxonomy().category(order[index]);
        const auto sortIndex = static_cast<qint32>(index);
        if (parentOf(category) == CategoryParent{parentId, {}} && category.sortIndex == sortIndex)
            continue;
        session.apply(std::make_unique<ReparentCategoryCommand>(project, order[index], parentId, sortIndex));
    }
}

void placeUnderEntity(ProjectSession& session, const std::vector<CategoryId>& ids, const ContentId& entityId)
{
    Project& project = session.projectForCommands();
    for (const CategoryId& id : ids) {
        // What it takes from the entity is lost by hanging it there again.
        if (project.taxonomy().category(id)->parentEntityId != entityId)
            session.apply(std::make_unique<ReparentCategoryToEntityCommand>(project, id, entityId));
    }
}

Result<void> checkMove(const Project& project, const CategoryId& id, const CategoryParent& parent)
{
    return parent.entityId.isNull() ? core::entity::checkMoveToCategory(project, id, parent.categoryId)
                                    : core::entity::checkMoveToEntity(project, id, parent.entityId);
}

/** Puts what hangs under an entity where the entity itself stands. */
void rescueCategories(ProjectSession& session, const ContentId& entityId)
{
    Project& project = session.projectForCommands();
    app::codex::EditPlan plan;
    app::codex::planRescueCategories(plan, project, entityId);
    plan.push(project, [&session](auto command) { session.apply(std::move(command)); });
}

QString removalLabel(const CodexSelection& removed)
{
    if (removed.categories.empty())
        return label(QT_TRANSLATE_NOOP("CodexEdits", "Remove entity"));
    if (removed.entities.empty())
        return label(QT_TRANSLATE_NOOP("CodexEdits", "Remove category"));
    return label(QT_TRANSLATE_NOOP("CodexEdits", "Remove from the codex"));
}

QString moveLabel(const CodexSelection& moved)
{
    if (moved.categories.empty())
        return label(QT_TRANSLATE_NOOP("CodexEdits", "Move entity to category"));
    if (moved.entities.empty())
        return label(QT_TRANSLATE_NOOP("CodexEdits", "Move category"));
    return label(QT_TRANSLATE_NOOP("CodexEdits", "Move in the codex"));
}

} // namespace

CategoryPlace placeBehind(const ProjectSession& session, const CategoryId& id)
{
    const Category* const category = session.project().taxonomy().category(id);
    if (!category)
        return {};
    const CategoryParent parent = parentOf(*category);
    const std::vector<CategoryId> siblings = siblingsUnder(session.project(), parent);
    const auto place = std::ranges::find(siblings, id);
    const bool isLast = place == siblings.end() || std::next(place) == siblings.end();
    return {parent, isLast ? CategoryId() : *std::next(place)};
}

ContentId addEntity(ProjectSession& session, const CategoryId& categoryId, const QString& name)
{
    const ContentId id = ContentId::create();
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("CodexEdits", "Add entity")));
    session.apply(std::make_unique<core::content::AddObjectCommand>(
        session.projectForCommands(), std::make_unique<Entity>(id, categoryId, name)));
    return id;
}

ContentId duplicateEntity(ProjectSession& session, const ContentId& id)
{
    // Opened first: it brings in what is still being typed.
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("CodexEdits", "Duplicate entity")));
    const auto* const original = session.project().findAs<Entity>(id);
    if (!original)
        return {};
    const QString name = label(QT_TRANSLATE_NOOP("CodexEdits", "Copy of %1")).arg(original->name());
    auto copy = std::make_unique<Entity>(ContentId::create(), original->categoryId(), name);
    copy->setValues(original->values());
    copy->setLifespan(original->lifespan());
    copy->setTimedValues(original->timedValues());
    copy->setSortIndex(original->sortIndex());
    copy->setGallery(original->gallery());
    copy->setOwnFields(original->ownFields());
    copy->setTags(original->tags());
    copy->setVisibleTo(original->visibleTo());
    copy->setAiExcluded(original->isAiExcluded());
    copy->setPlotThreadIds(original->plotThreadIds());
    const ContentId copyId = copy->id();
    session.apply(
        std::make_unique<core::content::AddObjectCommand>(session.projectForCommands(), std::move(copy)));
    return copyId;
}

CategoryId addCategory(ProjectSession& session, const CategoryPlace& place, const QString& name)
{
    Project& project = session.projectForCommands();
    Category category;
    category.id = CategoryId::create();
    category.name = name;
    category.parentId = place.parent.categoryId;
    category.parentEntityId = place.parent.entityId;
    category.sortIndex = app::codex::sortIndexAtEnd(project, place.parent.categoryId, place.parent.entityId);
    const CategoryId id = category.id;
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("CodexEdits", "Add category")));
    session.apply(std::make_unique<core::taxonomy::AddCategoryCommand>(project, std::move(category)));
    if (place.parent.entityId.isNull() && !place.beforeId.isNull())
        placeUnderCategory(session, {id}, place.parent.categoryId, place.beforeId);
    return id;
}

bool renameEntity(ProjectSession& session, const ContentId& id, const QString& name)
{
    auto* const entity = session.projectForCommands().findAsForEdit<Entity>(id);
    const QString trimmed = name.trimmed();
    if (!entity || entity->isLocked() || trimmed.isEmpty() || trimmed == entity->name())
        return false;
    session.apply(std::make_unique<core::entity::SetEntityNameCommand>(*entity, trimmed));
    return true;
}

bool renameCategory(ProjectSession& session, const CategoryId& id, const QString& name)
{
    Project& project = session.projectForCommands();
    const Category* const category = project.taxonomy().category(id);
    const QString trimmed = name.trimmed();
    if (!category || trimmed.isEmpty() || trimmed == category->name)
        return false;
    session.apply(std::make_unique<core::taxonomy::RenameCategoryCommand>(project, id, trimmed));
    return true;
}

Result<void> moveInCodex(ProjectSession& session, const CodexSelection& moved, const CategoryPlace& place)
{
    Project& project = session.projectForCommands();
    for (const CategoryId& id : moved.categories) {
        if (auto checked = checkMove(project, id, place.parent); !checked)
            return checked;
    }
    for (const ContentId& id : moved.entities) {
        const auto* const entity = project.findAs<Entity>(id);
        if (!entity)
            continue;
        if (entity->isLocked() && entity->categoryId() != place.parent.categoryId) {
            return core::Failure{
                label(
                    QT_TRANSLATE_NOOP("CodexEdits", "“%1” is locked. Unlock it in the inspector to move it."))
                    .arg(shell::objectTitle(*entity))};
        }
        if (auto checked = core::entity::checkMoveOfEntity(project, *entity, place.parent.categoryId);
            !checked)
            return checked;
    }
    const auto step = session.macro(moveLabel(moved));
    if (!place.parent.entityId.isNull()) {
        placeUnderEntity(session, moved.categories, place.parent.entityId);
        return {};
    }
    if (!moved.categories.empty())
        placeUnderCategory(session, moved.categories, place.parent.categoryId, place.beforeId);
    for (const ContentId& id : moved.entities) {
        auto* const entity = project.findAsForEdit<Entity>(id);
        if (entity && entity->categoryId() != place.parent.categoryId) {
            session.apply(
                std::make_unique<core::entity::SetEntityCategoryCommand>(*entity, place.parent.categoryId));
        }
    }
    return {};
}

void removeFromCodex(ProjectSession& session, const CodexSelection& removed)
{
    Project& project = session.projectForCommands();
    const auto step = session.macro(removalLabel(removed));
    for (const ContentId& id : removed.entities)
        rescueCategories(session, id);
    for (const ContentId& id : removed.entities) {
        if (project.findAs<Entity>(id))
            session.apply(std::make_unique<core::content::RemoveObjectCommand>(project, id));
    }
    for (const CategoryId& id : removed.categories) {
        if (project.taxonomy().category(id))
            session.apply(std::make_unique<core::taxonomy::RemoveCategoryCommand>(project, id));
    }
}

} // namespace tw::desktop::codex
