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

} // namespace

DocumentPlace placeAfter(const ProjectSession& session, const ContentId& id)
{
    const auto* const document = session.project().findAs<Document>(id);
    if (!document)
        return {};
    const std::vector<ContentId> siblings = childDocuments(session.project(), document->parentId());
    const auto place = std::ranges::find(siblings, id);
    const bool isLast = place == siblings.end() || std::next(place) == siblings.end();
    return {document->parentId(), isLast ? ContentId() : *std::next(place)};
}

ContentId addDocument(
    ProjectSession& session, core::document::DocumentKind kind, const QString& title,
    const DocumentPlace& place)
{
    const ContentId id = ContentId::create();
    auto document = std::make_unique<Document>(id, kind, title);
    document->setParentId(place.parentId);
    document->setSortIndex(std::numeric_limits<qint32>::max());
    auto& project = session.projectForCommands();
    const auto step = session.macro(label(QT_TRANSLATE_NOOP("ManuscriptEdits", "Add document")));
    session.apply(std::make_unique<core::content::AddObjectCommand>(project, std::move(document)));
    session.apply(std::make_unique<MoveDocumentCommand>(
        project, id, place.parentId, indexBefore(project, place.parentId, place.beforeId, id)));
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
    const ContentId parentId = document->parentId();
    const std::vector<ContentId> siblings = childDocuments(project, parentId);
    const auto index = static_cast<qint32>(std::ranges::find(siblings, id) - siblings.begin());
    const auto count = static_cast<qint32>(siblings.size());
    const auto move = [&](const ContentId& newParentId, qint32 newIndex) {
        session.apply(std::make_unique<MoveDocumentCommand>(project, id, newParentId, newIndex));
        return true;
    };
    switch (direction) {
    case MoveDirection::Up:
        return index > 0 && move(parentId, index - 1);
    case MoveDirection::Down:
        return index + 1 < count && move(parentId, index + 1);
    case MoveDirection::In:
        return index > 0 &&
               move(siblings[static_cast<std::size_t>(index) - 1], std::numeric_limits<qint32>::max());
    case MoveDirection::Out: {
        const auto* const parent = project.findAs<Document>(parentId);
        if (!parent)
            return false;
        const std::vector<ContentId> uncles = childDocuments(project, parent->parentId());
        const auto place = std::ranges::find(uncles, parentId) - uncles.begin();
        return move(parent->parentId(), static_cast<qint32>(place) + 1);
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
