#include "app/mcp/document/FootnoteTools.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/document/ActiveText.h"
#include "core/document/DocumentCommands.h"
#include "core/document/markup/FootnoteReferences.h"
#include "core/document/markup/LegacyHtml.h"

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::document::Document;
using core::document::Footnote;
using core::document::markup::FootnoteLabels;

namespace {

using Footnotes = std::vector<Footnote>;

FootnoteLabels labelsOf(const Document& document)
{
    return core::document::markup::footnoteLabels(
        core::document::markup::markdownOf(core::document::activeText(document)));
}

bool isDefined(const Footnotes& notes, const QString& label)
{
    return std::ranges::find(notes, label, &Footnote::id) != notes.end();
}

QString noteLine(const Footnote& note)
{
    return u"[^%1]%2 %3"_s.arg(note.id, note.isEndnote ? u" (endnote)"_s : QString(), note.text);
}

QString referenceLine(const QString& label, const Footnotes& notes, const FootnoteLabels& labels)
{
    if (const auto note = std::ranges::find(notes, label, &Footnote::id); note != notes.end())
        return noteLine(*note);
    if (labels.defined.contains(label))
        return u"[^%1] is defined in the body itself; edit it there with update_document."_s.arg(label);
    return u"[^%1] has no definition; write one with add_footnote."_s.arg(label);
}

/** A label that neither the notes nor the body use. */
QString freeLabel(const Footnotes& notes, const FootnoteLabels& labels)
{
    int number = 1;
    for (QString label = QString::number(number);; label = QString::number(++number)) {
        if (!isDefined(notes, label) && !labels.referenced.contains(label) && !labels.defined.contains(label))
            return label;
    }
}

/** The label of a new note: the given one, or a free number. */
Result<QString> readNewLabel(const Document& document, const ToolArguments& arguments)
{
    const QString given = arguments.text(u"footnote_id").trimmed();
    const FootnoteLabels labels = labelsOf(document);
    if (given.isEmpty())
        return freeLabel(document.footnotes(), labels);
    const bool isWritable = std::ranges::none_of(given, [](QChar character) {
        return character == u'[' || character == u']' || character == u'^' || character.isSpace();
    });
    if (!isWritable) {
        return Failure{
            u"'%1' cannot be a footnote's id: it must not hold blanks, brackets or carets."_s.arg(given)};
    }
    if (isDefined(document.footnotes(), given) || labels.defined.contains(given))
        return Failure{u"A footnote named '%1' already exists."_s.arg(given)};
    return given;
}

/** The document and the position of one of its notes. */
struct FoundNote
{
    Document* document = nullptr;
    std::size_t index = 0;
};

Result<FoundNote> findNote(ToolContext& context, const ToolArguments& arguments)
{
    const auto document = findForChange<Document>(context.workspace, arguments, u"document");
    if (!document)
        return Failure{document.message()};
    const QString label = arguments.text(u"footnote_id").trimmed();
    const Footnotes& notes = document.value()->footnotes();
    const auto note = std::ranges::find(notes, label, &Footnote::id);
    if (note == notes.end())
        return Failure{u"No footnote '%1' in '%2'."_s.arg(label, document.value()->title())};
    return FoundNote{document.value(), static_cast<std::size_t>(note - notes.begin())};
}

McpToolResult applyNotes(
    ToolContext& context, const QString& label, Document& document, Footnotes notes, const QString& answer)
{
    return applyAsUndoStep(context.workspace, context.changeLog, label, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::document::SetDocumentFootnotesCommand>(document, std::move(notes)));
        return McpToolResult::success(answer);
    });
}

} // namespace

McpToolResult listFootnotes(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const Document& document = *found.value();
    const FootnoteLabels labels = labelsOf(document);
    QStringList lines;
    int number = 0;
    for (const QString& label : labels.referenced)
        lines.append(
            u"%1. %2"_s.arg(QString::number(++number), referenceLine(label, document.footnotes(), labels)));
    QStringList unreferenced;
    for (const Footnote& note : document.footnotes()) {
        if (!labels.referenced.contains(note.id))
            unreferenced.append(u"- "_s + noteLine(note));
    }
    if (!unreferenced.isEmpty())
        lines += QStringList{(lines.isEmpty() ? QString() : u"\n"_s) + u"Not referenced in the body:"_s} +
                 unreferenced;
    if (lines.isEmpty())
        lines.append(u"There are no footnotes in '%1'."_s.arg(document.title()));
    return McpToolResult::success(mountedHeading(found.value().library) + lines.join(u'\n'));
}

McpToolResult addFootnote(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Document>(context.workspace, arguments, u"document");
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value();
    const QString text = arguments.text(u"text").trimmed();
    if (text.isEmpty())
        return McpToolResult::failure(u"A non-empty \"text\" is required."_s);
    const auto label = readNewLabel(document, arguments);
    if (!label)
        return McpToolResult::failure(label.message());
    const bool isEndnote = arguments.boolean(u"endnote");
    Footnotes notes = document.footnotes();
    notes.push_back({label.value(), text, isEndnote});
    return applyNotes(
        context, u"MCP: add_footnote"_s, document, std::move(notes),
        u"Added %1 '%2' to '%3'; reference it as [^%2]."_s.arg(
            isEndnote ? u"endnote"_s : u"footnote"_s, label.value(), document.title()));
}

McpToolResult updateFootnote(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findNote(context, arguments);
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value().document;
    Footnotes notes = document.footnotes();
    Footnote& note = notes[found.value().index];
    if (const auto text = arguments.givenText(u"text")) {
        if (text->trimmed().isEmpty()) {
            return McpToolResult::failure(
                u"A non-empty \"text\" is required. To delete the footnote, call remove_footnote."_s);
        }
        note.text = text->trimmed();
    }
    note.isEndnote = arguments.givenBoolean(u"endnote").value_or(note.isEndnote);
    if (notes == document.footnotes()) {
        return McpToolResult::success(u"Footnote '%1' already matches; nothing changed."_s.arg(note.id));
    }
    const QString answer = u"Updated footnote '%1'."_s.arg(note.id);
    return applyNotes(context, u"MCP: update_footnote"_s, document, std::move(notes), answer);
}

McpToolResult removeFootnote(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findNote(context, arguments);
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value().document;
    Footnotes notes = document.footnotes();
    const QString label = notes[found.value().index].id;
    notes.erase(notes.begin() + static_cast<std::ptrdiff_t>(found.value().index));
    QString answer = u"Removed footnote '%1' from '%2'."_s.arg(label, document.title());
    if (labelsOf(document).referenced.contains(label))
        answer += u" The body still refers to it as [^%1]; take that out with update_document."_s.arg(label);
    return applyNotes(context, u"MCP: remove_footnote"_s, document, std::move(notes), answer);
}

} // namespace tw::app::mcp
