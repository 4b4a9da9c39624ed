#include "app/mcp/document/FindReplaceTool.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/UndoStep.h"
#include "app/search/Replacement.h"
#include "core/document/ActiveText.h"
#include "core/document/DocumentTree.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::document::Document;
using core::project::Project;
using search::TextMatch;
using search::TextMatcher;

namespace {

/** Matches that an answer quotes; the others are counted. */
constexpr qsizetype mostQuoted = 200;
constexpr qsizetype noLimit = std::numeric_limits<qint32>::max();

struct DocumentMatches
{
    ContentId id;
    std::vector<TextMatch> matches;
};

struct Findings
{
    /** In reading order. */
    std::vector<DocumentMatches> documents;
    qsizetype count = 0;
    qsizetype excludedDocuments = 0;
};

Result<TextMatcher> readQuery(const ToolArguments& arguments)
{
    const search::TextQuery query{
        arguments.text(u"find"), arguments.boolean(u"case_sensitive"), arguments.boolean(u"whole_word"),
        arguments.boolean(u"regex")};
    if (query.isRegularExpression) {
        const QRegularExpression expression(query.text);
        if (!expression.isValid())
            return Failure{u"The regular expression is not valid: %1"_s.arg(expression.errorString())};
    }
    return TextMatcher::create(query);
}

/** The documents to look through, in reading order. */
Result<std::vector<ContentId>> readScope(
    const workspace::Workspace& workspace, const ToolArguments& arguments, Purpose purpose)
{
    const Project& project = workspace.project();
    const QString scope = arguments.text(u"scope", u"project"_s);
    if (scope == "project"_L1)
        return core::document::documentsInReadingOrder(project);
    const QString name = arguments.text(u"scope_id");
    if (name.trimmed().isEmpty())
        return Failure{u"find_replace needs \"scope_id\" when \"scope\" is document or subtree."_s};
    const bool isId = !ContentId::fromString(name.trimmed()).isNull();
    // Only a document of its own is refused for being locked; within a subtree it is passed over like any
    // other.
    const Purpose wanted = scope == "document"_L1 ? purpose : Purpose::Use;
    const auto found = isId ? resolveById(workspace, name, u"document"_s, wanted)
                            : resolveByName(workspace, name, u"document"_s, wanted);
    if (!found)
        return Failure{found.message()};
    const ContentId id = found.value().object->id();
    return scope == "document"_L1 ? std::vector<ContentId>{id} : core::document::documentSubtree(project, id);
}

Result<Findings> findIn(const Project& project, const std::vector<ContentId>& ids, const TextMatcher& matcher)
{
    Findings findings;
    for (const ContentId& id : ids) {
        const Document& document = *project.findAs<Document>(id);
        if (document.isAiExcluded()) {
            ++findings.excludedDocuments;
            continue;
        }
        auto matches = search::findMatches(matcher, core::document::activeText(document), noLimit);
        if (!matches)
            return Failure{matches.message()};
        if (matches.value().empty())
            continue;
        findings.count += std::ssize(matches.value());
        findings.documents.push_back({id, std::move(matches).value()});
    }
    return findings;
}

QString omittedText(const Findings& findings)
{
    if (findings.excludedDocuments == 0)
        return {};
    return u"\n\n%1 document(s) excluded from AI were not searched."_s.arg(findings.excludedDocuments);
}

QString listed(const Project& project, const Findings& findings)
{
    QString text = u"%1 match(es) in %2 document(s)."_s.arg(
        QString::number(findings.count), QString::number(findings.documents.size()));
    qsizetype quoted = 0;
    for (const DocumentMatches& found : findings.documents) {
        text += u"\n\n'%1': %2"_s.arg(
            project.findAs<Document>(found.id)->title(), QString::number(found.matches.size()));
        for (const TextMatch& match : found.matches) {
            if (++quoted <= mostQuoted)
                text += u"\n- "_s + match.before + u"[["_s + match.found + u"]]"_s + match.after;
        }
    }
    if (quoted > mostQuoted)
        text += u"\n\nOnly the first %1 matches are quoted."_s.arg(mostQuoted);
    return text;
}

McpToolResult replaceAll(
    ToolContext& context, const TextMatcher& matcher, const Findings& findings, const QString& replacement)
{
    Project& project = context.workspace.projectForEdit();
    qsizetype count = 0;
    qsizetype documents = 0;
    qsizetype refused = 0;
    QStringList lockedTitles;
    for (const DocumentMatches& found : findings.documents) {
        Document& document = *project.findAsForEdit<Document>(found.id);
        if (document.isLocked()) {
            lockedTitles.append(document.title());
            continue;
        }
        const auto present = core::document::activeText(document);
        auto replaced = search::buildReplacement(present, matcher, found.matches, replacement);
        refused += replaced.refused;
        if (replaced.made == 0)
            continue;
        context.workspace.undoStack().push(
            core::document::makeSetActiveTextCommand(document, std::move(replaced.text)));
        count += replaced.made;
        ++documents;
    }
    if (lockedTitles.size() == std::ssize(findings.documents))
        return McpToolResult::failure(locked(lockedTitles.constFirst()));
    QString text =
        u"Replaced %1 match(es) in %2 document(s)."_s.arg(QString::number(count), QString::number(documents));
    if (documents == 0)
        text = refused > 0 ? u"Nothing was replaced."_s
                           : u"Every match already reads that way; nothing changed."_s;
    if (refused > 0) {
        text += u"\n\n%1 match(es) stand across marks and were left as they are; change them with "
                u"update_document."_s.arg(refused);
    }
    if (!lockedTitles.isEmpty())
        text += u"\n\nLeft as they are because they are locked: '%1'."_s.arg(lockedTitles.join(u"'; '"_s));
    return McpToolResult::success(text + omittedText(findings));
}

} // namespace

McpToolResult findReplace(ToolContext& context, const ToolArguments& arguments)
{
    if (arguments.text(u"find").isEmpty())
        return McpToolResult::failure(u"find_replace needs a non-empty \"find\"."_s);
    const auto matcher = readQuery(arguments);
    if (!matcher)
        return McpToolResult::failure(matcher.message());
    const bool hasReplacement = arguments.has(u"replace") && !arguments.isNull(u"replace");
    const bool isListing = !hasReplacement || arguments.boolean(u"dry_run");
    const auto scope = readScope(context.workspace, arguments, isListing ? Purpose::Use : Purpose::Change);
    if (!scope)
        return McpToolResult::failure(scope.message());
    const auto findings = findIn(context.workspace.project(), scope.value(), matcher.value());
    if (!findings)
        return McpToolResult::failure(findings.message());
    if (isListing || findings.value().count == 0) {
        return McpToolResult::success(
            listed(context.workspace.project(), findings.value()) + omittedText(findings.value()));
    }
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: find_replace"_s, [&] {
        return replaceAll(context, matcher.value(), findings.value(), arguments.text(u"replace"));
    });
}

} // namespace tw::app::mcp
