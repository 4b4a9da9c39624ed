#pragma once

#include "core/document/Document.h"
#include "core/project/Project.h"
#include "core/project/SiblingOrder.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::document {

class SetDocumentTitleCommand final : public undo::SetFieldCommand<&Document::title, &Document::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** The text and its format together. */
class SetDocumentBodyCommand final : public undo::SetFieldCommand<&Document::body, &Document::setBody>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentKindCommand final
    : public undo::SetFieldCommand<&Document::documentKind, &Document::setDocumentKind>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentSynopsisCommand final
    : public undo::SetFieldCommand<&Document::synopsis, &Document::setSynopsis>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentStatusCommand final : public undo::SetFieldCommand<&Document::status, &Document::setStatus>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentPointOfViewCommand final
    : public undo::SetFieldCommand<&Document::pointOfView, &Document::setPointOfView>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentTensionLevelCommand final
    : public undo::SetFieldCommand<&Document::tensionLevel, &Document::setTensionLevel>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentSceneInstantCommand final
    : public undo::SetFieldCommand<&Document::sceneInstant, &Document::setSceneInstant>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentTargetCommand final
    : public undo::SetFieldCommand<&Document::wordCountTarget, &Document::setWordCountTarget>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentFootnotesCommand final
    : public undo::SetFieldCommand<&Document::footnotes, &Document::setFootnotes>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentSourcesCommand final
    : public undo::SetFieldCommand<&Document::sourceIds, &Document::setSourceIds>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** The list and the active variant together. */
class SetDocumentVariantsCommand final
    : public undo::SetFieldCommand<&Document::variants, &Document::setVariants>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentVersionsCommand final
    : public undo::SetFieldCommand<&Document::versions, &Document::setVersions>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetDocumentRevisionBaselineCommand final
    : public undo::SetFieldCommand<&Document::revisionBaseline, &Document::setRevisionBaseline>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/**
 * Moves a document under a new parent (null: the top level), to a place among the new siblings that is
 * clamped to their number. Renumbers the siblings it touches 0, 1, 2, ... Does nothing when the document or
 * the new parent is not a document of the project, or when the move would put a document under itself.
 */
class MoveDocumentCommand final : public undo::Command
{
public:
    MoveDocumentCommand(project::Project& project, ContentId documentId, ContentId newParentId, qint32 index);

    void redo() override;
    void undo() override;
    [[nodiscard]] QString text() const override;

private:
    project::Project& m_project;
    ContentId m_documentId;
    ContentId m_newParentId;
    qint32 m_index;
    bool m_applied = false;
    ContentId m_oldParentId;
    project::SiblingOrder<Document> m_order;
};

} // namespace tw::core::document
