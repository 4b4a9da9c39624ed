#include "core/document/DocumentCommands.h"

#include "core/document/DocumentTree.h"
#include <QCoreApplication>

#include <algorithm>

namespace tw::core::document {

QString SetDocumentTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename document");
}

QString SetDocumentBodyCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit document body");
}

QString SetDocumentKindCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Change document kind");
}

QString SetDocumentSynopsisCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit synopsis");
}

QString SetDocumentStatusCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit status");
}

QString SetDocumentPointOfViewCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit point of view");
}

QString SetDocumentTensionLevelCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit tension");
}

QString SetDocumentSceneInstantCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set scene date");
}

QString SetDocumentTargetCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Set word-count target");
}

QString SetDocumentFootnotesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit footnotes");
}

QString SetDocumentSourcesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Cite source");
}

QString SetDocumentVariantsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit document variants");
}

QString SetDocumentVersionsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit version history");
}

QString SetDocumentRevisionBaselineCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Mark screenplay revision");
}

MoveDocumentCommand::MoveDocumentCommand(
    project::Project& project, ContentId documentId, ContentId newParentId, qint32 index)
    : m_project(project)
    , m_documentId(documentId)
    , m_newParentId(newParentId)
    , m_index(index)
{}

void MoveDocumentCommand::redo()
{
    m_applied = canMoveDocument(m_project, m_documentId, m_newParentId);
    if (!m_applied)
        return;
    auto* const document = m_project.findAsForEdit<Document>(m_documentId);
    m_oldParentId = document->parentId();
    std::vector<ContentId> oldSiblings = childDocuments(m_project, m_oldParentId);
    std::vector<ContentId> newSiblings = childDocuments(m_project, m_newParentId);
    std::erase(oldSiblings, m_documentId);
    std::erase(newSiblings, m_documentId);
    const auto index = std::clamp<std::ptrdiff_t>(m_index, 0, std::ssize(newSiblings));
    newSiblings.insert(newSiblings.begin() + index, m_documentId);

    document->setParentId(m_newParentId);
    document->touch();
    m_order.number(m_project, newSiblings);
    if (m_oldParentId != m_newParentId)
        m_order.number(m_project, oldSiblings);
}

void MoveDocumentCommand::undo()
{
    if (!m_applied)
        return;
    m_applied = false;
    if (auto* const document = m_project.findAsForEdit<Document>(m_documentId)) {
        document->setParentId(m_oldParentId);
        document->touch();
    }
    m_order.restore(m_project);
}

QString MoveDocumentCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move document");
}

} // namespace tw::core::document
