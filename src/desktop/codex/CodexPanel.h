#pragma once

#include "desktop/codex/CodexEdits.h"
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

namespace tw::desktop::codex {

struct CodexItem;
class CodexModel;

/** The navigator of the codex: the tree of categories and entities and everything that is done with it. */
class CodexPanel final : public QWidget
{
    Q_OBJECT

public:
    CodexPanel(const shell::DeskContext& desk, QWidget* parent);
    ~CodexPanel() override;

    /** For the Codex menu. Keys without a modifier work while the tree has the focus. */
    [[nodiscard]] const QList<QAction*>& menuActions() const { return m_menuActions; }

    [[nodiscard]] trees::NavigatorTree& tree() { return *m_tree; }
    [[nodiscard]] CodexModel& model() { return *m_model; }

private:
    enum class KeyScope
    {
        Window,
        Tree,
    };

    void makeActions();
    template <class Handler>
    QAction* addMenuAction(
        const QString& name, icons::Icon icon, const QString& text, const QKeySequence& keys, KeyScope scope,
        Handler handler);
    void addSeparator();

    [[nodiscard]] CodexItem currentItem() const;
    /** The category that the current row is, or is in; null for none. */
    [[nodiscard]] core::CategoryId currentCategory() const;
    void addNewEntity();
    void addNewCategory(const CategoryPlace& place);
    void duplicateCurrent();
    void editProperties();
    void removeSelected();
    /** Asks when categories go that hold something. */
    [[nodiscard]] bool isRemovalWanted(const CodexSelection& selection);
    void sayRemoved(const CodexSelection& removed, const QString& firstName);
    [[nodiscard]] QString categoryRemovalText(const core::CategoryId& id) const;
    void startRenaming(const CodexItem& item);
    void showContextMenu(const QPoint& position);
    void showCurrent(const core::ContentId& id);
    void refreshActions();

    shell::DeskContext m_desk;
    CodexModel* m_model;
    shell::PanelHeader* m_header;
    trees::NavigatorTree* m_tree;
    QList<QAction*> m_menuActions;
    QAction* m_addEntity = nullptr;
    QAction* m_addCategory = nullptr;
    QAction* m_addUnder = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_properties = nullptr;
    QAction* m_remove = nullptr;
};

} // namespace tw::desktop::codex
