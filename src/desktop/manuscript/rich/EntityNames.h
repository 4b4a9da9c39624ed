#pragma once

#include "app/typing/NameMatcher.h"
#include "core/project/ProjectChanges.h"

#include <QObject>
#include <QTimer>

class QWidget;

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
    /** Owned by the page. */
    EntityNames(shell::ProjectSession& session, QWidget& page);

    /** Has the names brought up to date soon; while the page is hidden nothing is done for it. */
    void wake();

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
    QWidget& m_page;
    bool m_isStale = true;
    QTimer m_rest;
    std::vector<app::typing::Name> m_names;
    app::typing::NameMatcher m_matcher;
};

} // namespace tw::desktop::manuscript::rich
