#pragma once

#include "app/codex/CategoryTwins.h"
#include "app/codex/PropertyMigration.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace tw::desktop::codex {

/** What can be put in order among the properties and categories of the codex. */
struct PropertyCleanUp
{
    std::vector<app::codex::PropertyMove> moves;
    std::vector<app::codex::CategoryTwins> twins;
    /** Of both kinds, what would be in order but for entities that are locked. */
    qsizetype heldBack = 0;
};

[[nodiscard]] PropertyCleanUp planPropertyCleanUp(const core::project::Project& project);

/** Shows what can be put in order and asks which of it is to be. Changes nothing by itself. */
class PropertyCleanUpDialog final : public QDialog
{
    Q_OBJECT

public:
    PropertyCleanUpDialog(const shell::DeskContext& desk, PropertyCleanUp plan, QWidget* parent);

    /** What is ticked, which at first is everything. */
    [[nodiscard]] PropertyCleanUp chosen() const;

private:
    void fillTree(const core::project::Project& project);
    QTreeWidgetItem* addGroup(const QString& title);
    void addRow(QTreeWidgetItem& group, const QStringList& columns);
    void refresh();

    const PropertyCleanUp m_plan;
    QTreeWidget* m_tree;
    /** One row for each move and each group of twins; null when there are none of them. */
    QTreeWidgetItem* m_moves = nullptr;
    QTreeWidgetItem* m_twins = nullptr;
    QPushButton* m_apply = nullptr;
};

/** Asks, backs the project up, and puts in order what was ticked, as one step; says what came of it. */
void cleanUpProperties(const shell::DeskContext& desk, QWidget* parent);

} // namespace tw::desktop::codex
