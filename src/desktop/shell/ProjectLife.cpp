#include "desktop/shell/ProjectLife.h"

#include "app/persistence/bundle/BackupList.h"
#include "app/workspace/WriteAdvice.h"
#include "desktop/project/NewProjectDialog.h"
#include "desktop/project/ProjectBackups.h"
#include "desktop/project/ProjectFileDialogs.h"
#include "desktop/review/ExternalChanges.h"
#include "desktop/shell/CrashKeeper.h"
#include "desktop/shell/CrashRecovery.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"
#include "desktop/shell/RecentProjects.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using app::persistence::SaveExtent;

namespace {

QString documentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

ProjectLife::ProjectLife(const DeskContext& desk, QString samplePath, QWidget* window)
    : QObject(window)
    , m_desk(desk)
    , m_samplePath(std::move(samplePath))
    , m_window(window)
    , m_externalChanges(new review::ExternalChanges(desk, window))
    , m_crashKeeper(new CrashKeeper(desk.session, desk.session.workspace().environment(), this))
    , m_backups(new project::ProjectBackups(desk, window))
{
    connect(m_crashKeeper, &CrashKeeper::failed, this, &ProjectLife::said);
    // Queued: what asked for the reload says its own first.
    connect(
        &m_desk.session, &ProjectSession::reloaded, this, [this] { tellNotices(); }, Qt::QueuedConnection);
    m_backups->setSave([this] { return saveForBackup(); });
    connect(m_backups, &project::ProjectBackups::said, this, &ProjectLife::said);
    connect(m_backups, &project::ProjectBackups::restored, this, &ProjectLife::open);
    connect(m_externalChanges, &review::ExternalChanges::said, this, &ProjectLife::said);
}

bool ProjectLife::open(const QString& path)
{
    if (app::persistence::isBackupPath(path))
        return m_backups->restore(path);
    if (!settleUnsavedChanges())
        return false;
    emit aboutToLeave();
    if (const auto result = m_desk.session.open(path); !result) {
        tell(m_window, tr("Open Project"), result.message());
        emit openFailed();
        return false;
    }
    const bool isRestored = recoverAfterCrash(m_desk.session, *m_crashKeeper, m_window);
    emit opened();
    tellNotices(isRestored ? tr("Your unsaved changes are back. Save to keep them.") : QString());
    return true;
}

void ProjectLife::end()
{
    m_crashKeeper->discard();
}

void ProjectLife::tellNotices(const QString& more)
{
    const app::workspace::Workspace& workspace = m_desk.session.workspace();
    const app::workspace::OpeningNotice& opening = workspace.openingNotice();
    QStringList inPassing{more, workspace.structureNotice()};
    inPassing += workspace.libraryNotices();
    if (opening.title.isEmpty())
        inPassing.prepend(opening.text);
    else
        inform(m_window, opening.title, opening.text);
    // Said together: said one after the other, only the last would be seen.
    inPassing.removeAll(QString());
    if (!inPassing.isEmpty())
        emit said(inPassing.join(u' '));
}

bool ProjectLife::reopenLast()
{
    if (m_desk.settings.value("general/reopenLast", u"true"_s).toString() != u"true")
        return false;
    const QStringList recent = RecentProjects(m_desk.settings).paths();
    return !recent.isEmpty() && QFileInfo::exists(recent.first()) && open(recent.first());
}

void ProjectLife::openSample()
{
    const QString copy = documentsFolder() + u"/Vellory/"_s + QFileInfo(m_samplePath).fileName();
    if (!QFileInfo::exists(copy)) {
        // The sample itself stays as it came: the writer gets a copy to play with.
        const auto sample =
            app::workspace::Workspace::open(m_desk.session.workspace().environment(), m_samplePath);
        const auto copied = sample ? sample.value()->saveAs(copy) : core::Failure{sample.message()};
        if (!copied) {
            const auto& environment = m_desk.session.workspace().environment();
            const QString message = app::workspace::withWriteAdvice(environment, copied.message(), copy);
            tell(m_window, tr("Open the Sample"), message);
            return;
        }
    }
    open(copy);
}

void ProjectLife::startNew()
{
    auto wanted = project::askForNewProject(m_desk, m_window);
    if (!wanted || !settleUnsavedChanges())
        return;
    emit aboutToLeave();
    // What was filled in is not asked for again when the place turns out to be no good.
    while (wanted && !create(*wanted))
        wanted = project::askForNewProject(m_desk, m_window, *wanted);
    if (wanted)
        emit opened();
    else
        emit openFailed();
}

bool ProjectLife::create(const project::NewProject& wanted)
{
    const auto fill = [&wanted](core::project::Project& created) {
        created.setName(wanted.place.name);
        app::workspace::templates::fillProject(created, wanted.chosen);
    };
    // Saved at once, so that nothing that is written from now on is without a place.
    const auto created = m_desk.session.create(project::pathOf(wanted.place), fill);
    if (!created)
        tell(m_window, tr("New Project"), created.message());
    return created.isOk();
}

void ProjectLife::chooseAndOpen()
{
    if (const QString path = project::askForProjectFile(m_desk.settings, m_window); !path.isEmpty())
        open(path);
}

void ProjectLife::chooseAndOpenFolder()
{
    if (const QString path = project::askForProjectFolder(m_desk.settings, m_window); !path.isEmpty())
        open(path);
}

void ProjectLife::save()
{
    if (m_desk.session.workspace().hasPath())
        static_cast<void>(saveOrTell(SaveExtent::Changed));
    else
        saveAs();
}

bool ProjectLife::saveOrTell(SaveExtent extent)
{
    auto saved = m_desk.session.save(extent);
    if (!saved && m_desk.session.isChangedOnDisk()) {
        if (!m_externalChanges->settleForSave())
            return false;
        saved = m_desk.session.save(extent);
    }
    if (saved)
        emit said(tr("Saved."));
    else
        tell(m_window, tr("Save Project"), saved.message());
    return saved.isOk();
}

bool ProjectLife::saveAs()
{
    const QString path =
        project::askForSavePath(m_desk.settings, m_desk.session.workspace().displayName(), m_window);
    return !path.isEmpty() && saveAt(path);
}

bool ProjectLife::saveAt(const QString& path)
{
    if (const auto saved = m_desk.session.saveAs(path); !saved) {
        tell(m_window, tr("Save Project"), saved.message());
        return false;
    }
    project::setUsualFolder(m_desk.settings, QFileInfo(path).absolutePath());
    RecentProjects(m_desk.settings).add(m_desk.session.workspace().displayPath());
    emit placeChanged();
    return true;
}

bool ProjectLife::saveForBackup()
{
    // Without a place there is nothing to save yet; the backup says so.
    return !m_desk.session.workspace().hasPath() || saveOrTell(SaveExtent::Everything);
}

void ProjectLife::reload()
{
    if (m_desk.session.isModified()) {
        const Question question{
            tr("Reload Project"),
            tr("“%1” has changes that are not saved. Reloading it from disk discards them.")
                .arg(m_desk.session.workspace().displayName()),
            {{tr("Discard Changes"), QMessageBox::DestructiveRole}},
        };
        if (!ask(m_window, question))
            return;
    }
    discardUnsaved();
    if (const auto reloaded = m_desk.session.reload(); !reloaded)
        tell(m_window, tr("Reload Project"), reloaded.message());
}

void ProjectLife::discardUnsaved()
{
    if (const auto discarded = m_desk.session.discardUnsaved(); !discarded) {
        tell(
            m_window, tr("Discard Changes"),
            tr("A save that failed left changes behind, and they could not be set aside: when the project is "
               "read again, they are back. Undo them then. %1")
                .arg(discarded.message()));
    }
}

bool ProjectLife::settleUnsavedChanges()
{
    m_desk.session.commitPendingEdits();
    if (!m_desk.session.isModified()) {
        // Nothing is unsaved, so a refusal because of others' changes loses nothing.
        const bool isDue = m_desk.session.workspace().isFullSaveDue();
        if (isDue && !m_desk.session.save(SaveExtent::Everything))
            discardUnsaved();
        return true;
    }
    enum Choice : qsizetype
    {
        Save,
        Discard,
    };
    const auto choice =
        ask(m_window,
            {tr("Unsaved Changes"),
             tr("“%1” has changes that are not saved.").arg(m_desk.session.workspace().displayName()),
             {{tr("Save"), QMessageBox::AcceptRole}, {tr("Discard Changes"), QMessageBox::DestructiveRole}}});
    if (!choice)
        return false;
    if (*choice == Discard) {
        discardUnsaved();
        return true;
    }
    return m_desk.session.workspace().hasPath() ? saveOrTell(SaveExtent::Everything) : saveAs();
}

} // namespace tw::desktop::shell
