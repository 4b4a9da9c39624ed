#pragma once

#include <QAbstractTableModel>

namespace tw::desktop::settings {

class Shortcuts;

/** The shortcuts in rows, in their order: command, menu, keys. Changed ones stand out. */
class KeysModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Command,
        Menu,
        Keys,
        ColumnCount,
    };

    /** The shortcuts must outlive the model. */
    KeysModel(const Shortcuts& shortcuts, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Shortcuts& m_shortcuts;
};

} // namespace tw::desktop::settings
