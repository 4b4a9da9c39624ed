#pragma once

#include "app/search/TitleIndex.h"
#include "core/project/ProjectChanges.h"
#include "desktop/finder/FinderSource.h"
#include "desktop/shell/DeskContext.h"

#include <QObject>
#include <QStringList>

#include <optional>

namespace tw::core::content {
class ContentObject;
}
namespace tw::core::project {
class Project;
}
namespace tw::desktop::shell {
class WorkArea;
}

namespace tw::desktop::finder {

/**
 * Whatever has a title and a page, in the project and in its libraries, found by a few letters; what was
 * visited last until something is typed. As the trees do, it shows only what the chosen audience may see.
 *
 * The titles are prepared when somebody first types, and follow what changes; until then nothing is kept.
 */
class GoToFinder final : public QObject, public FinderSource
{
    Q_OBJECT

public:
    /** The work area must outlive it. */
    GoToFinder(const shell::DeskContext& desk, shell::WorkArea& work, QObject* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString hint() const override;
    [[nodiscard]] QString emptyText(const QString& typed) const override;
    [[nodiscard]] std::vector<FinderRow> rowsFor(const QString& typed) override;
    void choose(std::size_t row, FinderTarget target) override;

    /** The ids of what was visited, the last first, for the next start. */
    [[nodiscard]] const QStringList& visited() const { return m_visited; }
    void setVisited(const QStringList& ids);

private:
    void noteVisit(const core::ContentId& id);
    void followChanges(const core::project::ProjectChanges& changes);
    /** Forgets the titles; they are prepared anew when they are wanted. */
    void forget();
    void prepare();
    [[nodiscard]] bool isShown(const core::content::ContentObject& object) const;
    [[nodiscard]] std::vector<app::search::TitleHit> visitedHits() const;
    [[nodiscard]] const core::project::Project& projectOf(const app::search::TitleHit& hit) const;
    [[nodiscard]] FinderRow rowOf(const app::search::TitleHit& hit) const;
    [[nodiscard]] QString placeOf(
        const core::project::Project& project, const core::content::ContentObject& object) const;

    shell::DeskContext m_desk;
    shell::WorkArea& m_work;
    std::optional<app::search::TitleIndex> m_index;
    /** What moved since the titles were brought up to date. */
    std::set<core::ContentId> m_moved;
    QStringList m_visited;
    /** As they are shown. */
    std::vector<app::search::TitleHit> m_hits;
};

} // namespace tw::desktop::finder
