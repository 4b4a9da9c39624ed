#pragma once

#include "app/typing/NameMatcher.h"
#include "core/project/ProjectChanges.h"

#include <QObject>
#include <QTimer>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::manuscript::rich {

/**
 * The names of the codex, ready to be found in a text. Made anew a moment after the codex changed, never
 * while a key is on its way.
 */
class EntityNames final : public QObject
{
    Q_OBJECT

public:
    EntityNames(shell::ProjectSession& session, QObject* parent);

    [[nodiscard]] const app::typing::NameMatcher& matcher() const { return m_matcher; }
    /** All names that begin with a text, whatever its case, sorted; those with a later word that does follow.
     */
    [[nodiscard]] QStringList completions(const QString& text, qsizetype most) const;

signals:
    void changed();

private:
    void follow(const core::project::ProjectChanges& changes);
    void read();

    shell::ProjectSession& m_session;
    QTimer m_rest;
    std::vector<app::typing::Name> m_names;
    app::typing::NameMatcher m_matcher;
};

} // namespace tw::desktop::manuscript::rich
