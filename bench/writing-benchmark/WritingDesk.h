#pragma once

#include "app/persistence/StorageEnvironment.h"
#include "core/foundation/Id.h"
#include "desktop/icons/IconSet.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QSettings>
#include <QTemporaryDir>

namespace tw::bench {

/** A desk with one document, in a folder of its own. */
class WritingDesk
{
public:
    WritingDesk();

    void setText(const QString& text);

    /** Spelling and style in all rules. The dictionary lacks one word in sixteen of what is written. */
    [[nodiscard]] std::unique_ptr<desktop::proofreading::ProofreadingService> makeProofreadingService();

    QTemporaryDir folder;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    desktop::theme::ThemeManager themes{settings};
    desktop::icons::IconSet icons{themes};
    app::persistence::DiskFileSystem files;
    app::persistence::StorageEnvironment environment{files, folder.filePath(QStringLiteral("data"))};
    desktop::shell::ProjectSession session{environment};
    desktop::shell::Navigator navigator;
    desktop::shell::DeskContext context{session, navigator, themes, icons, settings};
    core::ContentId id;
};

} // namespace tw::bench
