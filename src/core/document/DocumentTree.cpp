#include "core/document/DocumentTree.h"

#include <algorithm>
#include <set>
#include <unordered_map>

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

/** Tells which documents lead up into a loop. Every way up is walked once, however many documents share it.
 */
class Loops
{
public:
    explicit Loops(const Project& project)
        : m_project(project)
    {}

    [[nodiscard]] bool isBelowOne(const Document& document)
    {
        std::vector<const Document*> way;
        const Document* current = &document;
        while (current && m_walked.try_emplace(current, Walk::OnTheWay).second) {
            way.push_back(current);
            current = m_project.findAs<Document>(current->parentId());
        }
        // What is still on the way was met twice on this one.
        const Walk end = current && m_walked.at(current) != Walk::ToTheTop ? Walk::IntoALoop : Walk::ToTheTop;
        for (const Document* const walked : way)
            m_walked[walked] = end;
        return m_walked.at(&document) == Walk::IntoALoop;
    }

private:
    enum class Walk
    {
        OnTheWay,
        ToTheTop,
        IntoALoop,
    };

    const Project& m_project;
    std::unordered_map<const Document*, Walk> m_walked;
};

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
    Loops loops(project);
    for (const Document* document : project::objectsOf<Document>(project)) {
        const bool isAttached =
            project.findAs<Document>(document->parentId()) && !loops.isBelowOne(*document);
        byParent[isAttached ? document->parentId() : ContentId()].push_back(document);
    }
    DocumentTree tree;
    for (auto& [parent, children] : byParent)
        tree.emplace(parent, inOrder(std::move(children)));
    return tree;
}

std::vector<ContentId> strayDocuments(const Project& project)
{
    std::vector<ContentId> strays = documentTree(project)[ContentId()];
    std::erase_if(strays, [&project](const ContentId& id) {
        return project.findAs<Document>(id)->parentId().isNull();
    });
    return strays;
}

std::vector<ContentId> documentsInReadingOrder(const Project& project)
{
    std::vector<ContentId> ids = documentSubtree(documentTree(project), {});
    // The top level is no document.
    ids.erase(ids.begin());
    return ids;
}

std::vector<ContentId> documentSubtree(const DocumentTree& tree, const ContentId& rootId)
{
    // A damaged manuscript may be as deep as it is long.
    std::vector<ContentId> result;
    std::vector<ContentId> open{rootId};
    while (!open.empty()) {
        const ContentId id = open.back();
        open.pop_back();
        result.push_back(id);
        if (const auto children = tree.find(id); children != tree.end())
            open.insert(open.end(), children->second.rbegin(), children->second.rend());
    }
    return result;
}

std::vector<ContentId> documentSubtree(const Project& project, const ContentId& rootId)
{
    return project.findAs<Document>(rootId) ? documentSubtree(documentTree(project), rootId)
                                            : std::vector<ContentId>();
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
