#pragma once

#include "core/project/Project.h"

#include <vector>

namespace tw::desktop::codex {

/**
 * The way to a category from the top, by names: "Places › Great Staithe › Wards". Entities that the audience
 * (empty: everyone) may not see stand there as "…". Survives loops.
 */
[[nodiscard]] QString categoryPath(
    const core::project::Project& project, const core::CategoryId& id, const QString& audience = {});

struct CategoryChoice
{
    core::CategoryId id;
    QString path;
};

/** All categories with their paths, sorted by path as a reader sorts. */
[[nodiscard]] std::vector<CategoryChoice> categoryChoices(const core::project::Project& project);

} // namespace tw::desktop::codex
