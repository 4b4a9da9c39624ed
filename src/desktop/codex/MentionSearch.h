#pragma once

#include "core/foundation/Id.h"
#include "core/project/ProjectChanges.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <map>
#include <vector>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::codex {

/**
 * How often one of the names stands in a text as whole words. A name of several words counts whatever its
 * case, for an article opens it in capitals here and small there; a single word only as it is written, for
 * "Will" is no "will".
 */
[[nodiscard]] int countMentions(const QString& text, const QStringList& names);

struct Mention
{
    core::ContentId documentId;
    int count = 0;

    friend bool operator==(const Mention&, const Mention&) = default;
};

/**
 * Finds the documents that mention some names. Works in short slices once the writer rests, remembers what it
 * counted, and reads again only the documents that changed. Rests altogether while nobody looks.
 */
class MentionSearch final : public QObject
{
    Q_OBJECT

public:
    MentionSearch(shell::ProjectSession& session, QObject* parent);

    /** Other names than before start the search anew. */
    void setNames(const QStringList& names);
    void setActive(bool active);
    /** False until everything was read once with the present names. */
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    /** In reading order. */
    [[nodiscard]] std::vector<Mention> mentions() const;

    /** Reads what is left at once, without waiting for a rest. */
    void finishNow();

signals:
    void finished();

private:
    enum class Pace
    {
        Slice,
        AtOnce,
    };

    void follow(const core::project::ProjectChanges& changes);
    void restart();
    void read(Pace pace);

    shell::ProjectSession& m_session;
    QStringList m_names;
    std::map<core::ContentId, int> m_counts;
    QTimer m_timer;
    bool m_isActive = false;
    bool m_isComplete = false;
};

} // namespace tw::desktop::codex
