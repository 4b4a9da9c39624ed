#include "desktop/calendar/RowTable.h"

#include "desktop/icons/IconSet.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tw::desktop::calendar {

using icons::Icon;

namespace {

constexpr int leastLines = 7;

} // namespace

RowTable::RowTable(
    const shell::DeskContext& desk, const QString& title, const QStringList& columns,
    const QVariantList& newRow, QWidget* parent)
    : QWidget(parent)
    , m_table(new QTableWidget(0, static_cast<int>(columns.size()), this))
    , m_newRow(newRow)
    , m_up(new QPushButton(desk.icons.icon(Icon::MoveUp), tr("Move Up"), this))
    , m_down(new QPushButton(desk.icons.icon(Icon::MoveDown), tr("Move Down"), this))
    , m_remove(new QPushButton(desk.icons.icon(Icon::Remove), tr("Remove"), this))
{
    m_table->setAccessibleName(title);
    m_table->setHorizontalHeaderLabels(columns);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_table->verticalHeader()->hide();
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(
        QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
        QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_table->setMinimumHeight(fontMetrics().lineSpacing() * leastLines);
    auto* const add = new QPushButton(desk.icons.icon(Icon::Add), tr("Add"), this);
    auto* const buttons = new QVBoxLayout;
    for (QPushButton* const button : {add, m_up, m_down, m_remove}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, &RowTable::addNewRow);
    connect(m_up, &QPushButton::clicked, this, [this] { moveCurrent(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveCurrent(1); });
    connect(m_remove, &QPushButton::clicked, this, &RowTable::removeCurrent);
    connect(m_table, &QTableWidget::currentCellChanged, this, &RowTable::refresh);
    connect(m_table, &QTableWidget::itemChanged, this, &RowTable::edited);
    refresh();
}

void RowTable::addRow(const QVariantList& values)
{
    // Nobody is to look at half a row.
    const QSignalBlocker blocker(m_table);
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    for (int column = 0; column < m_table->columnCount(); ++column) {
        auto* const item = new QTableWidgetItem;
        const QVariant& value = values.at(column);
        if (value.typeId() == QMetaType::Bool) {
            item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsEditable);
            item->setCheckState(value.toBool() ? Qt::Checked : Qt::Unchecked);
        } else {
            item->setData(Qt::EditRole, value);
        }
        m_table->setItem(row, column, item);
    }
    refresh();
}

int RowTable::rowCount() const
{
    return m_table->rowCount();
}

QVariant RowTable::value(int row, int column) const
{
    const QTableWidgetItem& item = *m_table->item(row, column);
    const bool isSwitch = m_newRow.at(column).typeId() == QMetaType::Bool;
    return isSwitch ? QVariant(item.checkState() == Qt::Checked) : item.data(Qt::EditRole);
}

void RowTable::addNewRow()
{
    addRow(m_newRow);
    emit edited();
    m_table->setCurrentCell(m_table->rowCount() - 1, 0);
    m_table->setFocus();
    m_table->editItem(m_table->currentItem());
}

void RowTable::moveCurrent(int step)
{
    const int row = m_table->currentRow();
    const int column = m_table->currentColumn();
    const QSignalBlocker blocker(m_table);
    for (int each = 0; each < m_table->columnCount(); ++each) {
        QTableWidgetItem* const moved = m_table->takeItem(row, each);
        m_table->setItem(row, each, m_table->takeItem(row + step, each));
        m_table->setItem(row + step, each, moved);
    }
    m_table->setCurrentCell(row + step, column);
    refresh();
    emit edited();
}

void RowTable::removeCurrent()
{
    m_table->removeRow(m_table->currentRow());
    refresh();
    emit edited();
}

void RowTable::refresh()
{
    const int row = m_table->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_table->rowCount() - 1);
    m_remove->setEnabled(row >= 0);
}

} // namespace tw::desktop::calendar
