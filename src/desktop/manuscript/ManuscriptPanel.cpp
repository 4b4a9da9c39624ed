#include "desktop/manuscript/ManuscriptPanel.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/DocumentActions.h"
#include "desktop/manuscript/ManuscriptModel.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/PanelHeader.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/NavigatorTree.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>

namespace tw::desktop::manuscript {

using core::ContentId;
using icons::Icon;

ManuscriptPanel::ManuscriptPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_actions(new DocumentActions(desk, this))
    , m_model(new ManuscriptModel(desk, this))
    , m_header(new shell::PanelHeader(desk.icons, tr("Filter the manuscript"), this))
    , m_tree(new trees::NavigatorTree(desk, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_tree);
    setFocusProxy(m_tree);
    m_tree->setAccessibleName(tr("Manuscript"));
    m_tree->setSource(*m_model);
    attachActions();

    connect(m_header, &shell::PanelHeader::filterChanged, m_tree, &trees::NavigatorTree::setFilter);
    connect(m_tree, &trees::NavigatorTree::sourceActivated, this, [this](const QModelIndex& index) {
        m_desk.navigator.open(m_model->idAt(index));
    });
    connect(m_tree, &trees::NavigatorTree::currentSourceChanged, this, [this](const QModelIndex& index) {
        if (index.isValid())
            m_desk.navigator.setCurrent(m_model->idAt(index));
    });
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &ManuscriptPanel::showCurrent);
    connect(&desk.navigator, &shell::Navigator::audienceChanged, this, [this](const QString& audience) {
        m_tree->setWithheld(shell::withheldFrom(
            m_desk.session, audience, [this](const QModelIndex& index) { return m_model->idAt(index); }));
    });
    connect(&desk.session, &shell::ProjectSession::changed, this, &ManuscriptPanel::refreshHint);
    refreshHint();
}

ManuscriptPanel::~ManuscriptPanel()
{
    // The tree goes after this; a name that is still being edited in it is committed on its way out.
    m_actions->detach(m_tree);
    m_tree->disconnect(this);
    m_desk.session.disconnect(this);
    m_desk.navigator.disconnect(this);
}

void ManuscriptPanel::attachActions()
{
    m_actions->attach(
        {m_tree,
         {},
         [this] { return m_model->idAt(m_tree->currentSource()); },
         [this] {
             std::vector<ContentId> ids;
             for (const QModelIndex& index : m_tree->selectedSources())
                 ids.push_back(m_model->idAt(index));
             return ids;
         },
         [this](const ContentId& id) { m_tree->renameSource(m_model->indexOf(id)); }});
    auto* const add = new QAction(m_desk.icons.icon(Icon::Add), tr("New document"), this);
    connect(add, &QAction::triggered, m_actions->insertActions().front(), &QAction::trigger);
    m_header->addAction(add);
    m_header->menu().addActions(m_actions->insertActions());
    m_header->menu().addSeparator();
    m_header->menu().addActions(m_actions->editActions());
}

void ManuscriptPanel::showCurrent(const ContentId& id)
{
    if (const QModelIndex index = m_model->indexOf(id); !id.isNull() && index.isValid())
        m_tree->selectSource(index);
    else
        m_tree->clearCurrent();
}

void ManuscriptPanel::refreshHint()
{
    const bool isOpen = m_desk.session.isProjectOpen();
    m_tree->setEmptyHint(
        isOpen ? tr("No documents here. Press + to write the first one.")
               : tr("Open a project, or begin one."));
}

} // namespace tw::desktop::manuscript
