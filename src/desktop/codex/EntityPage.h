#pragma once

#include "core/entity/Entity.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/WorkPage.h"

class QLabel;
class QScrollArea;

namespace tw::desktop::codex {

class EntityHeading;
class EntitySection;
class FieldsSection;
class LifespanSection;
class MentionsSection;
class TimedValuesSection;

/**
 * The page of one entity: name and names, values by where they come from, lifespan, state over time,
 * pictures, events and mentions. A value goes into the project, as one undo step, when its control is left;
 * whatever else changes touches only the controls that show something else now.
 */
class EntityPage final : public shell::WorkPage
{
    Q_OBJECT

public:
    EntityPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent);
    ~EntityPage() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QIcon icon() const override;
    void takeFocus() override;
    [[nodiscard]] QString statusText() const override;

    [[nodiscard]] EntityHeading& heading() { return *m_heading; }
    [[nodiscard]] FieldsSection& fields() { return *m_fields; }
    [[nodiscard]] LifespanSection& lifespan() { return *m_lifespan; }
    [[nodiscard]] TimedValuesSection& timedValues() { return *m_timedValues; }
    [[nodiscard]] MentionsSection& mentions() { return *m_mentions; }

private:
    void makeSheet();
    void followChanges(const core::project::ProjectChanges& changes);
    [[nodiscard]] bool concernsCodex(const core::project::ProjectChanges& changes) const;
    void showEntity();
    void noteTyping();
    void commit();

    shell::DeskContext m_desk;
    QScrollArea* m_scroll;
    QWidget* m_sheet;
    QLabel* m_lockNotice;
    EntityHeading* m_heading;
    FieldsSection* m_fields;
    LifespanSection* m_lifespan;
    TimedValuesSection* m_timedValues;
    MentionsSection* m_mentions;
    std::vector<EntitySection*> m_sections;
    bool m_hasTyping = false;
};

} // namespace tw::desktop::codex
