#pragma once

#include "desktop/codex/EntitySection.h"
#include "desktop/codex/FieldGroups.h"

class QLabel;

namespace tw::core::timeline {
class TimelineEvent;
}

namespace tw::desktop::codex {

class MentionSearch;

/** A link to an object of the project, with a quiet remark behind it. */
struct ObjectLink
{
    core::ContentId id;
    QString title;
    QString remark;

    friend bool operator==(const ObjectLink&, const ObjectLink&) = default;
};

/** Lines of links that open what they name; a sentence when there are none. */
class LinkList final : public QWidget
{
    Q_OBJECT

public:
    LinkList(const shell::DeskContext& desk, const QString& name, QWidget* parent);

    void setLinks(const std::vector<ObjectLink>& links, const QString& emptyText);
    [[nodiscard]] const std::vector<ObjectLink>& links() const { return m_links; }

private:
    void showLinks();

    shell::DeskContext m_desk;
    QLabel* m_label;
    std::vector<ObjectLink> m_links;
    QString m_emptyText;
};

/** The events an entity takes part in or that happen there, by their start. */
[[nodiscard]] std::vector<const core::timeline::TimelineEvent*> eventsOf(
    const core::project::Project& project, const core::ContentId& entityId);

class EventsSection final : public EntitySection
{
    Q_OBJECT

public:
    EventsSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void follow(const core::project::ProjectChanges& changes) override;

    [[nodiscard]] const LinkList& list() const { return *m_list; }

private:
    LinkList* m_list;
};

/** The documents that mention the entity by its name or another one. */
class MentionsSection final : public EntitySection
{
    Q_OBJECT

public:
    MentionsSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;

    [[nodiscard]] MentionSearch& search() { return *m_search; }
    [[nodiscard]] const LinkList& list() const { return *m_list; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showMentions();

    MentionSearch* m_search;
    LinkList* m_list;
};

/** Values that no control shows, so that nothing seems lost. Hidden when there are none. */
class HiddenValuesSection final : public EntitySection
{
    Q_OBJECT

public:
    HiddenValuesSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;

private:
    QLabel* m_values;
    std::vector<HiddenValue> m_shown;
};

} // namespace tw::desktop::codex
