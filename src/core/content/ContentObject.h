#pragma once

#include "core/content/ContentKind.h"
#include "core/foundation/Id.h"

#include <QStringList>

#include <set>

namespace tw::core::content {

/** Names kept unique and in sorted order: audiences, tags. */
using NameSet = std::set<QString>;

/** Where the objects of a project note that they moved, once for each who asks about it later. */
struct ChangeNotes
{
    /** For Project::takeChanges(). */
    std::set<ContentId> unannounced;
    /** For the index of names; nothing is noted while there is none. */
    std::set<ContentId> unindexed;
    bool hasIndex = false;
    /** For Project::changeStamp(). */
    quint64 stamp = drawStamp();

    /** Another number at every call, on whichever thread. */
    [[nodiscard]] static quint64 drawStamp();

    /** An object came, went or changed. */
    void noteMove(const ContentId& id)
    {
        stamp = drawStamp();
        if (hasIndex)
            unindexed.insert(id);
    }
};

/**
 * The common base of everything a project holds. Objects are owned by a Project, or by the command that
 * took them out of it; they live on the main thread, but may be built on another one before they are added.
 *
 * A kind is plain data: setters store and nothing else. Equality compares the data (id and kind included),
 * never the revision.
 */
class ContentObject
{
public:
    virtual ~ContentObject();

    ContentObject(const ContentObject&) = delete;
    ContentObject& operator=(const ContentObject&) = delete;

    [[nodiscard]] const ContentId& id() const { return m_id; }
    [[nodiscard]] ContentKind kind() const { return m_kind; }

    /** The audiences that may see this object; empty means every audience. */
    [[nodiscard]] const NameSet& visibleTo() const { return m_visibleTo; }
    void setVisibleTo(NameSet audiences) { m_visibleTo = std::move(audiences); }
    [[nodiscard]] bool isVisibleTo(const QString& audience) const;

    [[nodiscard]] const NameSet& tags() const { return m_tags; }
    void setTags(NameSet tags) { m_tags = std::move(tags); }

    /** True when the object's content is withheld from the assistant. */
    [[nodiscard]] bool isAiExcluded() const { return m_aiExcluded; }
    void setAiExcluded(bool excluded) { m_aiExcluded = excluded; }

    [[nodiscard]] bool isLocked() const { return m_locked; }
    void setLocked(bool locked) { m_locked = locked; }

    /** Ids of plot threads of the project, in the writer's order. */
    [[nodiscard]] const QStringList& plotThreadIds() const { return m_plotThreadIds; }
    void setPlotThreadIds(QStringList ids) { m_plotThreadIds = std::move(ids); }

    /**
     * Grows with every change, so that a save writes only what moved since its bytes were recorded. Whoever
     * changes an object of an open project calls touch() afterwards; the command templates do.
     */
    [[nodiscard]] quint64 revision() const { return m_revision; }
    void touch();

    /**
     * For Project alone: from here on revisions start at `firstRevision` and touch() leaves its id in
     * `notes`, which outlive the object's stay.
     */
    void enterProject(quint64 firstRevision, ChangeNotes* notes);
    void leaveProject() { m_notes = nullptr; }

    friend bool operator==(const ContentObject& left, const ContentObject& right);

protected:
    ContentObject(ContentId id, ContentKind kind)
        : m_id(id)
        , m_kind(kind)
    {}

private:
    ContentId m_id;
    ContentKind m_kind;
    bool m_aiExcluded = false;
    bool m_locked = false;
    NameSet m_visibleTo;
    NameSet m_tags;
    QStringList m_plotThreadIds;
    quint64 m_revision = 0;
    ChangeNotes* m_notes = nullptr;
};

/** The object as its concrete class when its kind is that class's; none otherwise. */
template <class Kind>
[[nodiscard]] Kind* objectCast(ContentObject* object)
{
    return object && object->kind() == Kind::staticKind ? static_cast<Kind*>(object) : nullptr;
}

template <class Kind>
[[nodiscard]] const Kind* objectCast(const ContentObject* object)
{
    return object && object->kind() == Kind::staticKind ? static_cast<const Kind*>(object) : nullptr;
}

/** Compares two objects with all fields of their kinds. */
[[nodiscard]] bool isSameData(const ContentObject& left, const ContentObject& right);

} // namespace tw::core::content
