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
                    "CrashRecovery", "%n of them have changed on disk since then, too. Your version takes "
                                     "their place; the project as it is on disk is backed up first."),
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

FileVersion onDisk(const ProjectSession& session, const QString& path)
{
    const auto& disk = session.workspace().diskState();
    return disk.contains(path) ? FileVersion(disk.bytes(path)) : FileVersion();
}

/** Fails with the project as it was; the journals are still needed then. */
core::Result<void> bringBack(ProjectSession& session, const JournalRestore& restore)
{
    if (!restore.overridden.isEmpty()) {
        if (const auto backup = session.workspace().backup(QDateTime::currentDateTime()); !backup)
            return core::Failure{backup.message()};
    }
    return session.restoreUnsaved(restore.files);
}

} // namespace

bool recoverAfterCrash(ProjectSession& session, CrashKeeper& keeper, QWidget* window)
{
    const auto& workspace = session.workspace();
    auto journals = AbandonedJournal::find(workspace.environment(), workspace.displayPath());
    const JournalRestore restore = app::persistence::planRestore(
        journals, [&session](const QString& path) { return onDisk(session, path); });
    const Choice choice = restore.isEmpty() ? Choice::Discard : askWhatToDo(session, restore, window);
    if (choice == Choice::Later)
        return false;
    if (choice == Choice::BringBack) {
        if (const auto restored = bringBack(session, restore); !restored) {
            tell(
                window, translated(QT_TRANSLATE_NOOP("CrashRecovery", "Unsaved Changes Found")),
                restored.message());
            return false;
        }
        // Until they stand in the new journal, the old ones are all there is of them.
        if (!keeper.noteRestored(restore.files))
            return true;
    }
    for (AbandonedJournal& journal : journals)
        journal.remove();
    return choice == Choice::BringBack;
}

} // namespace tw::desktop::shell
