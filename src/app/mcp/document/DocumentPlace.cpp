#include "app/mcp/document/DocumentPlace.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "core/document/DocumentTree.h"

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::document::Document;
using core::project::Project;

namespace {

constexpr qint32 atTheEnd = std::numeric_limits<qint32>::max();

/** The position among the siblings of the one with a title. */
Result<qint32> siblingNamed(
    const Project& project, const std::vector<ContentId>& siblings, const Document& document,
    const QString& title)
{
    QStringList titles;
    for (const ContentId& id : siblings) {
        const Document& sibling = *project.findAs<Document>(id);
        titles.append(sibling.isAiExcluded() ? QString() : sibling.title());
    }
    if (countNamed(titles, title) == 0) {
        return Failure{
            u"'%1' has no sibling titled '%2' there; pass \"parent\" to move it under another document."_s
                .arg(document.title(), title)};
    }
    const auto chosen = chooseByName(titles, title, u"document"_s);
    if (!chosen)
        return Failure{chosen.message()};
    return static_cast<qint32>(chosen.value());
}

/** The new position among the siblings without the document; none when nothing is said about it. */
Result<std::optional<qint32>> readIndex(
    const Project& project, const std::vector<ContentId>& siblings, const Document& document,
    const ToolArguments& arguments)
{
    const auto isSaid = [&arguments](QStringView name) {
        return arguments.has(name) && !arguments.isNull(name);
    };
    const auto said = std::ranges::count_if(
        std::initializer_list<QStringView>{u"order", u"index", u"before", u"after"}, isSaid);
    if (said > 1)
        return Failure{u"Pass at most one of \"order\", \"index\", \"before\", or \"after\"."_s};
    if (said == 0)
        return std::optional<qint32>();
    if (isSaid(u"order"))
        return std::optional(arguments.text(u"order") == "first"_L1 ? 0 : atTheEnd);
    if (isSaid(u"index"))
        return std::optional(static_cast<qint32>(arguments.integer(u"index", 0, 0, atTheEnd)));
    const bool isAfter = isSaid(u"after");
    const auto sibling =
        siblingNamed(project, siblings, document, arguments.text(isAfter ? u"after" : u"before"));
    if (!sibling)
        return Failure{sibling.message()};
    return std::optional(sibling.value() + (isAfter ? 1 : 0));
}

} // namespace

Result<ContentId> readParent(const workspace::Workspace& workspace, const QString& title)
{
    if (title.trimmed().isEmpty())
        return ContentId();
    const auto found = resolveByName(workspace, title, u"document"_s, Purpose::Use);
    if (!found)
        return Failure{found.message()};
    return found.value().object->id();
}

Result<std::optional<DocumentPlace>> readPlace(
    const workspace::Workspace& workspace, const Document& document, const ToolArguments& arguments)
{
    const Project& project = workspace.project();
    ContentId parentId = document.parentId();
    if (arguments.has(u"parent")) {
        const auto parent = readParent(workspace, arguments.text(u"parent"));
        if (!parent)
            return Failure{parent.message()};
        parentId = parent.value();
        if (!core::document::canMoveDocument(project, document.id(), parentId)) {
            return Failure{
                u"'%1' cannot be moved under '%2' -- that would place the document inside its own subtree."_s
                    .arg(document.title(), project.findAs<Document>(parentId)->title())};
        }
    }
    std::vector<ContentId> siblings = core::document::childDocuments(project, parentId);
    const auto present = std::ranges::find(siblings, document.id()) - siblings.begin();
    std::erase(siblings, document.id());
    const auto index = readIndex(project, siblings, document, arguments);
    if (!index)
        return Failure{index.message()};
    const bool isSameParent = parentId == document.parentId();
    if (!index.value() && isSameParent)
        return std::optional<DocumentPlace>();
    const qint32 place = std::min(index.value().value_or(atTheEnd), static_cast<qint32>(siblings.size()));
    if (isSameParent && place == present)
        return std::optional<DocumentPlace>();
    return std::optional(DocumentPlace{parentId, place});
}

} // namespace tw::app::mcp
