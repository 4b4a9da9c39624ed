#include "desktop/snapshots/SnapshotEdits.h"

#include "core/document/ActiveText.h"
#include "core/document/DocumentCommands.h"
#include "core/document/markup/LegacyHtml.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::snapshots {

using namespace Qt::Literals::StringLiterals;
using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentBody;
using core::document::DocumentVariant;
using core::document::DocumentVariants;
using core::document::DocumentVersion;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("Snapshots", text);
}

/** The document for a command, after the typing that editors hold has gone into it. */
Document* documentForEdit(shell::ProjectSession& session, const core::ContentId& id)
{
    session.commitPendingEdits();
    return session.projectForCommands().findAsForEdit<Document>(id);
}

/** The same, for edits that a lock forbids. */
Document* unlockedForEdit(shell::ProjectSession& session, const core::ContentId& id)
{
    Document* const document = documentForEdit(session, id);
    return document && !document->isLocked() ? document : nullptr;
}

DocumentVersion versionOf(const DocumentBody& body, const QString& label, const QDateTime& now)
{
    return {label, now.toUTC().toString(Qt::ISODate), body.text, body.format};
}

void setVersions(shell::ProjectSession& session, Document& document, std::vector<DocumentVersion> versions)
{
    session.apply(
        std::make_unique<core::document::SetDocumentVersionsCommand>(document, std::move(versions)));
}

void setVariants(shell::ProjectSession& session, Document& document, DocumentVariants variants)
{
    session.apply(
        std::make_unique<core::document::SetDocumentVariantsCommand>(document, std::move(variants)));
}

/** Keeps the text in use before something takes its place, unless the newest snapshot holds it. */
void keepPresent(
    shell::ProjectSession& session, Document& document, const QString& label, const QDateTime& now)
{
    const DocumentBody present = core::document::activeText(document);
    std::vector<DocumentVersion> versions = document.versions();
    if (!versions.empty() && versions.back().body == present.text &&
        versions.back().bodyFormat == present.format)
        return;
    versions.push_back(versionOf(present, label, now));
    setVersions(session, document, std::move(versions));
}

void replaceText(
    shell::ProjectSession& session, Document& document, const DocumentBody& text, const QString& step,
    const QDateTime& now)
{
    const auto macro = session.macro(step);
    keepPresent(session, document, translated(QT_TRANSLATE_NOOP("Snapshots", "Before restoring")), now);
    session.apply(core::document::makeSetActiveTextCommand(document, text));
}

auto findVariant(DocumentVariants& variants, const QString& name)
{
    return std::ranges::find(variants.list, name, &DocumentVariant::name);
}

} // namespace

void takeSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, const QString& label, const QDateTime& now)
{
    Document* const document = documentForEdit(session, id);
    if (!document)
        return;
    std::vector<DocumentVersion> versions = document->versions();
    const DocumentVersion taken = versionOf(core::document::activeText(*document), label, now);
    const bool isKept = !versions.empty() && versions.back().body == taken.body &&
                        versions.back().bodyFormat == taken.bodyFormat;
    if (isKept && (label.isEmpty() || versions.back().label == label))
        return;
    versions.push_back(taken);
    setVersions(session, *document, std::move(versions));
}

void restoreSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot, const QDateTime& now)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || snapshot >= document->versions().size())
        return;
    const DocumentVersion version = document->versions()[snapshot];
    replaceText(
        session, *document, {version.body, version.bodyFormat},
        translated(QT_TRANSLATE_NOOP("Snapshots", "Restore snapshot")), now);
}

bool restorePassage(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot,
    const app::text::ChangedPassage& passage, const QDateTime& now)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || snapshot >= document->versions().size())
        return false;
    const DocumentVersion version = document->versions()[snapshot];
    const QString before = core::document::markup::markdownOf({version.body, version.bodyFormat});
    const QString after = core::document::markup::markdownOf(core::document::activeText(*document));
    const std::vector<app::text::ChangedPassage> passages = app::text::compareTexts(before, after);
    const bool isStillThere = std::ranges::any_of(passages, [&passage](const auto& each) {
        return each.before == passage.before && each.after == passage.after && each.words == passage.words;
    });
    if (!isStillThere)
        return false;
    replaceText(
        session, *document, {app::text::withPassageRestored(before, after, passage), BodyFormat::Markdown},
        translated(QT_TRANSLATE_NOOP("Snapshots", "Restore passage")), now);
    return true;
}

void renameSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot, const QString& label)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || snapshot >= document->versions().size() || document->versions()[snapshot].label == label)
        return;
    std::vector<DocumentVersion> versions = document->versions();
    versions[snapshot].label = label;
    setVersions(session, *document, std::move(versions));
}

void removeSnapshot(shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || snapshot >= document->versions().size())
        return;
    std::vector<DocumentVersion> versions = document->versions();
    versions.erase(versions.begin() + static_cast<std::ptrdiff_t>(snapshot));
    setVersions(session, *document, std::move(versions));
}

QString variantNameProblem(const Document& document, const QString& name, const QString& present)
{
    if (name.trimmed().isEmpty())
        return translated(QT_TRANSLATE_NOOP("Snapshots", "Give the variant a name."));
    const bool isTaken =
        name.trimmed() != present &&
        std::ranges::any_of(document.variants().list, [&name](const DocumentVariant& variant) {
            return variant.name == name.trimmed();
        });
    return isTaken
               ? translated(QT_TRANSLATE_NOOP(
                                "Snapshots", "There is a variant named “%1” already. Choose another name."))
                     .arg(name.trimmed())
               : QString();
}

void addVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || !variantNameProblem(*document, name).isEmpty())
        return;
    DocumentVariants variants = document->variants();
    const DocumentBody present = core::document::activeText(*document);
    variants.list.push_back({name.trimmed(), present.text, present.format});
    variants.active = name.trimmed();
    setVariants(session, *document, std::move(variants));
}

void useVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || document->variants().active == name)
        return;
    DocumentVariants variants = document->variants();
    if (!name.isEmpty() && findVariant(variants, name) == variants.list.end())
        return;
    variants.active = name;
    setVariants(session, *document, std::move(variants));
}

void renameVariant(
    shell::ProjectSession& session, const core::ContentId& id, const QString& name, const QString& newName)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document || newName.trimmed() == name || !variantNameProblem(*document, newName, name).isEmpty())
        return;
    DocumentVariants variants = document->variants();
    const auto variant = findVariant(variants, name);
    if (variant == variants.list.end())
        return;
    variant->name = newName.trimmed();
    if (variants.active == name)
        variants.active = newName.trimmed();
    setVariants(session, *document, std::move(variants));
}

void removeVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name)
{
    Document* const document = unlockedForEdit(session, id);
    if (!document)
        return;
    DocumentVariants variants = document->variants();
    const auto variant = findVariant(variants, name);
    if (variant == variants.list.end())
        return;
    variants.list.erase(variant);
    if (variants.active == name)
        variants.active.clear();
    setVariants(session, *document, std::move(variants));
}

} // namespace tw::desktop::snapshots
