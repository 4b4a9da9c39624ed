#include "core/document/DocumentPlaces.h"

#include <utility>

namespace tw::core::document {

using project::Project;
using project::ProjectChanges;

DocumentPlaces::Place DocumentPlaces::placeOf(const Document& document)
{
    return {document.parentId(), document.sortIndex(), document.documentKind()};
}

void DocumentPlaces::read(const Project& project)
{
    m_places.clear();
    for (const Document* const document : project::objectsOf<Document>(project))
        m_places.emplace(document->id(), placeOf(*document));
}

bool DocumentPlaces::followDocument(const Project& project, const ContentId& id)
{
    const auto* const document = project.findAs<Document>(id);
    if (!document)
        return m_places.erase(id) > 0;
    const Place place = placeOf(*document);
    const auto [known, isNew] = m_places.try_emplace(id, place);
    return isNew || std::exchange(known->second, place) != place;
}

bool DocumentPlaces::follow(const Project& project, const ProjectChanges& changes)
{
    if (changes.isEverything) {
        read(project);
        return true;
    }
    bool isMoved = false;
    for (const auto* const ids : {&changes.added, &changes.removed, &changes.changed}) {
        for (const ContentId& id : *ids)
            isMoved = followDocument(project, id) || isMoved;
    }
    return isMoved;
}

} // namespace tw::core::document
