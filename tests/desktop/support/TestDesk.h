// Everything a panel needs, on a temporary folder.
#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "core/document/Document.h"
#include "core/project/ProjectCommands.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace tw::test {

class TestDesk
{
public:
    /** With a new, unsaved project open. */
    TestDesk()
        : folder(m_ownFolder.path())
    {
        session.startNew(QStringLiteral("Test"));
    }

    /** With nothing open; settings and data lie in the folder, as those of an earlier start may. */
    explicit TestDesk(const QString& folderPath)
        : folder(folderPath)
    {}
    /** The same upon a file system with faults, which must outlive the desk. */
    TestDesk(const QString& folderPath, app::persistence::FileSystem& faulty)
        : folder(folderPath)
        , files(faulty)
    {}

    /** Adds a document straight to the project, as a file would bring it. */
    core::ContentId addDocument(const QString& title, const core::ContentId& parent, qint32 index)
    {
        auto document = std::make_unique<core::document::Document>(
            core::ContentId::create(), core::document::DocumentKind::Prose, title);
        document->setParentId(parent);
        document->setSortIndex(index);
        const core::ContentId id = document->id();
        session.projectForCommands().add(std::move(document));
        return id;
    }

    /** Has the panels hear of what was added behind the session's back. */
    void announce()
    {
        session.apply(std::make_unique<core::project::SetSavedSearchesCommand>(
            session.projectForCommands(), std::vector<core::project::SavedSearch>()));
        session.undo();
    }

    core::document::Document& document(const core::ContentId& id)
    {
        return *session.projectForCommands().findAsForEdit<core::document::Document>(id);
    }

private:
    QTemporaryDir m_ownFolder;
    app::persistence::DiskFileSystem m_disk;

public:
    QDir folder;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    desktop::theme::ThemeManager themes{settings};
    desktop::icons::IconSet icons{themes};
    app::persistence::FileSystem& files = m_disk;
    app::persistence::StorageEnvironment environment{files, folder.filePath(QStringLiteral("data"))};
    desktop::shell::ProjectSession session{environment};
    desktop::shell::Navigator navigator;
    desktop::shell::DeskContext context{session, navigator, themes, icons, settings};
};

} // namespace tw::test
