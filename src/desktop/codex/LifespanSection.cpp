#include "desktop/codex/LifespanSection.h"

#include "core/entity/EntityCommands.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QGridLayout>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::entity::Lifespan;
using fields::StoryDateEdit;

namespace {

constexpr int columnSpacing = 16;
constexpr int rowSpacing = 4;

} // namespace

LifespanSection::LifespanSection(
    const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_birth(new StoryDateEdit(desk.themes, this))
    , m_death(new StoryDateEdit(desk.themes, this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(rowSpacing);
    grid->addWidget(new SectionHeading(desk.icons.icon(icons::Icon::Date), tr("Lifespan"), this), 0, 0, 1, 2);
    const auto addDate = [&](int column, const QString& name, StoryDateEdit* edit) {
        auto* const label = new QLabel(name, this);
        label->setForegroundRole(QPalette::PlaceholderText);
        label->setBuddy(edit);
        grid->addWidget(label, 1, column);
        grid->addWidget(edit, 2, column, Qt::AlignTop);
        grid->setColumnStretch(column, 1);
        edit->focusProxy()->setAccessibleName(name);
        connect(edit, &StoryDateEdit::typed, this, &LifespanSection::typed);
        connect(edit, &StoryDateEdit::instantEdited, this, &LifespanSection::store);
    };
    addDate(0, tr("From"), m_birth);
    addDate(1, tr("To"), m_death);
    grid->addWidget(m_note, 3, 0, 1, 2);
}

void LifespanSection::showEntity(const Entity& entity)
{
    const Lifespan& lifespan = entity.lifespan();
    const auto show = [this](
                          StoryDateEdit* edit, const std::optional<core::calendar::StoryInstant>& instant) {
        edit->setCalendar(desk().session.project().calendar());
        if (edit->instant() != instant)
            edit->setInstant(instant);
    };
    show(m_birth, lifespan.birth);
    show(m_death, lifespan.death);
    const bool isReversed = lifespan.birth && lifespan.death && *lifespan.death < *lifespan.birth;
    m_note->setNote(
        isReversed ? tr("The end lies before the beginning.") : QString(), fields::NoteLabel::Tone::Warning);
}

void LifespanSection::commit()
{
    m_birth->commit();
    m_death->commit();
}

void LifespanSection::setReadOnly(bool readOnly)
{
    m_birth->setReadOnly(readOnly);
    m_death->setReadOnly(readOnly);
}

void LifespanSection::store()
{
    Entity* const edited = entityForCommands();
    const Lifespan lifespan{m_birth->instant(), m_death->instant()};
    if (edited && edited->lifespan() != lifespan)
        desk().session.apply(std::make_unique<core::entity::SetEntityLifespanCommand>(*edited, lifespan));
}

} // namespace tw::desktop::codex
