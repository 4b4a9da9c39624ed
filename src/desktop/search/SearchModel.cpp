#include "desktop/search/SearchModel.h"

#include "desktop/shell/ObjectTitles.h"

#include <QLocale>

#include <algorithm>

namespace tw::desktop::search {

using app::search::MatchField;
using app::search::TextMatch;

namespace {

/** The id of indexes of documents; matches have the row of their document. */
constexpr quintptr documentId = static_cast<quintptr>(-1);

bool isDocument(const QModelIndex& index)
{
    return index.internalId() == documentId;
}

std::size_t at(int row)
{
    return static_cast<std::size_t>(row);
}

QString fieldText(MatchField field)
{
    switch (field) {
    case MatchField::Title:
        return SearchModel::tr("Title");
    case MatchField::Synopsis:
        return SearchModel::tr("Synopsis");
    case MatchField::Body:
        return {};
    }
    Q_UNREACHABLE();
}

} // namespace

SearchModel::SearchModel(const icons::IconSet& icons, QObject* parent)
    : QAbstractItemModel(parent)
    , m_icons(icons)
{}

void SearchModel::clear()
{
    beginResetModel();
    m_groups.clear();
    m_matchCount = 0;
    endResetModel();
}

void SearchModel::append(const Results& results)
{
    if (results.empty())
        return;
    const auto first = static_cast<int>(m_groups.size());
    beginInsertRows({}, first, first + static_cast<int>(results.size()) - 1);
    for (const app::search::DocumentMatches& matches : results) {
        m_groups.push_back({matches, std::vector<bool>(matches.matches.size(), true)});
        m_matchCount += std::ssize(matches.matches);
    }
    endInsertRows();
}

void SearchModel::setReplacement(
    const std::optional<app::search::TextMatcher>& matcher, const QString& replacement)
{
    m_matcher = matcher;
    m_replacement = replacement;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex group = index(row, 0);
        emit dataChanged(group, group);
        emit dataChanged(index(0, 0, group), index(rowCount(group) - 1, 0, group));
    }
}

qsizetype SearchModel::checkedCount() const
{
    qsizetype count = 0;
    for (const Group& group : m_groups)
        count += std::ranges::count(group.isChecked, true);
    return count;
}

std::vector<SearchModel::Checked> SearchModel::checked() const
{
    std::vector<Checked> result;
    for (const Group& group : m_groups) {
        Checked checked{group.matches, {}};
        for (std::size_t match = 0; match < group.isChecked.size(); ++match) {
            if (group.isChecked[match])
                checked.chosen.push_back(group.matches.matches[match]);
        }
        if (!checked.chosen.empty())
            result.push_back(std::move(checked));
    }
    return result;
}

const SearchModel::Group& SearchModel::groupOf(const QModelIndex& index) const
{
    return m_groups[isDocument(index) ? at(index.row()) : index.internalId()];
}

core::ContentId SearchModel::documentAt(const QModelIndex& index) const
{
    return index.isValid() ? groupOf(index).matches.id : core::ContentId();
}

const TextMatch* SearchModel::matchAt(const QModelIndex& index) const
{
    return index.isValid() && !isDocument(index) ? &groupOf(index).matches.matches[at(index.row())] : nullptr;
}

QModelIndex SearchModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : documentId);
}

QModelIndex SearchModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || isDocument(index))
        return {};
    return createIndex(static_cast<int>(index.internalId()), 0, documentId);
}

int SearchModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    return isDocument(parent) ? static_cast<int>(groupOf(parent).matches.matches.size()) : 0;
}

int SearchModel::columnCount(const QModelIndex&) const
{
    return 1;
}

Qt::CheckState SearchModel::checkState(const QModelIndex& index) const
{
    const std::vector<bool>& isChecked = groupOf(index).isChecked;
    if (!isDocument(index))
        return isChecked[at(index.row())] ? Qt::Checked : Qt::Unchecked;
    const auto count = std::ranges::count(isChecked, true);
    return count == 0 ? Qt::Unchecked : count == std::ssize(isChecked) ? Qt::Checked : Qt::PartiallyChecked;
}

QVariant SearchModel::groupData(const Group& group, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return shell::shownName(group.matches.title);
    case Qt::AccessibleTextRole:
        return tr("%1, %n matches", nullptr, static_cast<int>(group.matches.matches.size()))
            .arg(group.matches.title);
    case Qt::DecorationRole:
        return m_icons.icon(icons::Icon::Document);
    case trees::CountRole:
        return QLocale().toString(group.matches.matches.size());
    case trees::IdRole:
        return group.matches.id.toString();
    default:
        return {};
    }
}

QVariant SearchModel::matchData(const TextMatch& match, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return QString(match.before + match.found + match.after);
    case BeforeRole:
        return match.before;
    case FoundRole:
        return match.found;
    case AfterRole:
        return match.after;
    case ReplacementRole:
        return m_matcher ? QVariant(m_matcher->replacementFor(match.groups, m_replacement)) : QVariant();
    case FieldRole:
        return fieldText(match.field);
    default:
        return {};
    }
}

QVariant SearchModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::CheckStateRole)
        return m_matcher ? QVariant(checkState(index)) : QVariant();
    return isDocument(index) ? groupData(groupOf(index), role) : matchData(*matchAt(index), role);
}

bool SearchModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || !m_matcher)
        return false;
    const bool isChecked = value.toInt() == Qt::Checked;
    const QModelIndex document = isDocument(index) ? index : index.parent();
    std::vector<bool>& states = m_groups[at(document.row())].isChecked;
    if (isDocument(index))
        std::fill(states.begin(), states.end(), isChecked);
    else
        states[at(index.row())] = isChecked;
    emit dataChanged(document, document, {Qt::CheckStateRole});
    emit dataChanged(
        this->index(0, 0, document), this->index(rowCount(document) - 1, 0, document), {Qt::CheckStateRole});
    emit checkedChanged();
    return true;
}

Qt::ItemFlags SearchModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return m_matcher ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace tw::desktop::search
