#include "desktop/shell/MainWindow.h"

#include "desktop/codex/CodexPanel.h"
#include "desktop/codex/EntityPage.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/continuity/ContinuityProblems.h"
#include "desktop/inspector/InspectorPanel.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/overview/CorkboardPage.h"
#include "desktop/overview/OutlinePage.h"
#include "desktop/problems/ProblemsPanel.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/proofreading/ProseProblems.h"
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
    addProblemsPanel();

    m_workArea->setFactory(ContentKind::Document, [this](const core::ContentId& id, QWidget* parent) {
        auto* const page = new manuscript::DocumentPage(m_desk, id, parent);
        proofread(*page);
        return page;
    });
    const overview::OverviewContext overviews{m_desk, m_manuscript->model(), m_manuscript->actions()};
    m_workArea->setViewFactory(
        overview::corkboardView, [overviews](const core::ContentId& id, QWidget* parent) {
            return new overview::CorkboardPage(overviews, id, parent);
        });
    m_workArea->setViewFactory(
        overview::outlineView, [overviews](const core::ContentId& id, QWidget* parent) {
            return new overview::OutlinePage(overviews, id, parent);
        });
    m_workArea->setViewFactory(
        composition::compositionView, [this](const core::ContentId& id, QWidget* parent) {
            auto* const page = new composition::CompositionPage(m_desk, id, parent);
            connect(
                page, &composition::CompositionPage::editorMade, m_proofreading,
                [this](manuscript::BodyEditor* editor, const core::ContentId& documentId) {
                    m_proofreading->attach(*editor, documentId);
                });
            connect(page, &manuscript::TextPage::editorChanged, m_problems, [this] {
                m_problems->setObject(manuscript::objectWorkedOn(m_workArea->currentPage()));
            });
            return page;
        });
    m_workArea->setFactory(ContentKind::Entity, [this](const core::ContentId& id, QWidget* parent) {
        return new codex::EntityPage(m_desk, id, parent);
    });
}

void MainWindow::addProblemsPanel()
{
    m_proofreading = new proofreading::ProofreadingService(m_desk, proofreading::usualSpellingPlaces(), this);
    auto* const prose = new proofreading::ProseProblems(m_desk, *m_proofreading, this);
    m_continuity = new continuity::ContinuityProblems(m_desk, this);
    m_problems = new problems::ProblemsPanel(m_desk, {prose, m_continuity}, this);
    m_docks->addPanel({u"problems"_s, tr("Problems"), Icon::Warning, DockPlace::Bottom, false}, m_problems);
    connect(m_workArea, &WorkArea::currentPageChanged, m_problems, [this](const WorkPage* page) {
        m_problems->setObject(manuscript::objectWorkedOn(page));
    });
}

void MainWindow::proofread(manuscript::DocumentPage& page)
{
    m_proofreading->attach(page.editor(), page.objectId());
    connect(&page, &manuscript::DocumentPage::editorChanged, m_proofreading, [this, &page] {
        m_proofreading->attach(page.editor(), page.objectId());
    });
}

} // namespace tw::desktop::shell
