#pragma once

#include "core/document/Document.h"
#include "core/project/Project.h"

#include <vector>

namespace tw::core::document {

/** The children of a document (null: the top level), by sort index, then id. */
[[nodiscard]] std::vector<ContentId> childDocuments(
    const project::Project& project, const ContentId& parentId);

/** Parent to children in order, for all documents at once: one pass where childDocuments() would take many.
 */
using DocumentTree = std::map<ContentId, std::vector<ContentId>>;
/** Documents whose parent is not a document, or that hang in a loop, stand at the top level. */
[[nodiscard]] DocumentTree documentTree(const project::Project& project);

/** The documents at the top level that say they stand elsewhere. */
[[nodiscard]] std::vector<ContentId> strayDocuments(const project::Project& project);

/** All documents, each before what is beneath it. */
[[nodiscard]] std::vector<ContentId> documentsInReadingOrder(const project::Project& project);

/** The document and everything beneath it, in reading order. */
[[nodiscard]] std::vector<ContentId> documentSubtree(
    const project::Project& project, const ContentId& rootId);
/** The same from a tree that is at hand already. */
[[nodiscard]] std::vector<ContentId> documentSubtree(const DocumentTree& tree, const ContentId& rootId);

/** True for the document itself and for everything beneath it. Survives loops. */
[[nodiscard]] bool isSameOrBeneath(
    const project::Project& project, const ContentId& documentId, const ContentId& ancestorId);

/** Whether the move names documents and puts none under itself. A null new parent is the top level. */
[[nodiscard]] bool canMoveDocument(
    const project::Project& project, const ContentId& documentId, const ContentId& newParentId);

} // namespace tw::core::document
