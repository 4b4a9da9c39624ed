#pragma once

#include "app/persistence/pack/ContentPack.h"
#include "desktop/shell/DeskContext.h"

#include <QString>

class QWidget;

namespace tw::desktop::project {

/** Asks for a pack's folder and adds what the open project lacks, as one step; says what came of it. */
void importContentPack(const shell::DeskContext& desk, QWidget* parent);

/** The same with a folder that is known. */
void importContentPackFrom(const shell::DeskContext& desk, const QString& folder, QWidget* parent);

/** Asks what goes into a pack and where, and writes it. */
void exportContentPack(const shell::DeskContext& desk, QWidget* parent);

/** What an import of the pack into the project would add and what it leaves out, for the user. */
[[nodiscard]] QString describeImport(
    const core::project::Project& project, const app::persistence::ContentPack& pack);

} // namespace tw::desktop::project
