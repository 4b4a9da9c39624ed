#include "desktop/codex/FieldsSection.h"

#include "core/entity/EntityCommands.h"
#include "desktop/codex/FieldRow.h"
#include "desktop/codex/OwnFieldEdits.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/ValueEditor.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::ResolvedField;
using fields::ValueEditor;
using icons::Icon;

namespace {

constexpr int labelCharacters = 20;
constexpr int rowSpacing = 8;
constexpr int columnSpacing = 16;

Icon iconOf(FieldGroup::Source source)
{
    switch (source) {
    case FieldGroup::Source::ThroughEntity:
        return Icon::CategoryUnderEntity;
    case FieldGroup::Source::Ancestor:
        return Icon::Inherited;
    case FieldGroup::Source::Own:
        return Icon::OwnField;
    case FieldGroup::Source::Fixed:
        return Icon::Fixed;
    case FieldGroup::Source::Category:
        break;
    }
    return Icon::Category;
}

} // namespace

FieldsSection::FieldsSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_grid(new QGridLayout)
    , m_add(new QPushButton(desk.icons.icon(Icon::Add), tr("Add Property…"), this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_grid);
    layout->addWidget(m_add, 0, Qt::AlignLeading);
    m_grid->setHorizontalSpacing(columnSpacing);
    m_grid->setVerticalSpacing(rowSpacing);
    m_grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * labelCharacters);
    m_grid->setColumnStretch(1, 1);
    m_add->setFlat(true);
    m_add->setToolTip(tr("Add a property that this entity alone has"));
    connect(
        m_add, &QPushButton::clicked, this, [this] { addOwnField(this->desk(), this->entityId(), this); });
}

FieldsSection::~FieldsSection() = default;

void FieldsSection::showEntity(const Entity& entity)
{
    const auto& project = desk().session.project();
    std::vector<FieldGroup> groups = fieldGroups(project, entity);
    QStringList titles;
    for (const FieldGroup& group : groups)
        titles.append(groupTitle(project, entity, group));
    if (groups != m_groups || titles != m_titles) {
        m_groups = std::move(groups);
        m_titles = titles;
        arrange();
    }
    for (const auto& [key, row] : m_rows)
        row->showValue(entity);
}

void FieldsSection::clearLayout()
{
    while (QLayoutItem* const item = m_grid->takeAt(0))
        delete item;
    for (QWidget* const heading : m_headings) {
        heading->hide();
        heading->deleteLater();
    }
    m_headings.clear();
}

void FieldsSection::arrange()
{
    clearLayout();
    RowMap present = std::exchange(m_rows, {});
    QWidget* before = nullptr;
    int gridRow = 0;
    for (std::size_t index = 0; index < m_groups.size(); ++index) {
        const FieldGroup& group = m_groups[index];
        const QString& title = m_titles[static_cast<qsizetype>(index)];
        auto* const heading = new SectionHeading(desk().icons.icon(iconOf(group.source)), title, this);
        heading->setToolTip(groupToolTip(group, title));
        m_headings.push_back(heading);
        m_grid->addWidget(heading, gridRow++, 0, 1, 2);
        heading->show();
        for (const ResolvedField& resolved : group.fields) {
            // A control whose field is the same stays, with the cursor in it.
            auto known = present.extract(resolved.field.key);
            const bool isSame = !known.empty() && known.mapped()->resolved() == resolved;
            auto row = isSame ? std::move(known.mapped()) : makeRow(resolved);
            m_grid->addWidget(row->label(), gridRow, 0, Qt::AlignTop);
            m_grid->addWidget(row->body(), gridRow++, 1);
            if (before)
                setTabOrder(before, row->body());
            before = row->body();
            m_rows.emplace(resolved.field.key, std::move(row));
        }
    }
    if (before)
        setTabOrder(before, m_add);
}

std::unique_ptr<FieldRow> FieldsSection::makeRow(const ResolvedField& resolved)
{
    auto row = std::make_unique<FieldRow>(desk(), resolved, this);
    const QString key = resolved.field.key;
    if (ValueEditor* const editor = row->editor()) {
        connect(editor, &ValueEditor::typed, this, &FieldsSection::typed);
        connect(editor, &ValueEditor::valueEdited, this, [this, key](const std::optional<QString>& value) {
            storeValue(key, value);
        });
    }
    if (resolved.origin == core::entity::FieldOrigin::Entity)
        row->addButton(makeOwnMenu(key, row->body()));
    row->setReadOnly(m_isReadOnly);
    return row;
}

QWidget* FieldsSection::makeOwnMenu(const QString& key, QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setIcon(desk().icons.icon(Icon::More));
    button->setAutoRaise(true);
    button->setToolTip(tr("Edit or remove this property"));
    button->setAccessibleName(button->toolTip());
    auto* const menu = new QMenu(button);
    connect(
        menu->addAction(desk().icons.icon(Icon::Rename), tr("&Edit Property…")), &QAction::triggered, this,
        [this, key] { editOwnField(desk(), entityId(), key, this); });
    connect(
        menu->addAction(desk().icons.icon(Icon::Remove), tr("&Remove Property")), &QAction::triggered, this,
        [this, key] { removeOwnField(desk(), entityId(), key); });
    // Not as the button's own menu, which would put an arrow over the dots.
    connect(button, &QToolButton::clicked, menu, [button, menu] {
        menu->popup(button->mapToGlobal(button->rect().bottomLeft()));
    });
    return button;
}

void FieldsSection::follow(const core::project::ProjectChanges& changes)
{
    for (const auto& [key, row] : m_rows) {
        if (row->editor())
            row->editor()->follow(changes);
    }
}

void FieldsSection::commit()
{
    // What is committed may rearrange the rows.
    std::vector<QPointer<ValueEditor>> editors;
    for (const auto& [key, row] : m_rows)
        editors.emplace_back(row->editor());
    for (const auto& editor : editors) {
        if (editor)
            editor->commit();
    }
}

void FieldsSection::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_add->setHidden(readOnly);
    for (const auto& [key, row] : m_rows)
        row->setReadOnly(readOnly);
}

ValueEditor* FieldsSection::editor(const QString& key) const
{
    const auto row = m_rows.find(key);
    return row == m_rows.end() ? nullptr : row->second->editor();
}

int FieldsSection::fieldCount() const
{
    return static_cast<int>(
        std::ranges::count_if(m_rows, [](const auto& entry) { return entry.second->editor() != nullptr; }));
}

int FieldsSection::filledCount() const
{
    return static_cast<int>(std::ranges::count_if(m_rows, [](const auto& entry) {
        const ValueEditor* const editor = entry.second->editor();
        return editor && !editor->value().value_or(QString()).trimmed().isEmpty();
    }));
}

void FieldsSection::storeValue(const QString& key, const std::optional<QString>& value)
{
    Entity* const edited = entityForCommands();
    if (edited && edited->value(key) != value)
        desk().session.apply(std::make_unique<core::entity::SetFieldValueCommand>(*edited, key, value));
}

} // namespace tw::desktop::codex
