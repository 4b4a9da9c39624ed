#pragma once

#include "core/document/Document.h"

#include <QStringList>

namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::manuscript {

namespace rich {
class RichPage;
}

/** The smallest number that none of the labels is. */
[[nodiscard]] QString freeNoteLabel(const QStringList& labels);

/** The notes in the order in which the text refers to them; those it does not refer to follow. */
[[nodiscard]] std::vector<core::document::Footnote> inReadingOrder(
    const std::vector<core::document::Footnote>& notes, const QStringList& references);

/** Adds an empty note at the cursor, as one step; gives its label, empty when the document cannot be changed.
 */
QString insertNote(shell::ProjectSession& session, rich::RichPage& page, bool isEndnote);
// Both leave the notes of a locked document as they are.
/** Gives a note another text, as one step. */
void setNoteText(
    shell::ProjectSession& session, const core::ContentId& documentId, const QString& label,
    const QString& text);
void removeNote(shell::ProjectSession& session, const core::ContentId& documentId, const QString& label);

} // namespace tw::desktop::manuscript
