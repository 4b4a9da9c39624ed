#include "desktop/codex/CodexPanel.h"

#include "core/entity/Entity.h"
#include "desktop/codex/CategoryPropertiesDialog.h"
#include "desktop/codex/CodexModel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/PanelHeader.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"
#include "desktop/trees/NavigatorTree.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using namespace Qt::Literals::StringLiterals;
using icons::Icon;

CodexPanel::CodexPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_model(new CodexModel(desk, this))
    , m_header(new shell::PanelHeader(desk.icons, tr("Filter the codex"), this))
    , m_tree(new trees::NavigatorTree(desk, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Codex"));
    m_tree->setSource(*m_model);
    m_tree->setEmptyHint(
        tr("Nothing of the world is here. Press + to add its first person, place or thing."));
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    makeActions();

    connect(m_header, &shell::PanelHeader::filterChanged, m_tree, &trees::NavigatorTree::setFilter);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &CodexPanel::showContextMenu);
    connect(m_tree, &trees::NavigatorTree::sourceActivated, this, [this](const QModelIndex& index) {
        if (const CodexItem item = m_model->itemAt(index); item.isEntity())
            m_desk.navigator.open(item.entityId);
    });
    connect(m_tree, &trees::NavigatorTree::currentSourceChanged, this, [this](const QModelIndex& index) {
        refreshActions();
        if (const CodexItem item = m_model->itemAt(index); item.isEntity())
            m_desk.navigator.setCurrent(item.entityId);
    });
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &CodexPanel::showCurrent);
    connect(&desk.navigator, &shell::Navigator::audienceChanged, this, [this](const QString& audience) {
        m_tree->setWithheld(shell::withheldFrom(m_desk.session, audience, [this](const QModelIndex& index) {
            return m_model->itemAt(index).entityId;
        }));
    });
    connect(&desk.session, &shell::ProjectSession::changed, this, &CodexPanel::refreshActions);
    refreshActions();
}

CodexPanel::~CodexPanel()
{
    // The tree goes after this; a name that is still being edited in it is committed on its way out.
    m_tree->disconnect(this);
    m_desk.session.disconnect(this);
    m_desk.navigator.disconnect(this);
}

template <class Handler>
QAction* CodexPanel::addMenuAction(
    const QString& name, Icon icon, const QString& text, const QKeySequence& keys, KeyScope scope,
    Handler handler)
{
    auto* const action = new QAction(m_desk.icons.icon(icon), text, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, handler);
    if (scope == KeyScope::Tree) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        m_tree->addAction(action);
    }
    m_menuActions.append(action);
    return action;
}

void CodexPanel::addSeparator()
{
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    m_menuActions.append(separator);
}

void CodexPanel::makeActions()
{
    m_addEntity = addMenuAction(
        u"codex.entity"_s, Icon::Entity, tr("New &Entity"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
        KeyScope::Window, [this] { addNewEntity(); });
    m_addCategory =
        addMenuAction(u"codex.category"_s, Icon::Category, tr("New &Category"), {}, KeyScope::Window, [this] {
            addNewCategory(placeBehind(m_desk.session, currentCategory()));
        });
    m_addUnder = addMenuAction(
        u"codex.categoryBeneath"_s, Icon::CategoryUnderEntity, tr("New Category &Beneath"), {},
        KeyScope::Window, [this] {
            const CodexItem item = currentItem();
            addNewCategory({{item.categoryId, item.entityId}, {}});
        });
    addSeparator();
    m_rename = addMenuAction(
        u"codex.rename"_s, Icon::Rename, tr("Re&name"), QKeySequence(Qt::Key_F2), KeyScope::Tree,
        [this] { m_tree->renameSource(m_tree->currentSource()); });
    m_duplicate = addMenuAction(
        u"codex.duplicate"_s, Icon::Copy, tr("&Duplicate Entity"), {}, KeyScope::Window,
        [this] { duplicateCurrent(); });
    m_properties = addMenuAction(
        u"codex.properties"_s, Icon::Settings, tr("Edit &Properties…"), {}, KeyScope::Window,
        [this] { editProperties(); });
    addSeparator();
    m_remove = addMenuAction(
        u"codex.remove"_s, Icon::Remove, tr("&Remove"), QKeySequence(Qt::Key_Delete), KeyScope::Tree,
        [this] { removeSelected(); });

    auto* const headerAdd = new QAction(m_desk.icons.icon(Icon::Add), tr("New entity"), this);
    connect(headerAdd, &QAction::triggered, m_addEntity, &QAction::trigger);
    m_header->addAction(headerAdd);
    m_header->menu().addActions(m_menuActions);
}

CodexItem CodexPanel::currentItem() const
{
    return m_model->itemAt(m_tree->currentSource());
}

CategoryId CodexPanel::currentCategory() const
{
    const CodexItem item = currentItem();
    if (const auto* const entity = m_desk.session.project().findAs<Entity>(item.entityId))
        return entity->categoryId();
    return item.categoryId;
}

void CodexPanel::addNewEntity()
{
    const ContentId added = addEntity(m_desk.session, currentCategory(), tr("New entity"));
    m_desk.navigator.open(added);
    startRenaming(CodexItem::entity(added));
}

void CodexPanel::addNewCategory(const CategoryPlace& place)
{
    startRenaming(CodexItem::category(addCategory(m_desk.session, place, tr("New category"))));
}

void CodexPanel::startRenaming(const CodexItem& item)
{
    m_tree->setFocus();
    m_tree->renameSource(m_model->indexOf(item));
}

void CodexPanel::duplicateCurrent()
{
    const ContentId copy = duplicateEntity(m_desk.session, currentItem().entityId);
    if (copy.isNull())
        return;
    m_desk.navigator.open(copy);
    startRenaming(CodexItem::entity(copy));
}

void CodexPanel::editProperties()
{
    editCategoryProperties(m_desk, currentItem().categoryId, this);
}

void CodexPanel::removeSelected()
{
    const auto& project = m_desk.session.project();
    CodexSelection selection;
    QString firstName;
    bool isLockedAmongThem = false;
    for (const QModelIndex& index : m_tree->selectedSources()) {
        const CodexItem item = m_model->itemAt(index);
        const auto* const entity = project.findAs<Entity>(item.entityId);
        isLockedAmongThem = isLockedAmongThem || (entity && entity->isLocked());
        if (item.isEntity())
            selection.entities.push_back(item.entityId);
        else if (item.isCategory())
            selection.categories.push_back(item.categoryId);
        if (firstName.isEmpty())
            firstName = index.data().toString();
    }
    if (isLockedAmongThem) {
        m_desk.navigator.say(tr("Locked entities stay. Unlock them in the inspector to remove them."));
        return;
    }
    if (selection.entities.empty() && selection.categories.empty())
        return;
    if (!isRemovalWanted(selection))
        return;
    const QString categoryText =
        selection.categories.empty() ? QString() : categoryRemovalText(selection.categories.front());
    removeFromCodex(m_desk.session, selection);
    if (selection.entities.empty() && selection.categories.size() == 1)
        m_desk.navigator.say(categoryText);
    else
        sayRemoved(selection, firstName);
}

bool CodexPanel::isRemovalWanted(const CodexSelection& selection)
{
    std::vector<CategoryId> filled = selection.categories;
    std::erase_if(filled, [this](const CategoryId& id) {
        return m_model->rowCount(m_model->indexOf(CodexItem::category(id))) == 0;
    });
    if (filled.empty())
        return true;
    const QString text =
        filled.size() == 1
            ? tr("Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.")
                  .arg(m_desk.session.project().taxonomy().category(filled.front())->name)
            : tr("Delete %n categories? Their entities move up to the parent. Edit › Undo will restore them.",
                 nullptr, static_cast<int>(filled.size()));
    return shell::ask(this, {tr("Delete Category"), text, {{tr("Delete")}}}).has_value();
}

void CodexPanel::sayRemoved(const CodexSelection& removed, const QString& firstName)
{
    const auto count = static_cast<int>(removed.entities.size() + removed.categories.size());
    if (count == 1)
        m_desk.navigator.say(tr("Removed “%1”. Undo brings it back.").arg(firstName));
    else
        m_desk.navigator.say(tr("Removed %n things from the codex. Undo brings them back.", "", count));
}

QString CodexPanel::categoryRemovalText(const CategoryId& id) const
{
    const auto& taxonomy = m_desk.session.project().taxonomy();
    const auto* const category = taxonomy.category(id);
    const QModelIndex index = m_model->indexOf(CodexItem::category(id));
    const int count = m_model->rowCount(index);
    if (count == 0)
        return tr("Removed the category “%1”. Undo brings it back.").arg(category->name);
    // Entities stand behind the subcategories.
    if (m_model->itemAt(m_model->index(count - 1, 0, index)).isCategory()) {
        return tr("Removed the category “%1”. Its subcategories moved up. Undo brings it back.")
            .arg(category->name);
    }
    if (const auto* const parent = taxonomy.category(category->parentId)) {
        return tr("Removed the category “%1”. Its entities moved up to “%2”. Undo brings it back.")
            .arg(category->name, parent->name);
    }
    return tr("Removed the category “%1”. Its entities have no category now. Undo brings it back.")
        .arg(category->name);
}

void CodexPanel::showContextMenu(const QPoint& position)
{
    QMenu menu(this);
    menu.addActions(m_menuActions);
    menu.exec(m_tree->viewport()->mapToGlobal(position));
}

void CodexPanel::showCurrent(const ContentId& id)
{
    if (const QModelIndex index = m_model->indexOf(CodexItem::entity(id)); !id.isNull() && index.isValid())
        m_tree->selectSource(index);
    else if (!id.isNull())
        m_tree->clearCurrent();
    refreshActions();
}

void CodexPanel::refreshActions()
{
    const bool isOpen = m_desk.session.isProjectOpen();
    const QModelIndex current = m_tree->currentSource();
    const CodexItem item = currentItem();
    m_addEntity->setEnabled(isOpen);
    m_addCategory->setEnabled(isOpen);
    m_addUnder->setEnabled(item.isCategory() || item.isEntity());
    m_rename->setEnabled(m_model->flags(current).testFlag(Qt::ItemIsEditable));
    m_duplicate->setEnabled(item.isEntity());
    m_properties->setEnabled(item.isCategory());
    m_remove->setEnabled(item.isCategory() || item.isEntity());
}

} // namespace tw::desktop::codex
