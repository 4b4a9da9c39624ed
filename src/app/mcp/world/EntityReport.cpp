#include "app/codex/MentionIndex.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/document/Document.h"
#include "core/entity/Schema.h"
#include "core/timeline/TimelineEvent.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using core::entity::Entity;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::project::Project;
using core::timeline::TimelineEvent;
using workspace::Workspace;

namespace {

/** More than this many documents are only counted. */
constexpr qsizetype mostMentions = 30;

QString line(const QString& label, const QString& text)
{
    return text.isEmpty() ? QString() : u"%1: %2\n"_s.arg(label, text);
}

QString lifespanText(const Project& project, const Entity& entity)
{
    QStringList parts;
    if (entity.lifespan().birth)
        parts.append(u"born %1"_s.arg(dateText(project, *entity.lifespan().birth)));
    if (entity.lifespan().death)
        parts.append(u"died %1"_s.arg(dateText(project, *entity.lifespan().death)));
    return parts.join(u", "_s);
}

/** All that one answer says of an entity. Dates stand in the open project's calendar, also a library's. */
class EntityReport
{
public:
    EntityReport(
        const Workspace& workspace, codex::MentionIndex& index, const Found<Entity>& found,
        Shortening shortening)
        : m_workspace(workspace)
        , m_index(index)
        , m_entity(*found)
        , m_library(found.library)
        , m_home(found.library ? *found.library->project : workspace.project())
        , m_display(shortening)
    {}

    [[nodiscard]] QString text()
    {
        const auto* const category = m_home.taxonomy().category(m_entity.categoryId());
        const core::content::NameSet& tags = m_entity.tags();
        QString text = u"# %1\n"_s.arg(m_entity.name());
        if (m_library)
            text += mountedMark(m_library->name) + u'\n';
        text += line(u"Id"_s, m_entity.id().toString());
        text += line(u"Category"_s, category ? category->name : u"(uncategorized)"_s);
        text += line(u"Aliases"_s, m_entity.aliases().join(u", "_s));
        text += line(u"Tags"_s, QStringList(tags.begin(), tags.end()).join(u", "_s));
        text += line(u"Lifespan"_s, lifespanText(m_workspace.project(), m_entity));
        text += line(u"Locked"_s, m_entity.isLocked() ? u"yes, tools cannot change it"_s : QString());
        text += fields() + states() + gallery() + mentions();
        return text.trimmed() + m_display.note(u"get_entity"_s);
    }

private:
    [[nodiscard]] QString fields()
    {
        const Schema schema = core::entity::schemaOfEntity(m_home, m_entity);
        QString text;
        for (const ResolvedField& field : schema) {
            const auto value = core::entity::shownValue(field, m_entity);
            QString shown = u"(unset)"_s;
            if (value && !value->isEmpty())
                shown = m_display.shown(valueText(m_workspace, field.field, *value));
            QString mark;
            if (field.isFixed())
                mark = u" [fixed]"_s;
            else if (field.origin == core::entity::FieldOrigin::Entity)
                mark = u" [own]"_s;
            text += u"- %1%2: %3\n"_s.arg(field.field.displayName(), mark, shown);
        }
        return text.isEmpty() ? text : u"\nFields\n"_s + text;
    }

    [[nodiscard]] QString states()
    {
        const Schema schema = core::entity::schemaOfEntity(m_home, m_entity);
        QString text;
        for (const auto& [key, states] : m_entity.timedValues()) {
            const ResolvedField* const field = core::entity::findField(schema, key);
            if (!field)
                continue;
            for (const core::entity::TimedValue& state : states) {
                text += u"- %1 from %2: %3\n"_s.arg(
                    field->field.displayName(), dateText(m_workspace.project(), state.instant),
                    m_display.shown(valueText(m_workspace, field->field, state.value)));
            }
        }
        return text.isEmpty() ? text : u"\nState over time\n"_s + text;
    }

    [[nodiscard]] QString gallery() const
    {
        return u"\nGallery: %1 image(s)\n"_s.arg(QString::number(m_entity.gallery().size()));
    }

    /** In the open project, wherever the entity itself comes from. */
    [[nodiscard]] QString mentions()
    {
        const Project& project = m_workspace.project();
        QStringList lines;
        for (const auto& [documentId, count] : m_index.inDocuments(project, m_entity)) {
            const Document& document = *project.findAs<Document>(documentId);
            if (!document.isAiExcluded())
                lines.append(u"- document '%1' (%2)"_s.arg(document.title(), QString::number(count)));
        }
        for (const core::ContentId& eventId : m_index.inEvents(project, m_entity.id())) {
            const TimelineEvent& event = *project.findAs<TimelineEvent>(eventId);
            if (event.isAiExcluded())
                continue;
            const core::timeline::EventDetails& details = event.details();
            const bool takesPart =
                std::ranges::find(details.participants, m_entity.id()) != details.participants.end();
            lines.append(u"- timeline event '%1' (%2)"_s.arg(
                details.title, takesPart ? u"participant"_s : u"location"_s));
        }
        if (lines.isEmpty())
            return u"\nMentioned in: nothing yet\n"_s;
        const qsizetype more = lines.size() - mostMentions;
        if (more > 0) {
            lines = lines.first(mostMentions);
            lines.append(u"- and %1 more; search finds them"_s.arg(more));
        }
        return u"\nMentioned in\n"_s + lines.join(u'\n');
    }

    const Workspace& m_workspace;
    codex::MentionIndex& m_index;
    const Entity& m_entity;
    const workspace::MountedLibrary* m_library;
    const Project& m_home;
    ValueDisplay m_display;
};

McpToolResult getEntity(ToolContext& context, const ToolArguments& arguments)
{
    const auto entity = findToRead<Entity>(context.workspace, arguments, u"name");
    if (!entity)
        return McpToolResult::failure(entity.message());
    const Shortening shortening = arguments.boolean(u"full") ? Shortening::None : Shortening::Long;
    return McpToolResult::success(
        EntityReport(context.workspace, context.mentions, entity.value(), shortening).text());
}

} // namespace

Tool getEntityTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"Read an entity"_s,
        .spec =
            {u"get_entity"_s,
             u"One entity: category, aliases, tags, lifespan in the project calendar, field values "
             "(references resolved to names), state over time, gallery size, and where it is mentioned. "
             "Finds it by name, by one of its aliases, or in a mounted library, which the answer then says. "
             "Fields marked [fixed] get their value from the category and cannot be set on the entity; those "
             "marked [own] belong to this entity alone. Values longer than 300 characters are shortened "
             "unless \"full\" is true (default false): ask for the full values before you edit one, or its "
             "unseen tail is lost. Mentions are whole words in the text of documents, and timeline events. "
             "Entities excluded from AI are not found. Call list_category or search when you do not know the "
             "name."_s,
             makeSubjectSchema(
                 u"name"_s, u"The entity's name or one of its aliases."_s,
                 {{u"full"_s, booleanProperty(u"Show every value in full length."_s)}})},
        .subject = u"name"_s,
        .handler = getEntity,
    };
}

} // namespace tw::app::mcp
