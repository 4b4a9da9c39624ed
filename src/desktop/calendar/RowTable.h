#pragma once

#include "desktop/shell/DeskContext.h"

#include <QStringList>
#include <QVariantList>
#include <QWidget>

class QPushButton;
class QTableWidget;

namespace tw::desktop::calendar {

/** A short table that is typed into, with buttons beside it that add, move and remove rows. */
class RowTable final : public QWidget
{
    Q_OBJECT

public:
    /** `newRow` is what a row begins with: texts, numbers, or yes and no, by column. The title is for screen
     * readers. */
    RowTable(
        const shell::DeskContext& desk, const QString& title, const QStringList& columns,
        const QVariantList& newRow, QWidget* parent);

    /** Values as those of a new row. */
    void addRow(const QVariantList& values);
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] QVariant value(int row, int column) const;

    [[nodiscard]] QTableWidget& table() { return *m_table; }

signals:
    void edited();

private:
    void addNewRow();
    void moveCurrent(int step);
    void removeCurrent();
    void refresh();

    QTableWidget* m_table;
    const QVariantList m_newRow;
    QPushButton* m_up;
    QPushButton* m_down;
    QPushButton* m_remove;
};

} // namespace tw::desktop::calendar
