#pragma once

#include "app/persistence/pack/ContentPack.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <set>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::project {

/** A content pack to be written. */
struct PackExport
{
    app::persistence::PackInfo info;
    /** As the user ticked them; what they need comes along. */
    std::set<core::CategoryId> selected;
};

/** Asks which categories go into a content pack and what the pack tells about itself. Writes nothing. */
class ExportPackDialog final : public QDialog
{
    Q_OBJECT

public:
    ExportPackDialog(const shell::DeskContext& desk, const PackExport& start, QWidget* parent);

    [[nodiscard]] PackExport pack() const;

private:
    void fillTree(const std::set<core::CategoryId>& selected);
    void addCategories(
        const core::CategoryId& parent, QTreeWidgetItem& under, const std::set<core::CategoryId>& selected);
    void addCategory(
        const core::CategoryId& id, QTreeWidgetItem& under, const std::set<core::CategoryId>& selected);
    void refresh();

    shell::DeskContext m_desk;
    QTreeWidget* m_tree;
    QLineEdit* m_name;
    QLineEdit* m_description;
    QLineEdit* m_author;
    QLineEdit* m_version;
    fields::NoteLabel* m_note;
    QPushButton* m_export = nullptr;
};

} // namespace tw::desktop::project
