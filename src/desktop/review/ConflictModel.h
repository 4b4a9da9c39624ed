#pragma once

#include "app/persistence/merge/ProjectMerge.h"
#include "desktop/icons/IconSet.h"
#include "desktop/review/FileTitles.h"

#include <QAbstractTableModel>

#include <vector>

namespace tw::desktop::review {

/** The files over which the user has to choose, and what was chosen so far. */
class ConflictModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        FileColumn,
        ResolutionColumn,
        ColumnCount,
    };

    /** The merge must outlive the model. Where paragraphs can be brought together, that is chosen already. */
    ConflictModel(const app::persistence::ProjectMerge& merge, const icons::IconSet& icons, QObject* parent);

    [[nodiscard]] const app::persistence::FileMerge& file(int row) const { return *m_rows[at(row)].file; }
    [[nodiscard]] app::persistence::Resolution resolution(int row) const
    {
        return m_rows[at(row)].resolution;
    }
    [[nodiscard]] bool isDecided() const;
    /** Ignored where the choice is not offered for the file. */
    void choose(int row, app::persistence::Resolution resolution);

    /** What a choice reads as for one file; empty when it is not offered. */
    [[nodiscard]] static QString choiceText(
        const app::persistence::FileMerge& file, app::persistence::Resolution resolution);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void chosen();

private:
    struct Row
    {
        const app::persistence::FileMerge* file;
        FileTitle title;
        app::persistence::Resolution resolution;
    };

    static std::size_t at(int row) { return static_cast<std::size_t>(row); }

    const icons::IconSet& m_icons;
    std::vector<Row> m_rows;
};

} // namespace tw::desktop::review
