#include "desktop/codex/RelatedSections.h"

#include "core/document/Document.h"
#include "core/timeline/TimelineEvent.h"
#include "desktop/codex/MentionSearch.h"
#include "desktop/codex/SectionHeading.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::entity::Entity;
using core::project::ProjectChanges;
using core::timeline::TimelineEvent;
using icons::Icon;

namespace {

QVBoxLayout* makeColumn(EntitySection* section)
{
    auto* const layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

/** Tab goes from link to link; Shift+Tab leaves at once, since the toolkit's label would never let go of it.
 */
class LinkLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    bool focusNextPrevChild(bool isNext) override
    {
        return isNext ? QLabel::focusNextPrevChild(true) : QWidget::focusNextPrevChild(false);
    }
};

} // namespace

LinkList::LinkList(const shell::DeskContext& desk, const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_label(new LinkLabel(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    m_label->setTextFormat(Qt::RichText);
    m_label->setWordWrap(true);
    m_label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_label->setAccessibleName(name);
    connect(m_label, &QLabel::linkActivated, this, [this](const QString& link) {
        m_desk.navigator.open(ContentId::fromString(link));
    });
    // Colours of links are written into the text when it is set.
    connect(&desk.themes, &theme::ThemeManager::themeChanged, this, &LinkList::showLinks);
}

void LinkList::setLinks(const std::vector<ObjectLink>& links, const QString& emptyText)
{
    if (links == m_links && emptyText == m_emptyText && !m_label->text().isEmpty())
        return;
    m_links = links;
    m_emptyText = emptyText;
    showLinks();
}

void LinkList::showLinks()
{
    const auto& theme = m_desk.themes.theme();
    const QString quiet = theme.color(theme::Role::QuietInk).name();
    if (m_links.empty()) {
        m_label->setText(u"<span style=\"color:%1\">%2</span>"_s.arg(quiet, m_emptyText.toHtmlEscaped()));
        return;
    }
    QStringList lines;
    for (const ObjectLink& link : m_links) {
        lines.append(
            u"<p style=\"margin:0 0 4px 0\"><a href=\"%1\" style=\"color:%2; text-decoration:none\">%3</a> "
            u"<span style=\"color:%4\">%5</span></p>"_s.arg(
                link.id.toString(), theme.color(theme::Role::Link).name(), link.title.toHtmlEscaped(), quiet,
                link.remark.toHtmlEscaped()));
    }
    m_label->setText(lines.join(QString()));
}

std::vector<const TimelineEvent*> eventsOf(const core::project::Project& project, const ContentId& entityId)
{
    std::vector<const TimelineEvent*> events;
    for (const TimelineEvent* const event : core::project::objectsOf<TimelineEvent>(project)) {
        const auto& details = event->details();
        const bool takesPart =
            std::ranges::find(details.participants, entityId) != details.participants.end();
        if (takesPart || details.locationId == entityId)
            events.push_back(event);
    }
    std::ranges::stable_sort(
        events, {}, [](const TimelineEvent* event) { return event->details().startMinute; });
    return events;
}

EventsSection::EventsSection(const shell::DeskContext& desk, const ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_list(new LinkList(desk, tr("Events"), this))
{
    QVBoxLayout* const layout = makeColumn(this);
    layout->addWidget(new SectionHeading(desk.icons.icon(Icon::TimelineEvent), tr("Events"), this));
    layout->addWidget(m_list);
}

void EventsSection::showEntity(const Entity&)
{
    const auto& project = desk().session.project();
    std::vector<ObjectLink> links;
    for (const TimelineEvent* const event : eventsOf(project, entityId())) {
        links.push_back(
            {event->id(), shell::objectTitle(*event),
             project.calendar().formatInstant(event->details().startMinute)});
    }
    m_list->setLinks(links, {});
    setVisible(!links.empty());
}

void EventsSection::follow(const ProjectChanges& changes)
{
    const auto isEvent = [this](const ContentId& id) {
        const auto isShown = [&id](const ObjectLink& link) { return link.id == id; };
        return desk().session.project().findAs<TimelineEvent>(id) != nullptr ||
               std::ranges::any_of(m_list->links(), isShown);
    };
    const bool isConcerned = std::ranges::any_of(changes.added, isEvent) ||
                             std::ranges::any_of(changes.removed, isEvent) ||
                             std::ranges::any_of(changes.changed, isEvent);
    if (isConcerned)
        showEntity(*entity());
}

MentionsSection::MentionsSection(const shell::DeskContext& desk, const ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_search(new MentionSearch(desk.session, this))
    , m_list(new LinkList(desk, tr("Mentions"), this))
{
    QVBoxLayout* const layout = makeColumn(this);
    layout->addWidget(new SectionHeading(desk.icons.icon(Icon::Manuscript), tr("Mentions"), this));
    layout->addWidget(m_list);
    m_list->setLinks({}, tr("Reading the manuscript…"));
    connect(m_search, &MentionSearch::finished, this, &MentionsSection::showMentions);
}

void MentionsSection::showEntity(const Entity& entity)
{
    m_search->setNames(QStringList{entity.name()} + entity.aliases());
}

void MentionsSection::showMentions()
{
    const auto& project = desk().session.project();
    std::vector<ObjectLink> links;
    for (const Mention& mention : m_search->mentions()) {
        if (const auto* const object = project.find(mention.documentId)) {
            links.push_back(
                {mention.documentId, shell::objectTitle(*object),
                 mention.count > 1 ? tr("%n times", "", mention.count) : QString()});
        }
    }
    m_list->setLinks(links, tr("No document names it yet."));
}

void MentionsSection::showEvent(QShowEvent* event)
{
    EntitySection::showEvent(event);
    m_search->setActive(true);
}

void MentionsSection::hideEvent(QHideEvent* event)
{
    EntitySection::hideEvent(event);
    m_search->setActive(false);
}

HiddenValuesSection::HiddenValuesSection(
    const shell::DeskContext& desk, const ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_values(new QLabel(this))
{
    QVBoxLayout* const layout = makeColumn(this);
    layout->addWidget(
        new SectionHeading(desk.icons.icon(Icon::EyeOff), tr("Kept, but no property shows it"), this));
    layout->addWidget(m_values);
    m_values->setTextFormat(Qt::PlainText);
    m_values->setWordWrap(true);
    m_values->setForegroundRole(QPalette::PlaceholderText);
    m_values->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setToolTip(tr("These values show again when a property with their key reaches the entity."));
    hide();
}

void HiddenValuesSection::showEntity(const Entity& entity)
{
    std::vector<HiddenValue> hidden = hiddenValues(desk().session.project(), entity);
    if (hidden == m_shown)
        return;
    m_shown = std::move(hidden);
    QStringList lines;
    for (const HiddenValue& value : m_shown)
        lines.append(tr("%1: %2").arg(value.key, value.value));
    m_values->setText(lines.join(u'\n'));
    setVisible(!m_shown.empty());
}

} // namespace tw::desktop::codex
