#include "desktop/settings/KeysModel.h"

#include "desktop/settings/Shortcuts.h"

#include <QFont>

namespace tw::desktop::settings {

KeysModel::KeysModel(const Shortcuts& shortcuts, QObject* parent)
    : QAbstractTableModel(parent)
    , m_shortcuts(shortcuts)
{
    connect(&shortcuts, &Shortcuts::changed, this, [this] {
        if (rowCount() > 0)
            emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    });
}

int KeysModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shortcuts.all().size());
}

int KeysModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant KeysModel::data(const QModelIndex& index, int role) const
{
    const Shortcut& shortcut = m_shortcuts.all()[static_cast<std::size_t>(index.row())];
    if (role == Qt::FontRole && shortcut.isChanged()) {
        QFont font;
        font.setWeight(QFont::DemiBold);
        return font;
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Command:
        return shortcut.title;
    case Menu:
        return shortcut.menu;
    case Keys:
        return QKeySequence::listToString(shortcut.current, QKeySequence::NativeText);
    default:
        return {};
    }
}

QVariant KeysModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Command:
        return tr("Command");
    case Menu:
        return tr("Menu");
    case Keys:
        return tr("Keys");
    default:
        return {};
    }
}

} // namespace tw::desktop::settings
