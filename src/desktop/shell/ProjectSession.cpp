#include "desktop/shell/ProjectSession.h"

#include "app/workspace/WriteAdvice.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace tw::desktop::shell {

using app::persistence::SaveExtent;
using app::workspace::Workspace;
using core::Result;

ProjectSession::MacroScope::~MacroScope()
{
    if (!m_session)
        return;
    m_session->m_workspace->undoStack().endMacro();
    m_session->announce();
}

ProjectSession::ProjectSession(const app::persistence::StorageEnvironment& environment, QObject* parent)
    : QObject(parent)
    , m_environment(environment)
    , m_workspace(std::make_unique<Workspace>(environment))
{
    startAutosave();
}

ProjectSession::~ProjectSession() = default;

void ProjectSession::apply(std::unique_ptr<core::undo::Command> command)
{
    if (!command)
        return;
    commitPendingEdits();
    m_workspace->undoStack().push(std::move(command));
    announce();
}

ProjectSession::MacroScope ProjectSession::macro(const QString& label)
{
    commitPendingEdits();
    m_workspace->undoStack().beginMacro(label);
    return MacroScope(*this);
}

void ProjectSession::undo()
{
    commitPendingEdits();
    m_workspace->undoStack().undo();
    announce();
}

void ProjectSession::redo()
{
    commitPendingEdits();
    m_workspace->undoStack().redo();
    announce();
}

void ProjectSession::runOnWorkspace(const std::function<void(Workspace& workspace)>& work)
{
    prepareSave();
    const bool wasModified = m_workspace->isModified();
    const core::undo::UndoStack::Position before = m_workspace->history().position();
    work(*m_workspace);
    announce();
    const bool hasWorked = wasModified || m_workspace->history().position() != before;
    if (hasWorked && !m_workspace->isModified())
        static_cast<void>(noteSave({}));
}

void ProjectSession::commitPendingEdits(CommitReason reason)
{
    // The edits that come out of this are commands themselves.
    if (m_committing)
        return;
    const QScopedValueRollback guard(m_committing, true);
    emit commitRequested(reason);
}

void ProjectSession::setTypingPending(const QObject& editor, bool pending)
{
    if (pending == isTypingPending(editor))
        return;
    const auto letGo = [this](const QObject* gone) {
        m_typingEditors.remove(gone);
        updateSaveState();
        emit typingEnded();
    };
    if (!pending) {
        disconnect(&editor, &QObject::destroyed, this, nullptr);
        letGo(&editor);
        return;
    }
    m_typingEditors.insert(&editor);
    connect(&editor, &QObject::destroyed, this, letGo);
    updateSaveState();
    emit typingBegan();
}

bool ProjectSession::isTypingPendingIn(const QObject& owner) const
{
    return std::ranges::any_of(m_typingEditors, [&owner](const QObject* each) {
        while (each && each != &owner)
            each = each->parent();
        return each != nullptr;
    });
}

HeldBackTexts ProjectSession::heldBackTexts()
{
    HeldBackTexts texts;
    emit heldBackTextsRequested(texts);
    return texts;
}

void ProjectSession::announce()
{
    if (m_workspace->history().isMacroOpen())
        return;
    const core::project::ProjectChanges changes = m_workspace->projectForEdit().takeChanges();
    const bool areLibrariesRead = changes.areSettingsChanged && m_workspace->followLibraryMounts();
    announceChanges(changes);
    if (areLibrariesRead)
        emit librariesRead();
}

void ProjectSession::announceChanges(const core::project::ProjectChanges& changes)
{
    m_words.update(project(), changes);
    if (!changes.isEmpty())
        emit changed(changes);
    emit historyChanged();
    updateSaveState();
}

void ProjectSession::announceEverything()
{
    static_cast<void>(m_workspace->projectForEdit().takeChanges());
    core::project::ProjectChanges changes;
    changes.isEverything = true;
    announceChanges(changes);
}

void ProjectSession::replaceWorkspace(std::unique_ptr<Workspace> workspace)
{
    // The old one lives until everybody has let go of it.
    std::swap(m_workspace, workspace);
    m_isProjectOpen = true;
    m_typingEditors.clear();
    m_saveFailure.clear();
    startAutosave();
    announceEverything();
}

void ProjectSession::startAutosave()
{
    using app::persistence::AutosaveController;
    m_autosave = std::make_unique<AutosaveController>(*m_workspace);
    connect(m_autosave.get(), &AutosaveController::aboutToSave, this, [this] {
        prepareSave(CommitReason::InPassing);
    });
    connect(m_autosave.get(), &AutosaveController::saved, this, [this] { static_cast<void>(noteSave({})); });
    connect(m_autosave.get(), &AutosaveController::saveFailed, this, [this](const QString& message) {
        const auto noted = noteSave(advised(core::Failure{message}, m_workspace->displayPath()));
        emit autosaveFailed(noted.message());
    });
    applyAutosaveSettings();
}

void ProjectSession::applyAutosaveSettings()
{
    m_autosave->setInterval(m_autosaveSettings.interval);
    if (m_autosaveSettings.isOn)
        m_autosave->start();
    else
        m_autosave->stop();
}

void ProjectSession::setAutosave(const AutosaveSettings& settings)
{
    m_autosaveSettings = settings;
    applyAutosaveSettings();
}

void ProjectSession::startNew(const QString& name)
{
    auto workspace = std::make_unique<Workspace>(m_environment);
    workspace->projectForEdit().setName(name);
    workspace->markModified();
    replaceWorkspace(std::move(workspace));
}

Result<void> ProjectSession::create(
    const QString& path, const std::function<void(core::project::Project& project)>& fill)
{
    auto workspace = std::make_unique<Workspace>(m_environment);
    fill(workspace->projectForEdit());
    if (auto saved = workspace->saveAs(path); !saved)
        return advised(std::move(saved), path);
    replaceWorkspace(std::move(workspace));
    return {};
}

Result<void> ProjectSession::open(const QString& folder)
{
    auto opened = Workspace::open(m_environment, folder);
    if (!opened)
        return core::Failure{opened.message()};
    replaceWorkspace(std::move(opened).value());
    return {};
}

Result<void> ProjectSession::save(SaveExtent extent)
{
    prepareSave();
    return noteSave(advised(m_workspace->save(extent), m_workspace->displayPath()));
}

Result<void> ProjectSession::saveAs(const QString& folder)
{
    prepareSave();
    return noteSave(advised(m_workspace->saveAs(folder), folder));
}

void ProjectSession::prepareSave(CommitReason reason)
{
    commitPendingEdits(reason);
    if (m_workspace->isModified())
        emit aboutToSave();
}

Result<void> ProjectSession::advised(Result<void> result, const QString& path) const
{
    if (result)
        return result;
    return core::Failure{app::workspace::withWriteAdvice(m_environment, result.message(), path)};
}

Result<void> ProjectSession::noteSave(Result<void> result)
{
    m_saveFailure = result.message();
    updateSaveState();
    if (result)
        emit saved();
    return result;
}

Result<void> ProjectSession::reload()
{
    auto reloaded = m_workspace->reload();
    if (reloaded)
        announceReload();
    return reloaded;
}

Result<void> ProjectSession::restoreUnsaved(const std::map<QString, app::persistence::FileVersion>& files)
{
    auto restored = m_workspace->restoreUnsaved(files);
    if (restored)
        announceEverything();
    return restored;
}

void ProjectSession::announceReload()
{
    m_typingEditors.clear();
    m_saveFailure.clear();
    announceEverything();
    emit reloaded();
}

Result<app::workspace::ExternalReview> ProjectSession::beginReview()
{
    commitPendingEdits();
    return app::workspace::ExternalReview::begin(*m_workspace);
}

bool ProjectSession::isChangedOnDisk()
{
    return isArchiveChangedOnDisk() || !m_workspace->externalChanges().isEmpty();
}

Result<void> ProjectSession::settle(app::workspace::ExternalReview& review, Settlement settlement)
{
    const auto* const before = &project();
    const auto result = [&]() -> Result<void> {
        switch (settlement) {
        case Settlement::TakeTheirs:
            return review.takeTheirs();
        case Settlement::KeepMine:
            return review.keepMine();
        case Settlement::ApplyMerge:
            return review.applyMerge();
        }
        Q_UNREACHABLE();
    }();
    // Some failures end with a reload as well.
    if (&project() != before)
        announceReload();
    else
        updateSaveState();
    return result;
}

Result<QString> ProjectSession::importAsset(const QString& sourceFile)
{
    auto imported = m_workspace->importAsset(sourceFile);
    if (imported)
        return imported;
    return core::Failure{
        app::workspace::withWriteAdvice(m_environment, imported.message(), m_workspace->folderPath())};
}

SaveState ProjectSession::saveState() const
{
    if (!isModified())
        return SaveState::Saved;
    return m_saveFailure.isEmpty() ? SaveState::Modified : SaveState::Failed;
}

void ProjectSession::updateSaveState()
{
    const SaveState state = saveState();
    if (state == m_announcedState)
        return;
    m_announcedState = state;
    emit saveStateChanged(state);
}

} // namespace tw::desktop::shell
