#include "desktop/codex/EntityPage.h"

#include "desktop/codex/EntityHeading.h"
#include "desktop/codex/FieldsSection.h"
#include "desktop/codex/GallerySection.h"
#include "desktop/codex/LifespanSection.h"
#include "desktop/codex/RelatedSections.h"
#include "desktop/codex/TimedValuesSection.h"
#include "desktop/fields/TabOrder.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::project::ProjectChanges;

namespace {

constexpr int sheetCharacters = 104;
constexpr int sideMargin = 40;
constexpr int topMargin = 32;
/** Keeps the sheet at its full width before the desk beside it gets any. */
constexpr int sheetStretch = 1000;

} // namespace

EntityPage::EntityPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent)
    : WorkPage({id, {}}, parent)
    , m_desk(desk)
    , m_scroll(new QScrollArea(this))
    , m_sheet(new QWidget)
    , m_lockNotice(new QLabel(tr("This entity is locked. Unlock it in the inspector to edit it."), this))
    , m_heading(new EntityHeading(desk, id, m_sheet))
    , m_fields(new FieldsSection(desk, id, m_sheet))
    , m_lifespan(new LifespanSection(desk, id, m_sheet))
    , m_timedValues(new TimedValuesSection(desk, id, m_sheet))
    , m_mentions(new MentionsSection(desk, id, m_sheet))
{
    m_sections = {m_heading,     new GallerySection(desk, id, m_sheet),
                  m_fields,      m_lifespan,
                  m_timedValues, new EventsSection(desk, id, m_sheet),
                  m_mentions,    new HiddenValuesSection(desk, id, m_sheet)};
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_lockNotice);
    layout->addWidget(m_scroll);
    m_lockNotice->setAlignment(Qt::AlignCenter);
    m_lockNotice->setContentsMargins(8, 8, 8, 8);
    makeSheet();
    for (EntitySection* const section : m_sections)
        connect(section, &EntitySection::typed, this, &EntityPage::noteTyping);
    connect(&desk.session, &shell::ProjectSession::commitRequested, this, &EntityPage::commit);
    connect(&desk.session, &shell::ProjectSession::changed, this, &EntityPage::followChanges);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* left) {
        // Every control has committed by itself; what is left is typing that came to nothing.
        if (m_hasTyping && left && isAncestorOf(left))
            commit();
    });
    showEntity();
}

EntityPage::~EntityPage()
{
    // The parts go after this; a control that is left on the way may still store what was typed.
    m_desk.session.disconnect(this);
    qApp->disconnect(this);
}

void EntityPage::makeSheet()
{
    auto* const column = new QVBoxLayout(m_sheet);
    column->setContentsMargins(sideMargin, topMargin, sideMargin, topMargin);
    column->setSpacing(8);
    for (EntitySection* const section : m_sections)
        column->addWidget(section);
    column->addStretch(1);
    m_sheet->setBackgroundRole(QPalette::Base);
    m_sheet->setAutoFillBackground(true);
    m_sheet->setMaximumWidth(fontMetrics().averageCharWidth() * sheetCharacters + 2 * sideMargin);

    auto* const desk = new QWidget;
    auto* const row = new QHBoxLayout(desk);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(m_sheet, sheetStretch);
    row->addStretch(1);
    m_scroll->setAccessibleName(tr("Entity"));
    m_scroll->setWidget(desk);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_scroll);
}

QString EntityPage::title() const
{
    const auto* const object = m_desk.session.project().find(objectId());
    return object ? shell::objectTitle(*object) : QString();
}

QIcon EntityPage::icon() const
{
    return m_desk.icons.icon(icons::Icon::Entity);
}

void EntityPage::takeFocus()
{
    // Not into a field: a key meant for the tree must not land in a name.
    m_scroll->setFocus(Qt::OtherFocusReason);
}

QString EntityPage::statusText() const
{
    const int count = m_fields->fieldCount();
    return count == 0 ? QString()
                      : tr("%1 of %2 properties filled in").arg(m_fields->filledCount()).arg(count);
}

void EntityPage::noteTyping()
{
    if (std::exchange(m_hasTyping, true))
        return;
    m_desk.session.setTypingPending(*this, true);
}

void EntityPage::commit()
{
    if (std::exchange(m_hasTyping, false))
        m_desk.session.setTypingPending(*this, false);
    for (EntitySection* const section : m_sections)
        section->commit();
}

bool EntityPage::concernsCodex(const ProjectChanges& changes) const
{
    if (changes.isEverything || changes.isTaxonomyChanged || changes.areSettingsChanged ||
        !changes.removed.empty())
        return true;
    const auto isEntity = [this](const core::ContentId& id) {
        return m_desk.session.project().findAs<Entity>(id) != nullptr;
    };
    return std::ranges::any_of(changes.added, isEntity) || std::ranges::any_of(changes.changed, isEntity);
}

void EntityPage::followChanges(const ProjectChanges& changes)
{
    if (!m_desk.session.project().findAs<Entity>(objectId()))
        return;
    if (concernsCodex(changes))
        showEntity();
    for (EntitySection* const section : m_sections)
        section->follow(changes);
    fields::setTabOrderAsLaidOut(*this);
    if (changes.concerns(objectId())) {
        emit titleChanged();
        emit statusTextChanged();
    }
}

void EntityPage::showEntity()
{
    const auto* const entity = m_desk.session.project().findAs<Entity>(objectId());
    if (!entity)
        return;
    for (EntitySection* const section : m_sections) {
        section->showEntity(*entity);
        section->setReadOnly(entity->isLocked());
    }
    m_lockNotice->setVisible(entity->isLocked());
    fields::setTabOrderAsLaidOut(*this);
}

} // namespace tw::desktop::codex
