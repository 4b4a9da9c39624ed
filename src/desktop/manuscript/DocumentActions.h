#pragma once

#include "core/document/Document.h"
#include "desktop/icons/Icon.h"
#include "desktop/shell/DeskContext.h"

#include <QKeySequence>
#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace tw::desktop::manuscript {

/** A list or tree of documents that the actions work on. Asked only while the widget lives. */
struct DocumentList
{
    QPointer<QWidget> widget;
    /** What the list is of; null for the whole manuscript. New documents come under it when nothing is
     * current. */
    core::ContentId rootId;
    /** Null for none. */
    std::function<core::ContentId()> current;
    /** In reading order. */
    std::function<std::vector<core::ContentId>()> selected;
    /** Lets the user name a document that was just added, or that is there. */
    std::function<void(const core::ContentId&)> rename;
};

/**
 * What is done with documents in the lists that show them: adding, renaming, moving, removing, status. One
 * set of actions for the tree, the corkboard and the outline: they work on the list that has the keyboard,
 * else on the first one.
 */
class DocumentActions final : public QObject
{
    Q_OBJECT

public:
    DocumentActions(const shell::DeskContext& desk, QObject* parent);

    /** Gives the list the keys of the actions and a context menu. */
    void attach(DocumentList list);
    /** Before what the list's functions ask goes away, if the widget lives on for a while. */
    void detach(const QWidget* widget);

    /** Ways to add a document. Their keys work in the whole window. */
    [[nodiscard]] const QList<QAction*>& insertActions() const { return m_insertActions; }
    /** Rename, move, remove. Their keys work while one of the lists has the keyboard. */
    [[nodiscard]] const QList<QAction*>& editActions() const { return m_editActions; }

private:
    enum class Place
    {
        AfterCurrent,
        InsideCurrent,
    };

    QAction* makeAction(
        const QString& name, icons::Icon icon, const QString& text, const QKeySequence& keys,
        std::function<void()> handler);
    void makeInsertActions();
    void makeEditActions();
    [[nodiscard]] const DocumentList* activeList() const;
    [[nodiscard]] core::ContentId current() const;
    /** Says the refusal, with the title in its place, when the document is locked. */
    bool refuseLocked(const core::ContentId& id, const QString& refusal);
    void addNew(core::document::DocumentKind kind, Place place, const QString& title);
    void removeSelected();
    void fillStatusMenu(QMenu& menu);
    void setStatus(const QString& status);
    void showContextMenu(QWidget* view, const QPoint& position);
    void refresh();

    shell::DeskContext m_desk;
    std::vector<DocumentList> m_lists;
    QList<QAction*> m_insertActions;
    QList<QAction*> m_editActions;
};

} // namespace tw::desktop::manuscript
