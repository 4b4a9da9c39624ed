#include "desktop/snapshots/SnapshotsPanel.h"

#include "core/document/ActiveText.h"
#include "core/document/markup/LegacyHtml.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"
#include "desktop/snapshots/DifferenceView.h"
#include "desktop/snapshots/SnapshotEdits.h"
#include "desktop/snapshots/SnapshotModel.h"
#include "desktop/theme/ThemeManager.h"
#include "desktop/trees/CommittingView.h"
#include "desktop/trees/TreeRowDelegate.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::snapshots {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using icons::Icon;

namespace {

constexpr int margin = 8;
constexpr int spacing = 4;

QToolButton* buttonFor(QAction* action, QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setAccessibleName(action->toolTip());
    return button;
}

QHBoxLayout* rowIn(QWidget* widget)
{
    auto* const row = new QHBoxLayout(widget);
    row->setContentsMargins(margin, spacing, margin, spacing);
    row->setSpacing(spacing);
    return row;
}

} // namespace

SnapshotsPanel::SnapshotsPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_model(new SnapshotModel(desk.icons, this))
    , m_label(new QLineEdit(this))
    , m_variant(new QComboBox(this))
    , m_list(new trees::CommittingView<QListView>(desk.session, this))
    , m_other(new QComboBox(this))
    , m_difference(new DifferenceView(desk.themes, this))
    , m_stack(new QStackedWidget(this))
    , m_hint(new QLabel(tr("Select a document to see its snapshots and variants."), this))
{
    setAccessibleName(tr("Snapshots"));
    makeActions();
    buildLayout();
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &SnapshotsPanel::showDocument);
    connect(&desk.session, &shell::ProjectSession::changed, this, &SnapshotsPanel::followChanges);
    connect(m_label, &QLineEdit::returnPressed, this, &SnapshotsPanel::take);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        refreshOthers();
        refreshComparison();
    });
    connect(m_list, &QWidget::customContextMenuRequested, this, &SnapshotsPanel::showContextMenu);
    connect(m_other, &QComboBox::activated, this, &SnapshotsPanel::refreshComparison);
    connect(m_variant, &QComboBox::activated, this, [this](int index) {
        useVariant(m_desk.session, m_desk.navigator.current(), m_variant->itemData(index).toString());
    });
    connect(
        m_model, &SnapshotModel::renameRequested, this, [this](std::size_t snapshot, const QString& label) {
            renameSnapshot(m_desk.session, m_desk.navigator.current(), snapshot, label);
        });
    connect(
        m_difference, &DifferenceView::restoreRequested, this,
        [this](const app::text::ChangedPassage& passage) {
            const auto snapshot = selected();
            if (!snapshot)
                return;
            const bool isDone = restorePassage(
                m_desk.session, m_desk.navigator.current(), *snapshot, passage,
                QDateTime::currentDateTimeUtc());
            m_desk.navigator.say(
                isDone ? tr("The passage is as it was. The text before that is a snapshot.")
                       : tr("The text has changed meanwhile; compare again."));
        });
    showDocument();
}

QAction* SnapshotsPanel::makeAction(Icon icon, const QString& text, std::function<void()> handler)
{
    auto* const action = new QAction(m_desk.icons.icon(icon), text, this);
    action->setToolTip(QString(text).remove(u'&').remove(u'…'));
    connect(action, &QAction::triggered, this, std::move(handler));
    return action;
}

void SnapshotsPanel::makeActions()
{
    m_take = makeAction(Icon::Snapshot, tr("Ta&ke Snapshot"), [this] { take(); });
    m_take->setObjectName(u"snapshots.take"_s);
    m_take->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_S));
    m_restore = makeAction(Icon::Undo, tr("Re&store Snapshot"), [this] { restore(); });
    m_rename =
        makeAction(Icon::Rename, tr("Re&name Snapshot"), [this] { m_list->edit(m_list->currentIndex()); });
    m_rename->setShortcut(Qt::Key_F2);
    m_rename->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_remove = makeAction(Icon::Remove, tr("&Delete Snapshot"), [this] { remove(); });
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_addVariant =
        makeAction(Icon::Add, tr("&New Variant from the Present Text…"), [this] { nameVariant({}); });
    m_renameVariant = makeAction(
        Icon::Rename, tr("&Rename Variant…"), [this] { nameVariant(m_variant->currentData().toString()); });
    m_removeVariant = makeAction(Icon::Remove, tr("&Delete Variant"), [this] {
        removeVariant(m_desk.session, m_desk.navigator.current(), m_variant->currentData().toString());
    });
    m_list->addActions({m_restore, m_rename, m_remove});
}

QWidget* SnapshotsPanel::makeVariantRow()
{
    auto* const widget = new QWidget(this);
    auto* const row = rowIn(widget);
    m_variant->setAccessibleName(tr("Variant in use"));
    m_variant->setToolTip(tr("The variant of the text that the editor shows"));
    m_variant->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    row->addWidget(m_variant, 1);
    row->addWidget(buttonFor(m_addVariant, widget));
    auto* const more = new QToolButton(widget);
    more->setIcon(m_desk.icons.icon(Icon::More));
    more->setToolTip(tr("More for this variant"));
    more->setAccessibleName(more->toolTip());
    more->setAutoRaise(true);
    more->setObjectName(u"panelMenuButton"_s);
    more->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(more);
    menu->addActions({m_renameVariant, m_removeVariant});
    more->setMenu(menu);
    row->addWidget(more);
    return widget;
}

QWidget* SnapshotsPanel::makeTakeRow()
{
    auto* const widget = new QWidget(this);
    auto* const row = rowIn(widget);
    m_label->setPlaceholderText(tr("Name of a new snapshot"));
    m_label->setAccessibleName(m_label->placeholderText());
    row->addWidget(m_label, 1);
    for (QAction* const action : {m_take, m_restore, m_remove})
        row->addWidget(buttonFor(action, widget));
    return widget;
}

void SnapshotsPanel::buildLayout()
{
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setContentsMargins(3 * margin, 3 * margin, 3 * margin, 3 * margin);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new trees::TreeRowDelegate(m_desk.themes, m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->setAccessibleName(tr("Snapshots"));
    m_list->setObjectName(u"snapshotList"_s);
    m_other->setAccessibleName(tr("Compare with"));
    m_other->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto* const comparison = new QWidget(this);
    auto* const column = new QVBoxLayout(comparison);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* const compareWidget = new QWidget(comparison);
    auto* const compareRow = rowIn(compareWidget);
    auto* const compareLabel = new QLabel(tr("Compare &with"), compareWidget);
    compareLabel->setBuddy(m_other);
    compareRow->addWidget(compareLabel);
    compareRow->addWidget(m_other, 1);
    column->addWidget(compareWidget);
    column->addWidget(m_difference, 1);
    auto* const splitter = new QSplitter(Qt::Vertical, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_list);
    splitter->addWidget(comparison);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 2);

    auto* const content = new QWidget(this);
    auto* const contentColumn = new QVBoxLayout(content);
    contentColumn->setContentsMargins(0, 0, 0, 0);
    contentColumn->setSpacing(0);
    contentColumn->addWidget(makeVariantRow());
    contentColumn->addWidget(makeTakeRow());
    contentColumn->addWidget(splitter, 1);
    m_stack->addWidget(m_hint);
    m_stack->addWidget(content);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    setFocusProxy(m_list);
}

const Document* SnapshotsPanel::document() const
{
    return m_desk.session.project().findAs<Document>(m_desk.navigator.current());
}

bool SnapshotsPanel::canEdit() const
{
    return document() && !document()->isLocked();
}

std::optional<std::size_t> SnapshotsPanel::selected() const
{
    return m_model->snapshotAt(m_list->currentIndex().row());
}

QString SnapshotsPanel::textOf(std::optional<std::size_t> snapshot) const
{
    const Document& shown = *document();
    if (!snapshot)
        return core::document::markup::markdownOf(core::document::activeText(shown));
    const core::document::DocumentVersion& version = shown.versions()[*snapshot];
    return core::document::markup::markdownOf({version.body, version.bodyFormat});
}

void SnapshotsPanel::take()
{
    takeSnapshot(
        m_desk.session, m_desk.navigator.current(), m_label->text().trimmed(),
        QDateTime::currentDateTimeUtc());
    m_label->clear();
}

void SnapshotsPanel::restore()
{
    if (const auto snapshot = selected()) {
        restoreSnapshot(
            m_desk.session, m_desk.navigator.current(), *snapshot, QDateTime::currentDateTimeUtc());
        m_desk.navigator.say(tr("The snapshot is the text again. The text before that is a snapshot."));
    }
}

void SnapshotsPanel::remove()
{
    if (const auto snapshot = selected())
        removeSnapshot(m_desk.session, m_desk.navigator.current(), *snapshot);
}

void SnapshotsPanel::nameVariant(const QString& present)
{
    bool isAccepted = false;
    const bool isNew = present.isEmpty();
    const QString name = QInputDialog::getText(
        this, isNew ? tr("New Variant") : tr("Rename Variant"), tr("Name of the variant:"), QLineEdit::Normal,
        present, &isAccepted);
    if (!isAccepted || !document())
        return;
    if (const QString problem = variantNameProblem(*document(), name, present); !problem.isEmpty())
        shell::tell(this, tr("Variants"), problem);
    else if (isNew)
        addVariant(m_desk.session, m_desk.navigator.current(), name);
    else
        renameVariant(m_desk.session, m_desk.navigator.current(), present, name);
}

void SnapshotsPanel::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.concerns(m_desk.navigator.current()))
        showDocument();
}

void SnapshotsPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showDocument();
}

void SnapshotsPanel::showDocument()
{
    const Document* const shown = document();
    m_take->setEnabled(shown != nullptr);
    // Comparing is work that nobody sees while the panel is behind another one.
    if (!isVisible())
        return;
    m_stack->setCurrentIndex(shown ? 1 : 0);
    const auto kept = selected();
    m_model->show(shown);
    if (!shown)
        return;
    const int last = m_model->rowCount() - 1;
    m_list->setCurrentIndex(
        m_model->index(kept ? std::clamp(m_model->rowOf(*kept), 0, last) : std::min(1, last)));
    m_list->setEditTriggers(
        canEdit() ? QAbstractItemView::EditKeyPressed : QAbstractItemView::NoEditTriggers);
    showVariants();
    refreshOthers();
    refreshComparison();
}

void SnapshotsPanel::showVariants()
{
    const QSignalBlocker blocker(m_variant);
    m_variant->clear();
    m_variant->addItem(tr("Main text"), QString());
    for (const core::document::DocumentVariant& variant : document()->variants().list)
        m_variant->addItem(tr("Variant: %1").arg(shell::shownName(variant.name)), variant.name);
    const auto* const active = core::document::activeVariant(*document());
    m_variant->setCurrentIndex(active ? m_variant->findData(active->name) : 0);
    m_variant->setEnabled(canEdit());
    m_addVariant->setEnabled(canEdit());
    m_renameVariant->setEnabled(active && canEdit());
    m_removeVariant->setEnabled(active && canEdit());
}

void SnapshotsPanel::refreshOthers()
{
    const auto snapshot = selected();
    for (QAction* const action : {m_restore, m_rename, m_remove})
        action->setEnabled(snapshot.has_value() && canEdit());
    const QVariant kept = m_other->currentData();
    m_other->clear();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (row != m_list->currentIndex().row())
            m_other->addItem(m_model->index(row).data().toString(), row);
    }
    m_other->setCurrentIndex(std::max(m_other->findData(kept), 0));
    m_other->parentWidget()->setVisible(m_other->count() > 0);
}

void SnapshotsPanel::refreshComparison()
{
    if (!document() || m_other->count() == 0) {
        m_difference->clearComparison();
        return;
    }
    const auto other = m_model->snapshotAt(m_other->currentData().toInt());
    const auto snapshot = selected();
    // The older text lies below: what came later was added to it.
    const bool isOlder = snapshot && (!other || *snapshot < *other);
    m_difference->compare(
        textOf(isOlder ? snapshot : other), textOf(isOlder ? other : snapshot),
        snapshot && !other && canEdit() ? DifferenceView::Restoring::Offered
                                        : DifferenceView::Restoring::NotOffered);
}

void SnapshotsPanel::showContextMenu(const QPoint& place)
{
    if (!selected())
        return;
    QMenu menu(this);
    menu.addActions({m_restore, m_rename, m_remove});
    menu.exec(m_list->viewport()->mapToGlobal(place));
}

} // namespace tw::desktop::snapshots
