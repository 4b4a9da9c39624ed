#include "desktop/shell/MainWindow.h"

#include "desktop/codex/CodexPanel.h"
#include "desktop/codex/EntityPage.h"
#include "desktop/inspector/InspectorPanel.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/search/SearchPanel.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/snapshots/SnapshotsPanel.h"

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using core::content::ContentKind;
using icons::Icon;

void MainWindow::addPanels()
{
    m_manuscript = new manuscript::ManuscriptPanel(m_desk, this);
    m_codex = new codex::CodexPanel(m_desk, this);
    m_docks->addPanel({u"manuscript"_s, tr("Manuscript"), Icon::Manuscript, DockPlace::Left}, m_manuscript);
    m_docks->addPanel({u"codex"_s, tr("Codex"), Icon::Codex, DockPlace::Left}, m_codex);
    m_search = new search::SearchPanel(m_desk, this);
    m_docks->addPanel({u"search"_s, tr("Search"), Icon::Search, DockPlace::Left}, m_search);
    m_docks->addPanel(
        {u"inspector"_s, tr("Inspector"), Icon::Inspector, DockPlace::Right},
        new inspector::InspectorPanel(m_desk, this));
    m_snapshots = new snapshots::SnapshotsPanel(m_desk, this);
    m_docks->addPanel({u"snapshots"_s, tr("Snapshots"), Icon::Snapshot, DockPlace::Right}, m_snapshots);

    m_workArea->setFactory(ContentKind::Document, [this](const core::ContentId& id, QWidget* parent) {
        return new manuscript::DocumentPage(m_desk, id, parent);
    });
    m_workArea->setFactory(ContentKind::Entity, [this](const core::ContentId& id, QWidget* parent) {
        return new codex::EntityPage(m_desk, id, parent);
    });
}

} // namespace tw::desktop::shell
