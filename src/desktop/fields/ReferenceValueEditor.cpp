#include "desktop/fields/ReferenceValueEditor.h"

#include "core/entity/Entity.h"
#include "desktop/fields/ChipField.h"
#include "desktop/fields/EditorKeys.h"
#include "desktop/fields/EntityChoices.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/ValueText.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::fields {

using core::ContentId;
using core::entity::Entity;

ReferenceValueEditor::ReferenceValueEditor(
    const shell::DeskContext& desk, const core::CategoryId& referenceCategory, QWidget* parent)
    : ValueEditor(parent)
    , m_desk(desk)
    , m_referenceCategory(referenceCategory)
    , m_chips(new ChipField(desk.themes, desk.icons, ChipField::Frame::Field, this))
    , m_note(new NoteLabel(desk.themes, this))
    , m_choices(new EntityChoiceModel(this))
    , m_completer(new QCompleter(m_choices, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_chips);
    layout->addWidget(m_note);
    setFocusProxy(m_chips);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setFilterMode(Qt::MatchContains);
    QLineEdit& edit = m_chips->lineEdit();
    edit.setPlaceholderText(tr("Add by name"));
    edit.setCompleter(m_completer);
    edit.installEventFilter(this);
    new EditorKeys(edit, [this] {
        const bool isTyped = !m_chips->lineEdit().text().isEmpty();
        m_chips->lineEdit().clear();
        m_note->setNote({});
        return isTyped;
    });
    connect(&edit, &QLineEdit::textEdited, this, [this] { m_note->setNote({}); });
    connect(&edit, &QLineEdit::editingFinished, this, &ReferenceValueEditor::takeName);
    // Queued: the completer puts its text into the field after it has said which one was chosen.
    connect(
        m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
        [this](const QModelIndex& index) {
            const auto id = ContentId::fromString(index.data(EntityChoiceModel::idRole).toString());
            QMetaObject::invokeMethod(
                this, [this, id] { addReference(id); }, Qt::QueuedConnection);
        });
    connect(m_chips, &ChipField::removeRequested, this, &ReferenceValueEditor::removeReference);
    connect(m_chips, &ChipField::chipActivated, this, &ReferenceValueEditor::openReference);
}

void ReferenceValueEditor::setReadOnly(bool readOnly)
{
    m_chips->setReadOnly(readOnly);
}

void ReferenceValueEditor::commit()
{
    // Half a name is no reference yet, and nothing to complain about while the writer is at it.
    const QString name = m_chips->lineEdit().text().trimmed();
    if (name.isEmpty())
        return;
    loadChoices();
    if (const ContentId id = findEntityNamed(m_choices->choices(), name); !id.isNull())
        addReference(id);
}

void ReferenceValueEditor::follow(const core::project::ProjectChanges& changes)
{
    const auto isMoved = [&changes](const QString& line) {
        return changes.concerns(ContentId::fromString(line));
    };
    m_areChoicesOld = true;
    if (std::ranges::any_of(referenceLines(value().value_or(QString())), isMoved))
        present();
}

void ReferenceValueEditor::present()
{
    std::vector<Chip> chips;
    for (const QString& line : referenceLines(value().value_or(QString()))) {
        const auto* const entity = m_desk.session.project().findAs<Entity>(ContentId::fromString(line));
        if (entity) {
            const QString name = shell::objectTitle(*entity);
            chips.push_back({name, tr("Open “%1”").arg(name), Chip::State::Link});
        } else {
            chips.push_back(
                {tr("missing"), tr("Nothing in this project answers to “%1”. It is kept.").arg(line),
                 Chip::State::Missing});
        }
    }
    m_chips->setChips(chips);
}

bool ReferenceValueEditor::eventFilter(QObject* watched, QEvent* event)
{
    // A large codex has many names; they are gathered when somebody is about to need them.
    if (event->type() == QEvent::FocusIn)
        loadChoices();
    return ValueEditor::eventFilter(watched, event);
}

void ReferenceValueEditor::loadChoices()
{
    if (!std::exchange(m_areChoicesOld, false))
        return;
    m_choices->setChoices(entityChoices(m_desk.session.project(), m_referenceCategory));
}

void ReferenceValueEditor::takeName()
{
    const QString name = m_chips->lineEdit().text().trimmed();
    if (name.isEmpty())
        return;
    // Return on a row of the list reaches the field first; the choice comes right behind.
    const QAbstractItemView* const popup = m_completer->popup();
    if (popup->isVisible() && popup->currentIndex().isValid())
        return;
    loadChoices();
    if (const ContentId id = findEntityNamed(m_choices->choices(), name); !id.isNull())
        return addReference(id);
    if (m_completer->completionPrefix() == name && m_completer->completionCount() == 1) {
        return addReference(
            ContentId::fromString(m_completer->currentIndex().data(EntityChoiceModel::idRole).toString()));
    }
    m_note->setNote(
        tr("No single entity is called “%1” here. Choose one from the list that appears as you type.")
            .arg(name),
        NoteLabel::Tone::Error);
}

void ReferenceValueEditor::addReference(const ContentId& id)
{
    m_chips->lineEdit().clear();
    m_note->setNote({});
    const QString present = value().value_or(QString());
    QStringList lines = referenceLines(present);
    if (id.isNull() || lines.contains(id.toString()))
        return;
    lines.append(id.toString());
    finish(lines.join(u'\n'));
    this->present();
}

void ReferenceValueEditor::removeReference(int index)
{
    QStringList lines = referenceLines(value().value_or(QString()));
    if (index >= lines.size())
        return;
    lines.removeAt(index);
    finish(lines.isEmpty() ? std::nullopt : std::optional(lines.join(u'\n')));
    present();
}

void ReferenceValueEditor::openReference(int index)
{
    const auto id = ContentId::fromString(referenceLines(value().value_or(QString())).value(index));
    if (m_desk.session.project().findAs<Entity>(id))
        m_desk.navigator.open(id);
}

} // namespace tw::desktop::fields
