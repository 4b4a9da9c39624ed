#pragma once

#include "core/document/Document.h"
#include "core/project/Project.h"
#include "core/project/ProjectChanges.h"

#include <map>

namespace tw::core::document {

/**
 * What the shape of a manuscript was made of when it was last read, so that whoever shows it knows without
 * reading all documents whether it has to be read again.
 */
class DocumentPlaces
{
public:
    explicit DocumentPlaces(const project::Project& project) { read(project); }

    /**
     * Takes the changes up; true when documents came, went, moved or became another kind. Costs as much as
     * changed, except where everything did.
     */
    [[nodiscard]] bool follow(const project::Project& project, const project::ProjectChanges& changes);

private:
    struct Place
    {
        ContentId parentId;
        qint32 sortIndex = 0;
        DocumentKind kind = DocumentKind::Prose;

        friend bool operator==(const Place&, const Place&) = default;
    };

    [[nodiscard]] static Place placeOf(const Document& document);
    void read(const project::Project& project);
    [[nodiscard]] bool followDocument(const project::Project& project, const ContentId& id);

    std::map<ContentId, Place> m_places;
};

} // namespace tw::core::document
