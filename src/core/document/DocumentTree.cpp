#include "core/document/DocumentTree.h"

#include <algorithm>
#include <set>

namespace tw::core::document {

using project::Project;

namespace {

std::vector<ContentId> inOrder(std::vector<const Document*> documents)
{
    std::ranges::stable_sort(documents, {}, &Document::sortIndex);
    std::vector<ContentId> ids;
    ids.reserve(documents.size());
    for (const Document* document : documents)
        ids.push_back(document->id());
    return ids;
}

void appendSubtree(const DocumentTree& tree, const ContentId& id, std::vector<ContentId>& result)
{
    result.push_back(id);
    if (const auto children = tree.find(id); children != tree.end()) {
        for (const ContentId& child : children->second)
            appendSubtree(tree, child, result);
    }
}

/** True when following the parents from here ends at the top level. */
bool isAttached(const Project& project, const Document& document)
{
    std::set<ContentId> visited{document.id()};
    const Document* current = &document;
    while (!current->parentId().isNull()) {
        const Document* const parent = project.findAs<Document>(current->parentId());
        if (!parent)
            return current != &document;
        if (!visited.insert(parent->id()).second)
            return false;
        current = parent;
    }
    return true;
}

} // namespace

std::vector<ContentId> childDocuments(const Project& project, const ContentId& parentId)
{
    std::vector<const Document*> documents = project::objectsOf<Document>(project);
    std::erase_if(
        documents, [&parentId](const Document* document) { return document->parentId() != parentId; });
    return inOrder(std::move(documents));
}

DocumentTree documentTree(const Project& project)
{
    std::map<ContentId, std::vector<const Document*>> byParent;
    for (const Document* document : project::objectsOf<Document>(project)) {
        const ContentId parent = isAttached(project, *document) ? document->parentId() : ContentId();
        byParent[parent].push_back(document);
    }
    DocumentTree tree;
    for (auto& [parent, children] : byParent)
        tree.emplace(parent, inOrder(std::move(children)));
    return tree;
}

std::vector<ContentId> documentsInReadingOrder(const Project& project)
{
    const DocumentTree tree = documentTree(project);
    std::vector<ContentId> result;
    if (const auto roots = tree.find(ContentId()); roots != tree.end()) {
        for (const ContentId& root : roots->second)
            appendSubtree(tree, root, result);
    }
    return result;
}

std::vector<ContentId> documentSubtree(const Project& project, const ContentId& rootId)
{
    std::vector<ContentId> result;
    if (project.findAs<Document>(rootId))
        appendSubtree(documentTree(project), rootId, result);
    return result;
}

bool isSameOrBeneath(const Project& project, const ContentId& documentId, const ContentId& ancestorId)
{
    std::set<ContentId> visited;
    const Document* current = project.findAs<Document>(documentId);
    while (current && visited.insert(current->id()).second) {
        if (current->id() == ancestorId)
            return true;
        current = project.findAs<Document>(current->parentId());
    }
    return false;
}

bool canMoveDocument(const Project& project, const ContentId& documentId, const ContentId& newParentId)
{
    if (!project.findAs<Document>(documentId))
        return false;
    if (newParentId.isNull())
        return true;
    return project.findAs<Document>(newParentId) && !isSameOrBeneath(project, newParentId, documentId);
}

} // namespace tw::core::document
