#pragma once

#include "core/content/ContentObject.h"
#include "desktop/problems/ProblemSource.h"
#include "desktop/shell/DeskContext.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QSet>

#include <memory>
#include <vector>

namespace tw::desktop::problems {

/** A problem and whence it comes. Holds as long as the model is not changed. */
struct ListedProblem
{
    ProblemSource* source = nullptr;
    core::ContentId object;
    const Problem* problem = nullptr;
};

/**
 * Objects with problems, and under each its problems in their order. Those of hidden categories are left
 * out; of very many in one object the first are listed, and a last row says how many more there are.
 */
class ProblemsModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    /** The desk and the sources must outlive the model. */
    ProblemsModel(const shell::DeskContext& desk, std::vector<ProblemSource*> sources, QObject* parent);

    /** Lists these, in this order. */
    void setObjects(const std::vector<core::ContentId>& objects);
    void setCategoryHidden(const QString& categoryId, bool isHidden);
    [[nodiscard]] bool isCategoryHidden(const QString& categoryId) const
    {
        return m_hidden.contains(categoryId);
    }

    /** How many there are by category, hidden ones included. */
    [[nodiscard]] const QHash<QString, int>& counts() const { return m_counts; }
    [[nodiscard]] int shownCount() const;
    /** None for the row of an object, or for the one that says how many more there are. */
    [[nodiscard]] ListedProblem problemAt(const QModelIndex& index) const;
    /** The object of the row, or that its problem is in. */
    [[nodiscard]] core::ContentId objectAt(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

signals:
    void countsChanged();

private:
    struct Row
    {
        ProblemSource* source;
        Problem problem;
    };
    struct Listing
    {
        std::vector<Row> rows;
        int unlisted = 0;

        [[nodiscard]] int problemCount() const { return static_cast<int>(rows.size()) + unlisted; }
        [[nodiscard]] int rowCount() const { return static_cast<int>(rows.size()) + (unlisted > 0 ? 1 : 0); }
    };
    struct Group
    {
        int row;
        core::ContentId object;
        Listing listing;
    };

    void rebuild();
    void refresh(const std::vector<core::ContentId>& objects);
    /** Replaces the rows of an object's group; false when that is not enough. */
    [[nodiscard]] bool refreshRows(const core::ContentId& object);
    [[nodiscard]] Listing listingOf(const core::ContentId& object) const;
    void recount();
    [[nodiscard]] QVariant problemData(const Group& group, const Row& row, int role) const;
    [[nodiscard]] QVariant unlistedData(const Group& group, int role) const;
    /** Of the project or of a library; none for the project itself and for what is gone. */
    [[nodiscard]] const core::content::ContentObject* objectOf(const Group& group) const;
    [[nodiscard]] QString titleOf(const Group& group) const;
    [[nodiscard]] QIcon iconOf(const Group& group) const;

    shell::DeskContext m_desk;
    std::vector<ProblemSource*> m_sources;
    std::vector<core::ContentId> m_objects;
    /** Objects with problems to show, in order. */
    std::vector<std::unique_ptr<Group>> m_groups;
    QSet<QString> m_hidden;
    QHash<QString, int> m_counts;
};

} // namespace tw::desktop::problems
