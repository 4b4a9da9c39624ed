#include "desktop/codex/PropertyCleanUpDialog.h"

#include "core/entity/Entity.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using app::codex::Actor;
using app::codex::CategoryTwins;
using app::codex::PropertyMove;
using core::project::Project;

namespace {

constexpr int charactersWide = 96;
constexpr int linesHigh = 26;

QString categoryName(const Project& project, const core::CategoryId& id)
{
    const auto* const category = project.taxonomy().category(id);
    return category ? category->name : QString();
}

QString entityName(const Project& project, const core::ContentId& id)
{
    const auto* const entity = project.findAs<core::entity::Entity>(id);
    return entity ? entity->name() : QString();
}

/** The values of a list whose rows in the group are ticked. */
template <class Value>
std::vector<Value> ticked(const std::vector<Value>& values, const QTreeWidgetItem* group)
{
    std::vector<Value> result;
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (group->child(static_cast<int>(row))->checkState(0) == Qt::Checked)
            result.push_back(values[row]);
    }
    return result;
}

} // namespace

PropertyCleanUp planPropertyCleanUp(const Project& project)
{
    app::codex::PropertyPlan plan = app::codex::planPropertyMigration(project, Actor::Writer);
    PropertyCleanUp result{std::move(plan.moves), {}, plan.heldBack};
    for (CategoryTwins& twins : app::codex::findCategoryTwins(project)) {
        if (app::codex::isMergeHindered(project, twins, Actor::Writer))
            ++result.heldBack;
        else
            result.twins.push_back(std::move(twins));
    }
    return result;
}

PropertyCleanUpDialog::PropertyCleanUpDialog(
    const shell::DeskContext& desk, PropertyCleanUp plan, QWidget* parent)
    : QDialog(parent)
    , m_plan(std::move(plan))
    , m_tree(new QTreeWidget(this))
{
    setWindowTitle(tr("Clean Up Properties"));
    setSizeGripEnabled(true);
    auto* const introduction = new QLabel(
        tr("A property that only one entity of its category uses can belong to that entity alone, and "
           "categories that are one and the same can become one. No value is changed or lost, and a backup "
           "is made first."),
        this);
    introduction->setWordWrap(true);
    auto* const note = new fields::NoteLabel(desk.themes, this);
    if (m_plan.heldBack > 0) {
        note->setNote(
            tr("%n more can be put in order once their entities are unlocked.", nullptr,
               static_cast<int>(m_plan.heldBack)));
    }
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_apply = buttons->addButton(tr("Back Up and Clean Up"), QDialogButtonBox::AcceptRole);
    m_apply->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addWidget(m_tree, 1);
    layout->addWidget(note);
    layout->addWidget(buttons);
    fillTree(desk.session.project());
    connect(buttons, &QDialogButtonBox::accepted, this, &PropertyCleanUpDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PropertyCleanUpDialog::reject);
    connect(m_tree, &QTreeWidget::itemChanged, this, &PropertyCleanUpDialog::refresh);
    refresh();
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void PropertyCleanUpDialog::fillTree(const Project& project)
{
    m_tree->setObjectName(u"cleanUp"_s);
    m_tree->setAccessibleName(tr("What to clean up"));
    m_tree->setHeaderLabels({tr("What"), tr("From"), tr("To")});
    if (!m_plan.moves.empty())
        m_moves = addGroup(tr("Properties that one entity uses"));
    for (const PropertyMove& move : m_plan.moves) {
        const QString title = move.field.label.isEmpty() ? move.field.key : move.field.label;
        addRow(*m_moves, {title, categoryName(project, move.from), entityName(project, move.to)});
    }
    if (!m_plan.twins.empty())
        m_twins = addGroup(tr("Categories written two ways"));
    for (const CategoryTwins& twins : m_plan.twins) {
        QStringList names;
        for (const core::CategoryId& id : twins.merged)
            names.append(categoryName(project, id));
        addRow(
            *m_twins, {tr("%n entities move", nullptr, static_cast<int>(twins.movedEntities)),
                       names.join(u", "_s), categoryName(project, twins.kept)});
    }
    m_tree->expandAll();
    for (int column = 0; column < m_tree->columnCount(); ++column)
        m_tree->header()->setSectionResizeMode(column, QHeaderView::Stretch);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

QTreeWidgetItem* PropertyCleanUpDialog::addGroup(const QString& title)
{
    auto* const group = new QTreeWidgetItem(m_tree, {title});
    group->setFirstColumnSpanned(true);
    group->setFlags(group->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    return group;
}

void PropertyCleanUpDialog::addRow(QTreeWidgetItem& group, const QStringList& columns)
{
    auto* const row = new QTreeWidgetItem(&group, columns);
    row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
    row->setCheckState(0, Qt::Checked);
}

PropertyCleanUp PropertyCleanUpDialog::chosen() const
{
    return {ticked(m_plan.moves, m_moves), ticked(m_plan.twins, m_twins), m_plan.heldBack};
}

void PropertyCleanUpDialog::refresh()
{
    const PropertyCleanUp present = chosen();
    m_apply->setEnabled(!present.moves.empty() || !present.twins.empty());
}

void cleanUpProperties(const shell::DeskContext& desk, QWidget* parent)
{
    const QString title = PropertyCleanUpDialog::tr("Clean Up Properties");
    PropertyCleanUp plan = planPropertyCleanUp(desk.session.project());
    if (plan.moves.empty() && plan.twins.empty()) {
        const QString held = plan.heldBack > 0
                                 ? PropertyCleanUpDialog::tr(
                                       "%n more can be put in order once their entities are unlocked.",
                                       nullptr, static_cast<int>(plan.heldBack))
                                 : QString();
        shell::inform(
            parent, title,
            u"%1 %2"_s
                .arg(
                    PropertyCleanUpDialog::tr(
                        "There is nothing to clean up: every property is where it is used, and no category "
                        "is written two ways."),
                    held)
                .trimmed());
        return;
    }
    PropertyCleanUpDialog dialog(desk, std::move(plan), parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    // What is backed up is what is on disk.
    if (const auto saved = desk.session.save(); !saved)
        return shell::tell(parent, title, saved.message());
    const auto backup = desk.session.workspace().backup(QDateTime::currentDateTime());
    if (!backup)
        return shell::tell(parent, title, backup.message());
    const PropertyCleanUp chosen = dialog.chosen();
    Project& project = desk.session.projectForCommands();
    const auto macro = desk.session.macro(PropertyCleanUpDialog::tr("Clean up properties"));
    for (auto& command : app::codex::makePropertyMigration(project, chosen.moves))
        desk.session.apply(std::move(command));
    for (const CategoryTwins& twins : chosen.twins) {
        app::codex::mergeCategoryTwins(project, twins, [&desk](std::unique_ptr<core::undo::Command> command) {
            desk.session.apply(std::move(command));
        });
    }
}

} // namespace tw::desktop::codex
