#include "app/mcp/document/DocumentReadTools.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "core/document/ActiveText.h"
#include "core/document/Document.h"
#include "core/document/DocumentTree.h"
#include "core/document/markup/BodyWords.h"
#include "core/document/markup/LegacyHtml.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentKind;
using core::document::Document;
using core::document::DocumentTree;
using core::project::Project;

namespace {

const QString excludedDocument = u"(a document excluded from AI)"_s;
const QString excludedCharacter = u"(a character excluded from AI)"_s;

qint64 wordsOf(const Document& document)
{
    return core::document::markup::countBodyWords(core::document::activeText(document));
}

/** "(prose, 120 words)". */
QString kindAndWords(const Document& document)
{
    return u"(%1, %2 words)"_s.arg(
        core::document::documentKindName(document.documentKind()), QString::number(wordsOf(document)));
}

/** Writes the tree line by line. Without recursion, since a damaged manuscript may be as deep as it is long.
 */
class TreeWriter
{
public:
    explicit TreeWriter(const Project& project)
        : m_project(project)
        , m_tree(core::document::documentTree(project))
    {}

    [[nodiscard]] QString write()
    {
        pushChildren({}, 0);
        while (!m_waiting.empty()) {
            const auto [id, depth] = m_waiting.back();
            m_waiting.pop_back();
            const auto& document = *m_project.findAs<Document>(id);
            writeLine(document, depth);
            pushChildren(id, depth + 1);
        }
        return m_lines.join(u'\n');
    }

    [[nodiscard]] qsizetype omitted() const { return m_omitted; }

private:
    /** Lines are not indented further than that. */
    static constexpr int deepestIndent = 40;

    void pushChildren(const ContentId& parent, int depth)
    {
        const auto children = m_tree.find(parent);
        if (children == m_tree.end())
            return;
        for (auto child = children->second.rbegin(); child != children->second.rend(); ++child)
            m_waiting.emplace_back(*child, depth);
    }

    void writeLine(const Document& document, int depth)
    {
        if (document.isAiExcluded()) {
            ++m_omitted;
            // Only what stands beneath it needs it as a place to stand.
            if (!m_tree.contains(document.id()))
                return;
        }
        const QString indent(2 * std::min(depth, deepestIndent), u' ');
        m_lines.append(indent + u"- "_s + (document.isAiExcluded() ? excludedDocument : described(document)));
    }

    /** Whether several documents have the title, or nobody can be found by it. Looked up once a title: there
     * may be as many without one as there are documents. */
    [[nodiscard]] bool isAmbiguous(const QString& title)
    {
        if (const auto known = m_ambiguous.constFind(title); known != m_ambiguous.cend())
            return *known;
        const auto sameTitle = m_project.names().named(title);
        const auto documents = std::ranges::count_if(
            sameTitle, [this](const ContentId& id) { return m_project.findAs<Document>(id) != nullptr; });
        return *m_ambiguous.insert(title, documents != 1);
    }

    [[nodiscard]] QString described(const Document& document)
    {
        QString line = document.title() + u' ' + kindAndWords(document);
        // Titles that several share, and empty ones, can only be reached by id.
        if (isAmbiguous(document.title()))
            line += u" [id %1]"_s.arg(document.id().toString());
        if (document.isLocked())
            line += u" [locked]"_s;
        return line;
    }

    const Project& m_project;
    DocumentTree m_tree;
    std::vector<std::pair<ContentId, int>> m_waiting;
    QStringList m_lines;
    QHash<QString, bool> m_ambiguous;
    qsizetype m_omitted = 0;
};

QString shownParent(const Project& project, const Document& document)
{
    const auto* parent = project.findAs<Document>(document.parentId());
    if (!parent)
        return {};
    return parent->isAiExcluded() ? excludedDocument : parent->title();
}

/** The point of view is a text; it may be the name of somebody who is not to be shown. */
QString shownPointOfView(const Project& project, const Document& document)
{
    const QString& name = document.pointOfView();
    bool isAnyExcluded = false;
    for (const auto& ids : {project.names().named(name), project.names().aliased(name)}) {
        for (const ContentId& id : ids) {
            const core::content::ContentObject& object = *project.find(id);
            if (object.kind() != ContentKind::Entity)
                continue;
            if (!object.isAiExcluded())
                return name;
            isAnyExcluded = true;
        }
    }
    return isAnyExcluded ? excludedCharacter : name;
}

/** The part of a body that was asked for, under a heading that says which. */
QString bodyPart(const QString& body, const ToolArguments& arguments)
{
    if (body.isEmpty())
        return u"The body is empty."_s;
    qsizetype start = arguments.integer(u"offset", 0, 0, body.size());
    qsizetype length = arguments.integer(u"limit", body.size(), 1, std::numeric_limits<qint32>::max());
    length = std::min(length, body.size() - start);
    // Neither end of the part lies within a pair.
    if (start > 0 && start < body.size() && body.at(start).isLowSurrogate()) {
        --start;
        ++length;
    }
    if (start + length < body.size() && body.at(start + length).isLowSurrogate())
        ++length;
    if (start == 0 && length == body.size())
        return u"Body:\n\n"_s + body;
    const qsizetype end = start + length;
    const QString more = end < body.size() ? u"; pass \"offset\": %1 for what follows"_s.arg(end) : QString();
    return u"Body, characters %1 to %2 of %3%4:\n\n"_s.arg(
               QString::number(start), QString::number(end), QString::number(body.size()), more) +
           body.sliced(start, length);
}

} // namespace

McpToolResult getManuscriptTree(ToolContext& context, const ToolArguments&)
{
    const Project& project = context.workspace.project();
    if (project.objectsOfKind(ContentKind::Document).empty())
        return McpToolResult::success(u"There are no documents in this project."_s);
    TreeWriter writer(project);
    QString text = writer.write();
    if (writer.omitted() > 0)
        text += u"\n\n%1 document(s) excluded from AI were omitted."_s.arg(writer.omitted());
    return McpToolResult::success(text.trimmed());
}

McpToolResult getDocument(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const Document& document = *found.value();
    const workspace::MountedLibrary* const library = found.value().library;
    const Project& project = library ? *library->project : context.workspace.project();

    QStringList lines{u"'%1' %2"_s.arg(document.title(), kindAndWords(document))};
    const auto addLine = [&lines](const QString& label, const QString& value) {
        if (!value.isEmpty())
            lines.append(label + u": "_s + value);
    };
    addLine(u"Under"_s, shownParent(project, document));
    addLine(u"Status"_s, document.status());
    addLine(u"Point of view"_s, shownPointOfView(project, document));
    addLine(u"Synopsis"_s, document.synopsis());
    if (document.wordCountTarget() > 0)
        addLine(u"Word count target"_s, QString::number(document.wordCountTarget()));
    if (const auto* variant = core::document::activeVariant(document))
        addLine(u"Variant in use"_s, variant->name);
    if (!document.footnotes().empty())
        addLine(u"Footnotes"_s, u"%1 (see list_footnotes)"_s.arg(document.footnotes().size()));
    if (document.isLocked())
        lines.append(u"Locked: it can be read but not changed."_s);
    if (library)
        lines.append(mountedMark(library->name));
    const QString body = core::document::markup::markdownOf(core::document::activeText(document));
    return McpToolResult::success(lines.join(u'\n') + u"\n\n"_s + bodyPart(body, arguments));
}

} // namespace tw::app::mcp
