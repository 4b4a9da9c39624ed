#pragma once

#include "app/persistence/AutosaveController.h"
#include "app/workspace/ExternalReview.h"
#include "app/workspace/Workspace.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/ProjectWords.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <chrono>
#include <functional>
#include <map>
#include <memory>

namespace tw::desktop::shell {

/** Texts of documents as their editors have them, where the project does not yet. */
using HeldBackTexts = QHash<core::ContentId, QString>;

/** Whether and how often the project is saved by itself. */
struct AutosaveSettings
{
    bool isOn = true;
    std::chrono::seconds interval{30};

    bool operator==(const AutosaveSettings&) const = default;
};

enum class SaveState
{
    /** Nothing to save. */
    Saved,
    Modified,
    /** The last save failed; the project is modified all the same. */
    Failed,
};

/** Why editors are asked for the typing they hold. */
enum class CommitReason
{
    /** The program saves or notes what there is while the writer types: whatever this would disturb may wait.
     */
    InPassing,
    /** Something is done with the project, and must not run ahead of the writer's last words. */
    Asked,
};

/** The ways out of a review of others' changes; see ExternalReview. */
enum class Settlement
{
    TakeTheirs,
    KeepMine,
    ApplyMerge,
};

/**
 * The open project as the panels see it: read it, change it by commands, hear one signal after every change,
 * whoever made it. Owns the workspace. Main thread only.
 *
 * Panels hold ids, never pointers to objects, across changed(). An editor that keeps typing back for a moment
 * listens to commitRequested() and pushes what it holds, so that no save, undo or command runs ahead of the
 * writer's last words; PendingEdit and trees::CommittingView do that for fields and for cells.
 */
class ProjectSession final : public QObject
{
    Q_OBJECT

public:
    /** Ends a macro when it goes out of scope; the changes inside are announced together. */
    class MacroScope
    {
    public:
        explicit MacroScope(ProjectSession& session)
            : m_session(&session)
        {}
        MacroScope(MacroScope&& other) noexcept
            : m_session(std::exchange(other.m_session, nullptr))
        {}
        MacroScope& operator=(MacroScope&&) = delete;
        ~MacroScope();

    private:
        ProjectSession* m_session;
    };

    explicit ProjectSession(
        const app::persistence::StorageEnvironment& environment, QObject* parent = nullptr);
    ~ProjectSession() override;

    [[nodiscard]] const core::project::Project& project() const { return m_workspace->project(); }
    /** For building commands, which need objects they may change. Push them with apply(). */
    [[nodiscard]] core::project::Project& projectForCommands() { return m_workspace->projectForEdit(); }
    [[nodiscard]] const app::workspace::Workspace& workspace() const { return *m_workspace; }
    /** False before anything was opened or begun: there is only an empty project without a name. */
    [[nodiscard]] bool isProjectOpen() const { return m_isProjectOpen; }

    /** Word counts, up to date whenever changed() is heard. */
    [[nodiscard]] const ProjectWords& words() const { return m_words; }

    // Changing

    /** Runs a command as one step, or as part of the open macro. Null is ignored. */
    void apply(std::unique_ptr<core::undo::Command> command);
    /** Commands applied until the scope ends are one step. */
    [[nodiscard]] MacroScope macro(const QString& label);
    void undo();
    void redo();
    /** True while an editor holds typing as well: an undo takes that back. */
    [[nodiscard]] bool canUndo() const { return isTypingPending() || m_workspace->history().canUndo(); }
    /** Typing leaves nothing to be redone. */
    [[nodiscard]] bool canRedo() const { return !isTypingPending() && m_workspace->history().canRedo(); }
    [[nodiscard]] QString undoText() const { return m_workspace->history().undoText(); }
    [[nodiscard]] QString redoText() const { return m_workspace->history().redoText(); }

    /**
     * Lets something that works on the workspace itself do so, a tool of an assistant say, and announces what
     * it changed or saved. The project stays the same one.
     */
    void runOnWorkspace(const std::function<void(app::workspace::Workspace& workspace)>& work);

    /** Has editors push the typing they hold. */
    void commitPendingEdits(CommitReason reason = CommitReason::Asked);
    /** An editor holds typing that is not in the project yet, or no longer does. See PendingEdit. */
    void setTypingPending(const QObject& editor, bool pending);
    [[nodiscard]] bool isTypingPending() const { return !m_typingEditors.isEmpty(); }
    [[nodiscard]] bool isTypingPending(const QObject& editor) const
    {
        return m_typingEditors.contains(&editor);
    }
    /** Whether an editor holds typing that is the object itself or belongs to it. */
    [[nodiscard]] bool isTypingPendingIn(const QObject& owner) const;
    /** What editors of documents hold back, without making an edit of it. */
    [[nodiscard]] HeldBackTexts heldBackTexts();

    // Project life

    /** Begins a new project without a place on disk, in the place of the open one. */
    void startNew(const QString& name);
    /**
     * Begins a project with what `fill` puts into it, saved at the path, in the place of the open one: a
     * single file when the path ends as those do, otherwise a folder. The open project stays when this fails.
     */
    [[nodiscard]] core::Result<void> create(
        const QString& path, const std::function<void(core::project::Project& project)>& fill);
    /** The open project stays when this fails. */
    [[nodiscard]] core::Result<void> open(const QString& folder);
    [[nodiscard]] core::Result<void> save(
        app::persistence::SaveExtent extent = app::persistence::SaveExtent::Changed);
    [[nodiscard]] core::Result<void> saveAs(const QString& folder);
    /** What failed saves left on disk is given up with what is in memory alone, which stays. */
    [[nodiscard]] core::Result<void> discardUnsaved() { return m_workspace->discardUnsaved(); }
    [[nodiscard]] core::Result<void> reload();
    /** One look at what others changed on disk. Nothing may be applied while the review is open. */
    [[nodiscard]] core::Result<app::workspace::ExternalReview> beginReview();
    /** Ends a review; the project may be another one afterwards. */
    [[nodiscard]] core::Result<void> settle(app::workspace::ExternalReview& review, Settlement settlement);
    /** Whether others changed the project, so that a save would be refused. */
    [[nodiscard]] bool isChangedOnDisk();
    /** Whether a single-file project's archive was changed by others. */
    [[nodiscard]] bool isArchiveChangedOnDisk() { return m_workspace->isBundleChangedOnDisk(); }
    [[nodiscard]] core::Result<QString> importAsset(const QString& sourceFile);

    /** Holds for this and every later project, at once. */
    void setAutosave(const AutosaveSettings& settings);
    /** Brings back what a crash left, as edits that are not saved; the history is lost. */
    [[nodiscard]] core::Result<void> restoreUnsaved(
        const std::map<QString, app::persistence::FileVersion>& files);

    [[nodiscard]] bool isModified() const { return isTypingPending() || m_workspace->isModified(); }
    [[nodiscard]] SaveState saveState() const;
    /** Why the last save failed; empty when it did not. */
    [[nodiscard]] const QString& saveFailure() const { return m_saveFailure; }

signals:
    /** After every change; `isEverything` when another project took the place of the old one. */
    void changed(const tw::core::project::ProjectChanges& changes);
    /** The steps that undo() and redo() would take are different now. */
    void historyChanged();
    void saveStateChanged(tw::desktop::shell::SaveState state);
    void commitRequested(tw::desktop::shell::CommitReason reason);
    /** An editor began to hold typing back. */
    void typingBegan();
    /** An editor holds nothing any more; what it held is put into the project next, if it is not given up. */
    void typingEnded();
    /** Whoever holds back the text of a document puts it in. */
    void heldBackTextsRequested(tw::desktop::shell::HeldBackTexts& texts);
    void aboutToSave();
    /** All edits up to now are on disk. */
    void saved();
    void autosaveFailed(const QString& message);
    /** The list of mounted libraries changed, and they were read anew. */
    void librariesRead();
    /** What is on disk has taken the place of the project in memory, by reload() or settle(). */
    void reloaded();

private:
    void announce();
    void announceChanges(const core::project::ProjectChanges& changes);
    void replaceWorkspace(std::unique_ptr<app::workspace::Workspace> workspace);
    void announceEverything();
    void announceReload();
    void updateSaveState();
    void startAutosave();
    void applyAutosaveSettings();
    void prepareSave(CommitReason reason = CommitReason::Asked);
    [[nodiscard]] core::Result<void> noteSave(core::Result<void> result);
    /** A failure to write at the path says as well what can be done about it. */
    [[nodiscard]] core::Result<void> advised(core::Result<void> result, const QString& path) const;

    const app::persistence::StorageEnvironment& m_environment;
    std::unique_ptr<app::workspace::Workspace> m_workspace;
    AutosaveSettings m_autosaveSettings;
    std::unique_ptr<app::persistence::AutosaveController> m_autosave;
    ProjectWords m_words;
    bool m_isProjectOpen = false;
    /** Those that hold typing. */
    QSet<const QObject*> m_typingEditors;
    bool m_committing = false;
    QString m_saveFailure;
    SaveState m_announcedState = SaveState::Saved;
};

} // namespace tw::desktop::shell
