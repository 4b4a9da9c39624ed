#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

namespace tw::desktop::shell {
class PanelHeader;
}
namespace tw::desktop::trees {
class NavigatorTree;
}

namespace tw::desktop::manuscript {

class DocumentActions;
class ManuscriptModel;

/** The navigator of the manuscript: the tree of documents and everything that is done with it. */
class ManuscriptPanel final : public QWidget
{
    Q_OBJECT

public:
    ManuscriptPanel(const shell::DeskContext& desk, QWidget* parent);
    ~ManuscriptPanel() override;

    /** Shared with whatever else lists documents. */
    [[nodiscard]] DocumentActions& actions() { return *m_actions; }
    [[nodiscard]] ManuscriptModel& model() { return *m_model; }
    [[nodiscard]] trees::NavigatorTree& tree() { return *m_tree; }

private:
    void attachActions();
    void showCurrent(const core::ContentId& id);
    void refreshHint();

    shell::DeskContext m_desk;
    DocumentActions* m_actions;
    ManuscriptModel* m_model;
    shell::PanelHeader* m_header;
    trees::NavigatorTree* m_tree;
};

} // namespace tw::desktop::manuscript
