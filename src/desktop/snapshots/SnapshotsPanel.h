#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/icons/Icon.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <functional>
#include <optional>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QStackedWidget;

namespace tw::core::document {
class Document;
}

namespace tw::desktop::snapshots {

class DifferenceView;
class SnapshotModel;

/** The snapshots and variants of the document that is selected: take, compare, bring back, switch. */
class SnapshotsPanel final : public QWidget
{
    Q_OBJECT

public:
    SnapshotsPanel(const shell::DeskContext& desk, QWidget* parent);

    /** For the menu: takes a snapshot of the document that is selected. */
    [[nodiscard]] QAction* takeAction() const { return m_take; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QAction* makeAction(icons::Icon icon, const QString& text, std::function<void()> handler);
    void makeActions();
    void buildLayout();
    [[nodiscard]] QWidget* makeVariantRow();
    [[nodiscard]] QWidget* makeTakeRow();
    void take();
    void restore();
    void remove();
    void nameVariant(const QString& present);
    void followChanges(const core::project::ProjectChanges& changes);
    void showDocument();
    void showVariants();
    void refreshOthers();
    void refreshComparison();
    void showContextMenu(const QPoint& place);
    [[nodiscard]] const core::document::Document* document() const;
    [[nodiscard]] bool canEdit() const;
    /** The snapshot that is selected; none for the present text. */
    [[nodiscard]] std::optional<std::size_t> selected() const;
    /** What a row of the list says, as Markdown. */
    [[nodiscard]] QString textOf(std::optional<std::size_t> snapshot) const;

    shell::DeskContext m_desk;
    SnapshotModel* m_model;
    QLineEdit* m_label;
    QComboBox* m_variant;
    QListView* m_list;
    QComboBox* m_other;
    DifferenceView* m_difference;
    QStackedWidget* m_stack;
    QLabel* m_hint;
    QAction* m_take = nullptr;
    QAction* m_restore = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_addVariant = nullptr;
    QAction* m_renameVariant = nullptr;
    QAction* m_removeVariant = nullptr;
};

} // namespace tw::desktop::snapshots
