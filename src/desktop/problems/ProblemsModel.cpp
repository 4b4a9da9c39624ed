#include "desktop/problems/ProblemsModel.h"

#include "desktop/icons/IconSet.h"
#include "desktop/shell/LibraryObjects.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/TreeRoles.h"

#include <QFont>
#include <QLocale>

#include <algorithm>

namespace tw::desktop::problems {

using namespace Qt::Literals::StringLiterals;
using trees::TreeRole;

namespace {

/** More of one object are counted and not listed: nobody reads on before the first ones are done. */
constexpr std::size_t mostListed = 500;

} // namespace

ProblemsModel::ProblemsModel(
    const shell::DeskContext& desk, std::vector<ProblemSource*> sources, QObject* parent)
    : QAbstractItemModel(parent)
    , m_desk(desk)
    , m_sources(std::move(sources))
{
    for (ProblemSource* const source : m_sources)
        connect(source, &ProblemSource::problemsChanged, this, &ProblemsModel::refresh);
}

void ProblemsModel::setObjects(const std::vector<core::ContentId>& objects)
{
    for (ProblemSource* const source : m_sources)
        source->setObjects(objects);
    if (objects == m_objects)
        return;
    m_objects = objects;
    rebuild();
}

void ProblemsModel::setCategoryHidden(const QString& categoryId, bool isHidden)
{
    if (isHidden)
        m_hidden.insert(categoryId);
    else
        m_hidden.remove(categoryId);
    rebuild();
}

void ProblemsModel::rebuild()
{
    beginResetModel();
    m_groups.clear();
    for (const core::ContentId& object : m_objects) {
        if (Listing listing = listingOf(object); !listing.rows.empty())
            m_groups.push_back(std::make_unique<Group>(
                Group{static_cast<int>(m_groups.size()), object, std::move(listing)}));
    }
    endResetModel();
    recount();
}

void ProblemsModel::refresh(const std::vector<core::ContentId>& objects)
{
    const bool isEnough =
        std::ranges::all_of(objects, [this](const core::ContentId& object) { return refreshRows(object); });
    if (isEnough)
        recount();
    else
        rebuild();
}

bool ProblemsModel::refreshRows(const core::ContentId& object)
{
    if (std::ranges::find(m_objects, object) == m_objects.end())
        return true;
    const auto group = std::ranges::find(m_groups, object, [](const auto& each) { return each->object; });
    Listing listing = listingOf(object);
    if (group == m_groups.end() || listing.rows.empty())
        return group == m_groups.end() && listing.rows.empty();
    // The rows above and below keep their place on the screen.
    const QModelIndex parent = index((*group)->row, 0);
    beginRemoveRows(parent, 0, (*group)->listing.rowCount() - 1);
    (*group)->listing = {};
    endRemoveRows();
    beginInsertRows(parent, 0, listing.rowCount() - 1);
    (*group)->listing = std::move(listing);
    endInsertRows();
    emit dataChanged(parent, parent);
    return true;
}

ProblemsModel::Listing ProblemsModel::listingOf(const core::ContentId& object) const
{
    Listing listing;
    for (ProblemSource* const source : m_sources) {
        for (const Problem& problem : source->problemsOf(object)) {
            if (m_hidden.contains(problem.categoryId))
                continue;
            if (listing.rows.size() < mostListed)
                listing.rows.push_back({source, problem});
            else
                ++listing.unlisted;
        }
    }
    return listing;
}

void ProblemsModel::recount()
{
    m_counts.clear();
    for (const core::ContentId& object : m_objects) {
        for (const ProblemSource* const source : m_sources) {
            for (const Problem& problem : source->problemsOf(object))
                ++m_counts[problem.categoryId];
        }
    }
    emit countsChanged();
}

int ProblemsModel::shownCount() const
{
    int count = 0;
    for (const auto& [category, problems] : m_counts.asKeyValueRange())
        count += m_hidden.contains(category) ? 0 : problems;
    return count;
}

ListedProblem ProblemsModel::problemAt(const QModelIndex& index) const
{
    const auto* const group = static_cast<const Group*>(index.internalPointer());
    const auto place = static_cast<std::size_t>(index.row());
    if (!group || place >= group->listing.rows.size())
        return {};
    const Row& row = group->listing.rows[place];
    return {row.source, group->object, &row.problem};
}

core::ContentId ProblemsModel::objectAt(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const auto* const group = static_cast<const Group*>(index.internalPointer());
    return group ? group->object : m_groups[static_cast<std::size_t>(index.row())]->object;
}

QModelIndex ProblemsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    // Rows of problems point to their group, rows of groups nowhere.
    return createIndex(
        row, column, parent.isValid() ? m_groups[static_cast<std::size_t>(parent.row())].get() : nullptr);
}

QModelIndex ProblemsModel::parent(const QModelIndex& child) const
{
    const auto* const group = static_cast<const Group*>(child.internalPointer());
    return group ? createIndex(group->row, 0) : QModelIndex();
}

Qt::ItemFlags ProblemsModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.internalPointer() ? flags | Qt::ItemNeverHasChildren : flags;
}

int ProblemsModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.internalPointer())
        return 0;
    return m_groups[static_cast<std::size_t>(parent.row())]->listing.rowCount();
}

int ProblemsModel::columnCount(const QModelIndex&) const
{
    return 1;
}

const core::content::ContentObject* ProblemsModel::objectOf(const Group& group) const
{
    const app::codex::ObjectScope scope = shell::libraryScope(m_desk.session);
    return app::codex::ScopedLookup(m_desk.session.project(), scope).find(group.object);
}

QString ProblemsModel::titleOf(const Group& group) const
{
    if (group.object.isNull())
        return tr("Project");
    const auto* const object = objectOf(group);
    return object ? shell::objectTitle(*object) : QString();
}

QIcon ProblemsModel::iconOf(const Group& group) const
{
    const auto* const object = objectOf(group);
    return m_desk.icons.icon(object ? icons::iconForKind(object->kind()) : icons::Icon::Manuscript);
}

QVariant ProblemsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto* const parentGroup = static_cast<const Group*>(index.internalPointer());
    if (parentGroup) {
        const std::vector<Row>& rows = parentGroup->listing.rows;
        const auto row = static_cast<std::size_t>(index.row());
        return row < rows.size() ? problemData(*parentGroup, rows[row], role)
                                 : unlistedData(*parentGroup, role);
    }
    const Group& group = *m_groups[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return titleOf(group);
    case Qt::DecorationRole:
        return iconOf(group);
    case TreeRole::IdRole:
        return group.object.toString();
    case TreeRole::CountRole:
        return QLocale().toString(group.listing.problemCount());
    default:
        return {};
    }
}

QVariant ProblemsModel::problemData(const Group& group, const Row& row, int role) const
{
    const Problem& problem = row.problem;
    switch (role) {
    case Qt::DisplayRole:
        return problem.context.isEmpty() ? problem.message
                                         : u"%1   %2"_s.arg(problem.message, problem.context);
    case Qt::ToolTipRole:
        return problem.context.isEmpty() ? problem.message
                                         : u"%1\n%2"_s.arg(problem.message, problem.context);
    case TreeRole::IdRole:
        return u"%1 %2 %3 %4"_s.arg(
            group.object.toString(), problem.categoryId, QString::number(problem.ordinal), problem.text);
    case TreeRole::DotRole:
        return row.source->colorOf(problem.categoryId);
    default:
        return {};
    }
}

QVariant ProblemsModel::unlistedData(const Group& group, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return tr("%Ln more. Settle these first, or hide kinds.", nullptr, group.listing.unlisted);
    case TreeRole::IdRole:
        return u"%1 unlisted"_s.arg(group.object.toString());
    default:
        return {};
    }
}

} // namespace tw::desktop::problems
