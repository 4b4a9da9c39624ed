#include "desktop/fields/DateValueEditor.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/fields/ValueText.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tw::desktop::fields {

using core::calendar::StoryInstant;

DateValueEditor::DateValueEditor(const shell::DeskContext& desk, QWidget* parent)
    : ValueEditor(parent)
    , m_desk(desk)
    , m_edit(new StoryDateEdit(desk.themes, this))
    , m_otherNote(new NoteLabel(desk.themes, this))
    , m_takeOut(new QToolButton(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_edit);
    auto* const otherLine = new QHBoxLayout;
    otherLine->addWidget(m_otherNote, 1);
    otherLine->addWidget(m_takeOut);
    layout->addLayout(otherLine);
    setFocusProxy(m_edit);
    m_edit->setCalendar(desk.session.project().calendar());
    m_takeOut->setIcon(desk.icons.icon(icons::Icon::Close));
    m_takeOut->setAutoRaise(true);
    m_takeOut->setToolTip(tr("Remove this text"));
    m_takeOut->setAccessibleName(m_takeOut->toolTip());
    connect(m_edit, &StoryDateEdit::typed, this, &DateValueEditor::typed);
    connect(m_edit, &StoryDateEdit::instantEdited, this, [this](const std::optional<StoryInstant>& instant) {
        finish(instant ? std::optional(QString::number(*instant)) : std::nullopt);
        present();
    });
    connect(m_takeOut, &QToolButton::clicked, this, [this] {
        finish(std::nullopt);
        present();
    });
}

void DateValueEditor::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
    m_takeOut->setEnabled(!readOnly);
}

void DateValueEditor::commit()
{
    m_edit->commit();
}

void DateValueEditor::follow(const core::project::ProjectChanges& changes)
{
    if (changes.areSettingsChanged || changes.isEverything)
        m_edit->setCalendar(m_desk.session.project().calendar());
}

void DateValueEditor::present()
{
    const auto instant = instantFromValue(value().value_or(QString()));
    m_edit->setInstant(instant);
    const bool isOther = !instant && !value().value_or(QString()).isEmpty();
    m_otherNote->setNote(
        isOther ? tr("“%1” is not a date. It is kept until you enter one.").arg(*value()) : QString(),
        NoteLabel::Tone::Warning);
    m_takeOut->setVisible(isOther);
}

} // namespace tw::desktop::fields
