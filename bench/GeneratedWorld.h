#pragma once

#include "bench/InventedLanguage.h"
#include "bench/ProjectGenerator.h"
#include "core/content/ContentKind.h"

#include <array>
#include <set>
#include <vector>

namespace tw::bench {

/**
 * A project in the making: the ids of all its objects are drawn before the first is made, so that any object
 * can refer to any other. Lives as long as the generation takes.
 */
class GeneratedWorld
{
public:
    GeneratedWorld(core::project::Project& project, const GeneratedSize& size);

    core::project::Project& project;
    Random random;
    InventedLanguage language;

    [[nodiscard]] const std::vector<core::ContentId>& ids(core::content::ContentKind kind) const
    {
        return m_ids.at(static_cast<std::size_t>(kind));
    }
    [[nodiscard]] core::ContentId anyId(core::content::ContentKind kind) { return random.oneOf(ids(kind)); }
    [[nodiscard]] std::vector<core::ContentId> someIds(core::content::ContentKind kind, int fewest, int most);

    [[nodiscard]] QString color();
    /** "yyyy-MM-dd" */
    [[nodiscard]] QString day();
    /** ISO 8601, UTC. */
    [[nodiscard]] QString time();
    /** A moment of the story. */
    [[nodiscard]] qint64 instant();
    [[nodiscard]] const QString& tag() { return random.oneOf(m_tags); }

    /** Gives the object tags and the like, as some objects of every kind have them, and adds it. */
    void add(std::unique_ptr<core::content::ContentObject> object);

private:
    std::array<std::vector<core::ContentId>, core::content::allContentKinds.size()> m_ids;
    std::vector<QString> m_tags;
};

/** The parts of a project, each of its own kinds of objects. */
void addDocuments(GeneratedWorld& world);
void addCodex(GeneratedWorld& world);
void addTimelines(GeneratedWorld& world);
void addResearch(GeneratedWorld& world);
void addPictures(GeneratedWorld& world);
void addTables(GeneratedWorld& world);
void addLanguages(GeneratedWorld& world);
void addSettings(GeneratedWorld& world);

} // namespace tw::bench
