#include "desktop/problems/ProblemsPanel.h"

#include "core/document/DocumentTree.h"
#include "desktop/icons/IconSet.h"
#include "desktop/problems/ProblemsModel.h"
#include "desktop/shell/PanelHeader.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/trees/NavigatorTree.h"

#include <QAction>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace tw::desktop::problems {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using icons::Icon;

namespace {

constexpr QLatin1StringView scopeKey = "window/problemsOfManuscript"_L1;
constexpr auto treeRest = 200ms;

} // namespace

ProblemsPanel::ProblemsPanel(
    const shell::DeskContext& desk, const std::vector<ProblemSource*>& sources, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_sources(sources)
    , m_model(new ProblemsModel(desk, sources, this))
    , m_header(new shell::PanelHeader(desk.icons, tr("Filter the problems"), this))
    , m_tree(new trees::NavigatorTree(desk, this))
    , m_summary(new QLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_tree);
    layout->addWidget(m_summary);
    setFocusProxy(m_tree);
    m_summary->setContentsMargins(8, 4, 8, 4);
    m_summary->setForegroundRole(QPalette::PlaceholderText);
    m_tree->setAccessibleName(tr("Problems"));
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->setSource(*m_model);
    makeActions();

    m_treeRest.setSingleShot(true);
    m_treeRest.setInterval(treeRest);
    connect(&m_treeRest, &QTimer::timeout, this, &ProblemsPanel::refreshObjects);
    connect(m_header, &shell::PanelHeader::filterChanged, m_tree, &trees::NavigatorTree::setFilter);
    connect(m_tree, &trees::NavigatorTree::sourceActivated, this, &ProblemsPanel::activate);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &ProblemsPanel::showContextMenu);
    connect(m_model, &ProblemsModel::countsChanged, this, &ProblemsPanel::refreshTexts);
    for (ProblemSource* const source : m_sources) {
        connect(source, &ProblemSource::busyChanged, this, &ProblemsPanel::refreshTexts);
        connect(source, &ProblemSource::ownObjectsChanged, this, &ProblemsPanel::refreshObjects);
    }
    connect(
        &desk.session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            // Nothing that was listed before holds in another project.
            if (changes.isEverything)
                m_model->setObjects({});
            // Only who comes, goes or moves changes which documents are looked at.
            if (changes.isEverything || !changes.added.empty() || !changes.removed.empty() ||
                m_wholeManuscript->isChecked())
                m_treeRest.start();
        });
    refreshTexts();
}

void ProblemsPanel::makeActions()
{
    m_wholeManuscript = new QAction(m_desk.icons.icon(Icon::Manuscript), tr("Whole Manuscript"), this);
    m_wholeManuscript->setObjectName(u"problems.wholeManuscript"_s);
    m_wholeManuscript->setCheckable(true);
    m_wholeManuscript->setToolTip(tr("Problems of all documents, and of the story, instead of what is open"));
    m_wholeManuscript->setChecked(m_desk.settings.value(scopeKey, u"false"_s).toString() == "true"_L1);
    connect(m_wholeManuscript, &QAction::toggled, this, [this](bool isOn) {
        m_desk.settings.setValue(scopeKey, isOn ? u"true"_s : u"false"_s);
        refreshObjects();
    });
    m_header->addAction(m_wholeManuscript);
    connect(&m_header->menu(), &QMenu::aboutToShow, this, &ProblemsPanel::fillCategoryMenu);
}

void ProblemsPanel::fillCategoryMenu()
{
    QMenu& menu = m_header->menu();
    menu.clear();
    for (const ProblemSource* const source : m_sources) {
        for (const ProblemCategory& category : source->categories()) {
            const QString count = QLocale().toString(m_model->counts().value(category.id));
            QAction* const action = menu.addAction(tr("%1 (%2)").arg(category.title, count));
            action->setCheckable(true);
            action->setChecked(!m_model->isCategoryHidden(category.id));
            connect(action, &QAction::toggled, this, [this, id = category.id](bool isOn) {
                m_model->setCategoryHidden(id, !isOn);
            });
        }
        menu.addSeparator();
    }
    menu.addAction(m_wholeManuscript);
    std::vector<std::pair<ProblemSource*, core::ContentId>> ignoring;
    for (ProblemSource* const source : m_sources) {
        for (const core::ContentId& object : wantedObjects()) {
            if (source->canIgnore() && source->hasIgnored(object))
                ignoring.emplace_back(source, object);
        }
    }
    QAction* const restore = menu.addAction(tr("Show &Ignored Ones Again"));
    restore->setEnabled(!ignoring.empty());
    connect(restore, &QAction::triggered, this, [ignoring] {
        for (const auto& [source, object] : ignoring)
            source->restoreIgnored(object);
    });
}

void ProblemsPanel::setObject(const core::ContentId& object)
{
    if (object == m_object)
        return;
    m_object = object;
    if (!m_wholeManuscript->isChecked())
        refreshObjects();
}

void ProblemsPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refreshObjects();
}

void ProblemsPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_model->setObjects({});
}

std::vector<core::ContentId> ProblemsPanel::wantedObjects() const
{
    const core::project::Project& project = m_desk.session.project();
    if (!m_wholeManuscript->isChecked())
        return project.contains(m_object) ? std::vector{m_object} : std::vector<core::ContentId>();
    const core::document::DocumentTree tree = core::document::documentTree(project);
    std::vector<core::ContentId> objects;
    std::vector<core::ContentId> open{core::ContentId()};
    while (!open.empty()) {
        const core::ContentId id = open.back();
        open.pop_back();
        if (!id.isNull())
            objects.push_back(id);
        if (const auto children = tree.find(id); children != tree.end())
            open.insert(open.end(), children->second.rbegin(), children->second.rend());
    }
    for (const ProblemSource* const source : m_sources) {
        const std::vector<core::ContentId> own = source->ownObjects();
        objects.insert(objects.end(), own.begin(), own.end());
    }
    return objects;
}

void ProblemsPanel::showWholeManuscript()
{
    m_wholeManuscript->setChecked(true);
}

void ProblemsPanel::refreshObjects()
{
    if (isVisible())
        m_model->setObjects(wantedObjects());
}

void ProblemsPanel::refreshTexts()
{
    const bool isBusy = std::ranges::any_of(m_sources, [](const auto* source) { return source->isBusy(); });
    const int shown = m_model->shownCount();
    if (isBusy)
        m_tree->setEmptyHint(tr("Reading…"));
    else if (!m_wholeManuscript->isChecked() && m_object.isNull())
        m_tree->setEmptyHint(
            tr("Open a document or an entity to see its problems, or choose the whole manuscript above."));
    else
        m_tree->setEmptyHint(tr("Nothing to complain about."));
    int all = 0;
    for (const int count : m_model->counts())
        all += count;
    QString summary = tr("%Ln problems", nullptr, shown);
    if (all > shown)
        summary = tr("%1, %2 more in kinds that are hidden").arg(summary, QLocale().toString(all - shown));
    if (isBusy)
        summary = tr("%1, still reading…").arg(summary);
    m_summary->setText(summary);
    m_summary->setVisible(all > 0);
}

void ProblemsPanel::activate(const QModelIndex& index)
{
    const ListedProblem listed = m_model->problemAt(index);
    if (listed.problem)
        listed.source->show(listed.object, *listed.problem);
}

void ProblemsPanel::showContextMenu(const QPoint& place)
{
    const ListedProblem listed = m_model->problemAt(m_tree->currentSource());
    if (!listed.problem)
        return;
    // The rows may be others when the choice is made.
    const auto [source, object, problem] = std::tuple(listed.source, listed.object, Problem(*listed.problem));
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QString& suggestion : source->suggestions(object, problem)) {
        QAction* const action = menu->addAction(tr("Replace with “%1”").arg(suggestion));
        connect(
            action, &QAction::triggered, this,
            [source = source, object = object, problem = problem, suggestion] {
                source->replace(object, problem, suggestion);
            });
    }
    menu->addSeparator();
    connect(
        menu->addAction(tr("&Show the Place")), &QAction::triggered, this,
        [source = source, object = object, problem = problem] { source->show(object, problem); });
    if (source->canIgnore()) {
        connect(
            menu->addAction(tr("&Ignore Here")), &QAction::triggered, this,
            [source = source, object = object, problem = problem] { source->ignore(object, problem); });
    }
    menu->popup(m_tree->viewport()->mapToGlobal(place));
}

} // namespace tw::desktop::problems
