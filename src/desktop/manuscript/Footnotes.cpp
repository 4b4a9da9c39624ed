#include "desktop/manuscript/Footnotes.h"

#include "core/document/DocumentCommands.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QTextBlock>

#include <algorithm>

namespace tw::desktop::manuscript {

using core::document::Document;
using core::document::Footnote;
using core::document::SetDocumentFootnotesCommand;

QString freeNoteLabel(const QStringList& labels)
{
    int number = 1;
    while (labels.contains(QString::number(number)))
        ++number;
    return QString::number(number);
}

std::vector<Footnote> inReadingOrder(const std::vector<Footnote>& notes, const QStringList& references)
{
    std::vector<Footnote> ordered = notes;
    std::ranges::stable_sort(ordered, {}, [&references](const Footnote& note) {
        const qsizetype place = references.indexOf(note.id);
        return place < 0 ? references.size() : place;
    });
    return ordered;
}

QString insertNote(shell::ProjectSession& session, rich::RichPage& page, bool isEndnote)
{
    session.commitPendingEdits();
    auto* const document = session.projectForCommands().findAsForEdit<Document>(page.documentId());
    if (!document || page.isReadOnly())
        return {};
    QStringList labels = page.footnoteReferences();
    for (const Footnote& note : document->footnotes())
        labels.append(note.id);
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next())
        labels.append(rich::shapeOf(block.blockFormat()).label);
    const QString label = freeNoteLabel(labels);
    std::vector<Footnote> notes = document->footnotes();
    notes.push_back({label, {}, isEndnote});
    const auto step = session.macro(
        isEndnote ? QCoreApplication::translate("Footnotes", "Insert endnote")
                  : QCoreApplication::translate("Footnotes", "Insert footnote"));
    session.apply(std::make_unique<SetDocumentFootnotesCommand>(*document, std::move(notes)));
    page.insertFootnoteReference(label);
    return label;
}

void setNoteText(
    shell::ProjectSession& session, const core::ContentId& documentId, const QString& label,
    const QString& text)
{
    auto* const document = session.projectForCommands().findAsForEdit<Document>(documentId);
    if (!document || document->isLocked())
        return;
    std::vector<Footnote> notes = document->footnotes();
    const auto found = std::ranges::find(notes, label, &Footnote::id);
    if (found == notes.end() || found->text == text)
        return;
    found->text = text;
    session.apply(std::make_unique<SetDocumentFootnotesCommand>(*document, std::move(notes)));
}

void removeNote(shell::ProjectSession& session, const core::ContentId& documentId, const QString& label)
{
    auto* const document = session.projectForCommands().findAsForEdit<Document>(documentId);
    if (!document || document->isLocked())
        return;
    std::vector<Footnote> notes = document->footnotes();
    if (std::erase_if(notes, [&label](const Footnote& note) { return note.id == label; }) > 0)
        session.apply(std::make_unique<SetDocumentFootnotesCommand>(*document, std::move(notes)));
}

} // namespace tw::desktop::manuscript
