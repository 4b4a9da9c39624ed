#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <optional>

class QKeySequenceEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class QVBoxLayout;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::settings {

class Shortcuts;

/** Every action of the menus with its keys: search, change, back to what it was. Takes effect at once. */
class KeysPage final : public QWidget
{
    Q_OBJECT

public:
    KeysPage(const shell::DeskContext& desk, Shortcuts& shortcuts, QWidget* parent);

private:
    void addTable(QVBoxLayout& layout);
    void addEditor(QVBoxLayout& layout);
    void addResets(QVBoxLayout& layout);
    [[nodiscard]] std::optional<std::size_t> current() const;
    void showCurrent();
    void checkKeys();
    void assign();

    Shortcuts& m_shortcuts;
    QSortFilterProxyModel* m_rows;
    QTableView* m_table;
    QKeySequenceEdit* m_keys;
    QPushButton* m_assign = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_reset = nullptr;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::settings
