#include "desktop/codex/FieldRow.h"

#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/ValueEditor.h"
#include "desktop/fields/ValueText.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::ResolvedField;
using fields::NoteLabel;

namespace {

constexpr int spacing = 4;
/** Brings a label down to the line of the text in the control beside it. */
constexpr int textTop = 6;

QString translated(const char* text)
{
    return QCoreApplication::translate("FieldRow", text);
}

bool isFilled(const Entity& entity, const QString& key)
{
    return !entity.value(key).value_or(QString()).trimmed().isEmpty();
}

} // namespace

FieldRow::FieldRow(const shell::DeskContext& desk, const ResolvedField& resolved, QWidget* parent)
    : m_resolved(resolved)
    , m_body(new QWidget(parent))
{
    makeLabel(parent);
    if (resolved.isFixed())
        makeFixedValue(desk);
    else
        makeEditor(desk);
    m_label->show();
    m_body->show();
}

FieldRow::~FieldRow()
{
    for (QWidget* const widget : {static_cast<QWidget*>(m_label), m_body}) {
        widget->hide();
        widget->deleteLater();
    }
}

void FieldRow::makeLabel(QWidget* parent)
{
    m_label = new QLabel(m_resolved.field.displayName(), parent);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setContentsMargins(0, textTop, 0, 0);
    m_label->setForegroundRole(QPalette::PlaceholderText);
    m_label->setToolTip(m_resolved.field.description);
}

void FieldRow::makeEditor(const shell::DeskContext& desk)
{
    m_editor = fields::makeValueEditor(desk, m_resolved.field, m_body);
    m_required = new NoteLabel(desk.themes, m_body);
    auto* const layout = new QVBoxLayout(m_body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    m_line = new QHBoxLayout;
    m_line->setSpacing(spacing);
    m_line->addWidget(m_editor, 1);
    layout->addLayout(m_line);
    layout->addWidget(m_required);
    m_body->setFocusProxy(m_editor);
    m_editor->setToolTip(m_resolved.field.description);
    m_editor->nameControl(m_resolved.field.displayName(), m_resolved.field.description);
}

void FieldRow::makeFixedValue(const shell::DeskContext& desk)
{
    const auto& project = desk.session.project();
    const auto* const source = project.taxonomy().category(m_resolved.definedBy);
    m_body->setToolTip(
        source ? translated(QT_TRANSLATE_NOOP("FieldRow", "Fixed by the category “%1”")).arg(source->name)
               : translated(QT_TRANSLATE_NOOP("FieldRow", "Fixed by its category")));
    auto* const layout = new QHBoxLayout(m_body);
    layout->setContentsMargins(0, textTop, 0, 0);
    layout->addWidget(new IconMark(desk.icons.icon(icons::Icon::Fixed), m_body), 0, Qt::AlignTop);
    auto* const text =
        new QLabel(fields::valueText(project, m_resolved.field, m_resolved.field.fixedValue), m_body);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setAccessibleDescription(m_body->toolTip());
    layout->addWidget(text, 1);
}

void FieldRow::addButton(QWidget* button)
{
    m_button = button;
    if (m_line)
        m_line->addWidget(button, 0, Qt::AlignTop);
}

void FieldRow::setReadOnly(bool readOnly)
{
    if (m_editor)
        m_editor->setReadOnly(readOnly);
    if (m_button)
        m_button->setHidden(readOnly);
}

void FieldRow::showValue(const Entity& entity)
{
    if (!m_editor)
        return;
    const QString& key = m_resolved.field.key;
    if (const auto stored = entity.value(key); stored != m_editor->value())
        m_editor->setValue(stored);
    const bool isMissing = m_resolved.field.isRequired && !isFilled(entity, key);
    m_required->setNote(
        isMissing ? translated(QT_TRANSLATE_NOOP("FieldRow", "Still to be filled in")) : QString(),
        NoteLabel::Tone::Warning);
}

} // namespace tw::desktop::codex
