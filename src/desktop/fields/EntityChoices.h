#pragma once

#include "core/project/Project.h"

#include <QAbstractListModel>

#include <vector>

namespace tw::desktop::fields {

/** A name under which an entity can be picked: its own, or one of its aliases. */
struct EntityChoice
{
    core::ContentId id;
    /** The name or alias alone. */
    QString name;
    /** As listed: an alias is followed by the name it stands for. */
    QString text;
};

/** Names and aliases of the entities of a category and beneath (null: of all), sorted as a reader sorts. */
[[nodiscard]] std::vector<EntityChoice> entityChoices(
    const core::project::Project& project, const core::CategoryId& beneathId);

/** The entity of exactly that name or alias, whatever the case; null when none or several answer to it. */
[[nodiscard]] core::ContentId findEntityNamed(const std::vector<EntityChoice>& choices, const QString& name);

/** The choices as a list for a completer. */
class EntityChoiceModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    /** Gives the id as text. */
    static constexpr int idRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    void setChoices(std::vector<EntityChoice> choices);
    [[nodiscard]] const std::vector<EntityChoice>& choices() const { return m_choices; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<EntityChoice> m_choices;
};

} // namespace tw::desktop::fields
