#include "app/codex/ProjectTextSearch.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/WorldLookup.h"
#include "app/mcp/world/WorldTools.h"
#include "core/research/Comment.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using codex::TextHit;
using codex::TextSearch;
using core::content::ContentObject;
using core::project::Project;
using core::research::Comment;

namespace {

constexpr qint64 defaultLimit = 50;
constexpr qint64 mostResults = 500;

/** A comment goes by what it hangs on, which must not show when that is excluded from AI. */
bool isHidden(const Project& project, const ContentObject& object)
{
    const auto* const comment = core::content::objectCast<Comment>(&object);
    const ContentObject* const target = comment ? project.find(comment->target().targetId) : nullptr;
    return target && target->isAiExcluded();
}

QString hitText(const TextHit& hit, const workspace::MountedLibrary* library)
{
    const QString text =
        u"- %1 '%2': %3"_s.arg(kindWord(hit.object->kind()), shownName(*hit.object), hit.snippet);
    return library ? u"%1 (from the mounted library '%2')"_s.arg(text, library->name) : text;
}

McpToolResult search(ToolContext& context, const ToolArguments& arguments)
{
    const auto kind = readObjectType(arguments);
    if (!kind)
        return McpToolResult::failure(kind.message());
    const QString query = arguments.text(u"query").trimmed();
    if (query.isEmpty())
        return McpToolResult::failure(u"search needs \"query\"."_s);
    const qint64 limit = arguments.integer(u"limit", defaultLimit, 1, mostResults);

    QStringList lines;
    const auto look = [&](const Project& project, const workspace::MountedLibrary* library) {
        TextSearch wanted{query, kind.value()};
        // One more than is shown tells whether there are more.
        wanted.mostHits = limit + 1 - lines.size();
        wanted.isHidden = [&project](const ContentObject& object) { return isHidden(project, object); };
        const auto hits = codex::searchTexts(project, wanted);
        if (!hits)
            return;
        for (const TextHit& hit : hits.value())
            lines.append(hitText(hit, library));
    };
    look(context.workspace.project(), nullptr);
    for (const workspace::MountedLibrary& library : context.workspace.libraries()) {
        if (lines.size() <= limit)
            look(*library.project, &library);
    }
    if (lines.isEmpty())
        return McpToolResult::success(u"No matches for '%1'."_s.arg(query));
    QString text = lines.first(std::min<qsizetype>(lines.size(), limit)).join(u'\n');
    if (lines.size() > limit) {
        text +=
            u"\n\nOnly the first %1 are shown. Narrow the query, pass \"type\", or raise \"limit\" (at most %2)."_s
                .arg(QString::number(limit), QString::number(mostResults));
    }
    return McpToolResult::success(text);
}

} // namespace

Tool searchTool()
{
    return {
        .access = ToolAccess::ReadOnly,
        .title = u"Search the project"_s,
        .spec =
            {u"search"_s,
             u"Full-text search across the project and its mounted libraries. Finds \"query\" exactly as "
             "typed but in letters of any case, also inside longer words, in titles, names and aliases, in "
             "the prose of documents and of their variants, and in every other text: field values, "
             "descriptions, comments, cells, dictionary entries, tags. Formatting marks do not count, and "
             "older version snapshots are not searched. One line per object with the place it was found, "
             "objects with a matching title first; search for one telling word rather than for a sentence. "
             "\"type\" narrows it to one content type and \"limit\" (default 50, at most 500) says how many "
             "objects to list. Objects excluded from AI are never found. To read what was found call "
             "get_entity or get_document; to find where text stands inside documents call find_replace "
             "without \"replace\"."_s,
             makeObjectSchema(
                 {{u"query"_s, textProperty(u"The text to look for; not a pattern."_s)},
                  {u"type"_s, objectTypeProperty(u"Only objects of this type."_s)},
                  {u"limit"_s, integerProperty(u"How many objects to list at most."_s, defaultLimit)}},
                 {u"query"_s})},
        .refusedByHandler = {u"type"_s},
        .handler = search,
    };
}

} // namespace tw::app::mcp
