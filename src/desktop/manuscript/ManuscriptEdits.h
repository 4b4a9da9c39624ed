#pragma once

#include "core/document/Document.h"
#include "core/foundation/Id.h"

#include <vector>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::manuscript {

/** Where a document goes: under a parent (null: the top level), before a sibling (null: at the end). */
struct DocumentPlace
{
    core::ContentId parentId;
    core::ContentId beforeId;
};

/** The place right behind a document, among its siblings; the end of the top level for none. */
[[nodiscard]] DocumentPlace placeAfter(const shell::ProjectSession& session, const core::ContentId& id);

/** Adds an empty document as one undo step; gives its id. */
core::ContentId addDocument(
    shell::ProjectSession& session, core::document::DocumentKind kind, const QString& title,
    const DocumentPlace& place);

/**
 * Moves documents, in the given order, as one step. Those that lie beneath another one of the list go along
 * with it. Moves that would put a document under itself are left out, and so are locked documents.
 */
void moveDocuments(
    shell::ProjectSession& session, const std::vector<core::ContentId>& ids, const core::ContentId& parentId,
    const core::ContentId& beforeId);

enum class MoveDirection
{
    Up,
    Down,
    /** Under the sibling above. */
    In,
    /** Behind its parent. */
    Out,
};

/** Moves one document a step; false when there is no such step or the document is locked. */
bool stepDocument(shell::ProjectSession& session, const core::ContentId& id, MoveDirection direction);

/** The first locked document among these and everything beneath them; null when there is none. */
[[nodiscard]] core::ContentId firstLocked(
    const shell::ProjectSession& session, const std::vector<core::ContentId>& ids);

/** Removes documents with everything beneath them as one step; gives how many went. */
std::size_t removeDocuments(shell::ProjectSession& session, const std::vector<core::ContentId>& ids);

} // namespace tw::desktop::manuscript
