#include "app/mcp/document/VersionTools.h"

#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Refusals.h"
#include "app/mcp/registry/UndoStep.h"
#include "core/document/ActiveText.h"
#include "core/document/DocumentCommands.h"
#include "core/document/markup/BodyWords.h"

#include <QDateTime>

#include <chrono>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentVariant;
using core::document::DocumentVariants;
using core::document::DocumentVersion;

namespace {

QString presentTime(const workspace::Workspace& workspace)
{
    const std::chrono::nanoseconds now(workspace.environment().clock());
    return QDateTime::fromMSecsSinceEpoch(
               std::chrono::duration_cast<std::chrono::milliseconds>(now).count(), Qt::UTC)
        .toString(Qt::ISODate);
}

QString words(const QString& body, BodyFormat format)
{
    return u"%1 words"_s.arg(core::document::markup::countBodyWords({body, format}));
}

bool isSame(const DocumentVersion& left, const DocumentVersion& right)
{
    return left.label == right.label && left.body == right.body && left.bodyFormat == right.bodyFormat;
}

// Variants

QStringList namesOf(const DocumentVariants& variants)
{
    QStringList names;
    for (const DocumentVariant& variant : variants.list)
        names.append(variant.name);
    return names;
}

Result<std::size_t> findVariant(const DocumentVariants& variants, const QString& name)
{
    return chooseByName(namesOf(variants), name, u"variant"_s);
}

Result<void> checkNewVariant(const DocumentVariants& variants, const QString& name)
{
    if (auto checked = checkNameText(name); !checked)
        return checked;
    if (countNamed(namesOf(variants), name) > 0)
        return Failure{u"A variant named '%1' already exists."_s.arg(name)};
    return {};
}

QString listVariants(const Document& document)
{
    const DocumentVariants& variants = document.variants();
    const DocumentVariant* const active = core::document::activeVariant(document);
    const auto line = [](const QString& name, const QString& count, bool isInUse) {
        return u"- %1 (%2)%3"_s.arg(name, count, isInUse ? u" -- in use"_s : QString());
    };
    QStringList lines{
        line(u"main text"_s, words(document.body().text, document.body().format), active == nullptr)};
    for (const DocumentVariant& variant : variants.list) {
        lines.append(
            line(u"'%1'"_s.arg(variant.name), words(variant.body, variant.bodyFormat), &variant == active));
    }
    return lines.join(u'\n');
}

/** What an action makes of the variants, and what it says. */
struct VariantChange
{
    DocumentVariants variants;
    QString answer;
};

Result<VariantChange> createVariant(const Document& document, const ToolArguments& arguments)
{
    DocumentVariants variants = document.variants();
    const QString name = arguments.text(u"name").trimmed();
    if (const auto checked = checkNewVariant(variants, name); !checked)
        return Failure{checked.message()};
    auto body = core::document::activeText(document);
    if (const auto given = arguments.givenText(u"body"))
        body = {*given, BodyFormat::Markdown};
    variants.list.push_back({name, body.text, body.format});
    return VariantChange{
        variants, u"Created variant '%1' of '%2'. It is not in use yet; switch to it with "
                  "\"action\": \"switch\"."_s.arg(name, document.title())};
}

Result<VariantChange> switchVariant(const Document& document, const ToolArguments& arguments)
{
    DocumentVariants variants = document.variants();
    const QString name = arguments.text(u"name").trimmed();
    if (name.isEmpty()) {
        variants.active.clear();
        return VariantChange{variants, u"Switched '%1' to the main text."_s.arg(document.title())};
    }
    const auto found = findVariant(variants, name);
    if (!found)
        return Failure{found.message()};
    variants.active = variants.list[found.value()].name;
    return VariantChange{
        variants, u"Switched '%1' to variant '%2'."_s.arg(document.title(), variants.active)};
}

Result<VariantChange> renameVariant(const Document& document, const ToolArguments& arguments)
{
    DocumentVariants variants = document.variants();
    const auto found = findVariant(variants, arguments.text(u"name"));
    if (!found)
        return Failure{found.message()};
    const QString newName = arguments.text(u"new_name").trimmed();
    DocumentVariants others = variants;
    others.list.erase(others.list.begin() + static_cast<std::ptrdiff_t>(found.value()));
    if (const auto checked = checkNewVariant(others, newName); !checked)
        return Failure{checked.message()};
    DocumentVariant& variant = variants.list[found.value()];
    if (variants.active == variant.name)
        variants.active = newName;
    const QString oldName = std::exchange(variant.name, newName);
    return VariantChange{variants, u"Renamed variant '%1' to '%2'."_s.arg(oldName, newName)};
}

Result<VariantChange> deleteVariant(const Document& document, const ToolArguments& arguments)
{
    DocumentVariants variants = document.variants();
    const auto found = findVariant(variants, arguments.text(u"name"));
    if (!found)
        return Failure{found.message()};
    const QString name = variants.list[found.value()].name;
    QString answer = u"Removed variant '%1' from '%2'."_s.arg(name, document.title());
    if (variants.active == name) {
        variants.active.clear();
        answer += u" The main text is in use again."_s;
    }
    variants.list.erase(variants.list.begin() + static_cast<std::ptrdiff_t>(found.value()));
    return VariantChange{variants, answer};
}

Result<VariantChange> variantChange(
    const QString& action, const Document& document, const ToolArguments& arguments)
{
    if (action == "create"_L1)
        return createVariant(document, arguments);
    if (action == "switch"_L1)
        return switchVariant(document, arguments);
    if (action == "rename"_L1)
        return renameVariant(document, arguments);
    return deleteVariant(document, arguments);
}

} // namespace

McpToolResult getDocumentVersions(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findToRead<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    const Document& document = *found.value();
    const QString heading = mountedHeading(found.value().library);
    if (document.versions().empty()) {
        return McpToolResult::success(
            heading + u"There are no saved versions of '%1'."_s.arg(document.title()));
    }
    QStringList lines;
    for (const DocumentVersion& version : document.versions()) {
        lines.append(u"%1. '%2' -- %3 (%4)"_s.arg(
            QString::number(lines.size() + 1), version.label, version.createdAt,
            words(version.body, version.bodyFormat)));
    }
    return McpToolResult::success(heading + lines.join(u'\n'));
}

McpToolResult snapshotDocumentVersion(ToolContext& context, const ToolArguments& arguments)
{
    const auto found = findForChange<Document>(context.workspace, arguments, u"title");
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value();
    const QString label = arguments.text(u"label").trimmed();
    if (label.isEmpty())
        return McpToolResult::failure(u"A non-empty \"label\" is required."_s);
    if (const auto checked = checkNameText(label); !checked)
        return McpToolResult::failure(checked.message());
    const auto text = core::document::activeText(document);
    const DocumentVersion version{label, presentTime(context.workspace), text.text, text.format};
    std::vector<DocumentVersion> versions = document.versions();
    if (!versions.empty() && isSame(versions.back(), version)) {
        return McpToolResult::success(
            u"The newest version of '%1' already matches; nothing changed."_s.arg(document.title()));
    }
    versions.push_back(version);
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: snapshot_document_version"_s, [&] {
        context.workspace.undoStack().push(
            std::make_unique<core::document::SetDocumentVersionsCommand>(document, std::move(versions)));
        return McpToolResult::success(u"Saved version '%1' of '%2'."_s.arg(label, document.title()));
    });
}

McpToolResult manageVariants(ToolContext& context, const ToolArguments& arguments)
{
    const QString action = arguments.text(u"action", u"list"_s);
    if (action == "list"_L1) {
        const auto found = findToRead<Document>(context.workspace, arguments, u"document");
        return found ? McpToolResult::success(
                           mountedHeading(found.value().library) + listVariants(*found.value()))
                     : McpToolResult::failure(found.message());
    }
    const auto found = findForChange<Document>(context.workspace, arguments, u"document");
    if (!found)
        return McpToolResult::failure(found.message());
    Document& document = *found.value();
    if (action != "switch"_L1 && arguments.text(u"name").trimmed().isEmpty())
        return McpToolResult::failure(u"manage_variants needs \"name\"."_s);
    if (action == "rename"_L1 && arguments.text(u"new_name").trimmed().isEmpty())
        return McpToolResult::failure(u"manage_variants needs \"name\" and \"new_name\"."_s);
    auto change = variantChange(action, document, arguments);
    if (!change)
        return McpToolResult::failure(change.message());
    if (change.value().variants == document.variants()) {
        return McpToolResult::success(
            u"Document '%1' already matches; nothing changed."_s.arg(document.title()));
    }
    return applyAsUndoStep(context.workspace, context.changeLog, u"MCP: manage_variants"_s, [&] {
        context.workspace.undoStack().push(std::make_unique<core::document::SetDocumentVariantsCommand>(
            document, std::move(change.value().variants)));
        return McpToolResult::success(change.value().answer);
    });
}

} // namespace tw::app::mcp
