#include "desktop/shell/ProjectLife.h"

#include "desktop/review/ExternalChanges.h"
#include "desktop/shell/CrashKeeper.h"
#include "desktop/shell/CrashRecovery.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"
#include "desktop/shell/RecentProjects.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
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
{
    connect(m_crashKeeper, &CrashKeeper::failed, this, &ProjectLife::said);
    connect(&desk.session, &ProjectSession::autosaveFailed, this, [this](const QString& message) {
        emit said(tr("Autosave failed: %1").arg(message));
    });
    connect(m_externalChanges, &review::ExternalChanges::said, this, &ProjectLife::said);
}

bool ProjectLife::open(const QString& path)
{
    if (!settleUnsavedChanges())
        return false;
    emit aboutToLeave();
    if (const auto result = m_desk.session.open(path); !result) {
        tell(m_window, tr("Open Project"), result.message());
        RecentProjects(m_desk.settings).remove(path);
        emit openFailed();
        return false;
    }
    const bool isRestored = recoverAfterCrash(m_desk.session, *m_crashKeeper, m_window);
    emit opened();
    if (isRestored)
        emit said(tr("Your unsaved changes are back. Save to keep them."));
    return true;
}

void ProjectLife::end()
{
    m_crashKeeper->discard();
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
    if (QFileInfo::exists(copy)) {
        open(copy);
        return;
    }
    // The sample itself stays as it came: the writer gets a copy to play with.
    if (!settleUnsavedChanges())
        return;
    emit aboutToLeave();
    auto result = m_desk.session.open(m_samplePath);
    if (result)
        result = m_desk.session.saveAs(copy);
    if (!result)
        tell(m_window, tr("Open the Sample"), result.message());
    emit opened();
}

void ProjectLife::startNew()
{
    if (!settleUnsavedChanges())
        return;
    bool accepted = false;
    const QString name = QInputDialog::getText(
        m_window, tr("New Project"), tr("What is the project called?"), QLineEdit::Normal, tr("Untitled"),
        &accepted);
    if (!accepted)
        return;
    emit aboutToLeave();
    m_desk.session.startNew(name.trimmed().isEmpty() ? tr("Untitled") : name.trimmed());
    emit opened();
}

void ProjectLife::chooseAndOpen()
{
    const QString folder = QFileDialog::getExistingDirectory(m_window, tr("Open Project"), documentsFolder());
    if (!folder.isEmpty())
        open(folder);
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
    const QString suggestion = documentsFolder() + u'/' + m_desk.session.workspace().displayName();
    const QString folder = QFileDialog::getSaveFileName(
        m_window, tr("Save Project As a Folder"), suggestion, QString(), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (folder.isEmpty())
        return false;
    if (const auto saved = m_desk.session.saveAs(folder); !saved) {
        tell(m_window, tr("Save Project"), saved.message());
        return false;
    }
    RecentProjects(m_desk.settings).add(m_desk.session.workspace().displayPath());
    emit placeChanged();
    return true;
}

void ProjectLife::reload()
{
    if (m_desk.session.isModified()) {
        const Question question{
            tr("Read the Project Anew"),
            tr("“%1” has changes that are not saved. Reading it anew from disk drops them.")
                .arg(m_desk.session.workspace().displayName()),
            {{tr("Drop Changes"), QMessageBox::DestructiveRole}},
        };
        if (!ask(m_window, question))
            return;
    }
    if (const auto reloaded = m_desk.session.reload(); !reloaded)
        tell(m_window, tr("Read the Project Anew"), reloaded.message());
}

bool ProjectLife::settleUnsavedChanges()
{
    m_desk.session.commitPendingEdits();
    if (!m_desk.session.isModified()) {
        // Nothing is unsaved, so a refusal because of others' changes loses nothing.
        if (m_desk.session.workspace().isFullSaveDue())
            static_cast<void>(m_desk.session.save(SaveExtent::Everything));
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
    if (*choice == Discard)
        return true;
    return m_desk.session.workspace().hasPath() ? saveOrTell(SaveExtent::Everything) : saveAs();
}

} // namespace tw::desktop::shell
