#pragma once

#include "core/calendar/Calendar.h"
#include "core/calendar/Reckoning.h"
#include "core/content/ContentObject.h"
#include "core/entity/EntityTemplate.h"
#include "core/plot/Plot.h"
#include "core/project/NameIndex.h"
#include "core/project/ProjectChanges.h"
#include "core/project/ProjectSettings.h"
#include "core/taxonomy/Taxonomy.h"
#include "core/timeline/ContinuityRule.h"
#include "core/timeline/TimelineSettings.h"
#include "core/writing/Writing.h"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <vector>

namespace tw::core::project {

/**
 * The object store of one project: owns the content objects, the taxonomy and the project-wide data. Main
 * thread only. Addresses of objects are stable while they are in the project; commands that take an object
 * out keep it alive.
 */
class Project
{
public:
    using ObjectMap = std::map<ContentId, std::unique_ptr<content::ContentObject>>;

    Project();
    ~Project();

    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    // Objects

    [[nodiscard]] const ObjectMap& objects() const { return m_objects; }
    [[nodiscard]] bool contains(const ContentId& id) const { return m_objects.contains(id); }
    /** None when the id is absent. */
    [[nodiscard]] const content::ContentObject* find(const ContentId& id) const;
    [[nodiscard]] content::ContentObject* findForEdit(const ContentId& id);

    /** The object when it is of that kind, else none. */
    template <class Kind>
    [[nodiscard]] const Kind* findAs(const ContentId& id) const
    {
        return content::objectCast<Kind>(find(id));
    }
    template <class Kind>
    [[nodiscard]] Kind* findAsForEdit(const ContentId& id)
    {
        return content::objectCast<Kind>(findForEdit(id));
    }

    /** All objects of a kind, by id. The span holds until an object is added or taken. */
    [[nodiscard]] std::span<content::ContentObject* const> objectsOfKind(content::ContentKind kind) const;

    /**
     * Objects by name. Made when it is first asked for, and brought up to date with every change since then
     * when it is asked for again; the reference holds until the project changes.
     */
    [[nodiscard]] const NameIndex& names() const;

    /** Inserts a new object; one without audiences receives the default audiences. The id must be free. */
    void add(std::unique_ptr<content::ContentObject> object);
    /** Inserts an object as it is: for the loader and for the undo of a removal. The id must be free. */
    void insert(std::unique_ptr<content::ContentObject> object);
    /** Hands the object back to the caller; none when the id is absent. */
    [[nodiscard]] std::unique_ptr<content::ContentObject> take(ContentId id);

    // Codex schema

    [[nodiscard]] const taxonomy::Taxonomy& taxonomy() const { return m_taxonomy; }
    /** Counts as a change of the taxonomy. */
    [[nodiscard]] taxonomy::Taxonomy& taxonomyForEdit();

    // Project-wide data. Whoever sets it in an open project calls touchSettings(); the commands do.

    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(QString name) { m_name = std::move(name); }

    [[nodiscard]] const std::set<ContentId>& pinned() const { return m_pinned; }
    void setPinnedIds(std::set<ContentId> ids) { m_pinned = std::move(ids); }
    [[nodiscard]] bool isPinned(const ContentId& id) const { return m_pinned.contains(id); }
    void setPinned(const ContentId& id, bool on);

    /** Defined audience names, as the user arranged them. */
    [[nodiscard]] const QStringList& audiences() const { return m_audiences; }
    void setAudiences(QStringList names) { m_audiences = std::move(names); }

    /** The audiences that a new object receives. */
    [[nodiscard]] const content::NameSet& defaultAudiences() const { return m_defaultAudiences; }
    void setDefaultAudiences(content::NameSet names) { m_defaultAudiences = std::move(names); }

    [[nodiscard]] const std::vector<SavedSearch>& savedSearches() const { return m_savedSearches; }
    void setSavedSearches(std::vector<SavedSearch> searches) { m_savedSearches = std::move(searches); }

    [[nodiscard]] const std::vector<entity::EntityTemplate>& entityTemplates() const
    {
        return m_entityTemplates;
    }
    void setEntityTemplates(std::vector<entity::EntityTemplate> list) { m_entityTemplates = std::move(list); }

    /** None when the question never came up. */
    [[nodiscard]] const std::optional<PropertyMigration>& propertyMigration() const
    {
        return m_propertyMigration;
    }
    void setPropertyMigration(std::optional<PropertyMigration> state)
    {
        m_propertyMigration = std::move(state);
    }

    [[nodiscard]] const std::vector<plot::PlotThread>& plotThreads() const { return m_plotThreads; }
    void setPlotThreads(std::vector<plot::PlotThread> threads) { m_plotThreads = std::move(threads); }

    [[nodiscard]] const plot::BeatSheet& beatSheet() const { return m_beatSheet; }
    void setBeatSheet(plot::BeatSheet sheet) { m_beatSheet = std::move(sheet); }

    [[nodiscard]] const std::vector<timeline::ContinuityRule>& continuityRules() const
    {
        return m_continuityRules;
    }
    void setContinuityRules(std::vector<timeline::ContinuityRule> rules)
    {
        m_continuityRules = std::move(rules);
    }

    [[nodiscard]] const std::vector<timeline::TimelineEra>& timelineEras() const { return m_timelineEras; }
    void setTimelineEras(std::vector<timeline::TimelineEra> eras) { m_timelineEras = std::move(eras); }

    [[nodiscard]] const std::vector<timeline::TimelineMarker>& timelineMarkers() const
    {
        return m_timelineMarkers;
    }
    void setTimelineMarkers(std::vector<timeline::TimelineMarker> list)
    {
        m_timelineMarkers = std::move(list);
    }

    [[nodiscard]] const std::vector<timeline::TimelineBookmark>& timelineBookmarks() const
    {
        return m_timelineBookmarks;
    }
    void setTimelineBookmarks(std::vector<timeline::TimelineBookmark> list)
    {
        m_timelineBookmarks = std::move(list);
    }

    [[nodiscard]] const timeline::TimelineViewSettings& timelineView() const { return m_timelineView; }
    void setTimelineView(timeline::TimelineViewSettings settings) { m_timelineView = std::move(settings); }

    [[nodiscard]] const std::vector<timeline::TimelineViewPreset>& timelineViewPresets() const
    {
        return m_timelineViewPresets;
    }
    void setTimelineViewPresets(std::vector<timeline::TimelineViewPreset> presets)
    {
        m_timelineViewPresets = std::move(presets);
    }

    [[nodiscard]] const std::vector<LibraryMount>& libraryMounts() const { return m_libraryMounts; }
    void setLibraryMounts(std::vector<LibraryMount> mounts) { m_libraryMounts = std::move(mounts); }

    /** Words written by day, oldest first. */
    [[nodiscard]] const std::vector<writing::WritingLogEntry>& writingLog() const { return m_writingLog; }
    void setWritingLog(std::vector<writing::WritingLogEntry> log) { m_writingLog = std::move(log); }

    [[nodiscard]] const writing::WritingGoal& writingGoal() const { return m_writingGoal; }
    void setWritingGoal(writing::WritingGoal goal) { m_writingGoal = std::move(goal); }

    /** Of the documents that have something of their own, none of them empty. */
    [[nodiscard]] const std::vector<writing::DocumentProofreading>& proofreading() const
    {
        return m_proofreading;
    }
    void setProofreading(std::vector<writing::DocumentProofreading> list)
    {
        m_proofreading = std::move(list);
    }

    [[nodiscard]] const calendar::Calendar& calendar() const { return m_calendar; }
    void setCalendar(calendar::Calendar calendar) { m_calendar = std::move(calendar); }

    [[nodiscard]] const std::vector<calendar::Reckoning>& reckonings() const { return m_reckonings; }
    void setReckonings(std::vector<calendar::Reckoning> reckonings) { m_reckonings = std::move(reckonings); }

    // Changes

    void touchSettings() { m_changes.areSettingsChanged = true; }
    /**
     * Another number after every object that came, went or changed, and never the same in two projects:
     * while it stays, whatever was read of the objects holds.
     */
    [[nodiscard]] quint64 changeStamp() const { return m_notes.stamp; }
    /** What moved since the last call. Changes of fields are found by their objects' touch(). */
    [[nodiscard]] ProjectChanges takeChanges();

    /** Compares all data; revisions and noted changes do not count. */
    friend bool operator==(const Project& left, const Project& right);

private:
    std::vector<content::ContentObject*>& kindList(content::ContentKind kind);

    ObjectMap m_objects;
    std::array<std::vector<content::ContentObject*>, content::allContentKinds.size()> m_byKind;
    taxonomy::Taxonomy m_taxonomy;
    /** What moved, without the changed objects, which stand in the notes. */
    ProjectChanges m_changes;
    mutable content::ChangeNotes m_notes;
    mutable NameIndex m_names;

    QString m_name;
    std::set<ContentId> m_pinned;
    QStringList m_audiences;
    content::NameSet m_defaultAudiences;
    std::vector<SavedSearch> m_savedSearches;
    std::vector<entity::EntityTemplate> m_entityTemplates;
    std::optional<PropertyMigration> m_propertyMigration;
    std::vector<plot::PlotThread> m_plotThreads;
    plot::BeatSheet m_beatSheet;
    std::vector<timeline::ContinuityRule> m_continuityRules;
    std::vector<timeline::TimelineEra> m_timelineEras;
    std::vector<timeline::TimelineMarker> m_timelineMarkers;
    std::vector<timeline::TimelineBookmark> m_timelineBookmarks;
    timeline::TimelineViewSettings m_timelineView;
    std::vector<timeline::TimelineViewPreset> m_timelineViewPresets;
    std::vector<LibraryMount> m_libraryMounts;
    std::vector<writing::WritingLogEntry> m_writingLog;
    writing::WritingGoal m_writingGoal;
    std::vector<writing::DocumentProofreading> m_proofreading;
    calendar::Calendar m_calendar;
    std::vector<calendar::Reckoning> m_reckonings;
};

/** The objects of one kind as their class: `for (const auto* map : objectsOf<Map>(project))`. */
template <class Kind>
[[nodiscard]] std::vector<const Kind*> objectsOf(const Project& project)
{
    const auto objects = project.objectsOfKind(Kind::staticKind);
    std::vector<const Kind*> typed;
    typed.reserve(objects.size());
    for (const content::ContentObject* object : objects)
        typed.push_back(static_cast<const Kind*>(object));
    return typed;
}

} // namespace tw::core::project
