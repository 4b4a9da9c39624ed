#include "desktop/manuscript/ManuscriptEdits.h"

#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/document/DocumentTree.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace tw::desktop::manuscript {

using core::ContentId;
using core::document::childDocuments;
using core::document::Document;
using core::document::MoveDocumentCommand;
using shell::ProjectSession;

namespace {

QString label(const char* text)
{
    return QCoreApplication::translate("ManuscriptEdits", text);
}

/** The documents that no other one of the list lies above. */
std::vector<ContentId> topmost(const core::project::Project& project, const std::vector<ContentId>& ids)
{
    const std::set<ContentId> listed(ids.begin(), ids.end());
    std::vector<ContentId> result;
    for (const ContentId& id : ids) {
        const auto* const document = project.findAs<Document>(id);
        if (!document)
            continue;
        std::set<ContentId> visited{id};
        ContentId above = document->parentId();
        while (!listed.contains(above) && visited.insert(above).second) {
            const auto* const parent = project.findAs<Document>(above);
            if (!parent)
                break;
            above = parent->parentId();
        }
        if (above == id || !listed.contains(above))
            result.push_back(id);
    }
    return result;
}

/** The position of `beforeId` among the children once `movedId` is taken out; the end when it is not there.
 */
qint32 indexBefore(
    const core::project::Project& project, const ContentId& parentId, const ContentId& beforeId,
    const ContentId& movedId)
{
    std::vector<ContentId> siblings = childDocuments(project, parentId);
    std::erase(siblings, movedId);
    return static_cast<qint32>(std::ranges::find(siblings, beforeId) - siblings.begin());
}

/**
 * What a document stands under in the tree; null at the top level, where also those stand that a damaged file
 * hangs in a loop or under something missing.
 */
ContentId parentInTree(const core::project::Project& project, const Document& document)
{
    std::set<ContentId> visited{document.id()};
    const auto* above = project.findAs<Document>(document.parentId());
    const ContentId parentId = above ? above->id() : ContentId();
    while (above) {
        if (!visited.insert(above->id()).second)
            return {};
        above = project.findAs<Document>(above->parentId());
    }
    return parentId;
}

/** All that stand beside it in the tree, itself included. */
std::vector<ContentId> siblingsInTree(const core::project::Project& project, const Document& document)
{
    const ContentId parentId = parentInTree(project, document);
    return parentId.isNull() ? core::document::documentTree(project).at(parentId)
                             : childDocuments(project, parentId);
}

/** The sibling at the place, or the next one that really hangs where they all stand: others have no index
 * there. */
ContentId anchorAt(
    const core::project::Project& project, const std::vector<ContentId>& siblings, std::size_t place,
    const ContentId& parentId)
{
    for (std::size_t index = place; index < siblings.size(); ++index) {
        if (project.findAs<Document>(siblings[index])->parentId() == parentId)
            return siblings[index];
    }
    return {};
}

} // namespace

DocumentPlace placeAfter(const ProjectSession& session, const ContentId& id)
{
    const auto* const document = session.project().findAs<Document>(id);
    if (!document)
        return {};
    const ContentId parentId = parentInTree(session.project(), *document);
    const std::vector<ContentId> siblings = siblingsInTree(session.project(), *document);
    const auto place = static_cast<std::size_t>(std::ranges::find(siblings, id) - siblings.begin());
    return {parentId, anchorAt(session.project(), siblings, place + 1, parentId)};
}

ContentId addDocument(
    ProjectSession& session, core::document::DocumentKind kind, const QString& title,
    const DocumentPlace& place)
{
    const ContentId id = ContentId::create();
    auto& project = session.projectForCommands();
    const ContentId parentId = project.findAs<Document>(place.parentId) ? place.parentId : ContentId();
    auto document = std::make_unique<Document>(id, kind, title);
    document->setParentId(parentId);
    document->setSortIndex(std::numeric_limits<qint32>::max());
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("ManuscriptEdits", "Add document")));
    session.apply(std::make_unique<core::content::AddObjectCommand>(project, std::move(document)));
    session.apply(std::make_unique<MoveDocumentCommand>(
        project, id, parentId, indexBefore(project, parentId, place.beforeId, id)));
    return id;
}

void moveDocuments(
    ProjectSession& session, const std::vector<ContentId>& ids, const ContentId& parentId,
    const ContentId& beforeId)
{
    auto& project = session.projectForCommands();
    const std::vector<ContentId> moved = topmost(project, ids);
    const std::set<ContentId> movedSet(moved.begin(), moved.end());
    // The anchor must stay where it is: the first sibling from there on that is not itself on the move.
    const std::vector<ContentId> siblings = childDocuments(project, parentId);
    auto anchor = std::ranges::find(siblings, beforeId);
    while (anchor != siblings.end() && movedSet.contains(*anchor))
        ++anchor;
    const ContentId anchorId = anchor == siblings.end() ? ContentId() : *anchor;

    const auto step = session.macro(label(QT_TRANSLATE_NOOP("ManuscriptEdits", "Move document")));
    for (const ContentId& id : moved) {
        if (project.find(id)->isLocked() || !core::document::canMoveDocument(project, id, parentId))
            continue;
        session.apply(std::make_unique<MoveDocumentCommand>(
            project, id, parentId, indexBefore(project, parentId, anchorId, id)));
    }
}

bool stepDocument(ProjectSession& session, const ContentId& id, MoveDirection direction)
{
    auto& project = session.projectForCommands();
    const auto* const document = project.findAs<Document>(id);
    if (!document || document->isLocked())
        return false;
    const ContentId parentId = parentInTree(project, *document);
    const std::vector<ContentId> siblings = siblingsInTree(project, *document);
    const auto index = static_cast<std::size_t>(std::ranges::find(siblings, id) - siblings.begin());
    const auto move = [&](const ContentId& newParentId, const ContentId& beforeId) {
        const qint32 newIndex = indexBefore(project, newParentId, beforeId, id);
        const std::vector<ContentId> present = childDocuments(project, newParentId);
        const bool isThere = std::ranges::find(present, id) - present.begin() == newIndex &&
                             document->parentId() == newParentId;
        if (isThere || !core::document::canMoveDocument(project, id, newParentId))
            return false;
        session.apply(std::make_unique<MoveDocumentCommand>(project, id, newParentId, newIndex));
        return true;
    };
    switch (direction) {
    case MoveDirection::Up:
        return index > 0 && move(parentId, anchorAt(project, siblings, index - 1, parentId));
    case MoveDirection::Down:
        return index + 1 < siblings.size() &&
               move(parentId, anchorAt(project, siblings, index + 2, parentId));
    case MoveDirection::In:
        return index > 0 && move(siblings[index - 1], {});
    case MoveDirection::Out: {
        const auto* const parent = project.findAs<Document>(parentId);
        if (!parent)
            return false;
        const ContentId grandparentId = parentInTree(project, *parent);
        const std::vector<ContentId> uncles = siblingsInTree(project, *parent);
        const auto place = static_cast<std::size_t>(std::ranges::find(uncles, parentId) - uncles.begin());
        return move(grandparentId, anchorAt(project, uncles, place + 1, grandparentId));
    }
    }
    return false;
}

ContentId firstLocked(const ProjectSession& session, const std::vector<ContentId>& ids)
{
    const core::project::Project& project = session.project();
    const core::document::DocumentTree tree = core::document::documentTree(project);
    for (const ContentId& id : topmost(project, ids)) {
        for (const ContentId& below : core::document::documentSubtree(tree, id)) {
            if (project.find(below)->isLocked())
                return below;
        }
    }
    return {};
}

std::size_t removeDocuments(ProjectSession& session, const std::vector<ContentId>& ids)
{
    auto& project = session.projectForCommands();
    std::vector<ContentId> removed;
    const core::document::DocumentTree tree = core::document::documentTree(project);
    for (const ContentId& id : topmost(project, ids)) {
        const std::vector<ContentId> subtree = core::document::documentSubtree(tree, id);
        removed.insert(removed.end(), subtree.begin(), subtree.end());
    }
    if (removed.empty())
        return 0;
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("ManuscriptEdits", "Remove document")));
    for (const ContentId& id : removed)
        session.apply(std::make_unique<core::content::RemoveObjectCommand>(project, id));
    return removed.size();
}

} // namespace tw::desktop::manuscript
