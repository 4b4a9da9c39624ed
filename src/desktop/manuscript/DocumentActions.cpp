#include "desktop/manuscript/DocumentActions.h"

#include "core/document/DocumentCommands.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/manuscript/StatusColors.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QMenu>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;
using icons::Icon;

DocumentActions::DocumentActions(const shell::DeskContext& desk, QObject* parent)
    : QObject(parent)
    , m_desk(desk)
{
    makeInsertActions();
    makeEditActions();
    connect(&desk.session, &shell::ProjectSession::changed, this, &DocumentActions::refresh);
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &DocumentActions::refresh);
    connect(qApp, &QApplication::focusChanged, this, &DocumentActions::refresh);
    refresh();
}

void DocumentActions::attach(DocumentList list)
{
    QWidget* const widget = list.widget;
    widget->addActions(m_editActions);
    widget->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(widget, &QWidget::customContextMenuRequested, this, [this, widget](const QPoint& position) {
        showContextMenu(widget, position);
    });
    std::erase_if(m_lists, [](const DocumentList& known) { return known.widget.isNull(); });
    m_lists.push_back(std::move(list));
    refresh();
}

void DocumentActions::detach(const QWidget* widget)
{
    std::erase_if(m_lists, [widget](const DocumentList& known) { return known.widget == widget; });
}

QAction* DocumentActions::makeAction(
    const QString& name, Icon icon, const QString& text, const QKeySequence& keys,
    std::function<void()> handler)
{
    auto* const action = new QAction(m_desk.icons.icon(icon), text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, std::move(handler));
    return action;
}

void DocumentActions::makeInsertActions()
{
    const auto add = [this](
                         const QString& name, Icon icon, const QString& text, const QKeySequence& keys,
                         DocumentKind kind, Place place, const QString& title) {
        m_insertActions.append(makeAction(name, icon, text, keys, [=, this] { addNew(kind, place, title); }));
    };
    add(u"insert.document"_s, Icon::Document, tr("New &Document"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N), DocumentKind::Prose, Place::AfterCurrent,
        tr("New document"));
    add(u"insert.documentInside"_s, Icon::Add, tr("New Document &Inside"),
        QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_N), DocumentKind::Prose, Place::InsideCurrent,
        tr("New document"));
    add(u"insert.screenplay"_s, Icon::Screenplay, tr("New &Screenplay"), {}, DocumentKind::Screenplay,
        Place::AfterCurrent, tr("New screenplay"));
    add(u"insert.note"_s, Icon::Note, tr("New N&ote"), {}, DocumentKind::Note, Place::AfterCurrent,
        tr("New note"));
}

void DocumentActions::makeEditActions()
{
    const auto add = [this](
                         const QString& name, Icon icon, const QString& text, const QKeySequence& keys,
                         std::function<void()> handler) {
        QAction* const action = makeAction(name, icon, text, keys, std::move(handler));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_editActions.append(action);
    };
    const auto step = [this](MoveDirection direction) {
        return [this, direction] {
            if (!refuseLocked(current(), tr("“%1” is locked. Unlock it in the inspector to move it.")))
                stepDocument(m_desk.session, current(), direction);
        };
    };
    add(u"manuscript.rename"_s, Icon::Rename, tr("Re&name Document"), QKeySequence(Qt::Key_F2), [this] {
        const ContentId id = current();
        if (!id.isNull() && !refuseLocked(id, tr("“%1” is locked. Unlock it in the inspector to rename it.")))
            activeList()->rename(id);
    });
    add(u"manuscript.moveUp"_s, Icon::MoveUp, tr("Move Document &Up"), QKeySequence(Qt::CTRL | Qt::Key_Up),
        step(MoveDirection::Up));
    add(u"manuscript.moveDown"_s, Icon::MoveDown, tr("Move Document Do&wn"),
        QKeySequence(Qt::CTRL | Qt::Key_Down), step(MoveDirection::Down));
    add(u"manuscript.moveIn"_s, Icon::ChevronRight, tr("Move Document &In"),
        QKeySequence(Qt::CTRL | Qt::Key_Right), step(MoveDirection::In));
    add(u"manuscript.moveOut"_s, Icon::ChevronLeft, tr("Move Document &Out"),
        QKeySequence(Qt::CTRL | Qt::Key_Left), step(MoveDirection::Out));
    add(u"manuscript.remove"_s, Icon::Remove, tr("&Remove Document"), QKeySequence(Qt::Key_Delete),
        [this] { removeSelected(); });
}

const DocumentList* DocumentActions::activeList() const
{
    const QWidget* const focused = QApplication::focusWidget();
    const auto hasFocus = [focused](const DocumentList& list) {
        return list.widget && focused && (list.widget == focused || list.widget->isAncestorOf(focused));
    };
    const auto active = std::ranges::find_if(m_lists, hasFocus);
    if (active != m_lists.end())
        return &*active;
    return !m_lists.empty() && m_lists.front().widget ? &m_lists.front() : nullptr;
}

ContentId DocumentActions::current() const
{
    const DocumentList* const list = activeList();
    return list ? list->current() : ContentId();
}

bool DocumentActions::refuseLocked(const ContentId& id, const QString& refusal)
{
    const auto* const object = m_desk.session.project().find(id);
    if (!object || !object->isLocked())
        return false;
    m_desk.navigator.say(refusal.arg(shell::objectTitle(*object)));
    return true;
}

void DocumentActions::addNew(DocumentKind kind, Place place, const QString& title)
{
    const DocumentList* const list = activeList();
    if (!list)
        return;
    const ContentId here = list->current();
    DocumentPlace target = placeAfter(m_desk.session, here);
    if (here.isNull())
        target = {list->rootId, {}};
    else if (place == Place::InsideCurrent)
        target = {here, {}};
    const ContentId added = addDocument(m_desk.session, kind, title, target);
    if (list == &m_lists.front())
        m_desk.navigator.open(added);
    list->widget->setFocus();
    list->rename(added);
}

void DocumentActions::removeSelected()
{
    const DocumentList* const list = activeList();
    const std::vector<ContentId> ids = list ? list->selected() : std::vector<ContentId>();
    if (ids.empty())
        return;
    if (refuseLocked(
            firstLocked(m_desk.session, ids), tr("“%1” is locked. Unlock it in the inspector to remove it.")))
        return;
    const QString first = shell::objectTitle(*m_desk.session.project().find(ids.front()));
    const auto removed = static_cast<int>(removeDocuments(m_desk.session, ids));
    if (removed == 1)
        m_desk.navigator.say(tr("Removed “%1”. Undo brings it back.").arg(first));
    else if (removed > 1)
        m_desk.navigator.say(
            tr("Removed %n documents with all that was in them. Undo brings them back.", "", removed));
}

void DocumentActions::fillStatusMenu(QMenu& menu)
{
    const auto* const document = m_desk.session.project().findAs<Document>(current());
    const QString present = document ? document->status() : QString();
    const auto add = [&](const QString& text, const QString& status) {
        QAction* const action = menu.addAction(text, this, [this, status] { setStatus(status); });
        action->setCheckable(true);
        action->setChecked(status == present);
        action->setIcon(statusIcon(m_desk.themes.theme(), status));
    };
    for (const QString& status : orderedStatuses(m_desk.session.project()))
        add(status, status);
    menu.addSeparator();
    add(tr("No Status"), {});
}

void DocumentActions::setStatus(const QString& status)
{
    const DocumentList* const list = activeList();
    if (!list)
        return;
    const auto step = m_desk.session.macro(tr("Set status"));
    auto& project = m_desk.session.projectForCommands();
    for (const ContentId& id : list->selected()) {
        auto* const document = project.findAsForEdit<Document>(id);
        if (!document || document->status() == status)
            continue;
        if (!refuseLocked(id, tr("“%1” is locked. Unlock it in the inspector to set its status.")))
            m_desk.session.apply(
                std::make_unique<core::document::SetDocumentStatusCommand>(*document, status));
    }
}

void DocumentActions::showContextMenu(QWidget* view, const QPoint& position)
{
    view->setFocus();
    QMenu menu(view);
    menu.addActions(m_insertActions);
    if (!current().isNull()) {
        menu.addSeparator();
        menu.addActions(m_editActions);
        menu.addSeparator();
        fillStatusMenu(*menu.addMenu(m_desk.icons.icon(Icon::Target), tr("S&tatus")));
    }
    const auto* const area = qobject_cast<QAbstractScrollArea*>(view);
    menu.exec((area ? area->viewport() : view)->mapToGlobal(position));
}

void DocumentActions::refresh()
{
    const bool hasCurrent = !current().isNull();
    for (QAction* const action : m_editActions)
        action->setEnabled(hasCurrent);
    const bool isOpen = m_desk.session.isProjectOpen();
    for (QAction* const action : m_insertActions)
        action->setEnabled(isOpen);
}

} // namespace tw::desktop::manuscript
