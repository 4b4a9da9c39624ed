#pragma once

#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <QString>

#include <vector>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::project {

/** An audience on its way through the dialog. */
struct AudienceRow
{
    /** The name that objects know it by; empty for a new one. */
    QString original;
    QString name;
    /** New objects are given it. */
    bool isDefault = false;

    bool operator==(const AudienceRow&) const = default;
};

/** What is set for a project as a whole. */
struct ProjectSettings
{
    QString name;
    std::vector<AudienceRow> audiences;
    std::vector<core::project::LibraryMount> libraries;

    bool operator==(const ProjectSettings&) const = default;
};

[[nodiscard]] ProjectSettings settingsOf(const core::project::Project& project);

/** Refuses a project or an audience without a name, and two audiences of one name. */
[[nodiscard]] core::Result<void> checkSettings(const ProjectSettings& settings);

/** How an audience is used by objects. */
struct AudienceUse
{
    int objects = 0;
    /** Of those, the ones that name no other audience: everybody would see them. */
    int alone = 0;
};

[[nodiscard]] AudienceUse useOf(const core::project::Project& project, const QString& audience);

/**
 * Makes the project so, as one step; nothing happens when it is so already. Objects follow audiences that got
 * another name, and forget those that are gone.
 */
void applySettings(shell::ProjectSession& session, const ProjectSettings& settings);

/**
 * The path of a library as the project keeps it: relative when it lies below the project's place or beside
 * it, so that both can move together.
 */
[[nodiscard]] QString mountPath(const QString& projectFolder, const QString& libraryPath);

} // namespace tw::desktop::project
