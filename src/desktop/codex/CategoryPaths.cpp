#include "desktop/codex/CategoryPaths.h"

#include "core/entity/Entity.h"
#include "desktop/shell/ObjectTitles.h"

#include <QCollator>

#include <algorithm>
#include <set>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::project::Project;

QString categoryPath(const Project& project, const CategoryId& id, const QString& audience)
{
    QStringList names;
    std::set<CategoryId> visited;
    const auto* category = project.taxonomy().category(id);
    while (category && visited.insert(category->id).second) {
        names.prepend(shell::shownName(category->name));
        CategoryId above = category->parentId;
        if (const auto* const entity = project.findAs<core::entity::Entity>(category->parentEntityId)) {
            const bool isShown = audience.isEmpty() || entity->isVisibleTo(audience);
            names.prepend(isShown ? shell::objectTitle(*entity) : u"…"_s);
            above = entity->categoryId();
        }
        category = project.taxonomy().category(above);
    }
    return names.join(u" › "_s);
}

std::vector<CategoryChoice> categoryChoices(const Project& project)
{
    std::vector<CategoryChoice> choices;
    for (const auto& [id, category] : project.taxonomy().categories())
        choices.push_back({id, categoryPath(project, id)});
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(choices, [&collator](const CategoryChoice& left, const CategoryChoice& right) {
        return collator.compare(left.path, right.path) < 0;
    });
    return choices;
}

} // namespace tw::desktop::codex
