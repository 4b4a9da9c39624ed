#include "desktop/shell/CrashRecovery.h"

#include "app/persistence/journal/CrashJournal.h"
#include "app/persistence/journal/JournalRestore.h"
#include "desktop/shell/CrashKeeper.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

namespace tw::desktop::shell {

using app::persistence::AbandonedJournal;
using app::persistence::FileVersion;
using app::persistence::JournalRestore;

namespace {

QString translated(const char* text, int count = -1)
{
    return QCoreApplication::translate("CrashRecovery", text, nullptr, count);
}

enum class Choice
{
    BringBack,
    Discard,
    Later,
};

Choice askWhatToDo(const ProjectSession& session, const JournalRestore& restore, QWidget* window)
{
    QString text = translated(
                       QT_TRANSLATE_N_NOOP(
                           "CrashRecovery",
                           "Vellory did not end properly the last time. Changes to %n items of “%1” were "
                           "noted, but not saved. Bring them back?"),
                       static_cast<int>(restore.files.size()))
                       .arg(session.workspace().displayName());
    if (!restore.overridden.isEmpty()) {
        text +=
            QStringLiteral("\n\n") +
            translated(
                QT_TRANSLATE_N_NOOP(
                    "CrashRecovery", "%n of them were changed on disk as well since then. Your version will "
                                     "stand there, and the project as it is on disk is backed up first."),
                static_cast<int>(restore.overridden.size()));
    }
    const auto answer =
        ask(window,
            {translated(QT_TRANSLATE_NOOP("CrashRecovery", "Unsaved Changes Found")),
             text,
             {{translated(QT_TRANSLATE_NOOP("CrashRecovery", "Bring Back")), QMessageBox::AcceptRole},
              {translated(QT_TRANSLATE_NOOP("CrashRecovery", "Discard")), QMessageBox::DestructiveRole}}});
    if (!answer)
        return Choice::Later;
    return *answer == 0 ? Choice::BringBack : Choice::Discard;
}

core::Result<void> bringBack(ProjectSession& session, CrashKeeper& keeper, const JournalRestore& restore)
{
    if (!restore.overridden.isEmpty()) {
        if (const auto backup = session.workspace().backup(QDateTime::currentDateTime()); !backup)
            return core::Failure{backup.message()};
    }
    auto restored = session.restoreUnsaved(restore.files);
    if (restored)
        keeper.noteRestored(restore.files);
    return restored;
}

} // namespace

bool recoverAfterCrash(ProjectSession& session, CrashKeeper& keeper, QWidget* window)
{
    const auto& workspace = session.workspace();
    bool isRestored = false;
    for (AbandonedJournal& journal :
         AbandonedJournal::find(workspace.environment(), workspace.displayPath())) {
        const auto present = [&](const QString& path) {
            const auto& disk = session.workspace().diskState();
            return disk.contains(path) ? FileVersion(disk.bytes(path)) : FileVersion();
        };
        const JournalRestore restore = app::persistence::planRestore(journal.content(), present);
        const Choice choice = restore.isEmpty() ? Choice::Discard : askWhatToDo(session, restore, window);
        if (choice == Choice::BringBack) {
            if (const auto restored = bringBack(session, keeper, restore); !restored) {
                tell(
                    window, translated(QT_TRANSLATE_NOOP("CrashRecovery", "Unsaved Changes Found")),
                    restored.message());
                continue;
            }
            isRestored = true;
        }
        if (choice != Choice::Later)
            journal.remove();
    }
    return isRestored;
}

} // namespace tw::desktop::shell
