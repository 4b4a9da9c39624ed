#include "desktop/manuscript/ManuscriptPanel.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/ManuscriptEdits.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/PanelHeader.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/NavigatorTree.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::DocumentKind;
using icons::Icon;

ManuscriptPanel::ManuscriptPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_model(new ManuscriptModel(desk, this))
    , m_header(new shell::PanelHeader(desk.icons, tr("Filter the manuscript"), this))
    , m_tree(new trees::NavigatorTree(desk.themes, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Manuscript"));
    m_tree->setSource(*m_model);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    makeInsertActions();
    makeEditActions();

    connect(m_header, &shell::PanelHeader::filterChanged, m_tree, &trees::NavigatorTree::setFilter);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &ManuscriptPanel::showContextMenu);
    connect(m_tree, &trees::NavigatorTree::sourceActivated, this, [this](const QModelIndex& index) {
        m_desk.navigator.open(m_model->idAt(index));
    });
    connect(m_tree, &trees::NavigatorTree::currentSourceChanged, this, [this](const QModelIndex& index) {
        refreshActions();
        if (index.isValid())
            m_desk.navigator.setCurrent(m_model->idAt(index));
    });
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &ManuscriptPanel::showCurrent);
    connect(&desk.session, &shell::ProjectSession::changed, this, &ManuscriptPanel::refreshActions);
    refreshActions();
}

ManuscriptPanel::~ManuscriptPanel()
{
    // The tree goes after this; a name that is still being edited in it is committed on its way out.
    m_tree->disconnect(this);
    m_desk.session.disconnect(this);
}

QAction* ManuscriptPanel::makeAction(
    const QString& name, Icon icon, const QString& text, const QKeySequence& keys)
{
    auto* const action = new QAction(m_desk.icons.icon(icon), text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    return action;
}

void ManuscriptPanel::makeInsertActions()
{
    const auto add = [this](
                         const QString& name, Icon icon, const QString& text, const QKeySequence& keys,
                         auto kind, auto place, const QString& title) {
        QAction* const action = makeAction(name, icon, text, keys);
        connect(action, &QAction::triggered, this, [=, this] { addNew(kind, place, title); });
        m_insertActions.append(action);
        return action;
    };
    QAction* const document =
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

    auto* const headerAdd = new QAction(m_desk.icons.icon(Icon::Add), tr("New document"), this);
    connect(headerAdd, &QAction::triggered, document, &QAction::trigger);
    m_header->addAction(headerAdd);
    m_header->menu().addActions(m_insertActions);
}

void ManuscriptPanel::makeEditActions()
{
    const auto add =
        [this](const QString& name, Icon icon, const QString& text, const QKeySequence& keys, auto handler) {
            QAction* const action = makeAction(name, icon, text, keys);
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            connect(action, &QAction::triggered, this, handler);
            m_tree->addAction(action);
            m_editActions.append(action);
        };
    const auto step = [this](MoveDirection direction) {
        return [this, direction] {
            stepDocument(m_desk.session, m_model->idAt(m_tree->currentSource()), direction);
        };
    };
    add(u"manuscript.rename"_s, Icon::Rename, tr("Re&name Document"), QKeySequence(Qt::Key_F2),
        [this] { m_tree->renameSource(m_tree->currentSource()); });
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
    m_header->menu().addSeparator();
    m_header->menu().addActions(m_editActions);
}

void ManuscriptPanel::addNew(DocumentKind kind, Place place, const QString& title)
{
    const ContentId current = m_model->idAt(m_tree->currentSource());
    const DocumentPlace target = place == Place::InsideCurrent && !current.isNull()
                                     ? DocumentPlace{current, {}}
                                     : placeAfter(m_desk.session, current);
    const ContentId added = addDocument(m_desk.session, kind, title, target);
    m_desk.navigator.open(added);
    m_tree->setFocus();
    m_tree->renameSource(m_model->indexOf(added));
}

void ManuscriptPanel::removeSelected()
{
    std::vector<ContentId> ids;
    for (const QModelIndex& index : m_tree->selectedSources())
        ids.push_back(m_model->idAt(index));
    if (ids.empty())
        return;
    if (const ContentId locked = firstLocked(m_desk.session, ids); !locked.isNull()) {
        const QString title = shell::objectTitle(*m_desk.session.project().find(locked));
        m_desk.navigator.say(tr("“%1” is locked. Unlock it in the inspector to remove it.").arg(title));
        return;
    }
    const QString first = m_tree->selectedSources().first().data().toString();
    const auto removed = static_cast<int>(removeDocuments(m_desk.session, ids));
    if (removed == 1)
        m_desk.navigator.say(tr("Removed “%1”. Undo brings it back.").arg(first));
    else if (removed > 1)
        m_desk.navigator.say(
            tr("Removed %n documents with all that was in them. Undo brings them back.", "", removed));
}

void ManuscriptPanel::showContextMenu(const QPoint& position)
{
    QMenu menu(this);
    menu.addActions(m_insertActions);
    menu.addSeparator();
    menu.addActions(m_editActions);
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

void ManuscriptPanel::showCurrent(const ContentId& id)
{
    if (const QModelIndex index = m_model->indexOf(id); !id.isNull() && index.isValid())
        m_tree->selectSource(index);
    else
        m_tree->clearCurrent();
    refreshActions();
}

void ManuscriptPanel::refreshActions()
{
    const bool hasCurrent = m_tree->currentSource().isValid();
    for (QAction* const action : m_editActions)
        action->setEnabled(hasCurrent);
    const bool isOpen = m_desk.session.isProjectOpen();
    for (QAction* const action : m_insertActions)
        action->setEnabled(isOpen);
    m_tree->setEmptyHint(
        isOpen ? tr("No documents here. Press + to write the first one.")
               : tr("Open a project, or begin one."));
}

} // namespace tw::desktop::manuscript
