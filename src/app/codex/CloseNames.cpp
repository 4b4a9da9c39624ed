#include "app/codex/CloseNames.h"

#include "app/codex/NameDistance.h"
#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"

#include <algorithm>

namespace tw::app::codex {

std::vector<CloseName> closeNames(const core::project::Project& project, const QString& name, int most)
{
    const std::u32string wanted = comparableName(name);
    std::vector<CloseName> close;
    const auto compare = [&](const QString& text, const core::content::ContentObject& object, bool isAlias) {
        if (text.isEmpty())
            return;
        if (const auto distance = editDistance(wanted, comparableName(text), most))
            close.push_back({text, &object, isAlias, *distance});
    };
    for (const auto& [id, object] : project.objects()) {
        if (object->isAiExcluded())
            continue;
        compare(core::content::objectName(*object), *object, false);
        if (const auto* const entity = core::content::objectCast<core::entity::Entity>(object.get())) {
            for (const QString& alias : entity->aliases())
                compare(alias, *object, true);
        }
    }
    std::ranges::stable_sort(close, [](const CloseName& left, const CloseName& right) {
        return left.distance != right.distance ? left.distance < right.distance
                                               : left.text.compare(right.text, Qt::CaseInsensitive) < 0;
    });
    return close;
}

} // namespace tw::app::codex
