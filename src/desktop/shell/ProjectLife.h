#pragma once

#include "app/persistence/FolderSaver.h"
#include "desktop/shell/DeskContext.h"

#include <QObject>
#include <QString>

class QWidget;

namespace tw::desktop::review {
class ExternalChanges;
}
namespace tw::desktop::project {
class ProjectBackups;
struct NewProject;
} // namespace tw::desktop::project

namespace tw::desktop::shell {

class CrashKeeper;

/**
 * The life of the project from opening to closing, as the user leads it: asks for names and places, asks
 * before anything unsaved goes, tells what failed. The session does the work.
 */
class ProjectLife final : public QObject
{
    Q_OBJECT

public:
    /** `samplePath` is empty when no sample is installed. Boxes appear above the window, which is the parent.
     */
    ProjectLife(const DeskContext& desk, QString samplePath, QWidget* window);

    /** What is done about changes that others make to the open project. */
    [[nodiscard]] review::ExternalChanges& externalChanges() { return *m_externalChanges; }

    [[nodiscard]] project::ProjectBackups& backups() { return *m_backups; }

    /**
     * Asks first when something is unsaved; a failure is told, and the open project stays. Of a backup it
     * asks where the new project is to lie that is made of it.
     */
    bool open(const QString& path);
    /** Opens the project of the last session when that is wanted and possible. */
    bool reopenLast();
    [[nodiscard]] bool hasSample() const { return !m_samplePath.isEmpty(); }

    void startNew();
    void chooseAndOpen();
    void chooseAndOpenFolder();
    void openSample();
    void save();
    /** Asks where; true when it was saved there. */
    bool saveAs();
    /** Gives the project a new place without asking; a failure is told. */
    bool saveAt(const QString& path);
    void reload();

    /** True when nothing is unsaved, or the user saved or let go of it. */
    [[nodiscard]] bool settleUnsavedChanges();
    /** The window closes, and nothing that the user wants is unsaved. */
    void end();

signals:
    /** Another project is about to take the place of the open one. */
    void aboutToLeave();
    /** A project was opened or begun. */
    void opened();
    void openFailed();
    /** The open project has another place now. */
    void placeChanged();
    /** For the status bar. */
    void said(const QString& text);

private:
    /** Leaves the open project alone and tells the user when it fails. */
    [[nodiscard]] bool create(const project::NewProject& wanted);
    [[nodiscard]] bool saveOrTell(app::persistence::SaveExtent extent);
    [[nodiscard]] bool saveForBackup();
    /** A failure is told; it keeps nobody from going on. */
    void discardUnsaved();
    /** What there is to know about the project as it was read, and then `more`. */
    void tellNotices(const QString& more = {});

    DeskContext m_desk;
    QString m_samplePath;
    QWidget* m_window;
    review::ExternalChanges* m_externalChanges;
    CrashKeeper* m_crashKeeper;
    project::ProjectBackups* m_backups;
};

} // namespace tw::desktop::shell
