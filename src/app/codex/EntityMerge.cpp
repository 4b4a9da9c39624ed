#include "app/codex/EntityMerge.h"

#include "app/codex/References.h"
#include "core/content/ContentCommands.h"
#include "core/content/ObjectName.h"
#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "core/plot/PlotCommands.h"

#include <algorithm>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::entity::TimedValue;
using core::entity::TimedValues;
using core::project::Project;
using core::taxonomy::Field;
using core::taxonomy::FieldList;

namespace {

/** A value of the source for the target, and the target's own: neither may lead to what becomes itself. */
QString valueForTarget(const QString& value, const Entity& source, const Entity& target)
{
    const QString toTarget = repointedValue(value, source.id(), target.id()).text;
    QStringList lines = toTarget.split(u'\n');
    lines.removeAll(target.id().toString());
    return lines.join(u'\n');
}

void planValues(EditPlan& plan, const Entity& source, const Entity& target)
{
    const auto setValue = [&](const QString& key, const QString& value) {
        plan.add([id = target.id(), key, value](Project& project) {
            return std::make_unique<core::entity::SetFieldValueCommand>(
                *project.findAsForEdit<Entity>(id), key, value);
        });
    };
    for (const auto& [key, value] : target.values()) {
        const bool leadsToSource = value.contains(source.id().toString(), Qt::CaseInsensitive);
        if (leadsToSource)
            setValue(key, valueForTarget(value, source, target));
    }
    for (const auto& [key, value] : source.values()) {
        const QString taken = valueForTarget(value, source, target);
        if (!taken.isEmpty() && target.value(key).value_or(QString()).isEmpty())
            setValue(key, taken);
    }
}

TimedValues joinedTimedValues(const Entity& source, const Entity& target)
{
    TimedValues joined = target.timedValues();
    for (auto& [key, states] : joined) {
        for (TimedValue& state : states) {
            if (state.value.contains(source.id().toString(), Qt::CaseInsensitive))
                state.value = valueForTarget(state.value, source, target);
        }
    }
    for (const auto& [key, states] : source.timedValues()) {
        std::vector<TimedValue>& present = joined[key];
        for (const TimedValue& state : states) {
            if (std::ranges::find(present, state.instant, &TimedValue::instant) == present.end())
                present.push_back({state.instant, valueForTarget(state.value, source, target)});
        }
    }
    return core::entity::normalised(std::move(joined));
}

QStringList joinedAliases(const Entity& source, const Entity& target)
{
    QStringList joined = target.aliases();
    QStringList known{core::content::foldedName(target.name())};
    for (const QString& alias : joined)
        known.append(core::content::foldedName(alias));
    for (const QString& alias : QStringList{source.name()} + source.aliases()) {
        const QString folded = core::content::foldedName(alias);
        if (folded.isEmpty() || known.contains(folded))
            continue;
        known.append(folded);
        joined.append(alias);
    }
    return joined;
}

/** The source's own fields that nothing gives the target yet. */
FieldList joinedOwnFields(const Project& project, const Entity& source, const Entity& target)
{
    FieldList joined = target.ownFields();
    const core::entity::Schema schema = core::entity::schemaOfEntity(project, target);
    for (const Field& field : source.ownFields()) {
        if (!core::entity::findField(schema, field.key) &&
            core::taxonomy::findField(joined, field.key) == joined.end())
            joined.push_back(field);
    }
    return joined;
}

template <class List>
List joinedList(List joined, const List& more)
{
    for (const auto& item : more) {
        if (std::ranges::find(joined, item) == joined.end())
            joined.push_back(item);
    }
    return joined;
}

void planGaps(EditPlan& plan, const Project& project, const Entity& source, const Entity& target)
{
    const auto change = [&]<class Command>(std::type_identity<Command>, const auto& present, auto joined) {
        if (joined != present)
            plan.set<Command>(target.id(), std::move(joined));
    };
    planValues(plan, source, target);
    change(
        std::type_identity<core::entity::SetEntityTimedValuesCommand>(), target.timedValues(),
        joinedTimedValues(source, target));
    change(
        std::type_identity<core::entity::SetEntityOwnFieldsCommand>(), target.ownFields(),
        joinedOwnFields(project, source, target));
    change(
        std::type_identity<core::entity::SetEntityAliasesCommand>(), target.aliases(),
        joinedAliases(source, target));
    change(
        std::type_identity<core::entity::SetEntityGalleryCommand>(), target.gallery(),
        joinedList(target.gallery(), source.gallery()));
    change(
        std::type_identity<core::plot::SetObjectPlotThreadsCommand>(), target.plotThreadIds(),
        joinedList(target.plotThreadIds(), source.plotThreadIds()));
    core::entity::Lifespan lifespan = target.lifespan();
    if (!lifespan.birth)
        lifespan.birth = source.lifespan().birth;
    if (!lifespan.death)
        lifespan.death = source.lifespan().death;
    change(std::type_identity<core::entity::SetEntityLifespanCommand>(), target.lifespan(), lifespan);
    core::content::NameSet tags = target.tags();
    tags.insert(source.tags().begin(), source.tags().end());
    change(std::type_identity<core::content::SetObjectTagsCommand>(), target.tags(), std::move(tags));
    if (target.categoryId().isNull() && !source.categoryId().isNull())
        plan.set<core::entity::SetEntityCategoryCommand>(target.id(), source.categoryId());
}

/** Neither may a category under the source hold the target, nor one under the target become its own. */
Result<void> checkCategories(const Project& project, const Entity& source, const Entity& target)
{
    const core::CategoryId place = target.categoryId().isNull() ? source.categoryId() : target.categoryId();
    for (const core::CategoryId& id : project.taxonomy().childrenUnderEntity(source.id())) {
        if (core::entity::isCategoryBeneath(project, place, id)) {
            return Failure{u"Can't hang '%1' from '%2': that entity is already somewhere beneath it, so the "
                           "tree would loop."_s.arg(project.taxonomy().category(id)->name, target.name())};
        }
    }
    if (target.categoryId().isNull() && !core::entity::checkMoveOfEntity(project, target, place)) {
        return Failure{
            u"Can't give '%1' the category '%2' of '%3': that category hangs somewhere beneath '%1', so the "
            "tree would loop. Move '%1' to another category first."_s.arg(
                target.name(), project.taxonomy().category(place)->name, source.name())};
    }
    return {};
}

} // namespace

Result<MergePlan> planMerge(const Project& project, const Entity& source, const Entity& target)
{
    if (source.id() == target.id())
        return Failure{u"An entity cannot be merged into itself."_s};
    if (auto checked = checkCategories(project, source, target); !checked)
        return Failure{checked.message()};
    MergePlan plan;
    planGaps(plan.edits, project, source, target);
    RepointPlan repoint = planRepoint(project, source.id(), target.id());
    plan.edits.append(std::move(repoint.edits));
    plan.repointedCount = repoint.referenceCount;
    plan.holders = std::move(repoint.holders);

    const auto pin = [&plan](const ContentId& id, bool pinned) {
        plan.edits.add([id, pinned](Project& edited) {
            return std::make_unique<core::content::SetPinnedCommand>(edited, id, pinned);
        });
    };
    if (project.isPinned(source.id())) {
        pin(source.id(), false);
        if (!project.isPinned(target.id()))
            pin(target.id(), true);
    }
    plan.edits.add([id = source.id()](Project& edited) {
        return std::make_unique<core::content::RemoveObjectCommand>(edited, id);
    });
    return plan;
}

std::unique_ptr<Entity> splitOff(const Entity& source, const SplitRequest& request)
{
    auto entity = std::make_unique<Entity>(ContentId::create(), source.categoryId(), request.newName);
    TimedValues timedValues;
    FieldList ownFields;
    for (const QString& key : request.fieldKeys) {
        entity->setValue(key, source.value(key));
        if (const auto states = source.timedValues().find(key); states != source.timedValues().end())
            timedValues.insert(*states);
        const auto own = core::taxonomy::findField(source.ownFields(), key);
        if (own != source.ownFields().end())
            ownFields.push_back(*own);
    }
    entity->setTimedValues(std::move(timedValues));
    entity->setOwnFields(std::move(ownFields));
    if (request.copiesLifespan)
        entity->setLifespan(source.lifespan());
    entity->setVisibleTo(source.visibleTo());
    return entity;
}

} // namespace tw::app::codex
