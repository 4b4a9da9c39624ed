#pragma once

#include "app/codex/ValueConversion.h"
#include "core/timeline/ContinuityRule.h"

#include <QStringList>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::continuity {

/**
 * What rules compare with, as the writer reads and types it: names for references, dates of the calendar, yes
 * and no. Reads the project and its libraries as they are; make another one after a change.
 */
class RuleValue
{
public:
    explicit RuleValue(const shell::ProjectSession& session);

    /** The field that the rule reads; one of type text when nobody knows it. */
    [[nodiscard]] core::taxonomy::Field fieldOf(const core::timeline::ContinuityRule& rule) const;
    [[nodiscard]] QString inWords(const core::timeline::ContinuityRule& rule) const;

    struct Reading
    {
        /** As the rule keeps it. */
        QString stored;
        /** Which value does not suit the field, and why; empty when all do. */
        QString fault;
    };
    [[nodiscard]] Reading read(const core::timeline::ContinuityRule& rule, const QString& words) const;

    /** What can be typed as one value of the field; empty where there is no end of it. */
    [[nodiscard]] QStringList choices(const core::taxonomy::Field& field) const;

private:
    [[nodiscard]] QString faultOf(const core::taxonomy::Field& field, const QString& value) const;

    const core::project::Project& m_project;
    app::codex::ObjectScope m_scope;
    app::codex::ValueConversion m_values;
};

} // namespace tw::desktop::continuity
