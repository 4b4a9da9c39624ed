#pragma once

#include "app/text/WordDifference.h"
#include "core/document/Document.h"

#include <QDateTime>

namespace tw::desktop::shell {
class ProjectSession;
}

// What is done with snapshots and variants of a document, each as one undo step. Snapshots are told by their
// place in Document::versions(); functions do nothing where the document or the place does not exist. Of a
// locked document snapshots can be taken, and nothing else.
namespace tw::desktop::snapshots {

/** Keeps the text in use. A text that the newest snapshot holds already is not kept twice, unless it is named
 * anew. */
void takeSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, const QString& label, const QDateTime& now);

/** Brings a snapshot's text back; the present text becomes a snapshot first. */
void restoreSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot, const QDateTime& now);

/**
 * Brings back one passage of a comparison between a snapshot and the text in use; the present text becomes a
 * snapshot first. False when the texts are not those that were compared any more.
 */
[[nodiscard]] bool restorePassage(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot,
    const app::text::ChangedPassage& passage, const QDateTime& now);

void renameSnapshot(
    shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot, const QString& label);
void removeSnapshot(shell::ProjectSession& session, const core::ContentId& id, std::size_t snapshot);

/** Why a variant cannot be named so, as a sentence; empty when it can. `present` is its name up to now. */
[[nodiscard]] QString variantNameProblem(
    const core::document::Document& document, const QString& name, const QString& present = {});

/** A variant with the text in use, which is then the one in use. The name is checked. */
void addVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name);
/** An empty name is the main text. */
void useVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name);
void renameVariant(
    shell::ProjectSession& session, const core::ContentId& id, const QString& name, const QString& newName);
void removeVariant(shell::ProjectSession& session, const core::ContentId& id, const QString& name);

} // namespace tw::desktop::snapshots
