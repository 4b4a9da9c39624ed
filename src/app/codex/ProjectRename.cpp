#include "app/codex/ProjectRename.h"

#include "app/codex/Actor.h"
#include "app/codex/CategoryEdits.h"
#include "core/canvas/CanvasCommands.h"
#include "core/chart/ChartCommands.h"
#include "core/conlang/LanguageCommands.h"
#include "core/content/ObjectName.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "core/map/MapCommands.h"
#include "core/media/MediaCommands.h"
#include "core/plot/PlotCommands.h"
#include "core/research/ResearchCommands.h"
#include "core/spreadsheet/SpreadsheetCommands.h"
#include "core/task/TaskCommands.h"
#include "core/timeline/TimelineCommands.h"
#include "core/ttrpg/TtrpgCommands.h"

#include <numeric>

namespace tw::app::codex {

using namespace core;
using content::ContentKind;
using content::ContentObject;
using entity::Entity;
using project::Project;
using taxonomy::Field;
using taxonomy::FieldType;

namespace {

bool holdsProse(FieldType type)
{
    return type == FieldType::Text || type == FieldType::Choice;
}

/** What one object, thread or category becomes; its edits and counts belong together. */
class HolderRename
{
public:
    explicit HolderRename(const NameChange& change)
        : m_change(change)
    {}

    [[nodiscard]] const NameChange& change() const { return m_change; }
    [[nodiscard]] qsizetype count() const { return m_count; }
    [[nodiscard]] EditPlan takeEdits() { return std::move(m_edits); }

    void rename(QString& text)
    {
        // Looked for before anything is copied: most texts do not hold the name.
        Renamed<QString> renamed = renamedText(text, m_change);
        if (renamed.count == 0)
            return;
        m_count += renamed.count;
        text = std::move(renamed.text);
    }

    void rename(document::DocumentBody& body, document::DocumentKind kind)
    {
        Renamed<document::DocumentBody> renamed = renamedBody(body, kind, m_change);
        if (renamed.count == 0)
            return;
        m_count += renamed.count;
        body = std::move(renamed.text);
    }

    void rename(Field& field)
    {
        if (!holdsProse(field.type))
            return;
        rename(field.fixedValue);
        for (QString& option : field.options)
            rename(option);
    }

    /** Plans a new value of one field of an object when the edit of it finds the name. */
    template <class Command, class Edit>
    void edit(const typename Command::Owner& owner, typename Command::Value value, Edit change)
    {
        const qsizetype before = m_count;
        change(value);
        if (m_count > before)
            m_edits.set<Command>(owner.id(), std::move(value));
    }

    template <class Command>
    void editText(const typename Command::Owner& owner, const QString& text)
    {
        edit<Command>(owner, text, [this](QString& value) { rename(value); });
    }

    EditPlan& edits() { return m_edits; }

private:
    const NameChange& m_change;
    EditPlan m_edits;
    qsizetype m_count = 0;
};

template <class Kind>
const Kind& as(const ContentObject& object)
{
    return static_cast<const Kind&>(object);
}

void renameIn(HolderRename& holder, const document::Document& owner)
{
    const auto kind = owner.documentKind();
    holder.editText<document::SetDocumentTitleCommand>(owner, owner.title());
    holder.editText<document::SetDocumentSynopsisCommand>(owner, owner.synopsis());
    holder.editText<document::SetDocumentPointOfViewCommand>(owner, owner.pointOfView());
    holder.editText<document::SetDocumentStatusCommand>(owner, owner.status());
    holder.edit<document::SetDocumentBodyCommand>(
        owner, owner.body(), [&](document::DocumentBody& body) { holder.rename(body, kind); });
    holder.edit<document::SetDocumentVariantsCommand>(owner, owner.variants(), [&](auto& variants) {
        for (document::DocumentVariant& variant : variants.list) {
            document::DocumentBody body{variant.body, variant.bodyFormat};
            holder.rename(body, kind);
            variant.body = body.text;
            variant.bodyFormat = body.format;
        }
    });
    holder.edit<document::SetDocumentFootnotesCommand>(owner, owner.footnotes(), [&](auto& footnotes) {
        for (document::Footnote& footnote : footnotes)
            holder.rename(footnote.text);
    });
}

/** Renames in values by the types of their fields. */
template <class MakeSchema>
class ValueRename
{
public:
    ValueRename(HolderRename& holder, MakeSchema makeSchema)
        : m_holder(holder)
        , m_makeSchema(std::move(makeSchema))
    {}

    void rename(const QString& key, QString& value)
    {
        if (findName(value, m_holder.change().oldName).empty())
            return;
        // Made only for the few values that hold the name.
        if (!m_schema)
            m_schema = m_makeSchema();
        // A value whose field no longer reaches the entity reads as text, unless it is an id.
        const auto* const field = entity::findField(*m_schema, key);
        const bool isId = !ContentId::fromString(value.section(u'\n', 0, 0).trimmed()).isNull();
        if (field ? holdsProse(field->field.type) : !isId)
            m_holder.rename(value);
    }

private:
    HolderRename& m_holder;
    MakeSchema m_makeSchema;
    std::optional<entity::Schema> m_schema;
};

void renameIn(HolderRename& holder, const Entity& owner, const Project& project)
{
    ValueRename values(holder, [&] { return entity::schemaOfEntity(project, owner); });
    holder.editText<entity::SetEntityNameCommand>(owner, owner.name());
    holder.edit<entity::SetEntityAliasesCommand>(owner, owner.aliases(), [&](QStringList& aliases) {
        for (QString& alias : aliases)
            holder.rename(alias);
    });
    for (const auto& [key, stored] : owner.values()) {
        const qsizetype before = holder.count();
        QString value = stored;
        values.rename(key, value);
        if (holder.count() == before)
            continue;
        holder.edits().add([id = owner.id(), key = key, value](Project& edited) {
            return std::make_unique<entity::SetFieldValueCommand>(
                *edited.findAsForEdit<Entity>(id), key, value);
        });
    }
    holder.edit<entity::SetEntityTimedValuesCommand>(owner, owner.timedValues(), [&](auto& timedValues) {
        for (auto& [key, states] : timedValues) {
            for (entity::TimedValue& state : states)
                values.rename(key, state.value);
        }
    });
    holder.edit<entity::SetEntityOwnFieldsCommand>(owner, owner.ownFields(), [&](auto& fields) {
        for (Field& field : fields)
            holder.rename(field);
    });
}

void renameIn(HolderRename& holder, const research::Comment& owner, const Project& project)
{
    holder.edit<research::SetCommentCommand>(
        owner, owner.details(), [&](auto& details) { holder.rename(details.body); });
    // The anchor is found in the text it was taken from, so it stays as that text does.
    const auto* const target = project.find(owner.target().targetId);
    if (target && !isLeftAlone(*target, Actor::Assistant)) {
        holder.edit<research::SetCommentTargetCommand>(
            owner, owner.target(), [&](auto& place) { holder.rename(place.anchor); });
    }
}

void renameIn(HolderRename& holder, const ContentObject& object, const Project& project)
{
    const auto renameTitle = [&holder](auto& details) { holder.rename(details.title); };
    switch (object.kind()) {
    case ContentKind::Document:
        return renameIn(holder, as<document::Document>(object));
    case ContentKind::Entity:
        return renameIn(holder, as<Entity>(object), project);
    case ContentKind::Spreadsheet: {
        const auto& sheet = as<spreadsheet::Spreadsheet>(object);
        return holder.editText<spreadsheet::SetSpreadsheetTitleCommand>(sheet, sheet.title());
    }
    case ContentKind::Chart: {
        const auto& chart = as<chart::Chart>(object);
        return holder.edit<chart::SetChartCommand>(chart, chart.details(), renameTitle);
    }
    case ContentKind::Map: {
        const auto& owner = as<map::Map>(object);
        return holder.editText<map::SetMapTitleCommand>(owner, owner.title());
    }
    case ContentKind::Timeline: {
        const auto& owner = as<timeline::Timeline>(object);
        return holder.editText<timeline::SetTimelineTitleCommand>(owner, owner.title());
    }
    case ContentKind::TimelineEvent: {
        const auto& event = as<timeline::TimelineEvent>(object);
        return holder.edit<timeline::SetTimelineEventCommand>(event, event.details(), [&](auto& details) {
            holder.rename(details.title);
            holder.rename(details.description);
        });
    }
    case ContentKind::Media: {
        const auto& media = as<media::Media>(object);
        return holder.editText<media::SetMediaCaptionCommand>(media, media.caption());
    }
    case ContentKind::Source: {
        const auto& source = as<research::Source>(object);
        return holder.edit<research::SetSourceCommand>(source, source.details(), renameTitle);
    }
    case ContentKind::Task: {
        const auto& task = as<task::Task>(object);
        holder.editText<task::SetTaskTitleCommand>(task, task.title());
        return holder.editText<task::SetTaskDescriptionCommand>(task, task.description());
    }
    case ContentKind::Canvas: {
        const auto& canvas = as<canvas::Canvas>(object);
        return holder.editText<canvas::SetCanvasTitleCommand>(canvas, canvas.title());
    }
    case ContentKind::Comment:
        return renameIn(holder, as<research::Comment>(object), project);
    case ContentKind::Language: {
        const auto& language = as<conlang::Language>(object);
        return holder.edit<conlang::SetLanguageCommand>(
            language, language.details(), [&](auto& details) { holder.rename(details.name); });
    }
    case ContentKind::RandomTable: {
        const auto& table = as<ttrpg::RandomTable>(object);
        return holder.edit<ttrpg::SetRandomTableCommand>(table, table.details(), renameTitle);
    }
    case ContentKind::StatBlock: {
        const auto& block = as<ttrpg::StatBlock>(object);
        return holder.edit<ttrpg::SetStatBlockCommand>(block, block.details(), renameTitle);
    }
    }
}

void planObjects(RenamePlan& plan, const Project& project, const NameChange& change)
{
    for (const auto& [id, object] : project.objects()) {
        HolderRename rename(change);
        renameIn(rename, *object, project);
        if (rename.count() == 0)
            continue;
        const NameHolder holder{NameHolder::Kind::Object, id, content::objectName(*object), rename.count()};
        if (object->isAiExcluded()) {
            ++plan.excludedCount;
        } else if (object->isLocked()) {
            plan.locked.push_back(holder);
        } else {
            plan.renamed.push_back(holder);
            plan.edits.append(rename.takeEdits());
        }
    }
}

void planThreads(RenamePlan& plan, const Project& project, const NameChange& change)
{
    std::vector<plot::PlotThread> threads = project.plotThreads();
    for (plot::PlotThread& thread : threads) {
        const QString name = thread.name;
        HolderRename rename(change);
        rename.rename(thread.name);
        rename.rename(thread.description);
        if (rename.count() > 0)
            plan.renamed.push_back({NameHolder::Kind::PlotThread, {}, name, rename.count()});
    }
    if (threads != project.plotThreads())
        plan.edits.setInProject<plot::SetPlotThreadsCommand>(std::move(threads));
}

void planCategories(RenamePlan& plan, const Project& project, const NameChange& change)
{
    for (const auto& [id, category] : project.taxonomy().categories()) {
        HolderRename rename(change);
        for (Field field : category.fields) {
            const qsizetype before = rename.count();
            rename.rename(field);
            if (rename.count() > before)
                planReplaceField(rename.edits(), category, field);
        }
        if (rename.count() == 0)
            continue;
        plan.renamed.push_back({NameHolder::Kind::Category, {}, category.name, rename.count()});
        plan.edits.append(rename.takeEdits());
    }
}

void planRules(RenamePlan& plan, const Project& project, const NameChange& change)
{
    std::vector<timeline::ContinuityRule> rules = project.continuityRules();
    for (timeline::ContinuityRule& rule : rules) {
        timeline::ContinuityRule renamed = rule;
        HolderRename rename(change);
        rename.rename(renamed.name);
        const auto* const entity = project.findAs<Entity>(rule.entityId);
        if (entity) {
            ValueRename values(rename, [&] { return entity::schemaOfEntity(project, *entity); });
            values.rename(rule.fieldKey, renamed.value);
        }
        if (rename.count() == 0)
            continue;
        const NameHolder holder{NameHolder::Kind::ContinuityRule, {}, rule.name, rename.count()};
        // What a rule compares with follows the values it is compared with, which stay in such an entity.
        if (entity && entity->isAiExcluded()) {
            ++plan.excludedCount;
        } else if (entity && entity->isLocked()) {
            plan.locked.push_back(holder);
        } else {
            plan.renamed.push_back(holder);
            rule = std::move(renamed);
        }
    }
    if (rules != project.continuityRules())
        plan.edits.setInProject<timeline::SetContinuityRulesCommand>(std::move(rules));
}

void planTemplates(RenamePlan& plan, const Project& project, const NameChange& change)
{
    std::vector<entity::EntityTemplate> templates = project.entityTemplates();
    for (entity::EntityTemplate& entityTemplate : templates) {
        const QString name = entityTemplate.name;
        HolderRename rename(change);
        rename.rename(entityTemplate.name);
        ValueRename values(
            rename, [&] { return entity::schemaOfCategory(project, entityTemplate.categoryId); });
        for (auto& [key, value] : entityTemplate.fieldValues)
            values.rename(key, value);
        if (rename.count() > 0)
            plan.renamed.push_back({NameHolder::Kind::EntityTemplate, {}, name, rename.count()});
    }
    if (templates != project.entityTemplates())
        plan.edits.setInProject<entity::SetEntityTemplatesCommand>(std::move(templates));
}

} // namespace

qsizetype RenamePlan::occurrenceCount() const
{
    return std::accumulate(
        renamed.begin(), renamed.end(), qsizetype{0},
        [](qsizetype sum, const NameHolder& holder) { return sum + holder.count; });
}

RenamePlan planRename(const Project& project, const NameChange& change)
{
    RenamePlan plan;
    planObjects(plan, project, change);
    planThreads(plan, project, change);
    planCategories(plan, project, change);
    planRules(plan, project, change);
    planTemplates(plan, project, change);
    return plan;
}

} // namespace tw::app::codex
