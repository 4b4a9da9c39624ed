#pragma once

#include "desktop/problems/ProblemSource.h"
#include "desktop/shell/DeskContext.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QAction;
class QLabel;

namespace tw::desktop::shell {
class PanelHeader;
}
namespace tw::desktop::trees {
class NavigatorTree;
}

namespace tw::desktop::problems {

class ProblemsModel;

/**
 * What is wrong in the open document or entity, or everywhere, by object: go there, take a suggestion, ignore
 * it. Looks at nothing while it is hidden.
 */
class ProblemsPanel final : public QWidget
{
    Q_OBJECT

public:
    /** The sources must outlive the panel. */
    ProblemsPanel(
        const shell::DeskContext& desk, const std::vector<ProblemSource*>& sources, QWidget* parent);

    /** The object whose page is in front; null for none. */
    void setObject(const core::ContentId& object);
    /** Lists everything, from now on. */
    void showWholeManuscript();
    /** The model, for tests that look what the panel lists. */
    [[nodiscard]] ProblemsModel& model() { return *m_model; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeActions();
    void fillCategoryMenu();
    void refreshObjects();
    [[nodiscard]] std::vector<core::ContentId> wantedObjects() const;
    void refreshTexts();
    void activate(const QModelIndex& index);
    void showContextMenu(const QPoint& place);

    shell::DeskContext m_desk;
    std::vector<ProblemSource*> m_sources;
    ProblemsModel* m_model;
    shell::PanelHeader* m_header;
    trees::NavigatorTree* m_tree;
    QLabel* m_summary;
    QAction* m_wholeManuscript = nullptr;
    core::ContentId m_object;
    QTimer m_treeRest;
};

} // namespace tw::desktop::problems
