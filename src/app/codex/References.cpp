#include "app/codex/References.h"

#include "app/codex/CategoryEdits.h"
#include "core/canvas/CanvasCommands.h"
#include "core/conlang/LanguageCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/map/MapCommands.h"
#include "core/plot/PlotCommands.h"
#include "core/research/ResearchCommands.h"
#include "core/task/TaskCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "core/timeline/TimelineCommands.h"

#include <algorithm>

namespace tw::app::codex {

namespace canvas = core::canvas;
namespace conlang = core::conlang;
namespace document = core::document;
namespace entity = core::entity;
namespace map = core::map;
namespace plot = core::plot;
namespace research = core::research;
namespace task = core::task;
namespace taxonomy = core::taxonomy;
namespace timeline = core::timeline;
using core::ContentId;
using core::content::ContentKind;
using core::content::ContentObject;
using core::project::Project;

namespace {

class Repointer
{
public:
    Repointer(const Project& project, const ContentId& from, const ContentId& to)
        : m_project(project)
        , m_from(from)
        , m_to(to)
        , m_fromText(from.toString())
        , m_toText(to.isNull() ? QString() : to.toString())
    {}

    [[nodiscard]] RepointPlan run();

private:
    void visit(const ContentObject& object);
    void visit(const document::Document& owner);
    void visit(const entity::Entity& owner);
    void visit(const timeline::TimelineEvent& owner);
    void visit(const map::Map& owner);
    void visit(const canvas::Canvas& owner);
    void visit(const research::Comment& owner);
    void visit(const conlang::Language& owner);
    void visit(const task::Task& owner);
    void visitTaxonomy();
    void visitProjectData();

    /** Every function below exchanges the id in place and counts what it found. */
    void repoint(ContentId& id);
    void repoint(std::vector<ContentId>& ids);
    void repointText(QString& text);
    void repointValue(QString& value);
    void repointFields(taxonomy::FieldList& fields);

    /** Plans a new value of one field when the edit of it finds something. */
    template <class Command, class Edit>
    void change(const typename Command::Owner& owner, typename Command::Value value, Edit edit)
    {
        const qsizetype before = m_plan.referenceCount;
        edit(value);
        if (m_plan.referenceCount == before)
            return;
        if constexpr (std::is_same_v<typename Command::Owner, Project>) {
            m_plan.edits.setInProject<Command>(std::move(value));
        } else {
            m_plan.edits.set<Command>(owner.id(), std::move(value));
            m_plan.holders.insert(owner.id());
        }
    }

    const Project& m_project;
    ContentId m_from;
    ContentId m_to;
    QString m_fromText;
    QString m_toText;
    RepointPlan m_plan;
};

RepointPlan Repointer::run()
{
    for (const auto& [id, object] : m_project.objects()) {
        if (id != m_from && id != m_to)
            visit(*object);
    }
    visitTaxonomy();
    visitProjectData();
    return std::move(m_plan);
}

void Repointer::repoint(ContentId& id)
{
    if (id != m_from)
        return;
    id = m_to;
    ++m_plan.referenceCount;
}

void Repointer::repoint(std::vector<ContentId>& ids)
{
    const auto place = std::ranges::find(ids, m_from);
    if (place == ids.end())
        return;
    ++m_plan.referenceCount;
    const bool isThere = m_to.isNull() || std::ranges::find(ids, m_to) != ids.end();
    if (!isThere)
        *place = m_to;
    std::erase(ids, m_from);
}

void Repointer::repointText(QString& text)
{
    const qsizetype count = text.count(m_fromText, Qt::CaseInsensitive);
    if (count == 0)
        return;
    m_plan.referenceCount += count;
    text.replace(m_fromText, m_toText, Qt::CaseInsensitive);
}

void Repointer::repointValue(QString& value)
{
    // Most values hold no id at all.
    if (!value.contains(m_fromText, Qt::CaseInsensitive))
        return;
    RepointedText repointed = repointedValue(value, m_from, m_to);
    m_plan.referenceCount += repointed.count;
    value = std::move(repointed.text);
}

void Repointer::repointFields(taxonomy::FieldList& fields)
{
    for (taxonomy::Field& field : fields)
        repointValue(field.fixedValue);
}

void Repointer::visit(const ContentObject& object)
{
    switch (object.kind()) {
    case ContentKind::Document:
        return visit(static_cast<const document::Document&>(object));
    case ContentKind::Entity:
        return visit(static_cast<const entity::Entity&>(object));
    case ContentKind::TimelineEvent:
        return visit(static_cast<const timeline::TimelineEvent&>(object));
    case ContentKind::Map:
        return visit(static_cast<const map::Map&>(object));
    case ContentKind::Canvas:
        return visit(static_cast<const canvas::Canvas&>(object));
    case ContentKind::Comment:
        return visit(static_cast<const research::Comment&>(object));
    case ContentKind::Language:
        return visit(static_cast<const conlang::Language&>(object));
    case ContentKind::Task:
        return visit(static_cast<const task::Task&>(object));
    case ContentKind::Spreadsheet:
    case ContentKind::Chart:
    case ContentKind::Timeline:
    case ContentKind::Media:
    case ContentKind::Source:
    case ContentKind::RandomTable:
    case ContentKind::StatBlock:
        return;
    }
}

void Repointer::visit(const document::Document& owner)
{
    // A child document is no reference: it is found by its place in the manuscript.
    change<document::SetDocumentSourcesCommand>(
        owner, owner.sourceIds(), [this](auto& sources) { repoint(sources); });
    change<document::SetDocumentBodyCommand>(
        owner, owner.body(), [this](auto& body) { repointText(body.text); });
    change<document::SetDocumentSynopsisCommand>(
        owner, owner.synopsis(), [this](auto& synopsis) { repointText(synopsis); });
    change<document::SetDocumentVariantsCommand>(owner, owner.variants(), [this](auto& variants) {
        for (document::DocumentVariant& variant : variants.list)
            repointText(variant.body);
    });
    change<document::SetDocumentFootnotesCommand>(owner, owner.footnotes(), [this](auto& footnotes) {
        for (document::Footnote& footnote : footnotes)
            repointText(footnote.text);
    });
}

void Repointer::visit(const entity::Entity& owner)
{
    for (const auto& [key, stored] : owner.values()) {
        QString value = stored;
        const qsizetype before = m_plan.referenceCount;
        repointValue(value);
        if (m_plan.referenceCount == before)
            continue;
        m_plan.holders.insert(owner.id());
        m_plan.edits.add([id = owner.id(), key = key, value](Project& project) {
            return std::make_unique<entity::SetFieldValueCommand>(
                *project.findAsForEdit<entity::Entity>(id), key,
                value.isEmpty() ? std::nullopt : std::optional(value));
        });
    }
    change<entity::SetEntityTimedValuesCommand>(owner, owner.timedValues(), [this](auto& timedValues) {
        for (auto& [key, states] : timedValues) {
            for (entity::TimedValue& state : states)
                repointValue(state.value);
        }
    });
    change<entity::SetEntityGalleryCommand>(
        owner, owner.gallery(), [this](auto& gallery) { repoint(gallery); });
    change<entity::SetEntityOwnFieldsCommand>(
        owner, owner.ownFields(), [this](auto& fields) { repointFields(fields); });
}

void Repointer::visit(const timeline::TimelineEvent& owner)
{
    change<timeline::SetTimelineEventCommand>(owner, owner.details(), [this](timeline::EventDetails& event) {
        repoint(event.timelineId);
        repoint(event.participants);
        repoint(event.locationId);
        repoint(event.parentId);
        repoint(event.sceneIds);
        for (timeline::RelativeConstraint& constraint : event.constraints)
            repoint(constraint.otherId);
        repointText(event.description);
    });
}

void Repointer::visit(const map::Map& owner)
{
    const auto repointLinks = [this](auto& marks) {
        for (auto& mark : marks) {
            repoint(mark.linkedEntityId);
            if constexpr (requires { mark.linkedMapId; })
                repoint(mark.linkedMapId);
            if constexpr (requires { mark.note; })
                repointText(mark.note);
        }
    };
    change<map::SetMapPinsCommand>(owner, owner.pins(), repointLinks);
    change<map::SetMapRegionsCommand>(owner, owner.regions(), repointLinks);
    change<map::SetMapTokensCommand>(owner, owner.tokens(), repointLinks);
    change<map::SetMapRoutesCommand>(owner, owner.routes(), [this](std::vector<map::MapRoute>& routes) {
        const qsizetype before = m_plan.referenceCount;
        for (map::MapRoute& route : routes) {
            repoint(route.fromEntityId);
            repoint(route.toEntityId);
        }
        if (m_plan.referenceCount > before) {
            std::erase_if(routes, [this](const map::MapRoute& route) {
                return route.fromEntityId == m_to && route.toEntityId == m_to;
            });
        }
    });
}

void Repointer::visit(const canvas::Canvas& owner)
{
    const auto card = owner.cardOf(m_from);
    const qsizetype countBefore = m_plan.referenceCount;
    std::vector<canvas::CanvasConnection> moved;
    for (canvas::CanvasConnection line : owner.connections()) {
        const qsizetype before = m_plan.referenceCount;
        repoint(line.fromId);
        repoint(line.toId);
        const bool isNew = std::ranges::find(owner.connections(), line) == owner.connections().end() &&
                           std::ranges::find(moved, line) == moved.end();
        if (m_plan.referenceCount > before && isNew && line.fromId != line.toId)
            moved.push_back(line);
    }
    if (card)
        ++m_plan.referenceCount;
    if (m_plan.referenceCount == countBefore)
        return;
    m_plan.holders.insert(owner.id());
    m_plan.edits.add([id = owner.id(), card, moved, from = m_from, to = m_to](Project& project) {
        auto& edited = *project.findAsForEdit<canvas::Canvas>(id);
        auto edit = std::make_unique<core::undo::CompositeCommand>(QString());
        // Each object has at most one card: where the new one has its own, that stays.
        if (card && !edited.cardOf(to)) {
            edit->add(std::make_unique<canvas::SetCanvasCardCommand>(
                edited, canvas::CanvasCard{to, card->x, card->y, card->width, card->height}));
        }
        for (const canvas::CanvasConnection& line : moved)
            edit->add(std::make_unique<canvas::AddCanvasConnectionCommand>(edited, line));
        edit->add(std::make_unique<canvas::RemoveCanvasCardCommand>(edited, from));
        return edit;
    });
}

void Repointer::visit(const research::Comment& owner)
{
    change<research::SetCommentTargetCommand>(
        owner, owner.target(), [this](auto& target) { repoint(target.targetId); });
    change<research::SetCommentCommand>(
        owner, owner.details(), [this](auto& details) { repointText(details.body); });
}

void Repointer::visit(const conlang::Language& owner)
{
    change<conlang::SetLanguageCommand>(
        owner, owner.details(), [this](auto& details) { repoint(details.speakerIds); });
}

void Repointer::visit(const task::Task& owner)
{
    change<task::SetTaskTargetCommand>(owner, owner.targetId(), [this](ContentId& id) { repoint(id); });
    change<task::SetTaskDescriptionCommand>(
        owner, owner.description(), [this](QString& description) { repointText(description); });
}

void Repointer::visitTaxonomy()
{
    for (const auto& [id, category] : m_project.taxonomy().categories()) {
        for (taxonomy::Field field : category.fields) {
            const qsizetype before = m_plan.referenceCount;
            repointValue(field.fixedValue);
            if (m_plan.referenceCount > before)
                planReplaceField(m_plan.edits, category, field);
        }
        if (category.parentEntityId != m_from)
            continue;
        ++m_plan.referenceCount;
        m_plan.edits.add([id = id, to = m_to](Project& project) {
            return std::make_unique<taxonomy::ReparentCategoryToEntityCommand>(project, id, to);
        });
        // Hanging a category under an entity clears what it takes from there.
        m_plan.edits.add([id = id, keys = category.inheritedKeys](Project& project) {
            return std::make_unique<taxonomy::SetCategoryKeyListCommand>(
                project, id, taxonomy::CategoryKeyList::Inherited, keys);
        });
    }
}

void Repointer::visitProjectData()
{
    change<entity::SetEntityTemplatesCommand>(
        m_project, m_project.entityTemplates(), [this](auto& templates) {
            for (entity::EntityTemplate& entityTemplate : templates) {
                for (auto& [key, value] : entityTemplate.fieldValues)
                    repointValue(value);
            }
        });
    change<plot::SetPlotThreadsCommand>(m_project, m_project.plotThreads(), [this](auto& threads) {
        for (plot::PlotThread& thread : threads)
            repoint(thread.characterId);
    });
    change<plot::SetBeatSheetCommand>(m_project, m_project.beatSheet(), [this](plot::BeatSheet& sheet) {
        for (plot::BeatAssignment& assignment : sheet.assignments)
            repoint(assignment.documentId);
    });
    change<timeline::SetContinuityRulesCommand>(m_project, m_project.continuityRules(), [this](auto& rules) {
        for (timeline::ContinuityRule& rule : rules) {
            repoint(rule.entityId);
            repointValue(rule.value);
        }
    });
}

} // namespace

RepointPlan planRepoint(const Project& project, const ContentId& from, const ContentId& to)
{
    return Repointer(project, from, to).run();
}

RepointedText repointedValue(const QString& value, const ContentId& from, const ContentId& to)
{
    RepointedText result;
    QStringList lines;
    for (const QString& line : value.split(u'\n')) {
        const ContentId id = ContentId::fromString(line.trimmed());
        if (id.isNull() || id != from) {
            // Text around an id: a link to it.
            const qsizetype count = line.count(from.toString(), Qt::CaseInsensitive);
            result.count += count;
            lines.append(
                count == 0 ? line
                           : QString(line).replace(from.toString(), to.toString(), Qt::CaseInsensitive));
            continue;
        }
        ++result.count;
        if (!to.isNull() && !value.contains(to.toString(), Qt::CaseInsensitive) &&
            !lines.contains(to.toString()))
            lines.append(to.toString());
    }
    result.text = lines.join(u'\n');
    return result;
}

} // namespace tw::app::codex
