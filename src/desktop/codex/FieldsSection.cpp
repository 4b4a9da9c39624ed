#include "desktop/codex/FieldsSection.h"

#include "core/entity/EntityCommands.h"
#include "desktop/codex/OwnFieldEdits.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/ValueEditor.h"
#include "desktop/fields/ValueText.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::ResolvedField;
using fields::NoteLabel;
using fields::ValueEditor;
using icons::Icon;

namespace {

constexpr int labelCharacters = 20;
constexpr int rowSpacing = 8;
constexpr int columnSpacing = 16;
/** Brings a label down to the line of the text in the control beside it. */
constexpr int labelTop = 6;

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

bool isFilled(const Entity& entity, const QString& key)
{
    return !entity.value(key).value_or(QString()).trimmed().isEmpty();
}

} // namespace

/** The widgets of one field. Children of the section; a row that is dropped takes them along. */
struct FieldRow
{
    ResolvedField resolved;
    QLabel* label = nullptr;
    QWidget* body = nullptr;
    /** None for a fixed field. */
    ValueEditor* editor = nullptr;
    NoteLabel* required = nullptr;
    /** Only for an own field. */
    QWidget* menu = nullptr;

    FieldRow() = default;
    FieldRow(const FieldRow&) = delete;
    FieldRow& operator=(const FieldRow&) = delete;
    ~FieldRow()
    {
        // Perhaps on the way out of a signal of the very editor.
        for (QWidget* const widget : {static_cast<QWidget*>(label), body}) {
            if (widget) {
                widget->hide();
                widget->deleteLater();
            }
        }
    }
};

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
    showValues(entity);
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
            const bool isSame = !known.empty() && known.mapped()->resolved == resolved;
            auto row = isSame ? std::move(known.mapped()) : makeRow(resolved);
            placeRow(*row, gridRow++);
            if (before)
                setTabOrder(before, row->body);
            before = row->body;
            m_rows.emplace(resolved.field.key, std::move(row));
        }
    }
    if (before)
        setTabOrder(before, m_add);
}

void FieldsSection::placeRow(FieldRow& row, int gridRow)
{
    m_grid->addWidget(row.label, gridRow, 0, Qt::AlignTop);
    m_grid->addWidget(row.body, gridRow, 1);
}

std::unique_ptr<FieldRow> FieldsSection::makeRow(const ResolvedField& resolved)
{
    auto row = std::make_unique<FieldRow>();
    const QString name = resolved.field.displayName();
    const QString key = resolved.field.key;
    row->resolved = resolved;
    row->label = new QLabel(name, this);
    row->label->setTextFormat(Qt::PlainText);
    row->label->setWordWrap(true);
    row->label->setMargin(0);
    row->label->setContentsMargins(0, labelTop, 0, 0);
    row->label->setForegroundRole(QPalette::PlaceholderText);
    row->label->setToolTip(resolved.field.description);
    if (resolved.isFixed()) {
        row->body = makeFixedValue(resolved);
    } else {
        row->body = new QWidget(this);
        auto* const layout = new QVBoxLayout(row->body);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(4);
        row->editor = fields::makeValueEditor(desk(), resolved.field, row->body);
        row->required = new NoteLabel(desk().themes, row->body);
        auto* const line = new QHBoxLayout;
        line->setSpacing(4);
        line->addWidget(row->editor, 1);
        if (resolved.origin == core::entity::FieldOrigin::Entity) {
            row->menu = makeOwnMenu(key, row->body);
            line->addWidget(row->menu, 0, Qt::AlignTop);
        }
        layout->addLayout(line);
        layout->addWidget(row->required);
        row->body->setFocusProxy(row->editor);
        row->editor->setReadOnly(m_isReadOnly);
        row->editor->setToolTip(resolved.field.description);
        QWidget* control = row->editor;
        while (control->focusProxy())
            control = control->focusProxy();
        control->setAccessibleName(name);
        control->setAccessibleDescription(resolved.field.description);
        connect(row->editor, &ValueEditor::typed, this, &FieldsSection::typed);
        connect(
            row->editor, &ValueEditor::valueEdited, this,
            [this, key](const std::optional<QString>& value) { storeValue(key, value); });
    }
    row->label->show();
    row->body->show();
    return row;
}

QWidget* FieldsSection::makeFixedValue(const ResolvedField& resolved)
{
    const auto& project = desk().session.project();
    const auto* const source = project.taxonomy().category(resolved.definedBy);
    auto* const body = new QWidget(this);
    body->setToolTip(
        source ? tr("Fixed by the category “%1”").arg(source->name) : tr("Fixed by its category"));
    auto* const layout = new QHBoxLayout(body);
    layout->setContentsMargins(0, labelTop, 0, 0);
    layout->addWidget(new IconMark(desk().icons.icon(Icon::Fixed), body), 0, Qt::AlignTop);
    auto* const text =
        new QLabel(fields::valueText(project, resolved.field, resolved.field.fixedValue), body);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(text, 1);
    return body;
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
    button->setHidden(m_isReadOnly);
    return button;
}

void FieldsSection::showValues(const Entity& entity)
{
    for (const auto& [key, row] : m_rows) {
        if (!row->editor)
            continue;
        if (const auto stored = entity.value(key); stored != row->editor->value())
            row->editor->setValue(stored);
        const bool isMissing = row->resolved.field.isRequired && !isFilled(entity, key);
        row->required->setNote(isMissing ? tr("Still to be filled in") : QString(), NoteLabel::Tone::Warning);
    }
}

void FieldsSection::follow(const core::project::ProjectChanges& changes)
{
    for (const auto& [key, row] : m_rows) {
        if (row->editor)
            row->editor->follow(changes);
    }
}

void FieldsSection::commit()
{
    // What is committed may rearrange the rows.
    std::vector<QPointer<ValueEditor>> editors;
    for (const auto& [key, row] : m_rows)
        editors.emplace_back(row->editor);
    for (const auto& editor : editors) {
        if (editor)
            editor->commit();
    }
}

void FieldsSection::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_add->setHidden(readOnly);
    for (const auto& [key, row] : m_rows) {
        if (row->editor)
            row->editor->setReadOnly(readOnly);
        if (row->menu)
            row->menu->setHidden(readOnly);
    }
}

ValueEditor* FieldsSection::editor(const QString& key) const
{
    const auto row = m_rows.find(key);
    return row == m_rows.end() ? nullptr : row->second->editor;
}

int FieldsSection::fieldCount() const
{
    return static_cast<int>(
        std::ranges::count_if(m_rows, [](const auto& entry) { return entry.second->editor != nullptr; }));
}

int FieldsSection::filledCount() const
{
    return static_cast<int>(std::ranges::count_if(m_rows, [](const auto& entry) {
        const ValueEditor* const editor = entry.second->editor;
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
