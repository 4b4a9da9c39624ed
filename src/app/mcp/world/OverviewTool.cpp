#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/entity/Entity.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::content::ContentKind;
using core::entity::Entity;
using core::project::Project;
using core::taxonomy::Category;
using workspace::Workspace;

namespace {

QString objectCounts(const Project& project)
{
    QString text = u"\nObjects\n"_s;
    for (const ContentKind kind : core::content::allContentKinds) {
        const qsizetype count = std::ssize(project.objectsOfKind(kind));
        if (count > 0)
            text += u"- %1: %2\n"_s.arg(core::content::contentKindName(kind), QString::number(count));
    }
    return project.objects().empty() ? u"\nObjects\n- none yet\n"_s : text;
}

/** The categories as an indented tree; what hangs under an entity says so. */
class CategoryTree
{
public:
    explicit CategoryTree(const Workspace& workspace)
        : m_workspace(workspace)
        , m_project(workspace.project())
    {
        for (const Entity* const entity : core::project::objectsOf<Entity>(m_project)) {
            if (entity->isAiExcluded())
                ++m_excluded;
            else
                ++m_entityCounts[entity->categoryId()];
        }
    }

    [[nodiscard]] QString text()
    {
        m_text = u"\nCategories (with the number of their own entities)\n"_s;
        const auto& categories = m_project.taxonomy().categories();
        for (const CategoryId& id : m_project.taxonomy().childrenOf({}))
            add(id, 0);
        for (const auto& [id, category] : categories) {
            if (!category.parentEntityId.isNull())
                add(id, 0);
        }
        // What damaged files leave outside the tree.
        for (const auto& [id, category] : categories)
            add(id, 0);
        if (m_shown.empty())
            m_text += u"- none yet; create_category makes the first\n"_s;
        if (const auto loose = m_entityCounts.find(CategoryId()); loose != m_entityCounts.end())
            m_text += u"- (uncategorized): %1\n"_s.arg(loose->second);
        if (m_excluded > 0)
            m_text += excludedEntitiesOmitted(m_excluded) + u'\n';
        return m_text;
    }

private:
    void add(const CategoryId& id, int depth)
    {
        const Category& category = *m_project.taxonomy().category(id);
        if (!m_shown.insert(id).second)
            return;
        const QString under =
            category.parentEntityId.isNull()
                ? QString()
                : u" (under the entity %1)"_s.arg(entityText(m_workspace, category.parentEntityId));
        m_text += QString(2 * depth, u' ') +
                  u"- %1: %2%3\n"_s.arg(category.name, QString::number(m_entityCounts[id]), under);
        for (const CategoryId& child : m_project.taxonomy().childrenOf(id))
            add(child, depth + 1);
    }

    const Workspace& m_workspace;
    const Project& m_project;
    std::map<CategoryId, qsizetype> m_entityCounts;
    std::set<CategoryId> m_shown;
    qsizetype m_excluded = 0;
    QString m_text;
};

QString calendarText(const Project& project)
{
    const core::calendar::Calendar& calendar = project.calendar();
    QStringList months;
    for (const core::calendar::CalendarMonth& month : calendar.months())
        months.append(u"%1 (%2)"_s.arg(month.name, QString::number(month.days)));
    QStringList eras;
    for (const core::calendar::CalendarEra& era : calendar.eras())
        eras.append(era.name);
    QString text = u"\nCalendar\n- months: %1\n- days in a year: %2\n"_s.arg(
        months.isEmpty() ? u"none"_s : months.join(u", "_s), QString::number(calendar.yearLength()));
    if (!calendar.weekdays().isEmpty())
        text += u"- weekdays: %1\n"_s.arg(calendar.weekdays().join(u", "_s));
    if (!eras.isEmpty())
        text += u"- eras: %1\n"_s.arg(eras.join(u", "_s));
    else if (!calendar.eraName().isEmpty())
        text += u"- era: %1\n"_s.arg(calendar.eraName());
    return text;
}

QString libraryText(const Workspace& workspace)
{
    QString text = u"\nMounted libraries\n"_s;
    if (workspace.libraries().empty())
        text += u"- none\n"_s;
    for (const workspace::MountedLibrary& library : workspace.libraries()) {
        text += u"- %1: read-only for tools, %2 object(s)\n"_s.arg(
            library.name, QString::number(library.project->objects().size()));
    }
    for (const QString& notice : workspace.libraryNotices())
        text += u"- not loaded: %1\n"_s.arg(notice);
    return text;
}

McpToolResult getProjectOverview(ToolContext& context, const ToolArguments&)
{
    const Project& project = context.workspace.project();
    const QString name = context.workspace.displayName();
    const QString audiences = project.audiences().isEmpty() ? u"- none: everything is visible to everyone"_s
                                                            : u"- "_s + project.audiences().join(u"\n- "_s);
    return McpToolResult::success((u"# "_s + (name.isEmpty() ? u"Untitled project"_s : name) + u'\n' +
                                   objectCounts(project) + CategoryTree(context.workspace).text() +
                                   calendarText(project) + u"\nAudiences\n"_s + audiences + u'\n' +
                                   libraryText(context.workspace))
                                      .trimmed());
}

} // namespace

Tool getProjectOverviewTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"Project overview"_s,
        .spec =
            {u"get_project_overview"_s,
             u"The project at a glance: object counts per content type, the category tree with entity "
             "counts, the calendar, the audience registry, and the mounted libraries with their permissions. "
             "Takes no arguments. Call it first in a session: the names it lists are the ones that "
             "list_category, get_category, create_entity and set_visibility expect. For the manuscript "
             "itself call get_manuscript_tree. Entities excluded from AI are counted among the objects but "
             "never named."_s,
             makeObjectSchema({})},
        .handler = getProjectOverview,
    };
}

} // namespace tw::app::mcp
