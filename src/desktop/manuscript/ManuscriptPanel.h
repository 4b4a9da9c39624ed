#pragma once

#include "core/document/Document.h"
#include "desktop/icons/Icon.h"
#include "desktop/shell/DeskContext.h"

#include <QKeySequence>
#include <QWidget>

class QAction;

namespace tw::desktop::shell {
class PanelHeader;
}
namespace tw::desktop::trees {
class NavigatorTree;
}

namespace tw::desktop::manuscript {

class ManuscriptModel;

/** The navigator of the manuscript: the tree of documents and everything that is done with it. */
class ManuscriptPanel final : public QWidget
{
    Q_OBJECT

public:
    ManuscriptPanel(const shell::DeskContext& desk, QWidget* parent);
    ~ManuscriptPanel() override;

    /** For the Insert menu: ways to add a document. */
    [[nodiscard]] const QList<QAction*>& insertActions() const { return m_insertActions; }
    /** For the Edit menu: rename, move, remove. Their keys work while the tree has the focus. */
    [[nodiscard]] const QList<QAction*>& editActions() const { return m_editActions; }

    [[nodiscard]] trees::NavigatorTree& tree() { return *m_tree; }

private:
    enum class Place
    {
        AfterCurrent,
        InsideCurrent,
    };

    QAction* makeAction(const QString& name, icons::Icon icon, const QString& text, const QKeySequence& keys);
    void makeInsertActions();
    void makeEditActions();
    void addNew(core::document::DocumentKind kind, Place place, const QString& title);
    void removeSelected();
    void showContextMenu(const QPoint& position);
    void showCurrent(const core::ContentId& id);
    void refreshActions();

    shell::DeskContext m_desk;
    ManuscriptModel* m_model;
    shell::PanelHeader* m_header;
    trees::NavigatorTree* m_tree;
    QList<QAction*> m_insertActions;
    QList<QAction*> m_editActions;
};

} // namespace tw::desktop::manuscript
